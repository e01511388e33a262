#include "multiuser/run_log.h"

#include <gtest/gtest.h>

#include "core/storage/storage_error.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"

namespace {

QStringList linesOf(RunLog& log)
{
    QStringList lines;
    storage::Recordset& rows = log.rows();
    if (log.isEmpty())
        return lines;
    for (rows.MoveFirst(); !rows.EOF(); rows.MoveNext())
        lines += rows["REMARK"].value().toString();
    return lines;
}

TEST(RunLogs, KeepTheLinesOfTheLastRunInTheirOrderAndWhole)
{
    const TestInstallation site;
    ScriptedMessages user;
    ActivityLog activity(site.userFolder());
    ErrorLog errors(site.userFolder());
    EXPECT_TRUE(activity.isEmpty());
    EXPECT_TRUE(activity.empty()) << "of what is empty already";
    activity.add("zebra");
    activity.add("apple");
    errors.add(QString(255, 'a') + "rest");
    EXPECT_EQ(linesOf(activity), (QStringList{"zebra", "apple"}));
    EXPECT_EQ(linesOf(errors), (QStringList{QString(255, 'a'), "rest"}));

    EXPECT_TRUE(activity.empty());
    EXPECT_TRUE(activity.isEmpty()) << "a run that logs nothing";
    activity.add("second run");
    EXPECT_EQ(linesOf(activity), QStringList{"second run"});
    EXPECT_EQ(linesOf(errors).size(), 2) << "the other log is left alone";
    EXPECT_THROW(ErrorLog("/no/such/folder"), storage::StorageError);
}

}  // namespace
