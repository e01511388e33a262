// The choice of a job of a company.
#pragma once

#include "screens/selectors/look_up_field.h"
#include "screens/selectors/selector.h"

class tqCoJobNumber : public Selector
{
    Q_OBJECT
    Q_PROPERTY(QString JobNo READ JobNo WRITE setJobNo)
    Q_PROPERTY(int CoNumber READ CoNumber WRITE setCoNumber)
    Q_PROPERTY(bool IsValid READ IsValid)
    Q_PROPERTY(QString DBPath READ DBPath WRITE setDBPath)

public:
    explicit tqCoJobNumber(const QString& name = "tqCoJobNumber1");

    // Folder of MAIN.mdb and ZORSYS.mdb; given before the values.
    void setDBPath(const QString& path);
    QString DBPath() const { return m_directory.folder(); }
    qint16 CoNumber() const;  // 0 when the field holds no number
    void setCoNumber(int number);
    // The job number in its stored form, of the job site's size; blank for none.
    QString JobNo() const;
    void setJobNo(const QString& number);
    // True if this company has such a job.
    bool IsValid() const { return m_company->isValid() && m_job->isValid(); }
    bool isEmpty() const { return m_company->code().isEmpty() && m_job->code().isEmpty(); }

Q_SIGNALS:
    // The user has chosen another company or job.
    void pairChanged();

protected:
    void takeTyped() override;

private:
    LookUpField* makeJobField();

    JobDirectory m_directory;
    JobNoFormat m_form;
    LookUpField* m_company;
    LookUpField* m_job;
};
