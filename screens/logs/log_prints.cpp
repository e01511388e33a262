#include "screens/logs/log_prints.h"

#include "core/keyed_access.h"
#include "multiuser/run_log.h"
#include "screens/report/list_report.h"

namespace {

constexpr int lineWidth = 10400;  // twips, of a page in portrait

template <class Log>
ReportSpec logPrint(const QString& name, const QString& caption, const ReportPlan& plan)
{
    const auto walk = [](ReportRun& run, ReportLines& lines) {
        run.showStatus("Now Printing...");
        Log log(run.session().UserSettingsPath);
        if (log.isEmpty())
            return;
        storage::Recordset& rows = log.rows();
        run.expectRows(rows.RecordCount());
        for (rows.MoveFirst(); !rows.EOF(); rows.MoveNext())
            if (!lines.add({.cells = {dnNullCheck(rows["REMARK"])}}))
                return;
    };
    return {.name = name,
            .caption = caption,
            .print = listReport([plan](const ReportRun&) { return plan; }, walk)};
}

ReportColumn lineColumn(const QString& heading)
{
    return {.heading = heading, .width = lineWidth, .wraps = true};
}

}  // namespace

ReportSpec frmZORERRLOG02(const QString& word)
{
    return logPrint<ErrorLog>("frmZORERRLOG02", "Print " + word + " Error Log",
                              {.title = word + " Error Log",
                               .pageCaption = "Printing Page: ",
                               .columns = {lineColumn("Error Message")},
                               .emptyText = "Error Log is Empty."});
}

ReportSpec frmZORPRINTACT()
{
    return logPrint<ActivityLog>("frmZORPRINTACT", "Print Activity Log",
                                 {.title = "Activity",
                                  .pageCaption = "Printing Page: ",
                                  .columns = {lineColumn("Activity")},
                                  .emptyText = "Activity Log is Empty."});
}
