// What single screens refuse, ask and remember, and how a list with a detail screen follows it.
#include "core/window_registry.h"
#include "cost/gl_codes.h"
#include "cost/invoice_codes.h"
#include "inventory/branches.h"
#include "multiuser/users.h"
#include "purchasing/code_lists.h"
#include "purchasing/document_texts.h"
#include "purchasing/terms_codes.h"
#include "screens/browse/browse_session.h"
#include "screens/job_sites.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"

namespace {

class BrowseRules : public testing::Test
{
protected:
    Session session() const
    {
        Session now;
        now.JobSitePath = site.siteFolder();
        now.UserSettingsPath = site.userFolder();
        now.SiteTag = 1;
        now.UserName = TestInstallation::userName;
        return now;
    }
    // Updates an entry and expects the box of the older screens.
    void expectBox(BrowseSession& screen, const QString& text, Answer answer = Answer::Ok)
    {
        user.expect("Cannot Update Record", text, answer);
        screen.update();
    }
    void expectErrors(BrowseSession& screen, const QStringList& texts)
    {
        user.expect("Cannot Update",
                    QString("Errors Detected: %1\n").arg(texts.size()) + texts.join('\n'));
        EXPECT_FALSE(screen.update());
    }
    static void type(BrowseSession& screen, const QStringList& texts)
    {
        for (int i = 0; i < texts.size(); ++i)
            screen.entry().setText(i, texts[i]);
    }

    TestInstallation site;
    ScriptedMessages user;
};

TEST_F(BrowseRules, OlderScreensTellTheFirstFaultAndCancelLeavesTheEntry)
{
    site.emptyTable("ZORVEX.mdb", "MCLIST");
    site.addRow("ZORVEX.mdb", "MCLIST", {{"MCODE", "A"}, {"MCNAME", "Anchors"}, {"MCTAG", 1}});
    BrowseSession screen(frmVEXMC01(), session());
    screen.open();
    screen.add();
    expectBox(screen, "Blank Material Code Detected.");
    EXPECT_EQ(screen.entry().focus(), 0);
    type(screen, {"a", ""});
    expectBox(screen,
              "Duplicate Material Code Detected.\nThe code you have entered\n"
              "already exists on another line.");
    type(screen, {"b", ""});
    expectBox(screen, "Material Code Description is Blank.");
    EXPECT_EQ(screen.entry().focus(), 1) << "OK goes back to the field";
    ASSERT_FALSE(screen.isBrowsing());
    expectBox(screen, "Material Code Description is Blank.", Answer::Cancel);
    EXPECT_TRUE(screen.isBrowsing());
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "MCLIST"), 1);
}

TEST_F(BrowseRules, EachListHasItsOwnWords)
{
    const struct
    {
        BrowseSpec spec;
        const char* refusal;
    } lists[] = {
        {frmVEXRT01(), "Blank Requisition Type Detected."},
        {frmVEXSHIPTO01(), "Ship To Item Description is Blank."},
        {frmVEXSHIPVIA01(), "Ship Via Item Description is Blank."},
        {frmVEXWHODIDIT01(), "Requisitioned by Item Description is Blank."},
        {frmCCBQSHIP01(), "Blank Material Code Detected."},
        {frmDBPBrowse(), "Database Name is Empty."},
    };
    for (const auto& list : lists) {
        BrowseSession screen(list.spec, session());
        screen.open();
        screen.add();
        expectBox(screen, list.refusal);
    }
    const struct
    {
        BrowseSpec spec;
        std::vector<KeyField> parent;
        QStringList refusals;
    } boxes[] = {
        {frmVEXTRMC01(), {}, {"Terms Code is Empty.", "Terms Code Description is Blank."}},
        {frmVEXIC01(),
         {{"CONO", 1}, {"JOBNO", QString("1")}},
         {"Invoice Code is Empty.", "Description is Empty.", "UOM Text is Empty."}},
        {frmVEXILC01(), {}, {"Category Code is Empty.", "Description is Empty."}},
        {frmVEXINVBIN01(), {{"ILCTAG", 1}}, {"Bin Number is Empty."}},
        {frmZORJS01(), {}, {"Job Site is Empty."}},
    };
    for (const auto& box : boxes) {
        BrowseSession screen(box.spec, session());
        screen.open();
        if (!box.parent.empty())
            screen.setParent(box.parent);
        screen.add();
        expectErrors(screen, box.refusals);
    }
}

