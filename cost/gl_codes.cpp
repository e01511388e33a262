#include "cost/gl_codes.h"

#include "screens/browse/browse_session.h"
#include "screens/search/job_searches.h"

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

QString search(const BrowseSession& screen)
{
    return zorSearchGLCode(screen.session().JobSitePath,
                           static_cast<qint16>(screen.parentKey("CONO").toInt()));
}

}  // namespace

BrowseSpec frmVEXGLC01()
{
    return {
        .name = "frmVEXGLC01",
        .caption = "General Ledger Codes",
        .table = "GLCODES",
        .index = "GLCODES",
        .parent = companyParent(),
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
        .search = search,
        .print = {.window = "Print G/L Codes", .title = "List of G/L Codes"},
    };
}
