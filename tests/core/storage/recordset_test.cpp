// The laws of a table handle, each by itself.
#include "core/storage/recordset.h"

#include "store_fixture.h"

namespace storage {
namespace {

class RecordsetTest : public StoreTest
{
protected:
    RecordsetTest() : database(makeTableT()), rs(database.OpenRecordset("T")) {}

    // Records with K a, b, c ...; their bookmarks.
    QStringList fill(const QStringList& keys)
    {
        QStringList bookmarks;
        for (const QString& key : keys)
            bookmarks.append(add(rs, {{"K", key}, {"N", bookmarks.size()}}));
        rs.MoveFirst();
        return bookmarks;
    }

    Database database;
    Recordset rs;
};

TEST_F(RecordsetTest, AnEmptyTableIsAtBothEndsAndHasNoRecord)
{
    EXPECT_TRUE(rs.BOF());
    EXPECT_TRUE(rs.EOF());
    EXPECT_EQ(0, rs.RecordCount());
    EXPECT_EQ(3021, errorOf([&] { rs.MoveFirst(); }));
    EXPECT_EQ(3021, errorOf([&] { rs.MoveLast(); }));
    EXPECT_EQ(3021, errorOf([&] { rs.MoveNext(); }));
    EXPECT_EQ(3021, errorOf([&] { rs.MovePrevious(); }));
    EXPECT_EQ(3021, errorOf([&] { rs.Bookmark(); }));
    EXPECT_EQ(3021, errorOf([&] { rs.fieldNamed("K").value(); }));
    EXPECT_EQ(3021, errorOf([&] { rs.Edit(); }));
    EXPECT_EQ(3021, errorOf([&] { rs.Delete(); }));
    rs.Index("K");
    EXPECT_FALSE(rs.Seek(">=", ""));
    EXPECT_TRUE(rs.NoMatch());
}

TEST_F(RecordsetTest, OpensOnTheFirstRecordInPhysicalOrder)
{
    fill({"c", "a", "b"});
    Recordset fresh = openElsewhere();
    EXPECT_FALSE(fresh.BOF());
    EXPECT_FALSE(fresh.EOF());
    EXPECT_EQ("c", text(fresh, "K"));
    EXPECT_EQ("", fresh.Index());
    EXPECT_EQ(QStringList({"c", "a", "b"}), walk(fresh, "K"));
    fresh.Index("k");
    EXPECT_EQ("K", fresh.Index());
    EXPECT_EQ(QStringList({"a", "b", "c"}), walk(fresh, "K"));
    EXPECT_EQ(QStringList({"c", "b", "a"}), walkBackward(fresh, "K"));
    EXPECT_EQ(3015, errorOf([&] { fresh.Index("NONE"); }));
}

TEST_F(RecordsetTest, PastAnEndThereIsNoRecordAndTheOtherWayLeadsBack)
{
    fill({"a", "b"});
    rs.Index("K");
    rs.MoveLast();
    EXPECT_FALSE(rs.MoveNext());
    EXPECT_TRUE(rs.EOF());
    EXPECT_FALSE(rs.BOF());
    EXPECT_EQ(3021, errorOf([&] { rs.MoveNext(); }));
    EXPECT_EQ(3021, errorOf([&] { rs.fieldNamed("K").value(); }));
    EXPECT_TRUE(rs.MovePrevious());
    EXPECT_EQ("b", text(rs, "K"));
    rs.MovePrevious();
    EXPECT_FALSE(rs.MovePrevious());
    EXPECT_TRUE(rs.BOF());
    EXPECT_EQ(3021, errorOf([&] { rs.MovePrevious(); }));
    EXPECT_TRUE(rs.MoveNext());
    EXPECT_EQ("a", text(rs, "K"));
}

TEST_F(RecordsetTest, AFailedSeekLeavesNoRecord)
{
    fill({"a", "b"});
    EXPECT_EQ(3019, errorOf([&] { rs.Seek("=", "a"); })) << "no index chosen";
    rs.Index("K");
    EXPECT_FALSE(rs.Seek("=", "x"));
    EXPECT_TRUE(rs.NoMatch());
    EXPECT_FALSE(rs.EOF());
    EXPECT_EQ(3021, errorOf([&] { rs.fieldNamed("K").value(); }));
    EXPECT_EQ(3021, errorOf([&] { rs.MoveNext(); }));
    EXPECT_EQ(3021, errorOf([&] { rs.Bookmark(); }));
    EXPECT_FALSE(rs.Seek(">=", "c")) << "past the last key";
    EXPECT_TRUE(rs.Seek(">=", "aa"));
    EXPECT_FALSE(rs.NoMatch());
    EXPECT_EQ("b", text(rs, "K"));
}

TEST_F(RecordsetTest, TextKeysAreCaseBlindAndIgnoreNoCharacter)
{
    fill({"ab ", "ab", "AB-", "a b", "Äb", "äB "});
    rs.Index("K");
    EXPECT_EQ(QStringList({"a b", "ab", "ab ", "AB-", "Äb", "äB "}), walk(rs, "K"));
    EXPECT_TRUE(rs.Seek("=", "AB"));
    EXPECT_EQ("ab", text(rs, "K"));
    EXPECT_TRUE(rs.Seek("=", "ÄB"));
    EXPECT_FALSE(rs.Seek("=", "a"));
    EXPECT_TRUE(rs.Seek(">=", "AB!")) << "the sign stands between the blank and the dash";
    EXPECT_EQ("AB-", text(rs, "K"));
    rs.Index("KN");
    EXPECT_TRUE(rs.Seek("=", "AB "));
    EXPECT_EQ("ab ", text(rs, "K")) << "a short key lands on the first record of its prefix";
}

TEST_F(RecordsetTest, ABookmarkIsATextThatOutlivesIndexesHandlesAndProcessors)
{
    const QStringList bookmarks = fill({"b", "a", "c"});
    rs.Index("K");
    ASSERT_TRUE(rs.Seek("=", "a"));
    const QString bookmark = QString::fromUtf8(rs.Bookmark().toUtf8());
    EXPECT_EQ(bookmarks[1], bookmark);
    rs.Index("N");
    EXPECT_EQ(bookmark, rs.Bookmark()) << "the record stays when the index changes";
    rs.MoveLast();
    rs.Bookmark(bookmark);
    EXPECT_EQ("a", text(rs, "K"));
    rs.MoveNext();
    EXPECT_EQ("c", text(rs, "K")) << "goes on along the present index";

    Recordset other = openOnOtherConnection();
    other.Bookmark(bookmark);
    EXPECT_EQ("a", text(other, "K"));
    EXPECT_EQ(bookmark, other.Bookmark());
    for (const char* garbage : {"", " ", "x", "0", "-1", "1.5", "99999999999999999999"})
        EXPECT_EQ(3159, errorOf([&] { rs.Bookmark(garbage); })) << garbage;
    EXPECT_EQ(3167, errorOf([&] { rs.Bookmark("4711"); }));
    EXPECT_EQ("c", text(rs, "K")) << "a refused bookmark leaves the handle where it was";
}

TEST_F(RecordsetTest, ABookmarkNeverMeansAnotherRecord)
{
    const QStringList bookmarks = fill({"a", "b"});
    rs.MoveLast();
    rs.Delete();
    EXPECT_NE(bookmarks[1], add(rs, {{"K", "new"}}));
    EXPECT_EQ(3167, errorOf([&] { rs.Bookmark(bookmarks[1]); }));
    EXPECT_EQ(3021, errorOf([&] { openElsewhere().LastModified(); }));
}

TEST_F(RecordsetTest, AfterAnAdditionTheFormerRecordIsCurrentAgain)
{
    fill({"a", "b"});
    rs.Index("K");
    rs.MoveLast();
    const QString added = add(rs, {{"K", "aa"}});
    EXPECT_EQ("b", text(rs, "K"));
    EXPECT_EQ(added, rs.LastModified());
    rs.MovePrevious();
    EXPECT_EQ("aa", text(rs, "K"));
    EXPECT_EQ(3, rs.RecordCount());

    rs.AddNew();
    EXPECT_TRUE(rs.fieldNamed("K").value().isNull());
    rs.fieldNamed("K") = "buffer";
    EXPECT_EQ("buffer", text(rs, "K"));
    rs.CancelUpdate();
    EXPECT_EQ("aa", text(rs, "K"));
    EXPECT_EQ(3020, errorOf([&] { rs.Update(); }));
    EXPECT_EQ(3020, errorOf([&] { rs.fieldNamed("K") = "x"; }));
    rs.Edit();
    rs.fieldNamed("K") = "left";
    rs.MoveFirst();
    EXPECT_EQ(3020, errorOf([&] { rs.Update(); })) << "the move has abandoned the edit";
    EXPECT_EQ(QStringList({"a", "aa", "b"}), walk(rs, "K"));
}

TEST_F(RecordsetTest, AFailedUpdateKeepsTheBufferForMending)
{
    database.TableDefs()["T"].Indexes().Append(CreateIndex("UNIQUE", {"K"}, true));
    fill({"a", "b"});
    rs.Edit();
    rs.fieldNamed("K") = "B";
    rs.fieldNamed("N") = 77;
    EXPECT_EQ(3022, errorOf([&] { rs.Update(); }));
    EXPECT_EQ("B", text(rs, "K"));
    Recordset other = openElsewhere();
    EXPECT_EQ("0", text(other, "N")) << "nothing of it was written";
    rs.fieldNamed("K") = "A";
    rs.Update();
    EXPECT_EQ("77", text(rs, "N"));
    rs.AddNew();
    rs.fieldNamed("K") = "a";
    EXPECT_EQ(3022, errorOf([&] { rs.Update(); }));
    rs.fieldNamed("K") = Value();
    rs.Update();
    EXPECT_NO_THROW(add(rs, {{"N", 1}})) << "nulls are no duplicates";
}

TEST_F(RecordsetTest, AfterADeletionTheNextMoveGoesToTheNeighbour)
{
    fill({"a", "b", "c", "d"});
    rs.Index("K");
    rs.Seek("=", "b");
    rs.Delete();
    EXPECT_EQ(3167, errorOf([&] { rs.fieldNamed("K").value(); }));
    EXPECT_EQ(3167, errorOf([&] { rs.Bookmark(); }));
    EXPECT_FALSE(rs.EOF() || rs.BOF());
    EXPECT_EQ(3, rs.RecordCount());
    rs.MoveNext();
    EXPECT_EQ("c", text(rs, "K"));
    rs.Delete();
    rs.MovePrevious();
    EXPECT_EQ("a", text(rs, "K"));
    rs.Delete();
    EXPECT_FALSE(rs.MovePrevious());
    EXPECT_TRUE(rs.BOF());
    rs.MoveNext();
    rs.Delete();
    EXPECT_FALSE(rs.MoveNext());
    EXPECT_TRUE(rs.EOF());
    EXPECT_EQ(0, rs.RecordCount());
}

TEST_F(RecordsetTest, SeesAtItsNextMoveWhatOthersDid)
{
    fill({"a", "b", "c", "d"});
    Recordset other = openOnOtherConnection();
    other.Index("K");
    rs.Index("K");
    rs.Seek("=", "b");
    text(rs, "N");
    other.Seek("=", "b");
    other.Delete();
    add(other, {{"K", "bb"}});
    EXPECT_EQ("b", text(rs, "K")) << "as it was at the last move";
    EXPECT_EQ(3167, errorOf([&] { rs.Edit(); }));
    EXPECT_EQ(3167, errorOf([&] { rs.Delete(); }));
    EXPECT_EQ(4, rs.RecordCount());
    rs.MoveNext();
    EXPECT_EQ("bb", text(rs, "K"));
    other.Seek("=", "bb");
    change(other, {{"N", 42}});
    rs.Edit();
    EXPECT_EQ("42", text(rs, "N")) << "Edit reads the record anew";
    change(other, {{"M", "theirs"}});
    rs.fieldNamed("N") = 43;
    rs.Update();
    EXPECT_EQ("theirs", text(rs, "M")) << "Update writes the changed fields alone";
}

TEST_F(RecordsetTest, GoesBackOverARecordThatTookTheKeyOfADeletedOne)
{
    database.TableDefs()["T"].Indexes().Append(CreateIndex("UNIQUE", {"K"}, true));
    fill({"b", "a", "c"});
    rs.Index("UNIQUE");
    rs.Seek("=", "c");
    Recordset other = openElsewhere();
    other.Index("UNIQUE");
    other.Seek("=", "c");
    other.Delete();
    other.Seek("=", "b");
    change(other, {{"K", "c"}});
    rs.MovePrevious();
    EXPECT_EQ("c", text(rs, "K"));
    rs.MovePrevious();
    EXPECT_EQ("a", text(rs, "K"));
}

TEST_F(RecordsetTest, FieldsAreFoundByNamePositionAndCaseBlind)
{
    fill({"a"});
    EXPECT_EQ("K", rs.fieldNamed("k").Name());
    EXPECT_EQ(FieldType::Text, rs.Fields(0).Type());
    EXPECT_EQ(10, rs.Fields(0).Size());
    EXPECT_EQ(3265, errorOf([&] { rs.Fields(3); }));
    EXPECT_EQ(3265, errorOf([&] { rs.Fields(-1); }));
    EXPECT_EQ(3265, errorOf([&] { rs.fieldNamed("NONE"); }));
    EXPECT_EQ(3265, errorOf([&] { rs["PATHNAME"]; })) << "a name of the schema, not of this table";
}

TEST_F(RecordsetTest, ClosedObjectsSaySo)
{
    fill({"a"});
    Database copy = database;
    const TableDefs definitions = database.TableDefs();
    const TableDef definition = definitions["T"];
    const FieldDef field = definition.Fields()["K"];
    rs.Close();
    rs.Close();
    EXPECT_FALSE(rs.isOpen());
    const auto refusesAll = [](Recordset& closed) {
        int refused = 0;
        refused += errorOf([&] { closed.MoveFirst(); }) == 3420;
        refused += errorOf([&] { closed.MoveNext(); }) == 3420;
        refused += errorOf([&] { closed.Seek("=", "a"); }) == 3420;
        refused += errorOf([&] { closed.fieldNamed("K").value(); }) == 3420;
        refused += errorOf([&] { closed.AddNew(); }) == 3420;
        refused += errorOf([&] { closed.Update(); }) == 3420;
        refused += errorOf([&] { closed.Edit(); }) == 3420;
        refused += errorOf([&] { closed.Delete(); }) == 3420;
        refused += errorOf([&] { closed.CancelUpdate(); }) == 3420;
        refused += errorOf([&] { closed.Bookmark(); }) == 3420;
        refused += errorOf([&] { closed.Bookmark("1"); }) == 3420;
        refused += errorOf([&] { closed.LastModified(); }) == 3420;
        refused += errorOf([&] { closed.Index("K"); }) == 3420;
        refused += errorOf([&] { closed.Index(); }) == 3420;
        refused += errorOf([&] { closed.Name(); }) == 3420;
        refused += errorOf([&] { closed.NoMatch(); }) == 3420;
        refused += errorOf([&] { closed.RecordCount(); }) == 3420;
        return refused + (errorOf([&] { closed.EOF(); }) == 3420);
    };
    EXPECT_EQ(18, refusesAll(rs));
    Recordset never;
    EXPECT_EQ(18, refusesAll(never));
    Recordset second = copy.OpenRecordset("T");
    database.Close();
    database.Close();
    EXPECT_EQ(18, refusesAll(second)) << "closing a database closes what was opened from it";
    EXPECT_EQ(3420, errorOf([&] { copy.OpenRecordset("T"); }));
    EXPECT_EQ(3420, errorOf([&] { definitions.Names(); }));
    EXPECT_EQ(3420, errorOf([&] { definition.Fields().Count(); }));
    EXPECT_EQ(3420, errorOf([&] { field.Size(); }));
    TableDef late = CreateTableDef("LATE");
    late.Fields().Append(CreateField("F", FieldType::Long));
    EXPECT_EQ(3420, errorOf([&] { TableDefs(definitions).Append(late); }));
    EXPECT_EQ(3420, errorOf([&] { TableDefs(definitions).Delete("T"); }));
}

TEST_F(RecordsetTest, AWorkspaceClosesWhatIsInsideAndNothingElse)
{
    fill({"a", "b"});
    Recordset other = openElsewhere();
    other.MoveLast();
    workspace.Close();
    workspace.Close();
    EXPECT_FALSE(rs.isOpen());
    EXPECT_FALSE(database.isOpen());
    EXPECT_EQ(3420, errorOf([&] { workspace.OpenDatabase(path); }));
    EXPECT_EQ("b", text(other, "K"));
    change(other, {{"K", "bb"}});
    EXPECT_EQ(2, other.RecordCount());
    {
        const Workspace passing("wksPASSING");
        rs = passing.OpenDatabase(path).OpenRecordset("T");
        EXPECT_EQ("a", text(rs, "K"));
    }
    EXPECT_FALSE(rs.isOpen()) << "its last holder let the workspace go";
}

TEST_F(RecordsetTest, LongWalksBothWaysOverNullsAndDuplicatesMeetEachRecordOnce)
{
    workspace.BeginTrans();
    for (int i = 0; i < 1000; ++i)
        add(rs, {{"K", i % 7 == 0 ? Value() : Value(QString(QChar('a' + i % 5)))},
                 {"N", i % 3 == 0 ? Value() : Value(i % 11)},
                 {"M", QString::number(i).leftJustified(i % 50 == 0 ? 70'000 : 5)}});
    workspace.CommitTrans();
    for (const char* index : {"", "K", "N", "KN"}) {
        rs.Index(index);
        QStringList forward = walk(rs, "M");
        QStringList backward = walkBackward(rs, "M");
        std::reverse(backward.begin(), backward.end());
        EXPECT_EQ(forward, backward);
        forward.removeDuplicates();
        EXPECT_EQ(1000, forward.size());
    }
}

}  // namespace
}  // namespace storage
