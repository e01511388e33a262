#include "screens/selectors/report_selectors.h"

#include "core/dates.h"
#include "screens/selectors/branch_selector.h"
#include "screens/selectors/company_selector.h"
#include "screens/selectors/job_date_selector.h"

namespace {

using Values = std::vector<std::pair<QString, QString>>;

QString tick(bool isTicked)
{
    return isTicked ? "-1" : "0";
}

Values valuesOf(const tqCoNumber& control)
{
    return {{"CONO", QString::number(control.CoNumber())}, {"IsValid", tick(control.IsValid())}};
}

Values valuesOf(const tqCoJobNumber& control)
{
    return {{"CONO", QString::number(control.CoNumber())},
            {"JOBNO", control.JobNo()},
            {"IsValid", tick(control.IsValid())}};
}

Values valuesOf(const tqCoJobDateRange& control)
{
    const bool isValidPair = control.IsValidPair();
    const bool areValidDates = control.IsValidDates();
    return {{"CONO", QString::number(control.CoNumber())},
            {"JOBNO", control.JobNo()},
            {"BDATE", control.BeginDate()},
            {"EDATE", control.EndDate()},
            {"PERIOD", dnPEDateRange(control.BeginDate(), control.EndDate(), false)},
            {"IsValidPair", tick(isValidPair)},
            {"IsValidDates", tick(areValidDates)},
            {"IsValid", tick(isValidPair && areValidDates)}};
}

Values valuesOf(const BranchSelector& control)
{
    const qint32 ILCTAG = control.tag();
    return {{"ILCTAG", QString::number(ILCTAG)}, {"IsValid", tick(ILCTAG != 0)}};
}

void fill(BranchSelector& control, const ReportSelection& selection)
{
    control.setTag(selection["ILCTAG"].toInt());
}

// Where a control looks things up.
void setPath(BranchSelector& control, const QString& jobSitePath)
{
    control.setFolder(jobSitePath);
}

template <class Control>
void setPath(Control& control, const QString& jobSitePath)
{
    control.setDBPath(jobSitePath);
}

void fill(tqCoNumber& control, const ReportSelection& selection)
{
    control.setCoNumber(selection["CONO"].toInt());
}

void fill(tqCoJobNumber& control, const ReportSelection& selection)
{
    control.setCoNumber(selection["CONO"].toInt());
    control.setJobNo(selection["JOBNO"]);
}

void fill(tqCoJobDateRange& control, const ReportSelection& selection)
{
    fill(static_cast<tqCoJobNumber&>(control), selection);
    control.setBeginDate(selection["BDATE"]);
    control.setEndDate(selection["EDATE"]);
}

template <class Control>
QWidget* makeSelector(const QString& name, ReportSelection& selection, const Session& session,
                      const std::function<void()>& changed)
{
    auto* control = new Control(name);
    setPath(*control, session.JobSitePath);
    fill(*control, selection);
    const auto take = [control, &selection] {
        bool isOther = false;
        for (const auto& [value, text] : valuesOf(*control)) {
            isOther = isOther || selection[value] != text;
            selection.set(value, text);
        }
        return isOther;
    };
    take();
    QObject::connect(control, &Selector::changed, control, [take, changed] {
        if (take())
            changed();
    });
    QObject::connect(control, &Selector::entered, control, [control] { control->setActive(true); });
    QObject::connect(control, &Selector::left, control, [control] { control->setActive(false); });
    return control;
}

template <class Control>
ReportField selectorField(const char* name, std::vector<RememberedValue> settings)
{
    return {.kind = ReportField::Kind::Own,
            .name = name,
            .make =
                [name = QString(name)](ReportSelection& selection, const Session& session,
                                       const std::function<void()>& changed) {
                    return makeSelector<Control>(name, selection, session, changed);
                },
            .settings = std::move(settings)};
}

}  // namespace

ReportField companyField(const char* name)
{
    return selectorField<tqCoNumber>(name, {{"CONO", "CONO"}});
}

ReportField branchField(const char* name)
{
    return selectorField<BranchSelector>(name, {{"ILCTAG", "ILCTAG"}});
}

ReportField jobField(const char* name)
{
    return selectorField<tqCoJobNumber>(name, {{"CONO", "CONOPAIR"}, {"JOBNO", "JOBNOPAIR"}});
}

ReportField jobDateField(const char* name)
{
    return selectorField<tqCoJobDateRange>(
        name,
        {{"CONO", "CONOPAIR"}, {"JOBNO", "JOBNOPAIR"}, {"BDATE", "BDATE"}, {"EDATE", "EDATE"}});
}

std::optional<ReportRefusal> checkReportSelectors(const ReportRun& run)
{
    if (run.selection.isTicked("IsValid"))
        return std::nullopt;
    return ReportRefusal{.title = "Error Detected",
                         .text = "Cannot Print Report. Error Detected in Above Report Seletions."};
}
