#include "cost/document_fields.h"

#include "core/locators.h"
#include "screens/search/job_searches.h"
#include "screens/search/order_searches.h"
#include "screens/search/vendor_searches.h"
#include "screens/selectors/job_directory.h"

using Kind = EntryField::Kind;

int companyOf(const Entry& entry)
{
    return static_cast<int>(entry.number("CONO"));
}

namespace {

// A text of ZORVEX.mdb that a search window gives.
std::function<QString(const Entry&)> searchText(QString (*search)(const QString& path),
                                                const QString& table, schema::FieldName field)
{
    return [=](const Entry& entry) {
        const QString bookmark = search(entry.session().JobSitePath);
        OpenTable found = openTable(entry.session(), "ZORVEX.mdb", table);
        return goToFound(found.rows, bookmark) ? trimmedTextOf(found.rows[field]) : QString();
    };
}

QString searchCompany(const Entry& entry)
{
    const QString& path = entry.session().JobSitePath;
    return JobDirectory(path).companyAt(zorSearchCompany(path));
}

QString searchJob(const Entry& entry)
{
    const QString& path = entry.session().JobSitePath;
    return JobDirectory(path).jobAt(zorSearchJob(path, static_cast<qint16>(companyOf(entry))));
}

QString companyName(const Entry& entry)
{
    const int CONO = companyOf(entry);
    return CONO == 0 ? QString()
                     : JobDirectory(entry.session().JobSitePath)
                           .companyName(CONO)
                           .value_or("Company Not Found");
}

std::vector<EntryChoice> requisitionTypes(const Session& session)
{
    std::vector<EntryChoice> choices = {{"", "(none)"}};
    OpenTable types = openTable(session, "ZORVEX.mdb", "REQTYPES");
    types.rows.Index("REQTYPE");
    for (bool more = types.rows.RecordCount() > 0 && types.rows.MoveFirst(); more;
         more = types.rows.MoveNext()) {
        const QString type = trimmedTextOf(types.rows["REQTYPE"]);
        choices.push_back({type, type + " - " + trimmedTextOf(types.rows["RTNAME"])});
    }
    return choices;
}

}  // namespace

QString storedJobOf(const Entry& entry, const JobNoFormat& format)
{
    return storedJobNo(entry["JOBNO"], format);
}

EntryField typedCompanyField(const EntryCheck& check)
{
    return {.name = "txtCONO",
            .field = "CONO",
            .caption = "C&ompany:",
            .length = 2,
            .keys = {.numbers = NumberKeys::Digits},
            .format = "##",
            .check = check,
            .search = searchCompany,
            .searchName = "cmdCONO"};
}

EntryField companyNameField()
{
    return {.kind = Kind::Shown, .name = "lblCONAME", .shows = companyName};
}

EntryField typedJobField(const JobNoFormat& format, const EntryCheck& check)
{
    return {.name = "txtJOBNO",
            .field = "JOBNO",
            .caption = "&Job Number:",
            .length = format.size,
            .tidy = [format](const QString& text) { return storedJobNo(text, format).trimmed(); },
            .check = check,
            .search = searchJob,
            .searchName = "cmdJOBNO"};
}

EntryField jobNameField(const JobNoFormat& format)
{
    return {.kind = Kind::Shown, .name = "lblJOBNAME", .shows = [format](const Entry& entry) {
                return entry.isBlank("JOBNO")
                           ? QString()
                           : JobDirectory(entry.session().JobSitePath)
                                 .jobName(companyOf(entry), storedJobOf(entry, format))
                                 .value_or("Job Number Not Found");
            }};
}

EntryField requisitionTypeField(const Session& session)
{
    return {.kind = Kind::Choice,
            .name = "cboREQTYPE",
            .field = "REQTYPE",
            .caption = "Requisitio&n Type:",
            .choices = requisitionTypes(session)};
}

std::vector<EntryField> deliveryFields()
{
    return {
        {.name = "txtSHIPTO",
         .field = "SHIPTO",
         .caption = "&Ship To:",
         .search = searchText(zorSearchShipTo, "SHIPTOITEMS", "SHIPTO"),
         .searchName = "cmdSHIPTO"},
        {.name = "txtSHIPVIA",
         .field = "SHIPVIA",
         .caption = "S&hip Via:",
         .search = searchText(zorSearchShipVia, "SHIPVIAITEMS", "SHIPVIA"),
         .searchName = "cmdSHIPVIA"},
        {.name = "txtFOB", .field = "FOB", .caption = "&FOB:"},
        {.name = "txtTERMS",
         .field = "TERMS",
         .caption = "&Terms:",
         .search =
             [](const Entry& entry) {
                 return searchText(zorSearchTerms, "TERMSCODES", "TCNAME")(entry).left(
                     entry.lengthOf(entry.indexOf(schema::FieldName("TERMS"))));
             },
         .searchName = "cmdTERMS"},
        {.name = "txtWHODIDIT",
         .field = "WHODIDIT",
         .caption = "Requisitioned &By:",
         .search = searchText(zorSearchWhoDidIt, "WHODIDITITEMS", "WHODIDIT"),
         .searchName = "cmdWHODIDIT"},
    };
}