TEST_F(BrowseRules, WhatIsReferredToIsNotDeleted)
{
    for (const char* table : {"ILCLIST", "BINLIST", "SERIESCODES", "SUBCATEGORIES", "INVENTORY"})
        site.emptyTable("ZORVEX.mdb", table);
    site.addRow("ZORVEX.mdb", "ILCLIST", {{"ILCTAG", 5}, {"ILCCODE", "01"}, {"ILCNAME", "Yard"}});
    site.addRow("ZORVEX.mdb", "SERIESCODES",
                {{"ILCTAG", 5}, {"SERIESTAG", 6}, {"SERIESCODE", "100"}, {"SERIESNAME", "Pipe"}});
    site.addRow("ZORVEX.mdb", "SUBCATEGORIES",
                {{"SERIESTAG", 6}, {"SUBCATTAG", 7}, {"SUBCATCODE", "A"}});
    site.addRow("ZORVEX.mdb", "BINLIST", {{"ILCTAG", 5}, {"BINTAG", 8}, {"BINNO", "B1"}});
    site.addRow("ZORVEX.mdb", "INVENTORY", {{"ILCTAG", 5}, {"ISNTAG", 9}, {"BINTAG", 8}});
    site.addRow("ZORNET.mdb", "USERACCESSITEMS",
                {{"UAITAG", 1}, {"UAICODE", "INV02"}, {"Desc", "Edit items"}});

    BrowseSession branches(frmVEXILC01(), session());
    branches.open();
    user.expect("Cannot Delete",
                "Cannot Delete. Inventory Series Codes Detected Under this Branch Code.");
    branches.remove();
    BrowseSession series(frmVEXINVSC01(), session());
    series.open();
    series.setParent({{"ILCTAG", 5}});
    user.expect("Cannot Delete",
                "Cannot Delete. Subcategory Codes have been Detected For this Series Code.");
    series.remove();
    BrowseSession bins(frmVEXINVBIN01(), session());
    bins.open();
    bins.setParent({{"ILCTAG", 5}});
    user.expect("Cannot Delete",
                "Cannot Delete. Inventory Items have been Detected with this Bin Number.");
    bins.remove();
    site.emptyTable("ZORVEX.mdb", "INVENTORY");
    user.expect("Confirm Delete", "OK to Delete Bin Number: B1 - ");
    bins.remove();
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "BINLIST"), 0);
}

TEST_F(BrowseRules, SeriesAreChangedOnlyByThoseWhoMay)
{
    site.addRow("ZORNET.mdb", "USERACCESSITEMS",
                {{"UAITAG", 4}, {"UAICODE", "INV02"}, {"Desc", "Edit items"}});
    site.addRow("ZORNET.mdb", "USERRIGHTS", {{"USERTAG", 1}, {"UAITAG", 4}, {"ALLOWED", false}});
    int refusals = 0;
    const RefusalScreen before =
        installRefusalScreen([&](const QString&, const QString&) { ++refusals; });
    BrowseSession series(frmVEXINVSC01(), session());
    series.open();
    series.setParent({{"ILCTAG", 5}});
    series.add();
    EXPECT_TRUE(series.isBrowsing());
    EXPECT_EQ(refusals, 1);
    installRefusalScreen(before);
}

TEST_F(BrowseRules, JobSitesAreTidiedRememberedAndCopied)
{
    BrowseSession sites(frmDBPBrowse(), session());
    sites.open();
    sites.edit();
    type(sites, {"NORTH YARD", "c:\\north\\"});
    sites.entry().leave(1);
    EXPECT_EQ(sites.entry().text(1), "C:\\NORTH");
    ASSERT_TRUE(sites.update());
    user.expect("Reminder",
                "Remember, if you changed the Location of Database Files\n"
                "for an existing Job Site then you need to Reselect that Job Site\n"
                "(Main Menu Option: File, 1 - Select Job Site)\n"
                "in order for the changes to take effect.");
    sites.leave();
    sites.leave();  // once only

    BrowseSession own(frmZORJS01(), session());
    own.open();
    own.add();
    type(own, {"SOUTH"});
    expectErrors(own, {"Cannot Find Job Site: SOUTH"});
    type(own, {"NORTH YARD"});
    ASSERT_TRUE(own.update());
    EXPECT_EQ(site.first("ZORUSER.mdb", "DATABASES", "PathText").toString(), "C:\\NORTH");
    own.add();
    type(own, {"NORTH YARD"});
    expectErrors(own, {"Duplicate Job Site Detected."});
}

