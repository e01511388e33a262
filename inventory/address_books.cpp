#include "inventory/address_books.h"

#include "core/site_settings.h"
#include "core/text.h"
#include "inventory/address_book.h"
#include "screens/browse/browse_session.h"
#include "screens/data/data_window.h"
#include "screens/desktop.h"
#include "screens/report/report_window.h"
#include "screens/search/vendor_searches.h"

using Kind = EntryField::Kind;

const AddressBook vendorBook = {
    .table = "VENDORS",
    .names = "Vendors",
    .name = "Vendor",
    .number = "VENNO",
    .nameField = "Name",
    .tag = "VENTAG",
    .tagField = "VENTAG",
    .byNumber = "VENNO",
    .byName = "VENNAME",
    .editRight = "VEN02",
    .listScreen = "frmVEXVEN01",
    .dataScreen = "frmVEXVEN02",
    .printScreen = "frmVEXVEN03",
    .information = "Vendor Information",
    .numberHeading = "Vendor #",
    .hasTerms = true,
    .search = zorSearchVendor,
    .printCaptions = {"Vendor &Data Sheet", "Data Sheets for &All Vendors", "&List of Vendors"},
};

const AddressBook manufacturerBook = {
    .table = "MANUFACTURERS",
    .names = "Manufacturers",
    .name = "Manufacturer",
    .number = "MFGNO",
    .nameField = "MFGNAME",
    .tag = "MFGTAG",
    .tagField = "MFGTAG",
    .byNumber = "MFGNO",
    .byName = "MFGNAME",
    .editRight = "MFG02",
    .listScreen = "frmVEXMFG01",
    .dataScreen = "frmVEXMFG02",
    .printScreen = "frmVEXMFG03",
    .information = "Manufacturer Information",
    .numberHeading = "MFG #",
    .hasTerms = false,
    .search = zorSearchManufacturer,
    .printCaptions = {"MFG &Data Sheet", "Data Sheets for &All MFG's", "&List of MFG's"},
};

namespace {

constexpr char termsField[] = "txtTERMSCODE";
constexpr int termsLength = 2;

// ---- terms of payment
QString fittedTerms(const QString& text)
{
    return dnIsBlank(text) ? QString() : text.trimmed().left(termsLength).toUpper();
}

// The row of a code, or no record.
OpenTable openTerms(const Session& session, const QString& code)
{
    OpenTable terms = openTable(session, "ZORVEX.mdb", "TERMSCODES");
    terms.rows.Index("TERMSCODES");
    terms.rows.Seek("=", code.leftJustified(termsLength));
    if (terms.rows.NoMatch())
        terms.rows.Seek("=", code);
    return terms;
}

QString checkTerms(const Entry& entry)
{
    const QString code = entry.named(termsField);
    return dnIsBlank(code) || !openTerms(entry.session(), code).rows.NoMatch()
               ? QString()
               : "Cannot Find Terms Code: " + code;
}

QString termsName(const Entry& entry)
{
    const QString code = fittedTerms(entry.named(termsField));
    if (code.isEmpty())
        return {};
    const OpenTable terms = openTerms(entry.session(), code);
    return terms.rows.NoMatch() ? QString() : trimmedTextOf(terms.rows["TCNAME"]);
}

QString searchTerms(const Entry& entry)
{
    const QString found = zorSearchTerms(entry.session().JobSitePath);
    OpenTable terms = openTable(entry.session(), "ZORVEX.mdb", "TERMSCODES");
    return goToFound(terms.rows, found) ? trimmedTextOf(terms.rows["TERMSCODE"]) : QString();
}

// The terms code is typed, its tag is kept.
class AddressRules : public EntryRules
{
public:
    explicit AddressRules(const AddressBook& book) : m_book(book) {}

