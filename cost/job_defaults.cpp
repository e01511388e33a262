#include "cost/job_defaults.h"

#include "core/locators.h"
#include "cost/document_fields.h"
#include "cost/job_checks.h"
#include "screens/browse/browse_session.h"
#include "screens/data/data_window.h"

using Kind = EntryField::Kind;

namespace {

// The slots of the printed column, and what they may hold.
constexpr schema::FieldName items[] = {"ITEM1", "ITEM2", "ITEM3", "ITEM4", "ITEM5", "ITEM6"};
constexpr const char* itemTexts[] = {
    "1 - (none)           ", "2 - Job Number       ", "3 - Group A Cost Code",
    "4 - Group B Cost Code", "5 - Group C Cost Code", "6 - G/L Number       ",
    "7 - Material Code    ",
};

QString checkCompany(const Entry& entry)
{
    return jobDefaultsCompanyError(entry.session().JobSitePath, companyOf(entry));
}

// A row belongs to one pair; in an entry the job number stands without the blanks of its stored
// form.
class DefaultsRules : public EntryRules
{
public:
    explicit DefaultsRules(JobNoFormat format) : m_format(std::move(format)) {}

    QString storedJob(const Entry& entry) const { return storedJobOf(entry, m_format); }
    QString checkJob(const Entry& entry) const
    {
        const QString& site = entry.session().JobSitePath;
        const int CONO = companyOf(entry);
        const QString JOBNO = storedJob(entry);
        if (const QString error = jobDefaultsJobError(site, CONO, JOBNO); !error.isEmpty())
            return error;
        if (entry.isAdding())
            return jobDefaultsAddError(site, CONO, JOBNO);
        if (!entry.goToRecord())
            return {};
        return jobDefaultsPairError(site, intOf(entry.rows()["CONO"]),
                                    textOf(entry.rows()["JOBNO"]), CONO, JOBNO);
    }

    bool begin(Entry& entry) override
    {
        for (const schema::FieldName phone : {schema::FieldName("REPLYPHONE"), {"REPLYFAX"}})
            if (entry.isBlank(phone))
                entry.setText(phone, maskedPhone({}));
        // What was never chosen is none.
        for (const schema::FieldName item : items)
            if (entry.number(item) < 1 || entry.number(item) > double(std::size(itemTexts)))
                entry.setText(item, "1");
        return true;
    }
    void complete(const Entry& entry, storage::Recordset& rows) override
    {
        rows["JOBNO"] = storedJob(entry);
    }

private:
    JobNoFormat m_format;
};

std::vector<EntryField> pairFields(const std::shared_ptr<DefaultsRules>& rules,
                                   const JobNoFormat& format)
{
    return {{.kind = Kind::Heading, .caption = "Company and Job"},
            typedCompanyField(checkCompany),
            companyNameField(),
            typedJobField(format, [rules](const Entry& entry) { return rules->checkJob(entry); }),
            jobNameField(format)};
}

std::vector<EntryField> documentFields(const Session& session)
{
    std::vector<EntryField> fields = {
        {.kind = Kind::Heading, .caption = "Defaults of a New Requisition"},
        requisitionTypeField(session)};
    for (const EntryField& field : deliveryFields())
        fields.push_back(field);
    return fields;
}

std::vector<EntryField> replyFields()
{
    return {
        {.kind = Kind::Heading, .caption = "RFQ - Reply To Information"},
        {.name = "txtREPLYTO", .field = "REPLYTO", .caption = "&Reply To:"},
        {.name = "txtREPLYBY", .field = "REPLYBY", .caption = "Repl&y By:"},
        phoneField("mebREPLYPHONE", "REPLYPHONE", "&Phone:"),
        phoneField("mebREPLYFAX", "REPLYFAX", "F&ax:"),
    };
}

std::vector<EntryField> itemFields()
{
    std::vector<EntryChoice> choices;
    for (const QString text : itemTexts)
        choices.push_back({text.left(1), text});
    std::vector<EntryField> fields = {
        {.kind = Kind::Heading,
         .caption = "Select the items you want printed in the\ncost code column below.  "
                    "(Up to 6 items.)"}};
    int number = 1;
    for (const schema::FieldName item : items) {
        const QString text = QString::number(number++);
        fields.push_back({.kind = Kind::Choice,
                          .name = "cboItem" + text,
                          .field = item,
                          .caption = "Item &" + text + ':',
                          .choices = choices,
                          .initial = "1"});
    }
    return fields;
}

bool openDefaults(BrowseSession& list, const QString& mode, qint32 tag, qint16 winTag)
{
    const JobNoFormat format = zorGetJobNoFormat(list.session().JobSitePath);
    return format.size > 0 && openDataScreen(frmVEXJND02(list.session(), format), list.session(),
                                             {.mode = mode,
                                              .index = "JNDTAG",
                                              .keys = {{"JNDTAG", tag}},
                                              .winTag = winTag,
                                              .tag = tag});
}

// Names of the pair under the highlight. The table stands beside the list a second time, so that
// looking does not move the list.
QString pairNames(const BrowseSession& list)
{
    const BrowseList& rows = list.list();
    storage::Recordset& row = list.beside("JOB_NO_DEFAULTS");
    if (!goToFound(row, rows.BrowseCurrent))
        return "\n";
    storage::Recordset& company = list.beside("COLIST");
    storage::Recordset& job = list.beside("JOBLIST");
    const bool hasCompany = company.Seek("=", row["CONO"].value());
    const bool hasJob = job.Seek("=", row["CONO"].value(), row["JOBNO"].value());
    return (hasCompany ? trimmedTextOf(company["CONAME"]) : "Company Not Found") + '\n' +
           (hasJob ? trimmedTextOf(job["JOBNAME"]) : "Job Number Not Found");
}

}  // namespace

