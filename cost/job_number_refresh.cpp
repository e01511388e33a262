#include "cost/job_number_refresh.h"

#include <vector>

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/storage/file_paths.h"
#include "core/text.h"
#include "core/write_batch.h"

namespace {

constexpr const char* files[] = {"MAIN.mdb", "ZORVEX.mdb", "ZORBRQ.mdb", "JOLT.mdb", "ZORXIL.mdb"};
constexpr int rowsAStep = 2'000;
constexpr int largestSize = 8;

class Refresh
{
public:
    Refresh(const JobNoFormat& format, const std::function<bool(const RefreshProgress&)>& proceed)
        : m_format(format), m_proceed(proceed)
    {
    }

    // False when stopped.
    bool run(const QString& path, const QString& file)
    {
        m_workspace = storage::CreateWorkspace("wks" + file.chopped(4));
        m_database = m_workspace.OpenDatabase(path);
        for (const QString& table : m_database.TableDefs().Names())
            if (!table.startsWith("MSYS", Qt::CaseInsensitive) && !runTable(file, table))
                return false;
        m_workspace.Close();
        return true;
    }

    qint64 rewritten() const { return m_rewritten; }

private:
    bool runTable(const QString& file, const QString& table);
    bool lookAtSome(storage::Recordset& rows, qint64& seen);
    void rewrite(storage::Recordset& rows);
    QString wanted(const storage::Recordset& rows) const;

    const JobNoFormat& m_format;
    const std::function<bool(const RefreshProgress&)>& m_proceed;
    storage::Workspace m_workspace;
    storage::Database m_database;
    std::vector<QString> m_outdated;  // bookmarks
    qint64 m_rewritten = 0;
};

// The form that the row's job number should have; its own where it is blank.
QString Refresh::wanted(const storage::Recordset& rows) const
{
    const QString number = rows["JOBNO"].value().toString();
    return dnIsBlank(number) ? number : storedJobNo(number, m_format);
}

// Notes which rows are to be rewritten; false at the end of the table. The rows are written
// afterwards: a write between two moves would have each move read its block anew.
bool Refresh::lookAtSome(storage::Recordset& rows, qint64& seen)
{
    m_outdated.clear();
    for (int looked = 0; looked < rowsAStep; ++looked) {
        ++seen;
        if (rows["JOBNO"].value().toString() != wanted(rows))
            m_outdated.push_back(rows.Bookmark());
        if (!rows.MoveNext())
            return false;
    }
    return true;
}

void Refresh::rewrite(storage::Recordset& rows)
{
    WriteBatch batch(m_workspace);
    for (const QString& bookmark : m_outdated) {
        batch.begin();
        if (!goToFound(rows, bookmark))
            continue;
        const QString number = wanted(rows);
        rows.Edit();
        rows["JOBNO"] = number;
        rows.Update();
        ++m_rewritten;
        batch.added();
    }
    batch.commit();
}

bool Refresh::runTable(const QString& file, const QString& table)
{
    storage::Recordset walk = m_database.OpenRecordset(table);
    const int field = walk.definition().fieldPosition(QString("JOBNO"));
    if (field < 0 ||
        walk.definition().fields[static_cast<size_t>(field)].type != storage::FieldType::Text)
        return true;
    qint64 seen = 0;
    if (!m_proceed({file, table, seen}))
        return false;
    if (walk.RecordCount() == 0)
        return true;
    storage::Recordset writer = m_database.OpenRecordset(table);
    for (bool more = walk.MoveFirst(); more;) {
        more = lookAtSome(walk, seen);
        if (!m_outdated.empty())
            rewrite(writer);
        if (!m_proceed({file, table, seen}))
            return false;
    }
    return true;
}

}  // namespace

std::optional<Refusal> refuseJobNoFormat(const JobNoFormat& format)
{
    if (format.type != "C" && format.type != "N")
        return Refusal{"Invalid Job Number Type", "Type Must Be 'C' or 'N'"};
    if (format.size < 1 || format.size > largestSize)
        return Refusal{"Invalid Job Number Size", "Size Must Be Between 1 and 8 Characters"};
    return {};
}

Refusal dataMayBeLost(int newSize)
{
    return {"DATA MAY BE LOST",
            "The New Job Number Size is less than the Old\n"
            "Job Number Size. If you have any Job Numbers\n"
            "in your database with a length greater then the new \n"
            "size they will not be properly formatted and you will \n"
            "CORRUPT the database with INVALID JOB NUMBERS. \n"
            "If your Job Numbers will fit in " +
                QString::number(newSize) +
                " spaces\nthen it is OK to save the new settings. \n"
                "Save New Settings?"};
}

void saveJobNoFormat(const QString& jobSitePath, const JobNoFormat& format)
{
    OpenTable settings = openTable(jobSitePath, "ZORSYS.mdb", "SYSSETTINGS");
    if (settings.rows.RecordCount() == 0)
        settings.rows.AddNew();
    else
        settings.rows.Edit();
    settings.rows["JOBNOTYPE"] = format.type;
    settings.rows["JOBNOSIZE"] = format.size;
    settings.rows.Update();
}

RefreshResult refreshJobNumbers(const QString& jobSitePath, const JobNoFormat& format,
                                const std::function<bool(const RefreshProgress&)>& proceed)
{
    Refresh refresh(format, proceed);
    bool isComplete = true;
    for (const char* file : files) {
        const QString path = storage::joinPath(jobSitePath, file);
        if (!isComplete || !storage::pathExists(path))
            continue;
        isComplete = refresh.run(path, file);
    }
    return {.isComplete = isComplete, .rewritten = refresh.rewritten()};
}
