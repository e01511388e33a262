#include "cost/cost_codes.h"

#include <QLineEdit>

#include "core/locators.h"
#include "core/site_settings.h"
#include "core/text.h"
#include "cost/group_of_job.h"
#include "screens/browse/browse_session.h"
#include "screens/browse/browse_window.h"
#include "screens/desktop.h"
#include "screens/report/report_window.h"
#include "screens/search/cost_code_searches.h"
#include "screens/search/job_searches.h"
#include "screens/small_dialog.h"

namespace {

constexpr int longestCode = 15;

// A whole number that the stored form can hold.
bool isNumberOnly(const QString& code, const CostCodeSettings& group)
{
    bool isWhole = false;
    const qint64 number = code.trimmed().toLongLong(&isWhole);
    return isWhole && number != 0 && !group.stored(code).contains('?');
}

QString checkCode(const Entry& entry, const CostCodeGroup& group)
{
    if (entry.isBlank(group.code))
        return "Cost Code is Empty.";
    const CostCodeSettings settings = groupOfJob(entry, group);
    if (settings.type == "N" && !isNumberOnly(entry[group.code], settings))
        return "Invalid Cost Code. The Cost Code is setup as \n"
               "'Number Only'. (Must be an Integer: 43, 678, etc..)";
    if (entry.isTakenInParent(group.table, {{group.code, settings.stored(entry[group.code])}}))
        return "Duplicate Cost Code Detected.\nThe Cost Code you have entered\n"
               "already exists for Company/Job Pair.";
    return {};
}

QString checkNonReimbursable(const Entry& entry)
{
    const QString typed = entry.named("txtNONREIM").trimmed();
    return typed.isEmpty() || typed == "Y" || typed == "N"
               ? QString()
               : "Non-Reimbursable must be Y, N or Blank.";
}

QString checkGLCode(const Entry& entry)
{
    const QString code = entry["GLCODE"].trimmed().toUpper();
    if (code.isEmpty())
        return {};
    OpenTable codes = openTable(entry.session(), "ZORVEX.mdb", "GLCODES");
    codes.rows.Index("GLCODES");
    return codes.rows.Seek("=", entry.parentKey("CONO"), code)
               ? QString()
               : "Cannot Find G/L Code: " + entry["GLCODE"].trimmed();
}

QString searchGLCode(const Entry& entry)
{
    const QString bookmark = zorSearchGLCode(entry.session().JobSitePath,
                                             static_cast<qint16>(entry.parentKey("CONO").toInt()));
    if (dnIsBlank(bookmark))
        return {};
    OpenTable codes = openTable(entry.session(), "ZORVEX.mdb", "GLCODES");
    return goToFound(codes.rows, bookmark) ? trimmedTextOf(codes.rows["GLCODE"]) : QString();
}

class CostCodeRules : public EntryRules
{
public:
    explicit CostCodeRules(const CostCodeGroup& group) : m_group(group) {}

    bool begin(Entry& entry) override
    {
        if (!entry.isAdding())
            entry.setNamed("txtNONREIM", entry.rows()["NONREIM"].value().toBool() ? "Y" : "N");
        return true;
    }
    Step beforeWrite(Entry& entry) override
    {
        entry.give(m_group.code, groupOfJob(entry, m_group).stored(entry[m_group.code]));
        if (entry.indexOf(schema::FieldName("GLCODE")) >= 0)
            entry.give("GLCODE", entry["GLCODE"].trimmed().toUpper());
        return Step::Write;
    }
    void complete(const Entry& entry, storage::Recordset& rows) override
    {
        rows["NONREIM"] = entry.named("txtNONREIM").trimmed() == "Y";
        if (!entry.isAdding())
            return;
        rows["WOTAG"] = 0;
        rows["DLTAG"] = 0;
    }

private:
    CostCodeGroup m_group;
};

QString nonReimbursable(const BrowseSession&, storage::Recordset& rows)
{
    return rows["NONREIM"].value().toBool() ? "Y" : "N";
}

BrowseColumn codeColumn(const CostCodeGroup& group)
{
    return {.field = group.code,
            .length = longestCode,
            .heading = "Cost Code",
            .width = 1400,
            .entry = "txtCOSTCODE",
            .keys = {.upperCase = true},
            .check = [group](const Entry& entry) { return checkCode(entry, group); },
            .lengthFor = [group](const Entry& entry) { return groupOfJob(entry, group).size; }};
}

BrowseColumn clientColumn(const CostCodeGroup& group)
{
    constexpr const char* usual = "Invoicing Code";
    return {.field = group.clientCode,
            .length = longestCode,
            .heading = usual,
            .width = 1500,
            .entry = "txtCUSTCODE",
            .headingFor = [group](const BrowseSession& list) -> QString {
                const QString name = groupOfJob(list, group).clientName;
                return name.isEmpty() ? usual : name;
            }};
}

// The two columns in the middle, under their controls' names, which both programs share.
std::vector<BrowseColumn> middleColumns(bool isLabour)
{
    if (isLabour)
        return {{.field = "STAFFULC",
                 .length = 8,
                 .heading = "Staff ULC",
                 .width = 1200,
                 .entry = "txtSTAFFULC"},
                {.field = "CRAFTULC",
                 .length = 8,
                 .heading = "Craft ULC",
                 .width = 1200,
                 .entry = "txtCRAFTULC"}};
    return {{.field = "GLCODE",
             .length = 10,
             .heading = " G/L Code",
             .width = 1100,
             .entry = "txtSTAFFULC",
             .keys = {.upperCase = true},
             .check = checkGLCode,
             .search = searchGLCode,
             .hint = "Enter '?' or '/' for G/L Code Search Window"},
            {.field = "MCODE",
             .length = 1,
             .heading = "Mat Code",
             .width = 900,
             .entry = "txtCRAFTULC",
             .keys = {.upperCase = true}}};
}

std::vector<BrowseColumn> costCodeColumns(const CostCodeGroup& group, const CostCodeColumns& wanted)
{
    std::vector<BrowseColumn> columns = {
        codeColumn(group),
        {.field = group.description,
         .length = 30,
         .heading = "Description",
         .width = 2900,
         .entry = "txtDESC",
         .check = required(group.description, "Description is Empty.")},
        clientColumn(group)};
    columns.push_back({.field = {},
                       .length = 1,
                       .heading = "Non-Reim?",
                       .width = 1000,
                       .entry = "txtNONREIM",
                       .keys = {.upperCase = true},
                       .alignment = Qt::AlignHCenter,
                       .shows = nonReimbursable,
                       .check = checkNonReimbursable});
    for (const BrowseColumn& column : middleColumns(wanted.isLabour))
        columns.push_back(column);
    if (!wanted.hasFurther)
        return columns;
    const auto further = [&columns](schema::FieldName field, int length, const QString& heading,
                                    int width, const QString& entry) {
        columns.push_back(
            {.field = field, .length = length, .heading = heading, .width = width, .entry = entry});
    };
    further("APCODE", 12, "A/P Code", 1200, "txtAPCODE");
    further("POLIREF", 0, "PO LI Ref", 1100, "txtPOLIREF");
    further("REVIEWER", 0, "Reviewer", 1100, "txtREVIEWER");
    further("PLANTCODE", 0, "Plant", 900, "txtPLANTCODE");
    further("Location", 0, "Location", 1200, "txtLocation");
    return columns;
}

QString searchCode(const BrowseSession& list, const CostCodeGroup& group)
{
    return searchCostCodes(
        group, list.session().JobSitePath, static_cast<qint16>(list.parentKey("CONO").toInt()),
        list.parentKey("JOBNO").toString(), groupOfJob(list, group).name,
        group.letter == 'A' ? CostCodeOrder::ByCode : CostCodeOrder::ByDescription);
}

void openPrint(BrowseSession& list, const CostCodeGroup& group)
{
    const bool isOnCode = list.list().isOnRecord() && list.list().goToCurrent();
    openScreen(new ReportWindow(
        frmPLGCCG02(group, list.parentKey("CONO").toInt(), list.parentKey("JOBNO").toString(),
                    isOnCode ? textOf(list.list().rows()[group.code]) : QString()),
        list.session()));
}

}  // namespace

