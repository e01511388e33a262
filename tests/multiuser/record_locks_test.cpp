#include "multiuser/record_locks.h"

#include <gtest/gtest.h>

#include <QProcess>

#include "core/storage/storage_error.h"
#include "core/storage/table_definitions.h"
#include "tests/support/fixed_system.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"

namespace {

class RecordLocks : public ::testing::Test
{
protected:
    RecordLocks()
    {
        installLockedScreen([this](const HeldLock& lock, bool mayRemove) {
            shown += lock.tableName + ' ' + lock.userName + ' ' + lock.takenAt +
                     (mayRemove ? " removable" : "");
            if (whileShown)
                whileShown();
            return answer;
        });
    }
    ~RecordLocks() override { installLockedScreen({}); }

    void expectNotice()
    {
        user.expect(
            "Notice: This Record is Locked by You",
            "Because you are the same user as the \nuser which placed this record lock you\n"
            "are allowed to remove the lock.  However,\n"
            "check to make sure you do not have another\n"
            "session of this application running. If you do\n"
            "have another session do not remove this lock.\n"
            "Instead, Click OK when notified of the record lock\n"
            "and finish the update in the other session.\n"
            "Then exit that session and return to this session.");
    }
    int lockCount() const { return site.rowCount("ZORNET.mdb", "RECORDLOCKS"); }