BrowseSpec frmVEXJND01()
{
    return {
        .name = "frmVEXJND01",
        .caption = "Job Number Defaults",
        .table = "JOB_NO_DEFAULTS",
        .index = "JOB_NO_DEFAULTS",
        .columns =
            {{.field = "CONO", .length = 2, .heading = "Company", .width = 1000, .format = "##"},
             {.field = "JOBNO", .length = 8, .heading = "Job Number", .width = 1400},
             {.field = "FOB", .length = 20, .heading = "FOB", .width = 2000},
             {.field = "TERMS", .length = 20, .heading = "Terms", .width = 2000},
             {.field = "WHODIDIT", .length = 30, .heading = "Requisitioner", .width = 3000}},
        .besides = {{"MAIN.mdb", "COLIST", "CONO"},
                    {"MAIN.mdb", "JOBLIST", "JOBLIST"},
                    {"ZORVEX.mdb", "JOB_NO_DEFAULTS"}},
        .detail = {.tagField = "JNDTAG",
                   .tagIndex = "JNDTAG",
                   .open = openDefaults,
                   .hasView = true},
        .print = {.window = "Print Job Number Defaults", .title = "Job Number Defaults"},
        .status = pairNames,
    };
}

DataSpec frmVEXJND02(const Session& session, const JobNoFormat& format)
{
    const auto rules = std::make_shared<DefaultsRules>(format);
    DataSection section{.fields = {}, .columns = 2};
    for (const std::vector<EntryField>& part :
         {pairFields(rules, format), documentFields(session), itemFields(), replyFields()})
        section.fields.insert(section.fields.end(), part.begin(), part.end());
    return {
        .name = "frmVEXJND02",
        .caption = "Job Number Defaults",
        .table = "JOB_NO_DEFAULTS",
        .index = "JOB_NO_DEFAULTS",
        .sections = {section},
        .tag = {.field = "JNDTAG"},
        .rules = rules,
        .deleteQuestion =
            [](storage::Recordset&) { return confirmDelete("Confirm Delete.", "OK to Delete?"); },
    };
}
