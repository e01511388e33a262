#include "core/job_numbers.h"

#include <gtest/gtest.h>

#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"

namespace {

const QString sizeHelp =
    "Job Numbers can be 1 - 8 characters/digits long.\n"
    "The Default Setting of 8 Will be Used.\n"
    "To update the Job Number Settings\n"
    "Select Menu Option: Settings, 1 - Job Site Settings.";
const QString typeHelp =
    "Job Number Types can be 'C' or 'N' (Character/Number).\n"
    "The Default Setting of 'C' will be used.\n"
    "To update the Job Number Settings\n"
    "Select Menu Option: Settings, 1 - Job Site Settings.";

class JobNumbers : public testing::Test
{
protected:
    int size() const { return zorGetJobNoSize(site.siteFolder()); }
    QString type() const { return zorGetJobNoType(site.siteFolder()); }

    TestInstallation site;
    ScriptedMessages user;
};

TEST_F(JobNumbers, AreWrittenAsTheSiteHasSettled)
{
    site.setFirst("ZORSYS.mdb", "SYSSETTINGS", "JOBNOTYPE", "N");
    site.setFirst("ZORSYS.mdb", "SYSSETTINGS", "JOBNOSIZE", 5);
    const JobNoFormat format = zorGetJobNoFormat(site.siteFolder());
    EXPECT_EQ(format, (JobNoFormat{"N", 5}));
    EXPECT_EQ(storedJobNo("12a", format), "   12");
    EXPECT_EQ(settledJobNoFormat(site.siteFolder()), format);
}

TEST_F(JobNumbers, ToldAndMendedWhereNothingIsSettled)
{
    site.emptyTable("ZORSYS.mdb", "SYSSETTINGS");
    EXPECT_EQ(settledJobNoFormat(site.siteFolder()), JobNoFormat()) << "without a box";
    user.expect("Error", "Job Site Settings Table is Empty. \n" + sizeHelp);
    EXPECT_EQ(size(), 8);
    user.expect("Error", "Job Number Type is Empty. \n" + typeHelp);
    EXPECT_EQ(type(), "C");
    EXPECT_EQ(size(), 8) << "and the second time there is nothing to tell";
    EXPECT_EQ(site.rowCount("ZORSYS.mdb", "SYSSETTINGS"), 1);

    site.emptyTable("ZORSYS.mdb", "SYSSETTINGS");
    user.expect("Error", "Job Site Settings Table is Empty. \n" + typeHelp);
    EXPECT_EQ(type(), "C");
    user.expect("Error", "Job Number Size is Zero. \n" + sizeHelp);
    EXPECT_EQ(size(), 8);
    EXPECT_EQ(site.first("ZORSYS.mdb", "SYSSETTINGS", "JOBNOSIZE").toInt(), 8);
}

TEST_F(JobNumbers, HaveNoSizeWithoutTheSettingsFile)
{
    site.removeFile("ZORSYS.mdb");
    user.expect("Error", "Cannot Retreive Job Number Settings\nCannot Find the Database File: " +
                             site.siteFolder() + "/ZORSYS.mdb");
    EXPECT_EQ(zorGetJobNoFormat(site.siteFolder()).size, 0) << "told once for both settings";
    EXPECT_EQ(settledJobNoFormat(site.siteFolder()), JobNoFormat());
}

}  // namespace