TEST_F(BrowseRules, AnEntryOutlivesOthersWorkOnThePage)
{
    for (const char* code : {"1", "2", "3"})
        site.addRow("ZORVEX.mdb", "GLCODES", {{"CONO", 1}, {"GLCODE", code}, {"Desc", "x"}});
    BrowseSession codes(frmVEXGLC01(), session());
    codes.open();
    codes.setParent({{"CONO", 1}});
    codes.list().nextRow();
    codes.edit();
    {
        OpenTable others = site.open("ZORVEX.mdb", "GLCODES");
        others.rows.Index("GLCODES");
        ASSERT_TRUE(others.rows.Seek("=", 1, "1"));
        others.rows.Delete();
    }
    codes.list().position();
    codes.list().repaint();
    type(codes, {"2", "typed meanwhile"});
    ASSERT_TRUE(codes.update());
    EXPECT_EQ(codes.list().lines()[0].cells, (QStringList{"2", "typed meanwhile"}));

    codes.setParentValid(false);
    user.expect("Error", "Invalid Company Number Detected.");
    codes.add();
    EXPECT_TRUE(codes.isBrowsing()) << "the list shows a company that is not chosen any more";
}

TEST_F(BrowseRules, NumbersAreNumbersAndSinglesKeepTheirDigits)
{
    site.emptyTable("ZORVEX.mdb", "TERMSCODES");
    BrowseSession terms(frmVEXTRMC01(), session());
    terms.open();
    terms.add();
    type(terms, {"A", "Net", "1-2", "99999", "2.35"});
    user.expect("Cannot Update",
                "Errors Detected: 2\nDays Before Due is not a Number.\nNumeric field overflow in "
                "'DAYSDISALLOW'.");
    EXPECT_FALSE(terms.update());
    type(terms, {"A", "Net", "12", "9", "2.35"});
    ASSERT_TRUE(terms.update());
    terms.edit();
    EXPECT_EQ(terms.entry().text(4), "2.35");
}

// A list whose records have a screen of their own.
TEST_F(BrowseRules, DetailScreensLeaveTheirResultWithTheList)
{
    site.emptyTable("ZORVEX.mdb", "ILCLIST");
    for (const int tag : {11, 12, 13})
        site.addRow("ZORVEX.mdb", "ILCLIST",
                    {{"ILCTAG", tag}, {"ILCCODE", QString::number(tag)}, {"ILCNAME", "x"}});
    QString opened;
    qint16 number = 0;
    BrowseSpec spec = frmVEXILC01();
    spec.detail = {.tagField = "ILCTAG",
                   .tagIndex = "ILCTAG",
                   .open = [&](BrowseSession&, const QString& mode, qint32 tag, qint16 winTag) {
                       opened = mode + QString::number(tag);
                       number = winTag;
                       return mode != "L";
                   }};
    BrowseSession list(spec, session());
    list.open();
    const auto inHand = [&] { return list.list().lines()[size_t(list.list().BrowseRow)].cells[0]; };
    list.list().nextRow();
    list.edit();
    EXPECT_EQ(opened, "E12");
    EXPECT_TRUE(list.isBrowsing()) << "nothing is typed on the row";
    list.comeToFront();
    EXPECT_EQ(inHand(), "12") << "the detail screen has not closed yet";
    list.add();
    EXPECT_EQ(opened, "A0");
    dnUnloadWindow(site.userFolder(), number, 13);
    list.comeToFront();
    EXPECT_EQ(inHand(), "13");
    list.remove();
    EXPECT_EQ(opened, "D13");
    dnUnloadWindow(site.userFolder(), number, 99);
    list.comeToFront();
    EXPECT_EQ(inHand(), "11") << "a tag that is gone shows the first record";
    EXPECT_TRUE(list.openDetail("V"));
    EXPECT_EQ(opened, "V11");
    EXPECT_FALSE(list.openDetail("L")) << "the screen was not opened";
    list.close();
    EXPECT_EQ(site.rowCount("ZORUSER.mdb", "WINLIST"), 0);
}

// Notes the steps, and refuses one on demand.
class NotedRules : public EntryRules
{
public:
    bool begin(Entry& entry) override
    {
        entry.give("ILCTAG", 77);
        if (entry.isAdding())
            entry.setText("ILCNAME", "begun");
        return take("begin" + entry.mode());
    }
    Step beforeWrite(Entry& entry) override
    {
        tag = entry.tag();
        return take("beforeWrite") ? Step::Write : Step::Stay;
    }
    void complete(const Entry& entry, storage::Recordset& rows) override
    {
        take("complete" + textOf(rows["ILCCODE"]) + entry.given("ILCTAG").toString());
    }
    void written(Entry&, storage::Recordset& rows) override
    {
        take("written" + textOf(rows["ILCCODE"]));
    }
    bool beforeDelete(const Session&, storage::Recordset&) override { return take("beforeDelete"); }

