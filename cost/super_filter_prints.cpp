// The list of a job's super cost code filters, and the outline of one.
#include "core/cost_code_groups.h"
#include "core/keyed_access.h"
#include "core/locators.h"
#include "cost/cost_prints.h"
#include "cost/super_filter_screens.h"
#include "cost/super_filters.h"
#include "screens/report/list_report.h"

namespace {

struct Job
{
    int CONO;
    QString JOBNO;

    QStringList headingLines(const Session& session) const
    {
        return {companyLine(session, CONO), jobLine(session, CONO, JOBNO)};
    }
};

ReportPlan listPlan(const Job& job, const Session& session)
{
    return {.title = "Super Costcode Filters",
            .headingLines = job.headingLines(session),
            .columns = {{.heading = "SCF Code", .width = 1600},
                        {.heading = "Description", .width = 5000}}};
}

void addFilters(const Job& job, ReportRun& run, ReportLines& lines)
{
    OpenTable filters = openTable(run.session(), "MAIN.mdb", "UDSLIST");
    storage::Recordset& rows = filters.rows;
    forEachWithin(rows, "UDSLIST", {{"CONO", job.CONO}, {"JOBNO", job.JOBNO}}, [&] {
        return lines.add(
            {.cells = {trimmedTextOf(rows["UDSCODE"]), trimmedTextOf(rows["UDSNAME"])}});
    });
}

ReportPlan outlinePlan(const Job& job, const Session& session)
{
    return {.title = "Super Costcode Filter CodeOutline",
            .headingLines = job.headingLines(session),
            .columns = {{.heading = "", .width = 2400},
                        {.heading = "Code", .width = 2200},
                        {.heading = "Description", .width = 4600}}};
}

// A level's group letter, and the table in which its codes are described.
class Outline
{
public:
    Outline(const Job& job, ReportRun& run, ReportLines& lines, storage::Recordset& filter)
        : m_job(job), m_lines(lines), m_nodes(openUdsTables(run.session().JobSitePath))
    {
        for (const schema::FieldName field : udsGroupFields) {
            m_groups.push_back(findCostCodeGroup(trimmedTextOf(filter[field])));
            m_codes.push_back(m_groups.back()
                                  ? openTable(run.session(), "MAIN.mdb", m_groups.back()->table)
                                  : OpenTable{});
        }
    }

    // The nodes of a level under an owner, each with those below it; false stops.
    bool addNodes(int level, qint32 owner)
    {
        if (level > 3)
            return true;
        // Which they are is found out first: the levels below move on other handles, but a walk
        // that adds lines lets the program live, and others may write meanwhile.
        std::vector<std::pair<QString, qint32>> nodes;
        storage::Recordset& rows = m_nodes.level(level);
        forEachWithin(rows, "UDSCCL" + QString::number(level), {{"OWNERTAG", owner}}, [&] {
            nodes.emplace_back(textOf(rows["COSTCODE"]), intOf(rows["UDSDTAG"]));
            return true;
        });
        for (const auto& [code, tag] : nodes)
            if (!m_lines.add({.cells = {"Level " + QString::number(level) + " Cost Code: ",
                                        QString(2 * (level - 1), ' ') + code.trimmed(),
                                        description(level, code)}}) ||
                !addNodes(level + 1, tag))
                return false;
        return true;
    }

private:
    QString description(int level, const QString& code)
    {
        const auto at = static_cast<size_t>(level - 1);
        return m_groups[at] ? zorFindCCDESC(m_codes[at].rows, m_groups[at]->letterText(),
                                            m_job.CONO, m_job.JOBNO, code)
                            : QString();
    }

    Job m_job;
    ReportLines& m_lines;
    UdsTables m_nodes;
    std::vector<const CostCodeGroup*> m_groups;
    std::vector<OpenTable> m_codes;
};

void addOutline(const Job& job, qint32 UDSTAG, ReportRun& run, ReportLines& lines)
{
    OpenTable filters = openTable(run.session(), "MAIN.mdb", "UDSLIST");
    storage::Recordset& filter = filters.rows;
    filter.Index("UDSTAG");
    if (!filter.Seek("=", UDSTAG) ||
        !lines.add({.cells = {"             SCF Code: ", trimmedTextOf(filter["UDSCODE"]),
                              trimmedTextOf(filter["UDSNAME"])}}))
        return;
    Outline(job, run, lines, filter).addNodes(1, UDSTAG);
}

}  // namespace

ReportSpec frmZORUDS03(int CONO, const QString& JOBNO, qint32 UDSTAG)
{
    const Job job{CONO, JOBNO};
    ReportSpec screen{.name = "frmZORUDS03", .caption = "Print Super Costcode Filter Codes"};
    screen.begins = {
        {.name = "cmdPrintList",
         .caption = "Print &List",
         .print = listReport(
             [job](const ReportRun& run) { return listPlan(job, run.session()); },
             [job](ReportRun& run, ReportLines& lines) { addFilters(job, run, lines); })},
        {.name = "cmdPrintStructure",
         .caption = "Print &Structure",
         .print = listReport(
             [job](const ReportRun& run) { return outlinePlan(job, run.session()); },
             [=](ReportRun& run, ReportLines& lines) { addOutline(job, UDSTAG, run, lines); }),
         .check = [UDSTAG](const ReportRun&) -> std::optional<ReportRefusal> {
             if (UDSTAG != 0)
                 return {};
             return ReportRefusal{"No Current Item",
                                  "In Order to Print a UDS Outline First Move\n"
                                  "to the Desired Item and then Click on 'Print'"};
         }},
    };
    return screen;
}
