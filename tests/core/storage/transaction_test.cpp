// Transactions: tags drawn by several processes, rollback, and who is locked out meanwhile.
#include <QDir>
#include <algorithm>

#include "core/storage/sqlite_connection.h"
#include "other_process.h"
#include "store_fixture.h"

namespace storage {
namespace {

class Transactions : public StoreTest
{
protected:
    Transactions() : database(makeTableT()), rs(database.OpenRecordset("T"))
    {
        add(rs, {{"K", "a"}, {"N", 1}});
        rs.Index("K");
        rs.MoveFirst();
    }

    Database database;
    Recordset rs;
};

TEST_F(Transactions, FourProcessesDrawDistinctTagsWithoutAGap)
{
    constexpr int processes = 4;
    constexpr int draws = 120;
    const QString tagPath = pathOf("TAGS.mdb");
    makeDatabase(workspace, tagPath, "TAGS", {CreateField("TAG", FieldType::Long)});
    std::vector<std::unique_ptr<OtherProcess>> drawers;
    for (int i = 0; i < processes; ++i)
        drawers.push_back(std::make_unique<OtherProcess>(
            QStringList{"draw-tags", tagPath, QString::number(draws)}));
    std::vector<int> tags;
    for (const auto& drawer : drawers)
        for (const QString& tag : drawer->finish())
            tags.push_back(tag.toInt());
    std::sort(tags.begin(), tags.end());
    ASSERT_EQ(size_t(processes * draws), tags.size());
    for (size_t i = 0; i < tags.size(); ++i)
        ASSERT_EQ(int(i) + 1, tags[i]);
}

TEST_F(Transactions, RollbackLeavesNothingAndShowsNothingOfIt)
{
    const QString bookmark = rs.Bookmark();
    workspace.BeginTrans();
    change(rs, {{"N", 2}, {"K", "changed"}});
    add(rs, {{"K", "b"}});
    EXPECT_EQ("2", text(rs, "N"));
    EXPECT_EQ(QStringList({"b", "changed"}), walk(rs, "K"));
    rs.Bookmark(bookmark);
    workspace.Rollback();
    EXPECT_EQ("1", text(rs, "N"));
    EXPECT_EQ("a", text(rs, "K"));
    EXPECT_EQ(1, rs.RecordCount());
    EXPECT_EQ(QStringList({"a"}), walk(rs, "K"));
    EXPECT_EQ(QStringList({"a"}), walkBackward(rs, "K"));
    EXPECT_EQ(3034, errorOf([&] { workspace.Rollback(); }));
    EXPECT_EQ(3034, errorOf([&] { workspace.CommitTrans(); }));

    workspace.BeginTrans();
    rs.Bookmark(add(rs, {{"K", "gone"}}));
    workspace.Rollback();
    EXPECT_EQ(3167, errorOf([&] { text(rs, "K"); }));
    rs.MoveFirst();
    rs.Delete();
    workspace.BeginTrans();
    workspace.CommitTrans();
    EXPECT_EQ(0, openOnOtherConnection().RecordCount());
}

TEST_F(Transactions, ACommitIsSeenElsewhereAsAWhole)
{
    Recordset other = openOnOtherConnection();
    workspace.BeginTrans();
    change(rs, {{"N", 2}});
    add(rs, {{"K", "b"}});
    EXPECT_EQ(QStringList({"1"}), walk(other, "N"));
    workspace.CommitTrans();
    EXPECT_EQ(QStringList({"2", ""}), walk(other, "N"));
}

TEST_F(Transactions, AWorkspaceThatIsLetGoRollsBack)
{
    {
        const Workspace passing("wksMAIN");
        Recordset own = passing.OpenDatabase(path).OpenRecordset("T");
        Workspace(passing).BeginTrans();
        change(own, {{"N", 2}});
    }
    EXPECT_EQ(QStringList({"1"}), walk(rs, "N"));
    rs.MoveFirst();
    workspace.BeginTrans();
    change(rs, {{"N", 3}});
    database.Close();
    EXPECT_NO_THROW(workspace.CommitTrans());
    Recordset other = openElsewhere();
    EXPECT_EQ(QStringList({"1"}), walk(other, "N"));
    EXPECT_NO_THROW(add(other, {{"K", "free again"}}));
}

TEST_F(Transactions, ATransactionOutlivesTheSecondHandleOnItsFile)
{
    Database second = workspace.OpenDatabase(path);
    workspace.BeginTrans();
    change(rs, {{"N", 2}});
    second.OpenRecordset("T").MoveFirst();
    second.Close();
    workspace.CommitTrans();
    Recordset other = openOnOtherConnection();
    EXPECT_EQ("2", text(other, "N"));
}

TEST_F(Transactions, OthersAreLockedOutMeanwhile)
{
    setLockWaitLimit(50);
    Recordset sameConnection = openElsewhere();
    Recordset otherConnection = openOnOtherConnection();
    workspace.BeginTrans();
    change(rs, {{"N", 2}});
    for (Recordset* other : {&sameConnection, &otherConnection}) {
        EXPECT_EQ(3260, errorOf([&] { add(*other, {{"K", "x"}}); }));
        EXPECT_EQ(3260, errorOf([&] {
                      other->MoveFirst();
                      other->Edit();
                      other->fieldNamed("N") = 3;
                      other->Update();
                  }));
        EXPECT_EQ(3260, errorOf([&] {
                      other->MoveFirst();
                      other->Delete();
                  }));
        other->CancelUpdate();
    }
    elsewhere.BeginTrans();
    EXPECT_EQ(3260, errorOf([&] { sameConnection.MoveFirst(); }));
    EXPECT_EQ(3260, errorOf([&] { otherConnection.MoveFirst(); }));
    elsewhere.Rollback();
    workspace.CommitTrans();
    EXPECT_NO_THROW(add(sameConnection, {{"K", "x"}}));
    EXPECT_NO_THROW(add(otherConnection, {{"K", "x"}}));
    EXPECT_EQ(3, rs.RecordCount());
}

TEST_F(Transactions, AReaderThatNeverEndsMakesTheCommitFailAsAWhole)
{
    setLockWaitLimit(100);
    OtherProcess reader({"hold", path, "IMMEDIATE; ROLLBACK; BEGIN; SELECT * FROM T"});
    ASSERT_EQ("held", reader.hear());
    workspace.BeginTrans();
    change(rs, {{"N", 2}});
    EXPECT_EQ(3260, errorOf([&] { workspace.CommitTrans(); }));
    EXPECT_EQ("1", text(rs, "N"));
    EXPECT_EQ(3260, errorOf([&] { change(rs, {{"N", 3}}); }));
    reader.say("go");
    reader.finish();
    change(rs, {{"N", 4}});
    EXPECT_EQ(QStringList({"4"}), walk(rs, "N"));
}

}  // namespace
}  // namespace storage