    TestInstallation site;
    FixedSystem machine;
    ScriptedMessages user;
    QStringList shown;
    std::function<void()> whileShown;
    bool answer = false;
};

TEST_F(RecordLocks, AreTakenOnceForAKindAndTagAndGivenUpByAnyone)
{
    EXPECT_FALSE(dnRecordLock(5, "VENDORS", 1, "pat", 77));
    EXPECT_EQ(site.first("ZORNET.mdb", "RECORDLOCKS", "TAGNO").toInt(), 5);
    EXPECT_EQ(site.first("ZORNET.mdb", "RECORDLOCKS", "RLTIMESTAMP").toString(),
              "03/07/2026 9:05:42 AM");
    EXPECT_EQ(site.first("ZORNET.mdb", "RECORDLOCKS", "USERTAG").toInt(), 1);
    EXPECT_EQ(site.first("ZORNET.mdb", "RECORDLOCKS", "Session").toInt(), 77);
    EXPECT_FALSE(dnRecordLock(5, "MANUFACTURERS", 1, "pat", 77));
    EXPECT_FALSE(dnRecordLock(6, "VENDORS", 2, "kim", 78));
    EXPECT_EQ(lockCount(), 3);
    EXPECT_TRUE(shown.isEmpty());

    EXPECT_TRUE(dnRecordUnlock(5, "VENDORS"));
    EXPECT_TRUE(dnRecordUnlock(5, "VENDORS")) << "nothing to do";
    EXPECT_EQ(lockCount(), 2);
    EXPECT_FALSE(dnRecordLock(5, "VENDORS", 2, "kim", 78));
}

TEST_F(RecordLocks, OfAnotherUserAreShownAndCannotBeRemoved)
{
    dnRecordLock(5, "VENDORS", 1, "pat", 77);
    answer = true;  // a screen that does not keep to what it was told
    EXPECT_TRUE(dnRecordLock(5, "VENDORS", 2, "kim", 78));
    EXPECT_EQ(shown, QStringList{"VENDORS pat 03/07/2026 9:05:42 AM"});
    EXPECT_EQ(lockCount(), 1);
}

TEST_F(RecordLocks, OfTheSameLoginCanBeRemovedAndAreGotAtTheNextTry)
{
    dnRecordLock(5, "VENDORS", 1, " pat ", 77);
    expectNotice();
    EXPECT_TRUE(dnRecordLock(5, "VENDORS", 1, "pat", 78));
    EXPECT_EQ(shown.takeFirst(), "VENDORS pat 03/07/2026 9:05:42 AM removable");
    EXPECT_EQ(lockCount(), 1) << "kept";

    answer = true;
    expectNotice();
    EXPECT_TRUE(dnRecordLock(5, "VENDORS", 1, "pat", 78)) << "also after a removal";
    EXPECT_EQ(lockCount(), 0);
    EXPECT_FALSE(dnRecordLock(5, "VENDORS", 1, "pat", 78));
}

TEST_F(RecordLocks, ThatPassedToAnotherWhileTheUserThoughtStay)
{
    dnRecordLock(5, "VENDORS", 1, "pat", 77);
    answer = true;
    whileShown = [] {
        dnRecordUnlock(5, "VENDORS");
        dnRecordLock(5, "VENDORS", 2, "kim", 78);
    };
    expectNotice();
    EXPECT_TRUE(dnRecordLock(5, "VENDORS", 1, "pat", 78));
    EXPECT_EQ(site.first("ZORNET.mdb", "RECORDLOCKS", "RLUSERNAME").toString(), "kim");
}

TEST_F(RecordLocks, AreNeverInTheWayOfWorkWithoutANetwork)
{
    site.removeFile("ZORNET.mdb");
    const QString text = "Cannot Find the Database: " + site.networkFolder() +
                         "/ZORNET.mdb\n\nFind the correct location for ZORNET.mdb and update "
                         "your Network Database Location setting.";
    user.expect("Cannot Access", text);
    EXPECT_FALSE(dnRecordLock(5, "VENDORS", 1, "pat", 77));
    user.expect("Cannot Access", text);
    EXPECT_TRUE(dnRecordUnlock(5, "VENDORS"));

    site.removeFile("NETPATH.mdb");
    EXPECT_FALSE(dnRecordLock(5, "VENDORS", 1, "pat", 77));
    EXPECT_TRUE(dnRecordUnlock(5, "VENDORS"));
}

// What two processes that do the same at once tell.
QByteArrayList bothTell(const QStringList& arguments)
{
    QProcess lockers[2];
    for (int number = 0; number < 2; ++number) {
        lockers[number].start(RECORD_LOCKER_PROGRAM,
                              QStringList{QString("user%1").arg(number)} + arguments);
        EXPECT_TRUE(lockers[number].waitForReadyRead(20000));
        EXPECT_EQ(lockers[number].readLine(), "ready\n");
    }
    for (QProcess& locker : lockers) {
        locker.write("\n");
        locker.waitForBytesWritten();
    }
    QByteArrayList lines;
    for (QProcess& locker : lockers) {
        EXPECT_TRUE(locker.waitForFinished(60000));
        EXPECT_EQ(locker.exitStatus(), QProcess::NormalExit)
            << locker.readAllStandardError().toStdString();
        EXPECT_EQ(locker.exitCode(), 0);
        lines += locker.readAllStandardOutput().split('\n');
    }
    lines.removeAll("");
    return lines;
}

TEST_F(RecordLocks, GoToOneOfTwoWhoTryInTheSameMomentAndAreGivenUpByBoth)
{
    constexpr int count = 200;
    QList<int> got;
    for (const QByteArray& line : bothTell({QString::number(count)}))
        got.append(line.toInt());
    std::sort(got.begin(), got.end());
    ASSERT_EQ(got.size(), count) << "each record has one holder";
    for (int tag = 1; tag <= count; ++tag)
        EXPECT_EQ(got[tag - 1], tag);
    EXPECT_EQ(lockCount(), count);

    bothTell({QString::number(count), "unlock"});
    EXPECT_EQ(lockCount(), 0);
}

TEST_F(RecordLocks, FailWhereTheTableRefusesTheirRowForAnotherReason)
{
    {
        const storage::Workspace workspace = storage::CreateWorkspace("wksTEST");
        storage::Database database = workspace.OpenDatabase(site.pathOf("ZORNET.mdb"));
        database.TableDefs()["RECORDLOCKS"].Indexes().Append(
            storage::CreateIndex("KINDS", {"TABLENAME"}, true));
    }
    EXPECT_FALSE(dnRecordLock(5, "VENDORS", 1, "pat", 77));
    EXPECT_THROW(dnRecordLock(6, "VENDORS", 1, "pat", 77), storage::StorageError);
    EXPECT_TRUE(dnRecordUnlock(5, "VENDORS"));
    EXPECT_FALSE(dnRecordLock(6, "VENDORS", 1, "pat", 77));
}

}  // namespace