    QStringList steps;
    QString refused;
    qint32 tag = 0;

private:
    bool take(const QString& step)
    {
        steps.append(step);
        return step != refused;
    }
};

TEST_F(BrowseRules, AScreensOwnStepsStandAroundItsEntriesAndMayRefuse)
{
    site.emptyTable("ZORVEX.mdb", "ILCLIST");
    auto rules = std::make_shared<NotedRules>();
    BrowseSpec spec = frmVEXILC01();
    spec.rules = rules;
    spec.tag = {};
    int closings = 0;
    spec.closing = [&](BrowseSession& list) {
        ++closings;
        EXPECT_FALSE(list.list().isEmpty()) << "its table is still open";
    };
    BrowseSession list(spec, session());
    list.open();
    rules->refused = "beginA";
    list.add();
    EXPECT_TRUE(list.isBrowsing());
    rules->refused = "beforeWrite";
    list.add();
    EXPECT_EQ(list.entry()["ILCNAME"], "begun");
    list.entry().setText("ILCCODE", "7");
    EXPECT_FALSE(list.update());
    EXPECT_FALSE(list.isBrowsing()) << "what was typed stays";
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "ILCLIST"), 0);
    rules->refused = "beforeDelete";
    EXPECT_TRUE(list.update());
    EXPECT_EQ(site.first("ZORVEX.mdb", "ILCLIST", "ILCTAG").toInt(), 77) << "given, not typed";
    user.expect("Confirm Delete", "OK to Delete Branch Code: 7 - begun");
    list.remove();
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "ILCLIST"), 1);
    EXPECT_EQ(rules->steps, (QStringList{"beginA", "beginA", "beforeWrite", "beforeWrite",
                                         "complete777", "written7", "beforeDelete"}));
    list.close();
    list.close();
    EXPECT_EQ(closings, 1);
}

TEST_F(BrowseRules, AListMayBeBrowsedByOtherKeysAndShowsWhatLiesBesideIt)
{
    site.emptyTable("ZORVEX.mdb", "BINLIST");
    site.emptyTable("ZORVEX.mdb", "ILCLIST");
    site.addRow("ZORVEX.mdb", "ILCLIST", {{"ILCTAG", 1}, {"ILCCODE", "A"}, {"ILCNAME", "Yard"}});
    for (const auto& [branch, bin, tag] : {std::tuple{1, "B2", 5}, {1, "B1", 10}, {2, "B3", 20}})
        site.addRow("ZORVEX.mdb", "BINLIST", {{"ILCTAG", branch}, {"BINNO", bin}, {"BINTAG", tag}});
    BrowseSpec spec = frmVEXINVBIN01();
    spec.besides = {{"ZORVEX.mdb", "ILCLIST", "ILCTAG"}};
    spec.columns[1].shows = [](const BrowseSession& screen, storage::Recordset& rows) {
        storage::Recordset& branches = screen.beside("ILCLIST");
        return branches.Seek("=", rows["ILCTAG"].value()) ? textOf(branches["ILCNAME"])
                                                          : QString("?");
    };
    spec.tone = [](const BrowseSession&, storage::Recordset& rows) {
        return intOf(rows["ILCTAG"]) == 2 ? RowTone::Bad : RowTone::Plain;
    };
    BrowseSession list(spec, session());
    list.open();
    const auto shown = [&] {
        QStringList all;
        for (const BrowseLine& line : list.list().lines())
            if (line.kind == BrowseLine::Kind::Record)
                all.append(line.cells[0] + line.cells[1] + (line.tone == RowTone::Bad ? "!" : ""));
        return all;
    };
    list.setParent({{"ILCTAG", 1}});
    EXPECT_EQ(shown(), (QStringList{"B1Yard", "B2Yard"}));
    EXPECT_EQ(list.currentTag(), 10);
    EXPECT_TRUE(list.showTag(5));
    EXPECT_EQ(list.currentTag(), 5);
    EXPECT_FALSE(list.showTag(20)) << "another branch's";
    list.browseBy("BINTAG", {{"BINTAG", 20}});
    EXPECT_EQ(shown(), QStringList{"B3?!"});
    EXPECT_EQ(list.parentKey("BINTAG").toInt(), 20);
    list.browseBy("BINNO", {});
    EXPECT_EQ(shown().size(), 3) << "no keys: the whole table";
    const QString last = list.list().BrowseLast;
    EXPECT_TRUE(list.list().show(last));
    list.setParent({{"ILCTAG", 1}});
    list.browseBy("BINTAG", {{"BINTAG", 10}});
    EXPECT_FALSE(list.list().show(last)) << "another branch's";
}

}  // namespace
