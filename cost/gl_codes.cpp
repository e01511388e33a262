#include "cost/gl_codes.h"

namespace {

QString checkCode(const Entry& entry)
{
    if (entry.isBlank("GLCODE"))
        return "G/L Code is Empty.";
    if (entry.isTakenInParent("GLCODES", {{"GLCODE", entry["GLCODE"]}}))
        return "Duplicate G/L Code Detected.\nThe G/L Code you have entered\n"
               "already exists for above Company Number.";
    return {};
}

QString deleteQuestion(storage::Recordset& rows)
{
    return "OK to Delete G/L Code " + textOf(rows["GLCODE"]) + ' ' + trimmedTextOf(rows["Desc"]) +
           '?';
}

}  // namespace

BrowseSpec frmVEXGLC01()
{
    return {
        .name = "frmVEXGLC01",
        .caption = "General Ledger Codes",
        .table = "GLCODES",
        .index = "GLCODES",
        .parent = {BrowseParent::Kind::Company, {"CONO"}},
        .columns = {{.field = "GLCODE",
                     .length = 10,
                     .heading = "G/L Code",
                     .width = 1400,
                     .entry = "txtGLCODE",
                     .check = checkCode},
                    {.field = "Desc",
                     .length = 50,
                     .heading = "Description",
                     .width = 4000,
                     .entry = "txtDESC",
                     .check = required("Desc", "Description is Empty.")}},
        .deleteQuestion = deleteQuestion,
        .printWindow = "Print G/L Codes",
        .printTitle = "List of G/L Codes",
    };
}
