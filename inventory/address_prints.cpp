// The prints of vendors and manufacturers: data sheets and the list.
#include "core/keyed_access.h"
#include "core/locators.h"
#include "inventory/address_book.h"
#include "screens/report/data_sheet.h"
#include "screens/report/list_report.h"

namespace {

OpenTable openBook(const AddressBook& book, const ReportRun& run)
{
    OpenTable table = openTable(run.session(), "ZORVEX.mdb", book.table);
    table.rows.Index(book.byName);
    return table;
}

QString addressLines(const storage::Recordset& rows, const QString& separator)
{
    QStringList lines = {trimmedTextOf(rows["ADDRESS1"]), trimmedTextOf(rows["ADDRESS2"])};
    lines.removeAll({});
    return lines.join(separator);
}

std::vector<SheetLine> sheetOf(const AddressBook& book, const storage::Recordset& rows)
{
    std::vector<SheetLine> lines = {{book.name + " Number:", trimmedTextOf(rows[book.number])},
                                    {book.name + " Name:", trimmedTextOf(rows[book.nameField])},
                                    {"Address:", addressLines(rows, "\n")},
                                    {"City/State/Zip:", placeLine(rows)},
                                    {"Phone:", trimmedTextOf(rows["PHONE"])},
                                    {"Fax:", trimmedTextOf(rows["FAX"])},
                                    {"Contact:", trimmedTextOf(rows["CONTACT"])}};
    if (book.hasTerms)
        lines.push_back({"Email:", trimmedTextOf(rows["EMAIL"])});
    lines.push_back({"Remarks:", trimmedTextOf(rows["REMARKS"])});
    return lines;
}

SheetHead sheetHead(const AddressBook& book)
{
    return {.reportName = book.name + " Data Sheet"};
}

void printOne(const AddressBook& book, qint32 tag, ReportRun& run)
{
    OpenTable table = openBook(book, run);
    table.rows.Index(book.tagField);
    DataSheets sheets(run, sheetHead(book));
    if (sheets.isOpen() && table.rows.Seek("=", tag))
        sheets.add(sheetOf(book, table.rows));
}

void printAll(const AddressBook& book, ReportRun& run)
{
    OpenTable table = openBook(book, run);
    run.expectRows(table.rows.RecordCount());
    DataSheets sheets(run, sheetHead(book));
    for (bool more = sheets.isOpen() && table.rows.MoveFirst(); more; more = table.rows.MoveNext())
        if (!sheets.add(sheetOf(book, table.rows)))
            return;
}

ReportPlan listPlan(const AddressBook& book)
{
    return {.title = book.name + " List",
            .orientation = "L",
            .columns = {{.heading = book.numberHeading, .width = 1250},
                        {.heading = "Name", .width = 3000},
                        {.heading = "Address", .width = 3000},
                        {.heading = "City/State/Zip", .width = 2500},
                        {.heading = "Contact", .width = 1900},
                        {.heading = "Phone", .width = 1500},
                        {.heading = "Fax", .width = 1500}}};
}

void walkList(const AddressBook& book, ReportRun& run, ReportLines& lines)
{
    OpenTable table = openBook(book, run);
    const storage::Recordset& rows = table.rows;
    run.expectRows(rows.RecordCount());
    for (bool more = table.rows.MoveFirst(); more; more = table.rows.MoveNext())
        if (!lines.add({.cells = {trimmedTextOf(rows[book.number]),
                                  trimmedTextOf(rows[book.nameField]), addressLines(rows, ", "),
                                  placeLine(rows), trimmedTextOf(rows["CONTACT"]),
                                  trimmedTextOf(rows["PHONE"]), trimmedTextOf(rows["FAX"])}}))
            return;
}

std::function<std::optional<ReportRefusal>(const ReportRun&)> notEmpty(const AddressBook& book,
                                                                       const QString& text)
{
    return [&book, text](const ReportRun& run) -> std::optional<ReportRefusal> {
        if (openBook(book, run).rows.RecordCount() > 0)
            return std::nullopt;
        return ReportRefusal{book.name + " Table Empty", text};
    };
}

}  // namespace

ReportSpec addressPrint(const AddressBook& book, qint32 tag)
{
    const auto hasCurrent = [&book, tag](const ReportRun&) -> std::optional<ReportRefusal> {
        if (tag != 0)
            return std::nullopt;
        return ReportRefusal{.text = "No Current " + book.name};
    };
    return {.name = book.printScreen,
            .caption = "Print " + book.information,
            .begins = {{"cmdDataSheet", book.printCaptions[0],
                        [&book, tag](ReportRun& run) { printOne(book, tag, run); }, hasCurrent},
                       {"cmdPrintAll", book.printCaptions[1],
                        [&book](ReportRun& run) { printAll(book, run); },
                        notEmpty(book, "No " + book.name + " Information to Print")},
                       {"cmdPrintReport", book.printCaptions[2],
                        listReport([&book](const ReportRun&) { return listPlan(book); },
                                   [&book](ReportRun& run, ReportLines& lines) {
                                       walkList(book, run, lines);
                                   }),
                        notEmpty(book, "List of " + book.names + " is Empty.")}}};
}
