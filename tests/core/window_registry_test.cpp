#include "core/window_registry.h"

#include <gtest/gtest.h>

#include "core/user_settings.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"

namespace {

class WindowRegistry : public testing::Test
{
protected:
    QString userPath() const { return site.userFolder(); }
    int rows() const { return site.rowCount("ZORUSER.mdb", "WINLIST"); }

    TestInstallation site;
    ScriptedMessages user;
};

TEST_F(WindowRegistry, NumbersWindowsAndBeginsAgainAfterThreeThousand)
{
    EXPECT_EQ(dnSetWINTAG(userPath()), 1);
    EXPECT_EQ(site.first("ZORUSER.mdb", "WINTAG", "WINTAG").toInt(), 2);
    EXPECT_EQ(dnSetWINTAG(userPath()), 2);
    site.setFirst("ZORUSER.mdb", "WINTAG", "WINTAG", 3000);
    EXPECT_EQ(dnSetWINTAG(userPath()), 3000);
    EXPECT_EQ(dnSetWINTAG(userPath()), 1) << "3001 is above 3000";
    EXPECT_EQ(rows(), 4);
}

TEST_F(WindowRegistry, CarriesAResultFromChildToParent)
{
    const qint16 parent = dnSetWINTAG(userPath());
    dnSetHOTTAG(userPath(), parent, 17);
    EXPECT_EQ(dnGetWINACTION(userPath(), parent), 0);
    EXPECT_EQ(dnUnloadWindow(userPath(), parent, 1'000'018), 1);
    EXPECT_EQ(dnGetWINACTION(userPath(), parent), 1);
    EXPECT_EQ(dnGetHOTTAG(userPath(), parent), 1'000'018);
    EXPECT_EQ(dnGetWINACTION(userPath(), parent), 1) << "still, until the parent says otherwise";
    dnSetHOTTAG(userPath(), parent, hotTagKeepPage);
    EXPECT_EQ(dnGetWINACTION(userPath(), parent), 0);

    EXPECT_EQ(dnDELWINTAG(userPath(), parent), 1);
    EXPECT_EQ(dnUnloadWindow(userPath(), parent, 5), 0) << "a closed parent is no error";
    user.expect("Error: dnGetHOTTAG", "Error Finding Tag Number for This Wiindow.");
    EXPECT_EQ(dnGetHOTTAG(userPath(), parent), 0);
}

TEST_F(WindowRegistry, TellsOfADatabaseThatIsNotThere)
{
    site.removeFile("ZORUSER.mdb");
    user.expect("Error: dnSetWINTAG", "Error in Function: dnSetWINTAG 3024 Could not find file '" +
                                          site.pathOf("ZORUSER.mdb") + "'.");
    EXPECT_EQ(dnSetWINTAG(userPath()), 0);
}

TEST_F(WindowRegistry, RemembersAUsersChoicesForEachSite)
{
    OpenTable settings = site.open("ZORUSER.mdb", "VEXSETTINGS");
    EXPECT_EQ(zorGetUserSetting(settings.rows, 1, "CONO").toInt(), 0);
    zorSaveUserSetting(settings.rows, 1, "CONO", 12);
    zorSaveUserSetting(settings.rows, 2, "JOBNOPAIR", "    A17");
    EXPECT_EQ(zorGetUserSetting(settings.rows, 1, "CONO").toInt(), 12);
    EXPECT_EQ(zorGetUserSetting(settings.rows, 2, "CONO").toInt(), 0);
    EXPECT_EQ(zorGetUserSetting(settings.rows, 2, "JOBNOPAIR").toString(), "    A17");
    EXPECT_EQ(settings.rows.RecordCount(), 2);

    user.expect("Warning", "Warning: Job Site Tag is Zero.");
    zorSaveUserSetting(settings.rows, 0, "CONO", 3);
    EXPECT_EQ(settings.rows.RecordCount(), 3);
    user.expect("Error", "Could not Retreive User Settings.");
    EXPECT_TRUE(zorGetUserSetting(settings.rows, 1, "NOSUCHCHOICE").isNull());
}

}  // namespace
