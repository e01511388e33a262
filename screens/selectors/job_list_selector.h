// A list of jobs, chosen one by one.
#pragma once

#include <vector>

#include "screens/selectors/selector.h"

class QPushButton;
class QTreeWidget;
class tqCoJobNumber;

class tqJobList : public Selector
{
    Q_OBJECT
    Q_PROPERTY(QString DBPath READ DBPath WRITE setDBPath)

public:
    struct Pair
    {
        qint16 CoNumber = 0;
        QString JobNo;  // stored form
        friend bool operator==(const Pair&, const Pair&) = default;
    };

    explicit tqJobList(const QString& name = "tqJobList1");

    // Folder of MAIN.mdb and ZORSYS.mdb; given before the pairs.
    void setDBPath(const QString& path);
    QString DBPath() const { return m_path; }
    // In the order in which they were chosen, each once.
    std::vector<Pair> pairs() const;
    void setPairs(const std::vector<Pair>& pairs);
    // True while a job is typed that was not added to the list yet.
    bool isEntryUnfinished() const;

Q_SIGNALS:
    void pairsChanged();

private:
    void add();
    void remove();
    void append(const Pair& pair);
    void showState();

    tqCoJobNumber* m_entry;
    QTreeWidget* m_list;
    QPushButton* m_add;
    QPushButton* m_remove;
    QString m_path;
};