void findCostCode(BrowseSession& list, const CostCodeGroup& group, const QString& text)
{
    storage::Recordset& rows = list.list().rows();
    const bool isFound = rows.Seek("=", list.parentKey("CONO"), list.parentKey("JOBNO"),
                                   groupOfJob(list, group).stored(text.toUpper()));
    if (!isFound)
        return showCritical("Text not Found", "Cannot Find: " + text.toUpper());
    list.list().show(rows.Bookmark());
}

QString frmPLGCCG03()
{
    SmallDialog dialog("frmPLGCCG03", "Find a Cost Code");
    auto* field = new QLineEdit;
    field->setObjectName("txtFind");
    field->setMaxLength(longestCode);
    setFieldKeys(*field, {.upperCase = true});
    dialog.addText({}, "Enter a String up to 15 Characters Long");
    dialog.addField("Cost &Code:", field);
    dialog.enterTakes(dialog.addClosingButton("cmdOK", "&OK", QDialog::Accepted));
    dialog.escTakes(dialog.addClosingButton("cmdCancel", "&Cancel"));
    field->setFocus();
    return dialog.exec() == QDialog::Accepted ? field->text().trimmed() : QString();
}

BrowseSpec frmPLGCCG01(const CostCodeGroup& group, const CostCodeColumns& columns)
{
    return {
        .name = "frmPLGCCG01",
        .caption = group.title() + " Cost Code List",
        .file = "MAIN.mdb",
        .table = group.table,
        .index = group.table,
        .parent = companyAndJobParent(),
        .columns = costCodeColumns(group, columns),
        .rules = std::make_shared<CostCodeRules>(group),
        .deleteQuestion = askToDelete("Cost Code", {group.code, group.description}),
        .updatesTest = [group](const BrowseSession& list) -> QString {
            const CostCodeSettings settings = groupOfJob(list, group);
            if (settings.isDefined() && settings.size > 0)
                return {};
            return group.title() + " Cost Codes Are Not Properly Defined for Job Number: " +
                   list.parentKey("JOBNO").toString().trimmed();
        },
        .search = [group](const BrowseSession& list) { return searchCode(list, group); },
        .print = {.run = [group](BrowseSession& list) { openPrint(list, group); }},
        .commands = {{.name = "cmdFind",
                      .caption = "&Find",
                      .run =
                          [group](BrowseSession& list) {
                              const QString text = frmPLGCCG03();
                              if (!text.isEmpty())
                                  findCostCode(list, group, text);
                          },
                      .key = Qt::Key_F}},
    };
}

QWidget* newCostCodes(const ScreenContext& context)
{
    const CostCodeGroup* group = findCostCodeGroup(context.mode);
    if (!group)
        return nullptr;
    const Session& session = context.session;
    return new BrowseWindow(
        frmPLGCCG01(*group, {.isLabour = session.ModuleCode != "M",
                             .hasFurther = !siteSwitch(session.JobSitePath, "PLGCOSTCODEOPT1")}),
        context);
}
