#include "cost/job_settings.h"

#include <array>

#include "core/cost_code_groups.h"
#include "cost/job_template.h"
#include "screens/data/data_session.h"

using Kind = EntryField::Kind;

namespace {

constexpr int longestCode = 15;  // characters that a cost code's field holds

std::array<schema::FieldName, 3> templateFields(const CostCodeGroup& group)
{
    return {group.jobName, group.jobType, group.jobSize};
}

// The codes that are there keep the old width until the utility has run.
void warnOfSize(Entry& entry, const CostCodeGroup& group)
{
    if (!entry.goToRecord() || intOf(entry.rows()[group.jobSize]) == entry.number(group.jobSize))
        return;
    Messages::current().show(
        {.kind = MessageKind::Warning,
         .title = "Warning",
         .text = "Warning! You have changed the Cost Code Size.  If the size is changed you must "
                 "run the 'Refresh Cost Codes Utility' after saving your new settings."});
}

std::vector<EntryField> groupFields(const CostCodeGroup& group)
{
    const QString letter = group.letterText();
    const schema::FieldName size = group.jobSize;
    return {
        {.kind = Kind::Heading, .name = "lblGroup" + letter, .caption = group.title()},
        {.name = "txtCCNAME" + letter, .field = group.jobName, .caption = "Group Name:"},
        {.kind = Kind::Choice,
         .name = "cboCCTYPE" + letter,
         .field = group.jobType,
         .caption = "Code Type:",
         .choices = {{"", "(none)"}, {"C", "C - Character"}, {"N", "N - Number Only"}}},
        {.name = "txtCCSIZE" + letter,
         .field = size,
         .caption = "Code Size:",
         .length = 2,
         .keys = {.numbers = NumberKeys::Digits},
         .check =
             [size](const Entry& entry) {
                 return entry.number(size) > longestCode
                            ? QString("Cost Code Size Must Be Between 0 and %1.").arg(longestCode)
                            : QString();
             },
         .left = [&group](Entry& entry) { warnOfSize(entry, group); }},
        {.name = "txtCLCNAME" + letter + '1',
         .field = group.jobClientName,
         .caption = "Client Code Name:"},
    };
}

bool agrees(const char* verb, const QString& rest)
{
    return askYesNo(QString("Verify %1 Defaults").arg(verb),
                    QString("%1 Default Settings%2?").arg(verb, rest));
}

void setDefaults(DataSession& screen, std::span<const schema::FieldName> fields,
                 const QString& rest)
{
    if (agrees("Set", rest))
        saveJobTemplate(screen.entry(), fields);
}

bool loadDefaults(DataSession& screen, std::span<const schema::FieldName> fields,
                  const QString& rest)
{
    if (!agrees("Load", rest))
        return false;
    const bool isLoaded = loadJobTemplate(screen.entry(), fields);
    if (!isLoaded)
        showInformation("Load Defaults", "No Default Settings Have Been Set.");
    return isLoaded;
}

// One pair of commands a group, numbered so that each has its key.
std::vector<DataCommand> groupCommands()
{
    std::vector<DataCommand> commands;
    for (const bool loads : {true, false})
        for (const CostCodeGroup& group : costCodeGroups) {
            const QString number = QString::number(commands.size() + 1);
            const QString verb = loads ? "Load" : "Set";
            const QString rest = " for " + group.title() + " Cost Codes";
            commands.push_back(
                {.name = "cmd" + verb + "Defaults" + group.letterText(),
                 .caption = '&' + number + " - " + verb + " Defaults " + group.letterText(),
                 .run = [&group, loads, rest](DataSession& screen) {
                     if (!loads)
                         setDefaults(screen, templateFields(group), rest);
                     else if (loadDefaults(screen, templateFields(group), rest))
                         warnOfSize(screen.entry(), group);
                 }});
        }
    return commands;
}

// The labour and equipment modules' switches, as the template has them.
constexpr schema::FieldName switches[] = {
    "ENABLECW", "ENABLEUA",   "ENABLEPC",   "ENABLETC",      "ENABLEPR", "ENABLEDT",
    "AUTONEWL", "CKBURDEN",   "VERIFYCC",   "UPDEMPPC",      "UPDEMPCC", "UPDEMPCW",
    "CLONEDOW", "CHECKSTHRS", "CHECKOTHRS", "BRQUSEMETHOD2",
};

EntryField box(const QString& name, schema::FieldName field, const QString& caption)
{
    return {.kind = Kind::Box, .name = "ckb" + name, .field = field, .caption = caption};
}

EntryField heading(const QString& caption)
{
    return {.kind = Kind::Heading, .caption = caption};
}

// Two columns of the same length.
std::vector<EntryField> settingsFields()
{
    return {
        heading("Job"),
        {.name = "txtTAXCOST",
         .field = "TAXCOST",
         .caption = "&Default Job Cost Constant:",
         .length = 20,
         .keys = {.numbers = NumberKeys::Decimal},
         .format = "##.000000000"},
        {.name = "txtCOCSTEXT", .field = "COCSTEXT", .caption = "Company Si&gnature:"},
        {.name = "txtCLCSTEXT", .field = "CLCSTEXT", .caption = "C&lient Signature:"},
        {.kind = Kind::Choice,
         .name = "optCloneDOW",
         .field = "CLONEDOW",
         .caption = "Cloned &Week Ends on:",
         .choices = {{"0", "Friday"}, {"1", "Saturday"}, {"2", "Sunday"}}},
        box("BRQUSEMETHOD2", "BRQUSEMETHOD2", "E&quipment Usage Method 2"),
        heading("Checks"),
        box("CHECKSTHRS", "CHECKSTHRS", "Check 8 &Hours a Day Straight Limit"),
        box("CHECKOTHRS", "CHECKOTHRS", "Check &Over Time Limit"),
        {.name = "txtOTHRSLIMIT",
         .field = "OTHRSLIMIT",
         .caption = "Over &Time Limit:",
         .length = 8,
         .keys = {.numbers = NumberKeys::Decimal},
         .format = "##.00",
         .isLive = [](const Entry& entry) { return entry.isTicked("CHECKOTHRS"); }},
        box("CKBURDEN", "CKBURDEN", "Check &Burden Table"),
        box("VERIFYCC", "VERIFYCC", "&Verify Cost Code Combinations"),
        heading("Timecard Entry May Change"),
        box("ENABLECW", "ENABLECW", "Crew Number&s"),
        box("ENABLEUA", "ENABLEUA", "&Agreement Codes"),
        box("ENABLEPC", "ENABLEPC", "&Position and Class Codes"),
        box("ENABLETC", "ENABLETC", "Ti&me Codes"),
        box("ENABLEPR", "ENABLEPR", "&Rates"),
        box("ENABLEDT", "ENABLEDT", "Doubl&e Time"),
        box("AUTONEWL", "AUTONEWL", "Turn Off Auto &New Line?"),
        heading("Entered Time Updates the Employee's"),
        box("UPDEMPPC", "UPDEMPPC", "Pos&ition and Class"),
        box("UPDEMPCC", "UPDEMPCC", "Co./&Job/Cost Codes"),
        box("UPDEMPCW", "UPDEMPCW", "Crew Number"),
    };
}

DataSpec jobScreen(const QString& name, const QString& caption)
{
    return {.name = name,
            .caption = caption,
            .namesMode = false,
            .file = "MAIN.mdb",
            .table = "JOBLIST",
            .index = "JOBLIST",
            .parent = {"CONO"},
            .sections = {}};
}

}  // namespace

DataSpec frmZORJOB02(const QString& job)
{
    DataSpec screen = jobScreen("frmZORJOB02", "Cost Code Settings for Job Number: " + job);
    DataSection groups{.fields = {}, .columns = static_cast<int>(costCodeGroups.size())};
    for (const CostCodeGroup& group : costCodeGroups)
        for (const EntryField& field : groupFields(group))
            groups.fields.push_back(field);
    screen.sections = {groups};
    screen.commands = groupCommands();
    return screen;
}

DataSpec frmZORJOB03(const QString& job)
{
    DataSpec screen = jobScreen("frmZORJOB03", "Settings for Job Number: " + job);
    screen.sections = {{.fields = settingsFields(), .columns = 2}};
    screen.commands = {{.name = "cmdLoadDefaults",
                        .caption = "&1 - Load Defaults",
                        .run = [](DataSession& in) { loadDefaults(in, switches, {}); }},
                       {.name = "cmdSetDefaults",
                        .caption = "&2 - Set Defaults",
                        .run = [](DataSession& in) { setDefaults(in, switches, {}); }}};
    return screen;
}
