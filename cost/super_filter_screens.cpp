#include "cost/super_filter_screens.h"

#include "core/locators.h"
#include "cost/group_of_job.h"
#include "cost/super_filters.h"
#include "screens/browse/browse_session.h"
#include "screens/desktop.h"
#include "screens/report/report_window.h"
#include "screens/search/cost_code_searches.h"
#include "screens/search/job_searches.h"

namespace {

const TagSource filterTag{.field = "UDSTAG", .file = "MAIN.mdb", .table = "SYSTAGS"};
const TagSource nodeTag{.field = "UDSDTAG", .file = "MAIN.mdb", .table = "SYSTAGS"};

// ---- the filters

template <class Place>
std::array<QString, 3> groupNames(const Place& place)
{
    std::array<QString, 3> names;
    for (size_t i = 0; i < names.size(); ++i)
        names[i] = groupOfJob(place, costCodeGroups[i]).name;
    return names;
}

std::vector<EntryChoice> groupChoices(const Entry& entry)
{
    std::vector<EntryChoice> choices = {{"", "(none)"}};
    const std::array<QString, 3> names = groupNames(entry);
    for (size_t i = 0; i < names.size(); ++i) {
        const CostCodeGroup& group = costCodeGroups[i];
        choices.push_back({group.letterText(), names[i].isEmpty()
                                                   ? group.title() + " (empty)"
                                                   : group.letterText() + " - " + names[i]});
    }
    return choices;
}

BrowseColumn levelColumn(schema::FieldName field, const QString& number)
{
    return {.field = field,
            .length = 1,
            .heading = "Level " + number,
            .width = 2000,
            .entry = "cboCCGL" + number,
            .shows =
                [field](const BrowseSession& list, storage::Recordset& rows) {
                    const std::array<QString, 3> names = groupNames(list);
                    return zorCCGroupName(trimmedTextOf(rows[field]), names[0], names[1], names[2]);
                },
            .kind = EntryField::Kind::Choice,
            .choicesFor = groupChoices};
}

class FilterRules : public EntryRules
{
public:
    bool beforeDelete(const Session& session, storage::Recordset& rows) override
    {
        UdsTables tables = openUdsTables(session.JobSitePath);
        deleteUdsNodes(tables, 1, intOf(rows["UDSTAG"]));
        return true;
    }
};

void openNodes(BrowseSession& list)
{
    const qint32 tag = list.currentTag();
    openScreen(new BrowseWindow(frmZORUDS02(list.session(), tag), {.session = list.session()},
                                {{"OWNERTAG", tag}}));
}

void openPrint(BrowseSession& list)
{
    openScreen(new ReportWindow(frmZORUDS03(list.parentKey("CONO").toInt(),
                                            list.parentKey("JOBNO").toString(), list.currentTag()),
                                list.session()));
}

// ---- the nodes

struct Level
{
    int number = 0;
    const CostCodeGroup* group = nullptr;  // null: the filter has no such level
    CostCodeSettings settings = {};

    QString numberText() const { return QString::number(number); }
    QString table() const { return "UDSLEVEL" + numberText(); }
    QString index() const { return "UDSCCL" + numberText(); }
};

struct Filter
{
    int CONO = 0;
    QString JOBNO;
    QString text;  // code and name
    std::vector<Level> levels;
};

Filter readFilter(const Session& session, qint32 UDSTAG)
{
    OpenTable open = openTable(session, "MAIN.mdb", "UDSLIST");
    open.rows.Index("UDSTAG");
    Filter filter;
    const bool isThere = open.rows.Seek("=", UDSTAG);
    if (isThere) {
        filter.CONO = intOf(open.rows["CONO"]);
        filter.JOBNO = textOf(open.rows["JOBNO"]);
        filter.text =
            trimmedTextOf(open.rows["UDSCODE"]) + ' ' + trimmedTextOf(open.rows["UDSNAME"]);
    }
    const auto job = costCodeSettingsOf(session.JobSitePath, filter.CONO, filter.JOBNO);
    for (const schema::FieldName field : udsGroupFields) {
        Level level{.number = static_cast<int>(filter.levels.size()) + 1};
        if (isThere)
            level.group = findCostCodeGroup(trimmedTextOf(open.rows[field]));
        if (level.group && job)
            level.settings = (*job)[static_cast<size_t>(level.group->letter - 'A')];
        filter.levels.push_back(level);
    }
    return filter;
}

QString checkNode(const Entry& entry, const Filter& filter, const Level& level)
{
    if (!level.group)
        return "Cost Code Group is not Set for This Level.";
    if (entry.isBlank("COSTCODE"))
        return "Blank Class Code Detected.";
    OpenTable codes = openTable(entry.session(), "MAIN.mdb", level.group->table);
    const QString description =
        zorFindCCDESC(codes.rows, level.group->letterText(), filter.CONO, filter.JOBNO,
                      level.settings.stored(entry["COSTCODE"]));
    return description.startsWith('?') ? "Cost Code Undefined at This Level." : QString();
}

// The nodes below go with a node.
class NodeRules : public EntryRules
{
public:
    explicit NodeRules(const Level& level) : m_level(level) {}

