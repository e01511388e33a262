// What is particular to one report screen. How such a screen behaves is told in report_run.h; a
// screen is a function that gives one of these. A list report's `print` comes from listReport
// (list_report.h); a printed form draws on the pages itself, between dnReportBegin and dnReportEnd.
#pragma once

#include <QHash>
#include <functional>
#include <optional>

#include "core/schema/field_name.h"
#include "core/session.h"
#include "screens/report/page_document.h"

class QWidget;
class ReportRun;

// The values of a report's own fields by their system names; ticked boxes are "-1", others "0".
// The box for a workbook is "ckbCreateExcel", where the report names no other.
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

// A value of the selection and the field of VEXSETTINGS in which it is remembered.
struct RememberedValue
{
    QString value;
    schema::FieldName setting;
};

struct ReportField
{
    enum class Kind {
        Text,
        Date,    // a field with date keys and calendar; its value is as shown, 03/07/2026
        Box,     // to be ticked
        Choice,  // one of `choices`
        Remark,  // no value, the caption only
        Own      // a control of the screen's own, made by `make`
    };
    Kind kind;
    const char* name;      // system name; an own control may set further values
    QString caption = {};  // with its key
    QString value = {};
    // Where the value is remembered for the user: a field of VEXSETTINGS, which may be a Boolean, a
    // number, a date or a text. It is read when the screen opens and written at Begin, once the
    // check has passed. While nothing is remembered (blank, 0, no date) `value` stays; what the
    // field cannot hold is not written.
    schema::FieldName setting = {};
    QStringList choices = {};
    // In place of `choices` where the selection decides them; asked anew after each change.
    std::function<QStringList(const ReportSelection&, const Session&)> choicesFor = {};
    // The values that belong to the choices, such as "A", "B" and "C"; none: their numbers, from 1.
    QStringList choiceValues = {};
    // Of a Text: "?" or "/", typed, and a button open a look-up, which gives the text; blank when
    // nothing was chosen.
    std::function<QString(const ReportSelection&, const Session&)> search = {};
    // The control belongs to the caller. It keeps the selection up to date, which lives longer, and
    // calls `changed` when the user has changed something. jobDateField and its like
    // (screens/selectors/report_selectors.h) are fields of this kind, ready-made.
    std::function<QWidget*(ReportSelection&, const Session&, const std::function<void()>& changed)>
        make = {};
    // Where the values of an own control are remembered.
    std::vector<RememberedValue> settings = {};
};

struct ReportRefusal
{
    QString title = "Cannot Print Report";
    QString text;
};

// One of several things that a screen prints, with a command of its own.
struct ReportBegin
{
    const char* name;  // system name, such as "cmdPrintAll"
    QString caption;
    std::function<void(ReportRun&)> print;
    std::function<std::optional<ReportRefusal>(const ReportRun&)> check = {};
    Qt::Key key = Qt::Key_unknown;  // begins it, where no field takes what is typed
};

struct ReportSpec
{
    QString name;
    QString caption = {};
    std::vector<ReportField> fields = {};
    // Of the box that asks for a workbook, as ReportField::setting.
    schema::FieldName workbookSetting = {};
    // For what is remembered elsewhere than in a field's `setting`: read when the screen opens, and
    // written at Begin, once the check has passed.
    std::function<void(ReportRun&)> recall = {};
    std::function<void(ReportRun&)> remember = {};
    std::function<std::optional<ReportRefusal>(const ReportRun&)> check = {};
    bool canBegin = true;  // false: only the way out is left
    // From dnReportBegin to dnReportEnd.
    std::function<void(ReportRun&)> print = {};
    // In place of `print` and cmdBegin where the screen prints several things.
    std::vector<ReportBegin> begins = {};
    // The name of the workbook in the user's folder, such as "POLOG.xls", or its full path; none:
    // paper only.
    std::function<QString(const ReportRun&)> workbookName = {};
    // The box that asks for it, and one that asks for paper; none: paper always.
    const char* workbookBox = "ckbCreateExcel";
    const char* paperBox = "";
    std::optional<PaperSize> paper = {};  // none: that of the printer
    QString finishedText = "Report Finished, Press 'P' to Print";
};
