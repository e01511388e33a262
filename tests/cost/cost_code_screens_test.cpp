// The lists of cost codes and of the targets among them.
#include <gtest/gtest.h>

#include "cost/cost_codes.h"
#include "cost/target_list_screen.h"
#include "screens/browse/browse_session.h"
#include "tests/support/table_rows.h"
#include "tests/support/scripted_messages.h"

namespace {

const QString job = "    1001";

class CostCodeScreens : public testing::Test
{
protected:
    CostCodeScreens()
    {
        session.JobSitePath = site.siteFolder();
        session.UserSettingsPath = site.userFolder();
        session.SiteTag = 1;
        session.UserName = TestInstallation::userName;
        for (const char* table : {"JOBLIST", "CCALIST", "CCBLIST", "CCCLIST", "ZORTLCC"})
            site.emptyTable("MAIN.mdb", table);
        site.emptyTable("ZORVEX.mdb", "GLCODES");
        site.addRow("ZORVEX.mdb", "GLCODES", {{"CONO", 1}, {"GLCODE", "4000"}});
        site.addRow("ZORVEX.mdb", "GLCODES", {{"CONO", 2}, {"GLCODE", "5000"}});
        site.addRow("MAIN.mdb", "JOBLIST",
                    {{"CONO", 1},
                     {"JOBNO", job},
                     {"CCNAMEA", "Phase"},
                     {"CCTYPEA", "C"},
                     {"CCSIZEA", 4},
                     {"CLCNAMEA1", "Owner Code"},
                     {"CCNAMEB", "Area"},
                     {"CCTYPEB", "N"},
                     {"CCSIZEB", 6}});
    }
    static BrowseSpec codesOf(char letter)
    {
        return frmPLGCCG01(costCodeGroups[static_cast<size_t>(letter - 'A')], {});
    }
    static void enter(BrowseSession& list, const QString& code, const QString& description)
    {
        list.entry().setNamed("txtCOSTCODE", code);
        list.entry().setNamed("txtDESC", description);
    }
    void expectErrors(const QString& texts)
    {
        user.expect("Cannot Update", "Errors Detected: " + QString::number(texts.count('#') + 1) +
                                         '\n' + QString(texts).replace('#', '\n'));
    }
    void refuse(BrowseSession& list, const QString& texts)
    {
        expectErrors(texts);
        EXPECT_FALSE(list.update());
    }
    static void run(BrowseSession& list, const QString& name)
    {
        for (const BrowseCommand& command : list.spec().commands)
            if (command.name == name)
                return list.run(command);
        ADD_FAILURE() << "no command " << name.toStdString();
    }
    QStringList codes(char letter) const
    {
        const QString l(letter);
        return rowsOf(site, "MAIN.mdb", "CC" + l + "LIST",
                      {"JOBNO", "COSTCODE" + l, "DESC" + l, "GLCODE", "NONREIM", "DLTAG"});
    }
    QStringList targets() const
    {
        return rowsOf(site, "MAIN.mdb", "ZORTLCC",
                      {"GROUPID", "COSTCODE", "Desc", "PRINTME", "TAGGED"});
    }
    void addCode(char letter, const char* code, const char* description)
    {
        const CostCodeGroup& group = costCodeGroups[static_cast<size_t>(letter - 'A')];
        site.addRow("MAIN.mdb", group.table,
                    {{"CONO", 1},
                     {"JOBNO", job},
                     {group.code.text().data(), code},
                     {group.description.text().data(), description}});
    }

