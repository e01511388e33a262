#include "cost/target_list_screen.h"

#include "core/text.h"
#include "cost/group_of_job.h"
#include "cost/target_lists.h"
#include "screens/browse/browse_session.h"
#include "screens/search/cost_code_searches.h"

namespace {

// The list is that of a job and, within it, of one group; a command goes on to the next.
const CostCodeGroup& groupOf(const storage::Value& letter)
{
    const CostCodeGroup* group = findCostCodeGroup(letter.toString());
    return group ? *group : costCodeGroups.front();
}
template <class Place>
const CostCodeGroup& groupIn(const Place& place)
{
    return groupOf(place.parentKey("GROUPID"));
}

int companyOf(const BrowseSession& list)
{
    return list.parentKey("CONO").toInt();
}

QString jobOf(const BrowseSession& list)
{
    return list.parentKey("JOBNO").toString();
}

void browseGroup(BrowseSession& list, const CostCodeGroup& group)
{
    list.browseBy("ZORTLCC", {{"CONO", list.parentKey("CONO")},
                              {"JOBNO", list.parentKey("JOBNO")},
                              {"GROUPID", group.letterText()}});
}

void nextGroup(BrowseSession& list)
{
    const auto at = static_cast<size_t>(groupIn(list).letter - 'A');
    browseGroup(list, costCodeGroups[(at + 1) % costCodeGroups.size()]);
}

QString groupName(const BrowseSession& list)
{
    return groupOfJob(list, groupIn(list)).name;
}

// The row's place in the table of the group's codes; false when the group has no such code.
template <class Place>
bool seekCode(const Place& place, storage::Recordset& codes, const QString& code)
{
    codes.Index(groupIn(place).table);
    return codes.Seek("=", place.parentKey("CONO"), place.parentKey("JOBNO"), code);
}

QString shownDescription(const BrowseSession& list, storage::Recordset& rows)
{
    const CostCodeGroup& group = groupIn(list);
    return seekCode(list, list.beside(group.table), textOf(rows["COSTCODE"]))
               ? trimmedTextOf(rows["Desc"])
               : "ERROR! THIS COST CODE DOES NOT BELONG TO SELECTED GROUP: " + group.letterText();
}

QString checkCode(const Entry& entry)
{
    if (entry.isBlank("COSTCODE"))
        return "Empty Cost Code Detected.";
    const CostCodeGroup& group = groupIn(entry);
    const CostCodeSettings settings = groupOfJob(entry, group);
    OpenTable codes = openTable(entry.session(), "MAIN.mdb", group.table);
    return seekCode(entry, codes.rows, settings.stored(entry["COSTCODE"]))
               ? QString()
               : "Cannot Find " + settings.name + ": " + entry["COSTCODE"].trimmed();
}

QString searchCode(const Entry& entry)
{
    const CostCodeGroup& group = groupIn(entry);
    return pickCostCode(group, entry.session().JobSitePath, {},
                        static_cast<qint16>(entry.parentKey("CONO").toInt()),
                        entry.parentKey("JOBNO").toString(), groupOfJob(entry, group).name,
                        CostCodeOrder::ByCode)
        .trimmed();
}

class TargetRules : public EntryRules
{
public:
    Step beforeWrite(Entry& entry) override
    {
        const CostCodeGroup& group = groupIn(entry);
        const QString code = groupOfJob(entry, group).stored(entry["COSTCODE"]);
        entry.give("COSTCODE", code);
        OpenTable codes = openTable(entry.session(), "MAIN.mdb", group.table);
        if (seekCode(entry, codes.rows, code))
            entry.give("Desc", codes.rows[group.description].value());
        return Step::Write;
    }
    void complete(const Entry& entry, storage::Recordset& rows) override
    {
        if (!entry.isAdding())
            return;
        rows["PRINTME"] = true;
        rows["ARCHIVED"] = false;
        rows["TAGGED"] = false;
    }
};

QString yes(const storage::Field& field)
{
    return field.value().toBool() ? "Yes" : QString();
}

void fill(BrowseSession& list)
{
    if (!askYesNo("Confirm Fill Action",
                  "This Action will EMPTY the Existing List of Cost Codes \n"
                  "and Fill the List with All Available Cost Codes for \n"
                  "the Group You Have Selected.\nContinue with This Action?"))
        return;
    fillTargetList(list.session().JobSitePath, companyOf(list), jobOf(list), groupIn(list));
    browseGroup(list, groupIn(list));
}

void toggleTag(BrowseSession& list)
{
    storage::Recordset& rows = list.list().rows();
    rows.Edit();
    rows["TAGGED"] = !rows["TAGGED"].value().toBool();
    rows.Update();
    list.list().repaint();
}

void clearTags(BrowseSession& list)
{
    clearTargetTags(list.session().JobSitePath, companyOf(list), jobOf(list));
    list.list().rebuild();
}

BrowseCommand markCommand(const QString& name, const QString& caption, Qt::Key key, TargetMark mark,
                          bool on)
{
    return {.name = name,
            .caption = caption,
            .run =
                [mark, on](BrowseSession& list) {
                    markTaggedTargets(list.session().JobSitePath, companyOf(list), jobOf(list),
                                      mark, on);
                    list.list().rebuild();
                },
            .key = key};
}

BrowseColumn yesColumn(schema::FieldName field, const QString& heading)
{
    return {.field = field,
            .length = 3,
            .heading = heading,
            .width = 1100,
            .alignment = Qt::AlignHCenter,
            .shows = [field](const BrowseSession&,
                             storage::Recordset& rows) { return yes(rows[field]); },
            .isPrinted = false};
}

}  // namespace

