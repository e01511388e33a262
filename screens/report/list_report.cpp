#include "screens/report/list_report.h"

#include "screens/report/page_sink.h"
#include "screens/report/totals.h"

namespace {

QString orientationOf(const ReportPlan& plan, const PageDocument& pages)
{
    if (!plan.orientation.isEmpty())
        return plan.orientation;
    int width = 0;
    for (const ReportColumn& column : plan.columns)
        width += column.width;
    return orientationFor(pages, width);
}

void runListReport(ReportRun& run, const ReportPlan& plan, const ReportWalk& walk)
{
    if (!dnReportBegin(run, orientationOf(plan, run.pages)))
        return;
    PageSink paper(run.pages);
    const QString paperBox = run.spec().paperBox;
    std::vector<ReportSink*> sinks;
    if (paperBox.isEmpty() || run.selection.isTicked(paperBox))
        sinks.push_back(&paper);
    for (const auto& further : run.furtherSinks())
        sinks.push_back(further.get());
    ReportLines lines(plan, run, std::move(sinks));
    walk(run, lines);
    lines.end();
    dnReportEnd(run);
}

}  // namespace

ReportLines::ReportLines(const ReportPlan& plan, ReportRun& run, std::vector<ReportSink*> sinks)
    : m_plan(plan), m_run(run), m_sinks(std::move(sinks)), m_sums(plan.levels.size() + 1)
{
    for (ReportCells& sums : m_sums)
        sums.resize(plan.columns.size());
    tell([&](ReportSink& sink) { sink.begin(plan); });
}

template <class Call>
void ReportLines::tell(Call call)
{
    for (ReportSink* sink : m_sinks)
        call(*sink);
}

bool ReportLines::add(const ReportLine& line)
{
    size_t changed = 0;
    const size_t levels = m_plan.levels.size();
    while (m_hasLines && changed < levels &&
           m_keys.value(qsizetype(changed)) == line.keys.value(qsizetype(changed)))
        ++changed;
    if (!m_hasLines || changed < levels) {
        if (m_hasLines)
            closeLevels(changed);
        m_keys = line.keys;
        openLevels(changed, line);
    }
    m_hasLines = true;
    for (ReportCells& sums : m_sums)
        addTo(sums, line.cells, m_plan);
    if (line.isShown) {
        m_hasShown = true;
        tell([&](ReportSink& sink) { sink.line(line.cells); });
    }
    return m_run.proceed();
}

void ReportLines::note(const QString& text)
{
    m_hasShown = true;
    tell([&](ReportSink& sink) { sink.note(text); });
}

void ReportLines::closeLevels(size_t from)
{
    for (size_t level = m_plan.levels.size(); level-- > from;) {
        const QString& caption = m_plan.levels[level].totalCaption;
        if (!caption.isEmpty())
            tell([&](ReportSink& sink) { sink.total(level, caption, m_sums[level]); });
        m_sums[level].assign(m_plan.columns.size(), {});
    }
}

void ReportLines::openLevels(size_t from, const ReportLine& line)
{
    for (size_t level = from; level < m_plan.levels.size(); ++level) {
        if (!m_plan.levels[level].hasHead)
            continue;
        const auto at = static_cast<qsizetype>(level);
        const QString text = at < line.heads.size() ? line.heads[at] : line.keys.value(at);
        tell([&](ReportSink& sink) { sink.head(level, text); });
    }
}

void ReportLines::end()
{
    const bool isComplete = !m_run.isCancelled();
    if (isComplete) {
        if (!m_hasShown && !m_plan.emptyText.isEmpty())
            tell([&](ReportSink& sink) { sink.note(m_plan.emptyText); });
        if (m_hasLines)
            closeLevels(0);
        if (!m_plan.reportTotalCaption.isEmpty()) {
            // Without any line the total is 0, not blank.
            for (size_t column = 0; column < m_plan.columns.size(); ++column)
                if (m_plan.columns[column].isTotalled && m_sums.back()[column].isNull())
                    m_sums.back()[column] = storage::Currency{};
            tell([&](ReportSink& sink) {
                sink.total(m_plan.levels.size(), m_plan.reportTotalCaption, m_sums.back());
            });
        }
    }
    tell([&](ReportSink& sink) { sink.end(isComplete); });
}

std::function<void(ReportRun&)> listReport(PlanMaker plan, ReportWalk walk)
{
    return [plan = std::move(plan), walk = std::move(walk)](ReportRun& run) {
        runListReport(run, plan(run), walk);
    };
}
