// List reports: a walk gives its lines once, sorted, each with the keys of its levels; heads,
// subtotals and totals come of themselves and go to paper and workbook alike.
#pragma once

#include "screens/report/report_run.h"

struct ReportLine
{
    ReportCells cells;
    QStringList keys = {};   // one for each level
    QStringList heads = {};  // what the levels' head lines say, where that is not the key
    bool isShown = true;     // one that is not counts in the totals all the same
};

class ReportLines
{
public:
    // The sinks live as long as this.
    ReportLines(const ReportPlan& plan, ReportRun& run, std::vector<ReportSink*> sinks);

    // False when the walk is to stop.
    bool add(const ReportLine& line);
    // A text across the page, such as the reason for which a part is left out.
    void note(const QString& text);
    // Totals that are still open, the report's total, and the word for a report without lines. A
    // run that was cancelled ends as it stands.
    void end();

private:
    void closeLevels(size_t from);
    void openLevels(size_t from, const ReportLine& line);
    template <class Call>
    void tell(Call call);

    const ReportPlan& m_plan;
    ReportRun& m_run;
    std::vector<ReportSink*> m_sinks;
    QStringList m_keys;
    std::vector<ReportCells> m_sums;  // of each level, and last of the report
    bool m_hasLines = false;
    bool m_hasShown = false;
};

// The print function of a list report. The plan is made when the check has passed; the walk then
// adds its lines until one gives false. A StorageError ends the run as it stands.
using PlanMaker = std::function<ReportPlan(const ReportRun&)>;
using ReportWalk = std::function<void(ReportRun&, ReportLines&)>;
std::function<void(ReportRun&)> listReport(PlanMaker plan, ReportWalk walk);
