// What is particular to one report screen. How such a screen behaves is told in report_run.h; a
// screen is a function that gives one of these. A list report's `print` comes from listReport
// (list_report.h); a printed form draws on the pages itself, between dnReportBegin and dnReportEnd.
#pragma once

#include <QHash>
#include <functional>
#include <optional>

#include "core/session.h"
#include "screens/report/page_document.h"

class QWidget;
class ReportRun;

// The values of a report's own fields by their system names; ticked boxes are "-1", others "0".
class ReportSelection
{
public:
    QString operator[](const QString& name) const { return m_values.value(name); }
    bool isTicked(const QString& name) const { return m_values.value(name) == "-1"; }
    void set(const QString& name, const QString& value) { m_values[name] = value; }
    void tick(const QString& name, bool ticked = true) { set(name, ticked ? "-1" : "0"); }

private:
    QHash<QString, QString> m_values;
};

struct ReportField
{
    enum class Kind {
        Text,
        Date,    // with the date keys; repaired when it is left
        Box,     // to be ticked
        Choice,  // one of `choices`; its value is the number of the choice, from 1
        Remark,  // no value, the caption only
        Own      // a control of the screen's own, made by `make`
    };
    Kind kind;
    const char* name;  // system name; an own control may set further values
    QString caption;   // with its key
    QString value = {};
    QStringList choices = {};
    // The control belongs to the caller. It keeps the selection up to date, which lives longer.
    std::function<QWidget*(ReportSelection&, const Session&)> make = {};
};

struct ReportRefusal
{
    QString title = "Cannot Print Report";
    QString text;
};

struct ReportSpec
{
    QString name;
    QString caption = {};
    std::vector<ReportField> fields = {};
    // Reads the remembered values into the selection when the screen opens; at Begin, once the
    // check has passed, `remember` writes them back.
    std::function<void(ReportRun&)> recall = {};
    std::function<void(ReportRun&)> remember = {};
    std::function<std::optional<ReportRefusal>(const ReportRun&)> check = {};
    // From dnReportBegin to dnReportEnd.
    std::function<void(ReportRun&)> print;
    // The name of the workbook in the user's folder, such as "POLOG.xls"; none: paper only.
    std::function<QString(const ReportRun&)> workbookName = {};
    std::optional<PaperSize> paper = {};  // none: that of the printer
    QString finishedText = "Report Finished, Press 'P' to Print";
};
