#include "cost/companies.h"

#include <QDir>
#include <QFileInfo>

#include "core/storage/file_paths.h"
#include "cost/cost_prints.h"
#include "cost/job_checks.h"
#include "screens/browse/browse_session.h"
#include "screens/data/data_window.h"
#include "screens/desktop.h"
#include "screens/report/report_window.h"
#include "screens/search/job_searches.h"
#include "screens/system_dialogs.h"

using Kind = EntryField::Kind;

namespace {

constexpr char mediaFolder[] = "ZORMedia";

QString checkNumber(const Entry& entry)
{
    if (entry.isBlank("CONO"))
        return "Company Number is Empty.";
    if (entry.number("CONO") == 0)
        return "Company Number is Zero.";
    return entry.isTaken("CONO", {{"CONO", entry["CONO"].trimmed().toInt()}})
               ? "Duplicate Company Number Detected."
               : QString();
}

QString checkLogo(const Entry& entry)
{
    const QString path = logoPath(entry["LOGOFILENAME"]);
    return path.isEmpty() || QFileInfo(path).isFile() ? QString()
                                                      : "Cannot Find Image File: +" + path;
}

bool chooseLogo(Entry& entry)
{
    const QString picked =
        SystemDialogs::current().chooseFileToRead("Logo", storage::nativePath(mediaFolder),
                                                  "Images (*.bmp *.gif *.jpg *.jpeg *.png);;"
                                                  "All Files (*)");
    if (picked.isEmpty())
        return false;
    entry.setText("LOGOFILENAME", logoName(picked));
    return true;
}

// A company with jobs keeps its number.
class CompanyRules : public EntryRules
{
public:
    bool begin(Entry& entry) override
    {
        for (const schema::FieldName phone : {schema::FieldName("VOICE"), {"FAX"}})
            if (entry.isBlank(phone))
                entry.setText(phone, maskedPhone({}));
        return true;
    }

    Step beforeWrite(Entry& entry) override
    {
        if (entry.isAdding() || !entry.goToRecord())
            return Step::Write;
        const std::optional<Refusal> refusal =
            refuseCompanyNumberChange(entry.session().JobSitePath, intOf(entry.rows()["CONO"]),
                                      static_cast<int>(entry.number("CONO")));
        if (refusal) {
            showCritical(refusal->title, refusal->text);
            entry.setFocus("CONO");
        }
        return refusal ? Step::Stay : Step::Write;
    }
};

QString deleteTest(const Session& session, storage::Recordset& rows)
{
    const std::optional<Refusal> refusal =
        refuseCompanyDeletion(session.JobSitePath, intOf(rows["CONO"]));
    return refusal ? refusal->text : QString();
}

Message deleteQuestion(storage::Recordset& rows)
{
    return confirmDelete("Confirm Delete",
                         QString("Ok to Delete Company Number: %1?").arg(intOf(rows["CONO"]), 2));
}

std::vector<EntryField> fields()
{
    return {
        {.name = "txtCONO",
         .field = "CONO",
         .caption = "Company &Number:",
         .length = 2,
         .keys = {.numbers = NumberKeys::Digits},
         .format = "##",
         .check = checkNumber},
        {.name = "txtCONAME",
         .field = "CONAME",
         .caption = "Company Na&me:",
         .check = required("CONAME", "Company Name is Empty.")},
        {.name = "txtADDRESS1", .field = "ADDRESS1", .caption = "&Address:"},
        {.name = "txtADDRESS2", .field = "ADDRESS2", .caption = "Address (continued):"},
        {.name = "txtCITY", .field = "CITY", .caption = "Cit&y:"},
        {.name = "mebState", .field = "State", .caption = "&State:", .keys = {.upperCase = true}},
        {.name = "txtZIP", .field = "ZIP", .caption = "&Zip:"},
        {.name = "txtPLUS4",
         .field = "PLUS4",
         .caption = "Zip + 4:",
         .keys = {.numbers = NumberKeys::Digits}},
        phoneField("mebVOICE", "VOICE", "&Phone:"),
        phoneField("mebFAX", "FAX", "&Fax:"),
        {.name = "txtCOCSTEXT", .field = "COCSTEXT", .caption = "Company Si&gnature:"},
        {.name = "txtCLCSTEXT", .field = "CLCSTEXT", .caption = "C&lient Signature:"},
        {.name = "txtINFOLINE1", .field = "INFOLINE1", .caption = "&Info Line 1:"},
        {.name = "txtINFOLINE2", .field = "INFOLINE2", .caption = "Info Line 2:"},
        {.name = "txtLOGOFILENAME",
         .field = "LOGOFILENAME",
         .caption = "L&ogo File:",
         .check = checkLogo,
         .choose = chooseLogo,
         .searchName = "cmdLogo"},
        {.kind = Kind::Picture,
         .name = "imgLOGO",
         .caption = "Logo:",
         .shows = [](const Entry& entry) { return logoPath(entry["LOGOFILENAME"]); }},
    };
}

bool openCompany(BrowseSession& list, const QString& mode, qint32 tag, qint16 winTag)
{
    return openDataScreen(
        frmZORCO02(), list.session(),
        {.mode = mode, .index = "CONO", .keys = {{"CONO", tag}}, .winTag = winTag, .tag = tag});
}

}  // namespace

QString logoPath(const QString& LOGOFILENAME)
{
    const QString name = LOGOFILENAME.trimmed();
    return name.isEmpty() ? QString() : storage::nativePath(storage::joinPath(mediaFolder, name));
}

QString logoName(const QString& pickedPath)
{
    const QString folder = QFileInfo(storage::nativePath(mediaFolder)).canonicalFilePath();
    const QString file = QFileInfo(pickedPath).canonicalFilePath();
    if (folder.isEmpty() || !file.startsWith(folder + '/'))
        return {};
    return file.mid(folder.size() + 1).replace('/', '\\');
}

BrowseSpec frmZORCO01()
{
    return {
        .name = "frmZORCO01",
        .caption = "Company Numbers",
        .file = "MAIN.mdb",
        .table = "COLIST",
        .index = "CONO",
        .columns = {{.field = "CONO",
                     .length = 2,
                     .heading = "Company",
                     .width = 1100,
                     .format = "##",
                     .alignment = Qt::AlignRight},
                    {.field = "CONAME", .length = 30, .heading = "Company Name", .width = 4000},
                    {.field = "ADDRESS1", .length = 40, .heading = "Address", .width = 4000},
                    {.field = "CITY", .length = 30, .heading = "City", .width = 2200},
                    {.field = "State", .length = 2, .heading = "State", .width = 800}},
        // A company's number is its tag.
        .detail = {.tagField = "CONO", .tagIndex = "CONO", .open = openCompany, .hasView = true},
        .search =
            [](const BrowseSession& list) { return zorSearchCompany(list.session().JobSitePath); },
        .print = {.run =
                      [](BrowseSession& list) {
                          openScreen(new ReportWindow(frmZORCO03(), list.session()));
                      }},
    };
}

DataSpec frmZORCO02()
{
    return {
        .name = "frmZORCO02",
        .caption = "Company Numbers",
        .file = "MAIN.mdb",
        .table = "COLIST",
        .index = "CONO",
        .sections = {{.fields = fields(), .columns = 2}},
        .rules = std::make_shared<CompanyRules>(),
        .deleteTest = deleteTest,
        .deleteQuestion = deleteQuestion,
        .hotTag = [](storage::Recordset& rows) { return intOf(rows["CONO"]); },
        .refusesFocusInView = true,
    };
}
