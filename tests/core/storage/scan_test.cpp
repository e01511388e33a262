#include "core/storage/scan.h"

#include <random>

#include "store_fixture.h"

namespace storage {
namespace {

class ScanTest : public StoreTest
{
protected:
    ScanTest()
        : database(makeDatabase(
              workspace, path, "T",
              {CreateField("ISNTAG", FieldType::Long), CreateField("LDATE", FieldType::Text, 8),
               CreateField("QUANTITY", FieldType::Single)},
              {CreateIndex("ISNTAG", {"ISNTAG"}), CreateIndex("BOTH", {"LDATE", "ISNTAG"})})),
          rs(database.OpenRecordset("T"))
    {
    }

    // Tags and dates that many records share, and some without.
    void fill(int count)
    {
        std::mt19937 random(7);
        workspace.BeginTrans();
        for (int i = 0; i < count; ++i) {
            const int tag = static_cast<int>(random() % 40);
            const int day = static_cast<int>(random() % 9);
            add(rs, {{"ISNTAG", tag == 0 ? Value() : Value(tag)},
                     {"LDATE", day == 0 ? Value() : Value("day " + QString::number(day))},
                     {"QUANTITY", i}});
        }
        workspace.CommitTrans();
    }
    static QString shown(const Scan& scan)
    {
        return QString("%1 %2 %3").arg(scan.tag(1)).arg(scan.string(2)).arg(scan.number(0));
    }
    static QStringList rest(Scan& scan, bool more)
    {
        QStringList found;
        for (; more; more = scan.next())
            found.append(shown(scan));
        return found;
    }
    QStringList moves(bool more)
    {
        QStringList found;
        for (; more; more = rs.MoveNext())
            found.append(QString("%1 %2 %3")
                             .arg(rs["ISNTAG"].value().toInt())
                             .arg(rs["LDATE"].value().toString())
                             .arg(rs["QUANTITY"].value().toDouble()));
        return found;
    }
    Scan scan() const { return {rs, {"QUANTITY", "ISNTAG", "LDATE"}}; }

    Database database;
    Recordset rs;
};

TEST_F(ScanTest, MeetsTheRecordsThatMovesMeet)
{
    Scan empty = scan();
    EXPECT_FALSE(empty.from());
    EXPECT_FALSE(empty.next());
    fill(3000);
    for (const char* index : {"", "ISNTAG", "BOTH"}) {
        rs.Index(index);
        Scan all = scan();
        EXPECT_EQ(moves(rs.MoveFirst()), rest(all, all.from())) << index;
        EXPECT_FALSE(all.next());
    }
    rs.Index("ISNTAG");
    Scan byTag = scan();
    for (const int tag : {39, 0, 17, 40})
        EXPECT_EQ(moves(rs.Seek(">=", tag)), rest(byTag, byTag.from(tag))) << tag;
    rs.Index("BOTH");
    Scan both = scan();
    EXPECT_EQ(moves(rs.Seek(">=", "DAY 4", 20)), rest(both, both.from("DAY 4", 20)));
    EXPECT_EQ(moves(rs.Seek(">=", "DAY 4")), rest(both, both.from("DAY 4")));
    EXPECT_EQ(3265, errorOf([&] { both.from(1, 2, 3); }));
}

// A block's last record may be gone before the next block is read.
TEST_F(ScanTest, KeepsItsPlaceWhileItsRecordsAreDeleted)
{
    fill(2000);
    rs.Index("BOTH");
    const QStringList all = moves(rs.MoveFirst());
    Scan walk = scan();
    Recordset other = openElsewhere();
    QStringList met;
    for (bool more = walk.from(); more; more = walk.next()) {
        met.append(shown(walk));
        other.Bookmark(walk.bookmark());
        other.Delete();
    }
    EXPECT_EQ(all, met);
    EXPECT_EQ(0, rs.RecordCount());
}

TEST_F(ScanTest, FollowsChangesOfTheDefinitionAndNamesWhatIsGone)
{
    fill(500);
    rs.Index("BOTH");
    const QStringList all = moves(rs.MoveFirst());
    Scan walk = scan();
    ASSERT_TRUE(walk.from());
    QStringList met = {shown(walk)};
    const Database other = elsewhere.OpenDatabase(path);
    other.TableDefs()["T"].Fields().Append(CreateField("FDATE", FieldType::Text, 10));
    EXPECT_EQ(all, met + rest(walk, walk.next()));
    ASSERT_TRUE(walk.from());
    other.TableDefs()["T"].Fields().Delete("QUANTITY");
    EXPECT_EQ(3265, errorOf([&] { rest(walk, walk.next()); }));
    EXPECT_EQ(3265, errorOf([&] { scan(); }));
}

}  // namespace
}  // namespace storage
