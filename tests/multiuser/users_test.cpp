#include "multiuser/users.h"

#include <gtest/gtest.h>

#include <QDir>

#include "core/storage/file_paths.h"
#include "tests/support/fixed_system.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"

namespace {

const char* const missingNetPath =
    "The database NETPATH.mdb is missing.\nThis database must be located in\n"
    "the same folder as the application file (*.exe).";

class UsersTest : public ::testing::Test
{
protected:
    UsersTest()
    {
        installRefusalScreen([this](const QString& name, const QString& process) {
            refusals += name + ": " + process;
        });
        site.addRow("ZORNET.mdb", "USERACCESSITEMS",
                    {{"UAITAG", 7}, {"UAICODE", "PO01"}, {"Desc", "Purchase Orders"}});
    }
    ~UsersTest() override { installRefusalScreen({}); }

    void decide(bool allowed)
    {
        site.addRow("ZORNET.mdb", "USERRIGHTS",
                    {{"USERTAG", 1}, {"UAITAG", 7}, {"ALLOWED", allowed}});
    }

    TestInstallation site;
    FixedSystem machine;
    ScriptedMessages user;
    QStringList refusals;
};

TEST_F(UsersTest, TheUserIsNamedByTheLoginOrIsAGuest)
{
    EXPECT_EQ(dnUserName(), "pat");
    machine.logIn(QString("kim") + QChar(0) + "rest");
    EXPECT_EQ(dnUserName(), "kim");
    machine.logIn("");
    EXPECT_EQ(dnUserName(), "Guest");
}

TEST_F(UsersTest, TheNetworkDatabaseIsFoundThroughItsLocator)
{
    EXPECT_EQ(dnNetPath(true), site.networkFolder() + "/ZORNET.mdb");

    site.setFirst("NETPATH.mdb", "NETPATH", "Path", site.networkFolder() + "/");
    EXPECT_EQ(dnNetPath(true), site.networkFolder() + "/ZORNET.mdb");

    // A blank folder becomes the current directory, for good.
    site.setFirst("NETPATH.mdb", "NETPATH", "Path", "  ");
    EXPECT_EQ(dnNetPath(true), " ");
    EXPECT_EQ(site.first("NETPATH.mdb", "NETPATH", "Path").toString(), QDir::currentPath());

    site.emptyTable("NETPATH.mdb", "NETPATH");
    EXPECT_EQ(dnNetPath(true), " ");
    EXPECT_EQ(site.first("NETPATH.mdb", "NETPATH", "Path").toString(), "C:\\ZORDATA\\ZORNET");

    user.expect("Cannot Access",
                "Cannot Find the Database: C:\\ZORDATA\\ZORNET\\ZORNET.mdb\n\n"
                "Find the correct location for ZORNET.mdb and update your "
                "Network Database Location setting.");
    EXPECT_EQ(dnNetPath(false), "ERROR");

    site.removeFile("NETPATH.mdb");
    user.expect("ERROR", missingNetPath);
    EXPECT_EQ(dnNetPath(true), "ERROR");
}

TEST_F(UsersTest, UnknownUsersAreEnrolledWithTheNextNumber)
{
    EXPECT_EQ(dnUserTag("", "pat"), 1);
    EXPECT_EQ(dnUserTag("", "PAT"), 1);
    EXPECT_EQ(dnUserTag("", "kim"), 2);
    EXPECT_EQ(dnUserTag("", "kim"), 2);
    EXPECT_EQ(site.first("ZORNET.mdb", "NETTAGS", "USERTAG").toInt(), 3);
    EXPECT_EQ(site.rowCount("ZORNET.mdb", "USERLIST"), 2);
}

TEST_F(UsersTest, TheFirstUserOfAllIsNumberOne)
{
    site.emptyTable("ZORNET.mdb", "USERLIST");
    site.emptyTable("ZORNET.mdb", "NETTAGS");
    EXPECT_EQ(dnUserTag("", "pat"), 1);
    EXPECT_EQ(site.first("ZORNET.mdb", "NETTAGS", "USERTAG").toInt(), 2);
}

TEST_F(UsersTest, WithoutANetworkUserNumbersAreZero)
{
    site.removeFile("ZORNET.mdb");
    user.expect("Cannot Access", "Cannot Find the Database: " + site.networkFolder() +
                                     "/ZORNET.mdb\n\nFind the correct location for ZORNET.mdb and "
                                     "update your Network Database Location setting.");
    EXPECT_EQ(dnUserTag("", "pat"), 0);
    EXPECT_TRUE(user.allCame());
    EXPECT_EQ(listedUserTag("pat"), 0);

    site.removeFile("NETPATH.mdb");
    EXPECT_EQ(dnUserTag("", "pat"), 0);
    EXPECT_EQ(listedUserTag("pat"), 0);
}

TEST_F(UsersTest, AnAdministratorAddsUsersInLowerCase)
{
    EXPECT_EQ(addUser("Kim"), UserAdded::Added);
    OpenTable users = site.open("ZORNET.mdb", "USERLIST");
    users.rows.Index("USERNAME");
    ASSERT_TRUE(users.rows.Seek("=", "kim"));
    EXPECT_EQ(users.rows["UserName"].value().toString(), "kim");
    EXPECT_EQ(users.rows["USERTAG"].value().toInt(), 2);
    EXPECT_EQ(users.rows["REMARKS"].value().toString(), "Added on: 03/07/2026 9:05:42 AM");
    EXPECT_FALSE(users.rows["ADMIN"].value().isNull());
    EXPECT_FALSE(users.rows["ADMIN"].value().toBool());

    EXPECT_EQ(addUser("PAT"), UserAdded::Duplicate);
    EXPECT_EQ(addUser(" "), UserAdded::EmptyName);
    EXPECT_EQ(site.rowCount("ZORNET.mdb", "USERLIST"), 2);
}

TEST_F(UsersTest, OnlyARowThatForbidsClosesAProcess)
{
    EXPECT_TRUE(dnOK2Access("PO01", "pat", true));
    decide(true);
    EXPECT_TRUE(dnOK2Access("PO01", "pat", true));
    EXPECT_TRUE(refusals.isEmpty());

    site.emptyTable("ZORNET.mdb", "USERRIGHTS");
    decide(false);
    EXPECT_FALSE(dnOK2Access("PO01", "pat", false));
    EXPECT_TRUE(refusals.isEmpty());
    EXPECT_FALSE(dnOK2Access("PO01", "pat", true));
    EXPECT_EQ(refusals, QStringList{"pat: Purchase Orders"});
}

TEST_F(UsersTest, WhatIsWrongInTheListsRefusesAndIsAlwaysShown)
{
    EXPECT_FALSE(dnOK2Access("PO99", "pat", false));
    EXPECT_FALSE(dnOK2Access("PO01", "nobody", false));
    EXPECT_EQ(refusals,
              (QStringList{"pat: Cannot Find UAI Code: PO99", "nobody: Cannot Find User Name"}));
}

TEST_F(UsersTest, WithoutTheNetworkDatabaseAllIsOpenButWithoutItsLocatorAllIsClosed)
{
    EXPECT_TRUE(dnOK2Access("PO01", " ", true));
    site.removeFile("ZORNET.mdb");
    EXPECT_TRUE(dnOK2Access("PO01", "pat", true));

    site.removeFile("NETPATH.mdb");
    user.expect("ERROR", missingNetPath);
    EXPECT_FALSE(dnOK2Access("PO01", "pat", true));
}

TEST_F(UsersTest, AFailureOfTheStoreIsShownAndRefuses)
{
    site.removeFile("ZORNET.mdb");
    site.makeMarker(site.networkFolder(), "ZORNET.mdb");
    QFile file(site.pathOf("ZORNET.mdb"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(4096, 'x'));
    file.close();
    user.expect("Error", "Error in Function dnOK2Access() 3343 Unrecognized database format '" +
                             site.networkFolder() + "/ZORNET.mdb'.");
    EXPECT_FALSE(dnOK2Access("PO01", "pat", true));
}

}  // namespace
