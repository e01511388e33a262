// The lists of super cost code filters and of their nodes, and the dialog that asks for one.
#include "cost/super_filter_screens.h"

#include <gtest/gtest.h>

#include "core/cost_code_groups.h"
#include "screens/browse/browse_session.h"
#include "tests/support/table_rows.h"
#include "tests/support/scripted_messages.h"

namespace {

const QString job = "    1001";

class SuperFilterScreens : public testing::Test
{
protected:
    SuperFilterScreens()
    {
        session.JobSitePath = site.siteFolder();
        session.UserSettingsPath = site.userFolder();
        session.SiteTag = 1;
        session.UserName = TestInstallation::userName;
        for (const char* table : {"JOBLIST", "CCALIST", "CCBLIST", "CCCLIST", "UDSLIST",
                                  "UDSLEVEL1", "UDSLEVEL2", "UDSLEVEL3"})
            site.emptyTable("MAIN.mdb", table);
        site.addRow("MAIN.mdb", "JOBLIST",
                    {{"CONO", 1},
                     {"JOBNO", job},
                     {"CCNAMEA", "Phase"},
                     {"CCTYPEA", "C"},
                     {"CCSIZEA", 4},
                     {"CCNAMEB", "Area"},
                     {"CCTYPEB", "N"},
                     {"CCSIZEB", 3}});
        site.addRow("MAIN.mdb", "CCALIST",
                    {{"CONO", 1}, {"JOBNO", job}, {"COSTCODEA", " 12A"}, {"DESCA", "Walls"}});
        site.addRow("MAIN.mdb", "CCBLIST",
                    {{"CONO", 1}, {"JOBNO", job}, {"COSTCODEB", "  7"}, {"DESCB", "Gate"}});
    }
    void refuse(BrowseSession& list, const QString& texts)
    {
        user.expect("Cannot Update", "Errors Detected: " + QString::number(texts.count('#') + 1) +
                                         '\n' + QString(texts).replace('#', '\n'));
        EXPECT_FALSE(list.update());
    }
    qint32 addFilter(const QString& code, const QString& first, const QString& second)
    {
        BrowseSession list(frmZORUDS01(), session);
        list.open();
        list.setParent({{"CONO", 1}, {"JOBNO", job}});
        list.add();
        list.entry().setText("UDSCODE", code);
        list.entry().setText("UDSNAME", "Filter");
        list.entry().setText("CCGL1", first);
        list.entry().setText("CCGL2", second);
        EXPECT_TRUE(list.update());
        return list.currentTag();
    }
    qint32 addNode(qint32 filter, size_t level, qint32 owner, const QString& code)
    {
        BrowseSession list(std::move(frmZORUDS02(session, filter).levels[level]), session);
        list.open();
        list.setParent({{"OWNERTAG", owner}});
        list.add();
        list.entry().setText("COSTCODE", code);
        EXPECT_TRUE(list.update());
        return list.currentTag();
    }
    QStringList nodes(int level) const
    {
        return rowsOf(site, "MAIN.mdb", "UDSLEVEL" + QString::number(level),
                      {"OWNERTAG", "COSTCODE"});
    }