    bool begin(Entry& entry) override
    {
        if (!m_book.hasTerms || entry.isAdding())
            return true;
        // Tag 0 is none, even where a counter failed and a code was stored with it.
        const int tag = intOf(entry.rows()["TERMSCODETAG"]);
        OpenTable terms = openTable(entry.session(), "ZORVEX.mdb", "TERMSCODES");
        terms.rows.Index("TERMSCODETAG");
        if (tag != 0 && terms.rows.Seek("=", tag))
            entry.setNamed(termsField, trimmedTextOf(terms.rows["TERMSCODE"]));
        return true;
    }

    void complete(const Entry& entry, storage::Recordset& rows) override
    {
        rows[m_book.number] = entry[m_book.number].trimmed().toUpper();
        if (!m_book.hasTerms)
            return;
        const QString code = entry.named(termsField);
        if (dnIsBlank(code)) {
            rows["TERMSCODETAG"] = 0;
            return;
        }
        const OpenTable terms = openTerms(entry.session(), code);
        rows["TERMSCODETAG"] = terms.rows.NoMatch() ? 0 : intOf(terms.rows["TERMSCODETAG"]);
    }

private:
    const AddressBook& m_book;
};

// ---- the screen of one record
EntryCheck numberCheck(const AddressBook& book)
{
    return [&book](const Entry& entry) -> QString {
        const QString number = entry[book.number].trimmed();
        if (number.isEmpty())
            return book.name + " Number is Empty.";
        if (!entry.isTaken(book.byNumber, {{book.number, number}}))
            return {};
        return "A Duplicate " + book.name + " Number has been Detected.\nThe " + book.name +
               " Number you have entered\nalready exists on another line.";
    };
}

std::vector<EntryField> addressFields(const AddressBook& book, bool upperCase)
{
    const auto upper = [](const QString& text) { return text.toUpper(); };
    std::vector<EntryField> fields = {
        {.name = "txt" + book.byNumber,
         .field = book.number,
         .caption = book.name + " &Number:",
         .tidy = upper,
         .check = numberCheck(book)},
        {.name = "txtNAME",
         .field = book.nameField,
         .caption = book.name + " Na&me:",
         .check = required(book.nameField, book.name + " Name is Empty.")},
        {.name = "txtADDRESS1", .field = "ADDRESS1", .caption = "&Address:"},
        {.name = "txtADDRESS2", .field = "ADDRESS2", .caption = "Address &2:"},
        {.name = "txtCITY",
         .field = "CITY",
         .caption = "Cit&y:",
         .tidy =
             [](const QString& text) { return dnIsBlank(text) ? text : dnProperCase(text, " "); }},
        {.name = "txtSTATE", .field = "State", .caption = "&State:", .tidy = upper},
        {.name = "txtZIP", .field = "ZIP", .caption = "&Zip/Postal Code:"},
        {.name = "txtPLUS4", .field = "PLUS4", .caption = "Plus &4:"},
        {.name = "txtPHONE", .field = "PHONE", .caption = "&Phone:", .tidy = dnPhoneFormat},
        {.name = "txtFAX", .field = "FAX", .caption = "&Fax:", .tidy = dnPhoneFormat},
        {.name = "txtCONTACT", .field = "CONTACT", .caption = "C&ontact:"}};
    if (book.hasTerms)
        fields.push_back({.name = "txtEMAIL", .field = "EMAIL", .caption = "Ema&il:"});
    fields.push_back({.name = "txtREMARKS", .field = "REMARKS", .caption = "&Remarks:"});
    if (book.hasTerms) {
        fields.push_back({.name = termsField,
                          .caption = "Terms Cod&e:",
                          .length = termsLength,
                          .tidy = fittedTerms,
                          .check = checkTerms,
                          .search = searchTerms,
                          .searchName = "cmdTERMSCODE"});
        fields.push_back({.kind = Kind::Shown, .name = "lblTCNAME", .shows = termsName});
    }
    if (upperCase)
        for (EntryField& field : fields)
            field.keys.upperCase = true;
    return fields;
}

DataSpec dataScreen(const AddressBook& book, const Session& session)
{
    return {
        .name = book.dataScreen,
        .caption = book.names,
        .table = book.table,
        .index = book.byName,
        .sections = {{.fields =
                          addressFields(book, siteSwitch(session.JobSitePath, "VEXUCASEONLY"))}},
        .tag = {.field = book.tagField, .hasSiteNumber = true},
        .lock = book.table,
        .rules = std::make_shared<AddressRules>(book),
        .deleteQuestion =
            [](storage::Recordset&) { return confirmDelete("Confirm Delete.", "OK to Delete?"); },
        .viewRefusal = "Changes Not Allowed When Viewing"};
}

// ---- the list
QString termsCodeOf(const BrowseSession& list, storage::Recordset& rows)
{
    storage::Recordset& terms = list.beside("TERMSCODES");
    return terms.Seek("=", rows["TERMSCODETAG"].value()) ? trimmedTextOf(terms["TERMSCODE"])
                                                         : QString("?");
}

// The record by its number, which is one of a kind, where a damaged site may have a tag twice.
DataRecord recordInHand(const AddressBook& book, BrowseSession& list, const QString& mode,
                        qint32 tag, qint16 winTag)
{
    DataRecord record{.mode = mode, .winTag = winTag, .tag = tag};
    if (mode == "A")
        return record;
    const storage::Value number = list.list().rows()[book.number].value();
    const bool hasNumber = !dnIsBlank(number.toString());
    record.index = hasNumber ? book.byNumber : book.tagField;
    record.keys = {hasNumber ? KeyField{book.number, number} : KeyField{book.tag, tag}};
    return record;
}

BrowseSpec listScreen(const AddressBook& book)
{
    BrowseSpec spec = {
        .name = book.listScreen,
        .caption = book.names,
        .table = book.table,
        .index = book.byName,
        .columns =
            {{.field = book.number, .length = 10, .heading = book.numberHeading, .width = 1300},
             {.field = book.nameField, .length = 40, .heading = "Name", .width = 4000},
             {.field = "PHONE", .length = 20, .heading = "Phone", .width = 1700},
             {.field = "FAX", .length = 20, .heading = "Fax", .width = 1700},
             {.field = "CONTACT", .length = 50, .heading = "Contact", .width = 2400}},
        .editRight = book.editRight,
        .detail = {.tagField = book.tagField,
                   .tagIndex = book.tagField,
                   .open =
                       [&book](BrowseSession& list, const QString& mode, qint32 tag,
                               qint16 winTag) {
                           return openDataScreen(dataScreen(book, list.session()), list.session(),
                                                 recordInHand(book, list, mode, tag, winTag));
                       },
                   .lock = book.table,
                   .hasView = true,
                   .tellsNoRecord = false},
        .search =
            [&book](const BrowseSession& list) { return book.search(list.session().JobSitePath); },
        .print = {.run = [&book](BrowseSession& list) {
            openScreen(new ReportWindow(addressPrint(book, list.currentTag()), list.session()));
        }}};
    if (book.hasTerms) {
        spec.besides = {{"ZORVEX.mdb", "TERMSCODES", "TERMSCODETAG"}};
        spec.columns.push_back({.field = "TERMSCODETAG",
                                .length = 5,
                                .heading = "Terms",
                                .width = 800,
                                .shows = termsCodeOf});
    }
    return spec;
}

}  // namespace

BrowseSpec frmVEXVEN01()
{
    return listScreen(vendorBook);
}
BrowseSpec frmVEXMFG01()
{
    return listScreen(manufacturerBook);
}
DataSpec frmVEXVEN02(const Session& session)
{
    return dataScreen(vendorBook, session);
}
DataSpec frmVEXMFG02(const Session& session)
{
    return dataScreen(manufacturerBook, session);
}
ReportSpec frmVEXVEN03(qint32 tag)
{
    return addressPrint(vendorBook, tag);
}
ReportSpec frmVEXMFG03(qint32 tag)
{
    return addressPrint(manufacturerBook, tag);
}
