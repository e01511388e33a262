#include "screens/selectors/job_directory.h"

#include <limits>

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/storage/file_paths.h"
#include "core/text.h"

namespace {

OpenTable openMain(const QString& folder, const QString& table)
{
    return openTable(storage::joinPath(folder, "MAIN.mdb"), table);
}

// A field of the record that a bookmark names, trimmed.
QString fieldAt(const QString& folder, const QString& table, schema::FieldName field,
                const QString& bookmark)
{
    if (dnIsBlank(folder) || dnIsBlank(bookmark))
        return {};
    OpenTable open = openMain(folder, table);
    return goToFound(open.rows, bookmark) ? trimmedTextOf(open.rows[field]) : QString();
}

bool isCompanyNumber(int CONO)
{
    return CONO > 0 && CONO <= std::numeric_limits<qint16>::max();
}

}  // namespace

std::optional<QString> JobDirectory::companyName(int CONO) const
{
    if (dnIsBlank(m_folder) || !isCompanyNumber(CONO))
        return {};
    OpenTable companies = openMain(m_folder, "COLIST");
    companies.rows.Index("CONO");
    if (!companies.rows.Seek("=", CONO))
        return {};
    return trimmedTextOf(companies.rows["CONAME"]);
}

std::optional<QString> JobDirectory::jobName(int CONO, const QString& JOBNO) const
{
    if (dnIsBlank(m_folder) || dnIsBlank(JOBNO) || !isCompanyNumber(CONO))
        return {};
    OpenTable jobs = openMain(m_folder, "JOBLIST");
    jobs.rows.Index("JOBLIST");
    if (!jobs.rows.Seek("=", CONO, JOBNO))
        return {};
    return trimmedTextOf(jobs.rows["JOBNAME"]);
}

std::vector<CodeChoice> JobDirectory::companies() const
{
    std::vector<CodeChoice> found;
    if (dnIsBlank(m_folder))
        return found;
    OpenTable companies = openMain(m_folder, "COLIST");
    companies.rows.Index("CONO");
    if (companies.rows.RecordCount() == 0)
        return found;
    for (bool more = companies.rows.MoveFirst(); more; more = companies.rows.MoveNext())
        found.push_back(
            {trimmedTextOf(companies.rows["CONO"]), trimmedTextOf(companies.rows["CONAME"])});
    return found;
}

std::vector<CodeChoice> JobDirectory::jobs(int CONO) const
{
    std::vector<CodeChoice> found;
    if (dnIsBlank(m_folder) || !isCompanyNumber(CONO))
        return found;
    OpenTable jobs = openMain(m_folder, "JOBLIST");
    jobs.rows.Index("JOBLIST");
    for (bool more = jobs.rows.Seek("=", CONO); more && dnInbounds(jobs.rows, {{"CONO", CONO}});
         more = jobs.rows.MoveNext())
        found.push_back({trimmedTextOf(jobs.rows["JOBNO"]), trimmedTextOf(jobs.rows["JOBNAME"])});
    return found;
}

QString JobDirectory::companyAt(const QString& bookmark) const
{
    return fieldAt(m_folder, "COLIST", "CONO", bookmark);
}

QString JobDirectory::jobAt(const QString& bookmark) const
{
    return fieldAt(m_folder, "JOBLIST", "JOBNO", bookmark);
}
