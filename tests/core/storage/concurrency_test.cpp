// Walks while another process writes, on a local disk and on what is taken for a share.
#include <QElapsedTimer>

#include "core/storage/sqlite_engine.h"
#include "other_process.h"
#include "store_fixture.h"

namespace storage {
namespace {

constexpr int steadyRows = 600;
constexpr int steadyStep = 50;

class Concurrency : public StoreTest
{
protected:
    Concurrency() : database(makeTableT()), rs(database.OpenRecordset("T"))
    {
        workspace.BeginTrans();
        for (int i = 0; i < steadyRows; ++i)
            add(rs, {{"K", QString(QChar('a' + i % 26))}, {"N", i * steadyStep}, {"M", "steady"}});
        workspace.CommitTrans();
    }

    void assumeShare() { static_cast<SqliteEngine&>(database.engine()).assumeShare(); }

    // One walk: in order, each record once, and every steady one met.
    void walkThrough(const char* field, Direction direction)
    {
        const bool forward = direction == Direction::Forward;
        const int sign = forward ? 1 : -1;
        rs.Index(field);
        int steady = 0;
        Value lastKey;
        qint64 lastId = 0;
        for (forward ? rs.MoveFirst() : rs.MoveLast(); !rs.EOF() && !rs.BOF();
             forward ? rs.MoveNext() : rs.MovePrevious()) {
            const Value key = rs.fieldNamed(field).value();
            const qint64 id = rs.Bookmark().toLongLong();
            if (!lastKey.isNull()) {
                const int order = key.as<QString>() ? key.toString().compare(lastKey.toString())
                                                    : key.toInt() - lastKey.toInt();
                ASSERT_TRUE(order * sign > 0 || (order == 0 && (id - lastId) * sign > 0))
                    << lastKey.toString().toStdString() << " " << lastId << " then "
                    << key.toString().toStdString() << " " << id;
            }
            lastKey = key;
            lastId = id;
            steady += text(rs, "M") == "steady" ? 1 : 0;
        }
        ASSERT_EQ(steadyRows, steady) << "records that nobody touched";
    }

    int walkFor(int milliseconds)
    {
        QElapsedTimer passed;
        passed.start();
        int walks = 0;
        for (; passed.elapsed() < milliseconds && !HasFatalFailure(); ++walks)
            walkThrough(walks % 3 == 0 ? "K" : "N",
                        walks % 2 == 0 ? Direction::Forward : Direction::Backward);
        return walks;
    }

    void walkWhileOthersWrite()
    {
        OtherProcess first({"churn", path, "1"});
        OtherProcess second({"churn", path, "2"});
        first.hear();
        second.hear();
        const int walks = walkFor(1500);
        EXPECT_GT(walks, 5);
        EXPECT_GT(first.finish().value(0).toInt(), 50);
        EXPECT_GT(second.finish().value(0).toInt(), 50);
        EXPECT_EQ(walk(rs, "N").size(), rs.RecordCount());
        EXPECT_EQ(QStringList(), database.engine().checkIntegrity());
    }

    Database database;
    Recordset rs;
};

TEST_F(Concurrency, WalksStayInOrderWhileOtherProcessesWrite)
{
    walkWhileOthersWrite();
}

TEST_F(Concurrency, WalksOnAShareStayInOrderWhileOtherProcessesWrite)
{
    assumeShare();
    walkWhileOthersWrite();
}

TEST_F(Concurrency, AWriterGetsItsTurnBetweenWalksOnAShare)
{
    assumeShare();
    OtherProcess writer({"add-slowly", path, "60"});
    walkFor(1500);
    const QStringList said = writer.finish();
    EXPECT_LT(said.value(0).toInt(), 1000) << "milliseconds, the longest wait";
    EXPECT_EQ(steadyRows + 60, rs.RecordCount());
}

TEST_F(Concurrency, AnIdleProgramHoldsNoLockOnAShare)
{
    assumeShare();
    walkThrough("N", Direction::Forward);
    beIdle(30);
    OtherProcess other({"hold", path, "EXCLUSIVE"});
    EXPECT_EQ("held", other.hear());
    other.say("go");
    other.finish();

    walkThrough("N", Direction::Forward);
    rs.Close();
    workspace.Close();
    EXPECT_EQ("held", OtherProcess({"hold", path, "EXCLUSIVE"}).hear()) << "closed: at once";
}

TEST_F(Concurrency, OwnWritesEndTheLeaseAndAreDurable)
{
    assumeShare();
    rs.Index("N");
    rs.MoveFirst();
    for (int i = 0; i < 100; ++i)
        rs.MoveNext();
    add(rs, {{"K", "own"}, {"N", 100 * steadyStep + 1}});
    EXPECT_EQ(steadyRows + 1, openOnOtherConnection().RecordCount());
    rs.MoveNext();
    EXPECT_EQ("own", text(rs, "K"));
}

TEST_F(Concurrency, AWalkThatWasLockedOutLeavesNoTransactionBehind)
{
    assumeShare();
    rs.Index("N");
    rs.MoveFirst();
    rs.MoveNext();
    OtherProcess other({"hold", path, "EXCLUSIVE"});
    ASSERT_EQ("held", other.hear());
    setLockWaitLimit(50);
    EXPECT_EQ(3260, errorOf([&] { walkThrough("N", Direction::Forward); }));
    rs.Index("N");
    EXPECT_EQ(3260, errorOf([&] {
                  for (int i = 0; i < 100; ++i)
                      rs.MoveNext();
              }));
    other.say("go");
    other.finish();
    setLockWaitLimit(10'000);
    add(rs, {{"K", "durable"}});
    EXPECT_EQ(steadyRows + 1, openOnOtherConnection().RecordCount());
    walkThrough("N", Direction::Forward);
}

// As by an administrator who copies another file over it. What a handle has read it may still give.
TEST_F(Concurrency, AFileThatIsCutShortUnderAHandleIsAnErrorNotTheEndOfTheProgram)
{
    rs.MoveFirst();
    for (const int size : {20'000, 5000, 100}) {
        QFile::resize(path, size);
        qsizetype met = 0;
        const int error = errorOf([&] { met = walk(rs, "N").size(); });
        EXPECT_TRUE(error == 3049 || error == 3343 || (error == 0 && met == steadyRows))
            << error << " " << met;
        EXPECT_NE(0, errorOf([&] { openOnOtherConnection().RecordCount(); }));
    }
}

}  // namespace
}  // namespace storage