BrowseSpec frmZORTLCC()
{
    return {
        .name = "frmZORTLCC",
        .caption = "Target List of Cost Codes",
        .captionFor =
            [](const BrowseSession& list) {
                return list.spec().caption +
                       " - Cost Code Group: " + (list.hasParent() ? groupName(list) : QString());
            },
        .file = "MAIN.mdb",
        .table = "ZORTLCC",
        .index = "ZORTLCC",
        .parent = companyAndJobParent(),
        .columns = {{.field = "COSTCODE",
                     .length = 10,
                     .heading = "Cost Codes",
                     .width = 1500,
                     .entry = "txtCOSTCODE",
                     .keys = {.upperCase = true},
                     .check = checkCode,
                     .search = searchCode,
                     .lengthFor =
                         [](const Entry& entry) { return groupOfJob(entry, groupIn(entry)).size; }},
                    {.field = "Desc",
                     .length = 50,
                     .heading = "Description",
                     .width = 6000,
                     .shows = shownDescription},
                    yesColumn("PRINTME", "Print Me?"),
                    yesColumn("ARCHIVED", "Inactiive?"),
                    yesColumn("TAGGED", "Tagged?")},
        .besides = {{"MAIN.mdb", "CCALIST"}, {"MAIN.mdb", "CCBLIST"}, {"MAIN.mdb", "CCCLIST"}},
        .rules = std::make_shared<TargetRules>(),
        .deleteQuestion = [](storage::Recordset&) { return "OK to Delete this Cost Code?"; },
        .updatesTest = [](const BrowseSession& list) -> QString {
            if (groupOfJob(list, groupIn(list)).isDefined())
                return {};
            return "Group " + groupIn(list).letterText() +
                   " Cost Codes Are Not Properly Defined \nfor Job Number: " +
                   jobOf(list).trimmed();
        },
        .print = {.window = "Print Target List of Cost Codes",
                  .title = "Print Target List of Cost Codes"},
        .commands =
            {{.name = "cmdGroup",
              .run = nextGroup,
              .key = Qt::Key_G,
              .captionFor =
                  [](const BrowseSession& list) { return "&Group: " + groupIn(list).letterText(); },
              .asksUpdatesTest = false},
             {.name = "cmdFill", .caption = "&Fill", .run = fill, .key = Qt::Key_F},
             {.name = "cmdTAG",
              .caption = "&Tag",
              .run = toggleTag,
              .key = Qt::Key_T,
              .needsRecord = true},
             {.name = "cmdClearTags", .caption = "&Clear Tags", .run = clearTags, .key = Qt::Key_C},
             markCommand("cmdTurnOnPrintMe", "Turn On Print &Me", Qt::Key_M, TargetMark::Print,
                         true),
             markCommand("cmdTurnOffPrintMe", "Turn Off P&rint Me", Qt::Key_R, TargetMark::Print,
                         false),
             markCommand("cmdTurnOnArchived", "Turn On &Inactive", Qt::Key_I, TargetMark::Archived,
                         true),
             markCommand("cmdTurnOffArchived", "Turn Off Inacti&ve", Qt::Key_V,
                         TargetMark::Archived, false)},
        .parentChosen = [](BrowseSession& list) { browseGroup(list, costCodeGroups.front()); },
    };
}
