// A small demo job site in a temporary folder, made in this process.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "core/storage/file_paths.h"
#include "tests/support/scripted_messages.h"
#include "tools/demo/demo.h"
#include "tools/new_files.h"

class DemoSite
{
public:
    explicit DemoSite(quint64 seed)
        : m_plan{.lines = 900, .items = 240, .vendors = 30, .jobs = 6, .seed = seed}
    {
        const QString before = QDir::currentPath();
        QDir::setCurrent(m_folder.path());
        m_site = createInstallation({"Demo", "pat"});
        demo::fillJobSite(m_plan, m_site.storedPath, m_site.tag);
        m_path = storage::nativePath(m_site.storedPath);
        QDir::setCurrent(before);
    }

    const demo::Plan& plan() const { return m_plan; }
    qint32 tag() const { return m_site.tag; }
    QString folder() const { return m_folder.path(); }
    QString path() const { return m_path; }  // of the job site

    storage::Recordset open(const QString& file, const QString& table) const
    {
        return m_workspace.OpenDatabase(m_path + '/' + file).OpenRecordset(table);
    }
    storage::Recordset open(const QString& table) const { return open("ZORVEX.mdb", table); }

    // Every row of a table in physical order.
    template <class Visit>
    void walk(const QString& file, const QString& table, Visit visit) const
    {
        storage::Recordset rows = open(file, table);
        if (rows.RecordCount() > 0)
            for (rows.MoveFirst(); !rows.EOF(); rows.MoveNext())
                visit(rows);
    }
    template <class Visit>
    void walk(const QString& table, Visit visit) const
    {
        walk("ZORVEX.mdb", table, visit);
    }

private:
    ScriptedMessages m_noBoxes;
    QTemporaryDir m_folder;
    demo::Plan m_plan;
    NewJobSite m_site;
    QString m_path;
    storage::Workspace m_workspace = storage::CreateWorkspace("wksTEST");
};
