// The ready-made list report of a table (frmdnPrint): a title, columns with their headings, and the
// rows in the order of an index, bounded by up to three leading key values.
#pragma once

#include "core/session.h"
#include "core/storage/value.h"
#include "screens/report/report_spec.h"

class ReportWindow;

struct PrintKey
{
    storage::Value value;
    QString field;
};

// The column strings have '|' between columns, at most 13; a column without a field or with width 0
// is left out.
struct TablePrint
{
    QString file;  // in the job site's folder, unless it names a folder of its own
    QString table;
    QString index = {};  // blank: physical order
    QString windowTitle;
    QString reportName;
    QString moduleName = "Vexley Module";
    QString fields;         // "ILCCODE|ILCNAME|"
    QString types = {};     // "C" text, "N" number, "B" Yes or No; blank is "C"
    QString lengths = {};   // characters of a text that are printed; blank or 0: all
    QString headings = {};  // column heads
    QString widths;         // twips
    // Number masks. "-" is none, and so is "-^", which also centres the column: a mask that ends in
    // '^' does. The column's type may stand before its mask, as in "N##". A number without a mask
    // is printed in its shortest form.
    QString formats = {};
    QString bookmark = {};  // where to begin, within the keys; blank: their first row
    QString headingLine = {};
    QString secondHeadingLine = {};
    // In the order of the index. More than three, or one without a field before one that has it,
    // are told and print nothing.
    std::vector<PrintKey> keys = {};
};

// Opens the print screen on the desktop. It opens the file in a workspace of its own and closes it
// when it goes; a failure leaves the screen with its way out.
void dnPrint(const TablePrint& print, const Session& session);

// The screen itself, for those who place it; the caller owns it.
ReportWindow* newTablePrintWindow(const TablePrint& print, const Session& session);

// The report behind it, for runs without a window. Opens the file at once: StorageError. One whose
// keys cannot be cannot begin.
ReportSpec tablePrintReport(const TablePrint& print, const Session& session);
