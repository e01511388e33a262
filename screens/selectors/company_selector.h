// The choice of a company.
#pragma once

#include "screens/selectors/look_up_field.h"
#include "screens/selectors/selector.h"

class tqCoNumber : public Selector
{
    Q_OBJECT
    Q_PROPERTY(int CoNumber READ CoNumber WRITE setCoNumber)
    Q_PROPERTY(bool IsValid READ IsValid)
    Q_PROPERTY(QString DBPath READ DBPath WRITE setDBPath)

public:
    explicit tqCoNumber(const QString& name = "tqCoNumber1");

    // Folder of MAIN.mdb; given before the values.
    void setDBPath(const QString& path);
    QString DBPath() const { return m_directory.folder(); }
    // 0 when the field holds no number.
    qint16 CoNumber() const;
    void setCoNumber(int number);
    bool IsValid() const { return m_company->isValid(); }

protected:
    void takeTyped() override { m_company->takeTyped(); }

private:
    JobDirectory m_directory;
    LookUpField* m_company;
};

// The field of a company number, for every control that has one. The directory stays the caller's
// and lives longer.
LookUpField* makeCompanyField(const JobDirectory& directory);
// The number in a company field; 0 for none.
qint16 companyNumberIn(const LookUpField& field);