    TestInstallation site;
    ScriptedMessages user;
    Session session;
};

TEST_F(SuperFilterScreens, FiltersHaveACodeOfTheirOwnAndGoWithTheirTree)
{
    const qint32 tag = addFilter("S1", "A", "B");
    const qint32 node = addNode(tag, 0, tag, "12a");
    addNode(tag, 1, node, "7");
    BrowseSession list(frmZORUDS01(), session);
    list.open();
    list.setParent({{"CONO", 1}, {"JOBNO", job}});
    EXPECT_EQ(list.list().lines()[0].cells,
              (QStringList{"S1", "Filter", "Phase", "Area", "(none)"}));
    list.add();
    refuse(list, "Blank SCF Code Detected.#Blank UDS Description Detected.");
    list.entry().setText("UDSCODE", "s1");
    list.entry().setText("UDSNAME", "Again");
    refuse(list,
           "Duplicate SCF Code Detected.\nThe SCF Code you have entered "
           "already exists for Company/Job Pair.");
    QStringList choices;
    for (const EntryChoice& choice : list.spec().columns[2].choicesFor(list.entry()))
        choices.append(choice.value + '=' + choice.text);
    EXPECT_EQ(choices, (QStringList{"=(none)", "A=A - Phase", "B=B - Area", "C=Group C (empty)"}));
    list.cancel();

    user.expect("Confirm Delete", "OK to Delete Super Costcode Filter Code Detail", Answer::Cancel);
    list.remove();
    EXPECT_EQ(nodes(2).size(), 1);
    user.expect("Confirm Delete", "OK to Delete Super Costcode Filter Code Detail");
    list.remove();
    EXPECT_TRUE(nodes(1).isEmpty() && nodes(2).isEmpty());
    EXPECT_TRUE(list.list().isEmpty());
}

TEST_F(SuperFilterScreens, NodesAreCodesOfTheirLevelsGroup)
{
    const qint32 tag = addFilter("S1", "A", "B");
    const qint32 node = addNode(tag, 0, tag, "12a");
    EXPECT_EQ(nodes(1), QStringList{QString::number(tag) + "| 12A"});
    std::vector<BrowseSpec> levels = frmZORUDS02(session, tag).levels;
    BrowseSession second(levels[1], session);
    second.open();
    second.setParent({{"OWNERTAG", node}});
    second.add();
    refuse(second, "Blank Class Code Detected.");
    second.entry().setText("COSTCODE", "12A");
    refuse(second, "Cost Code Undefined at This Level.");
    second.entry().setText("COSTCODE", "7");
    EXPECT_TRUE(second.update());
    EXPECT_EQ(second.list().lines()[0].cells, (QStringList{"7", "Gate"}));

    BrowseSession third(levels[2], session);
    third.open();
    third.setParent({{"OWNERTAG", second.currentTag()}});
    third.add();
    third.entry().setText("COSTCODE", "7");
    refuse(third, "Cost Code Group is not Set for This Level.");

    BrowseSession first(levels[0], session);
    first.open();
    first.setParent({{"OWNERTAG", tag}});
    user.expect("Confirm Delete", "OK to Delete Level 1 Cost Code: 12A and All Lower Level Items?");
    first.remove();
    EXPECT_TRUE(nodes(1).isEmpty() && nodes(2).isEmpty());
}

TEST_F(SuperFilterScreens, ALevelIsNotEnteredFromAnEmptyLineAndAnEmptyOneIsTold)
{
    const qint32 tag = addFilter("S1", "A", "B");
    const BrowseLevels levels = frmZORUDS02(session, tag);
    BrowseSession first(levels.levels[0], session);
    BrowseSession second(levels.levels[1], session);
    first.open();
    second.open();
    first.setParent({{"OWNERTAG", tag}});
    const std::optional<Message> refusal = levels.mayEnter(first, second);
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->title, "Cannot Switch Levels");
    EXPECT_EQ(refusal->text, "Cannot Switch Levels on an Empty Line.");
    addNode(tag, 0, tag, "12a");
    first.list().rebuild();
    user.expect("No Detail Found", "Cannot Find any Level 2 Detail.");
    EXPECT_FALSE(levels.mayEnter(first, second));
}

TEST_F(SuperFilterScreens, AReportTakesAFilterByItsCode)
{
    const qint32 tag = addFilter("S1", "A", "B");
    EXPECT_EQ(takeSuperFilter(session, 1, job, " s1"), tag);
    user.expect("Invalid SCF Code", "Cannot Find SCF Code: S2");
    EXPECT_EQ(takeSuperFilter(session, 1, job, "S2"), 0);
    user.expect("No Selection", "Super Costcode Filter Code has not been Selected.");
    EXPECT_EQ(takeSuperFilter(session, 1, job, " "), 0);
}

}  // namespace