    Step beforeWrite(Entry& entry) override
    {
        entry.give("COSTCODE", m_level.settings.stored(entry["COSTCODE"]));
        return Step::Write;
    }
    bool beforeDelete(const Session& session, storage::Recordset& rows) override
    {
        UdsTables tables = openUdsTables(session.JobSitePath);
        if (m_level.number < 3)
            deleteUdsNodes(tables, m_level.number + 1, intOf(rows["UDSDTAG"]));
        return true;
    }

private:
    Level m_level;
};

QString searchNode(const Entry& entry, const Filter& filter, const Level& level)
{
    if (!level.group)
        return {};
    return pickCostCode(*level.group, entry.session().JobSitePath, {},
                        static_cast<qint16>(filter.CONO), filter.JOBNO, level.settings.name,
                        CostCodeOrder::ByCode)
        .trimmed();
}

BrowseColumn codeColumn(const Filter& filter, const Level& level)
{
    return {
        .field = "COSTCODE",
        .length = level.settings.size > 0 ? level.settings.size : 15,
        .heading = level.settings.isDefined() ? level.settings.name : "Not Used",
        .width = 1500,
        .entry = "txtCOSTCODE" + level.numberText(),
        .keys = {.upperCase = true},
        .check = [=](const Entry& entry) { return checkNode(entry, filter, level); },
        .search = [=](const Entry& entry) { return searchNode(entry, filter, level); },
    };
}

// The description of the node's code; the cell of a level without group stays empty.
BrowseColumn descriptionColumn(const Filter& filter, const Level& level)
{
    return {.field = {},
            .length = 30,
            .heading = "Description",
            .width = 2600,
            .shows = [=](const BrowseSession& list, storage::Recordset& rows) {
                return level.group ? zorFindCCDESC(list.beside(level.group->table),
                                                   level.group->letterText(), filter.CONO,
                                                   filter.JOBNO, textOf(rows["COSTCODE"]))
                                   : QString();
            }};
}

BrowseSpec levelSpec(const Filter& filter, const Level& level)
{
    BrowseSpec spec = {
        .name = "frmZORUDS02",
        .caption = "Super Costcode Filter Code Detail",
        .file = "MAIN.mdb",
        .table = level.table(),
        .index = level.index(),
        .parent = {.kind = BrowseParent::Kind::Given, .keys = {"OWNERTAG"}},
        .columns = {codeColumn(filter, level), descriptionColumn(filter, level)},
        .tag = nodeTag,
        .rules = std::make_shared<NodeRules>(level),
        .deleteQuestion = askToDelete("Level " + level.numberText() + " Cost Code:", {"COSTCODE"},
                                      " ", " and All Lower Level Items?"),
    };
    spec.status = [text = filter.text](const BrowseSession&) { return "SCF Code: " + text; };
    if (level.group)
        spec.besides = {{"MAIN.mdb", level.group->table}};
    return spec;
}

// A level without nodes is told, yet entered: there its first node is added.
std::optional<Message> mayEnter(BrowseSession& from, BrowseSession& to)
{
    if (!from.list().isOnRecord())
        return Message{.kind = MessageKind::Critical,
                       .title = "Cannot Switch Levels",
                       .text = "Cannot Switch Levels on an Empty Line."};
    if (to.list().isEmpty())
        showInformation("No Detail Found",
                        "Cannot Find any Level " + to.spec().table.right(1) + " Detail.");
    return {};
}

}  // namespace

BrowseSpec frmZORUDS01()
{
    return {
        .name = "frmZORUDS01",
        .caption = "Super Costcode Filter Codes",
        .file = "MAIN.mdb",
        .table = "UDSLIST",
        .index = "UDSLIST",
        .parent = companyAndJobParent(),
        .columns = {{.field = "UDSCODE",
                     .length = 6,
                     .heading = "SCF Code",
                     .width = 1300,
                     .entry = "txtUDSCODE",
                     .keys = {.upperCase = true},
                     .check = inOrder(
                         {required("UDSCODE", "Blank SCF Code Detected."),
                          unusedCode("UDSCODE",
                                     "Duplicate SCF Code Detected.\nThe SCF Code you have entered "
                                     "already exists for Company/Job Pair.")})},
                    {.field = "UDSNAME",
                     .length = 50,
                     .heading = "Description",
                     .width = 4000,
                     .entry = "txtUDSNAME",
                     .check = required("UDSNAME", "Blank UDS Description Detected.")},
                    levelColumn("CCGL1", "1"),
                    levelColumn("CCGL2", "2"),
                    levelColumn("CCGL3", "3")},
        .tag = filterTag,
        .rules = std::make_shared<FilterRules>(),
        .deleteQuestion =
            [](storage::Recordset&) { return "OK to Delete Super Costcode Filter Code Detail"; },
        .search =
            [](const BrowseSession& list) {
                return zorSearchUDS(list.session().JobSitePath,
                                    static_cast<qint16>(list.parentKey("CONO").toInt()),
                                    list.parentKey("JOBNO").toString());
            },
        .print = {.run = openPrint},
        .commands = {{.name = "cmdDetail",
                      .caption = "De&tail",
                      .run = openNodes,
                      .key = Qt::Key_T,
                      .needsRecord = true}},
    };
}

BrowseLevels frmZORUDS02(const Session& session, qint32 UDSTAG)
{
    const Filter filter = readFilter(session, UDSTAG);
    BrowseLevels levels{.levels = {}, .mayEnter = mayEnter};
    for (const Level& level : filter.levels)
        levels.levels.push_back(levelSpec(filter, level));
    return levels;
}