    TestInstallation site;
    ScriptedMessages user;
    Session session;
};

TEST_F(CostCodeScreens, WriteCodesInTheStoredFormOfTheGroup)
{
    BrowseSession list(codesOf('A'), session);
    list.open();
    list.setParent({{"CONO", 1}, {"JOBNO", job}});
    EXPECT_EQ(list.spec().columns[2].headingFor(list), "Owner Code");
    list.add();
    EXPECT_EQ(list.entry().lengthOf(0), 4);
    refuse(list, "Cost Code is Empty.#Description is Empty.");
    enter(list, "12a", "Walls");
    list.entry().setNamed("txtNONREIM", "Y");
    list.entry().setNamed("txtSTAFFULC", "5000");  // another company's
    refuse(list, "Cannot Find G/L Code: 5000");
    list.entry().setNamed("txtSTAFFULC", "4000");
    EXPECT_TRUE(list.update());
    EXPECT_EQ(codes('A'), QStringList{job + "| 12A|Walls|4000|-1|0"});

    list.add();
    enter(list, " 12A", "Again");
    list.entry().setNamed("txtNONREIM", "X");
    refuse(list,
           "Duplicate Cost Code Detected.\nThe Cost Code you have entered\n"
           "already exists for Company/Job Pair.#Non-Reimbursable must be Y, N or Blank.");
    list.cancel();
    list.edit();
    EXPECT_EQ(list.entry().named("txtNONREIM"), "Y");
    list.entry().setNamed("txtNONREIM", "");
    EXPECT_TRUE(list.update());
    EXPECT_EQ(codes('A'), QStringList{job + "| 12A|Walls|4000|0|0"});

    findCostCode(list, costCodeGroups[0], "12a");
    EXPECT_TRUE(list.list().isOnRecord());
    user.expect("Text not Found", "Cannot Find: 12B");
    findCostCode(list, costCodeGroups[0], "12b");
    user.expect("Confirm Delete", "OK to Delete Cost Code 12A Walls?");
    list.remove();
    EXPECT_TRUE(codes('A').isEmpty());
}

TEST_F(CostCodeScreens, TakeWholeNumbersOnlyInANumberGroup)
{
    BrowseSession list(codesOf('B'), session);
    list.open();
    list.setParent({{"CONO", 1}, {"JOBNO", job}});
    EXPECT_EQ(list.spec().columns[2].headingFor(list), "Invoicing Code");
    list.add();
    const QString refusal =
        "Invalid Cost Code. The Cost Code is setup as \n"
        "'Number Only'. (Must be an Integer: 43, 678, etc..)";
    for (const char* code : {"12A", "0", "4.5"}) {
        enter(list, code, "Gate");
        refuse(list, refusal);
    }
    enter(list, "012", "Gate");
    EXPECT_TRUE(list.update());
    EXPECT_EQ(codes('B'), QStringList{job + "|    12|Gate||0|0"});
}

TEST_F(CostCodeScreens, RefuseEveryCommandWhereTheJobDoesNotUseTheGroup)
{
    BrowseSession list(codesOf('C'), session);
    list.open();
    list.setParent({{"CONO", 1}, {"JOBNO", job}});
    const std::vector<std::function<void()>> commands = {
        [&] { list.add(); }, [&] { list.search(); }, [&] { list.print(); },
        [&] { run(list, "cmdFind"); }};
    for (const auto& command : commands) {
        user.expect("Updates Not Allowed.",
                    "Group C Cost Codes Are Not Properly Defined for Job Number: 1001");
        command();
        EXPECT_TRUE(user.allCame());
    }
    EXPECT_TRUE(list.isBrowsing());
}

TEST_F(CostCodeScreens, TargetsFollowTheGroupInHand)
{
    addCode('A', "  12", "Walls");
    addCode('A', "  13", "Roof");
    addCode('B', "     7", "Gate");
    BrowseSession list(frmZORTLCC(), session);
    list.open();
    list.setParent({{"CONO", 1}, {"JOBNO", job}});
    EXPECT_EQ(list.caption(), "Target List of Cost Codes - Cost Code Group: Phase");
    const QString question =
        "This Action will EMPTY the Existing List of Cost Codes \n"
        "and Fill the List with All Available Cost Codes for \n"
        "the Group You Have Selected.\nContinue with This Action?";
    user.expect("Confirm Fill Action", question, Answer::No);
    run(list, "cmdFill");
    EXPECT_TRUE(targets().isEmpty());
    user.expect("Confirm Fill Action", question, Answer::Yes);
    run(list, "cmdFill");
    run(list, "cmdTAG");
    run(list, "cmdTurnOffPrintMe");
    EXPECT_EQ(targets(), (QStringList{"A|  12|Walls|0|-1", "A|  13|Roof|-1|0"}));

    run(list, "cmdGroup");
    EXPECT_EQ(list.caption(), "Target List of Cost Codes - Cost Code Group: Area");
    EXPECT_FALSE(list.list().isOnRecord());
    list.add();
    refuse(list, "Empty Cost Code Detected.");
    list.entry().setText("COSTCODE", "8");
    refuse(list, "Cannot Find Area: 8");
    list.entry().setText("COSTCODE", "7");
    EXPECT_TRUE(list.update());
    EXPECT_EQ(targets().last(), "B|     7|Gate|-1|0");

    run(list, "cmdGroup");
    user.expect("Updates Not Allowed.",
                "Group C Cost Codes Are Not Properly Defined \nfor Job Number: 1001");
    list.add();
    run(list, "cmdGroup");
    EXPECT_EQ(list.captionOf(list.spec().commands.front()), "&Group: A");
}

TEST_F(CostCodeScreens, ATargetThatIsNoCodeOfTheGroupIsShownAsSuch)
{
    addCode('A', "  12", "Walls");
    for (const char* code : {"  12", "  99"})
        site.addRow("MAIN.mdb", "ZORTLCC",
                    {{"CONO", 1},
                     {"JOBNO", job},
                     {"GROUPID", "A"},
                     {"COSTCODE", code},
                     {"Desc", "As Filled"}});
    BrowseSession list(frmZORTLCC(), session);
    list.open();
    list.setParent({{"CONO", 1}, {"JOBNO", job}});
    ASSERT_GE(list.list().lines().size(), 2u);
    EXPECT_EQ(list.list().lines()[0].cells[1], "As Filled");
    EXPECT_EQ(list.list().lines()[1].cells[1],
              "ERROR! THIS COST CODE DOES NOT BELONG TO SELECTED GROUP: A");
}

}  // namespace
