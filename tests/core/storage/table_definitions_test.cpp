// Definitions: each operation, and what handles and processes that have the table open see of it.
#include "core/storage/table_definitions.h"

#include <QElapsedTimer>

#include "other_process.h"
#include "store_fixture.h"

namespace storage {
namespace {

class TableDefinitions : public StoreTest
{
protected:
    TableDefinitions() : database(makeTableT()), rs(database.OpenRecordset("T"))
    {
        for (const char* key : {"b", "a", "c"})
            add(rs, {{"K", key}, {"N", 7}, {"M", key}});
        rs.MoveFirst();
    }

    TableDef table() const { return database.TableDefs()["T"]; }
    QStringList fieldNames() const
    {
        QStringList names;
        for (int i = 0; i < table().Fields().Count(); ++i)
            names.append(table().Fields()[i].Name());
        return names;
    }
    void define(const QStringList& change) { runElsewhere(QStringList{"define", path} + change); }

    Database database;
    Recordset rs;
};

TEST_F(TableDefinitions, AHandleThatHasNotFollowedAChangeMisleadsNoOther)
{
    TableDef made = CreateTableDef("Four");
    for (const char* name : {"A", "B", "C", "D"})
        made.Fields().Append(CreateField(name, FieldType::Text, 8));
    database.TableDefs().Append(made);
    Recordset first = database.OpenRecordset("Four");
    first.AddNew();
    for (const char* name : {"A", "B", "C", "D"})
        first.fieldNamed(name) = name;
    first.Update();
    first.MoveFirst();
    made.Fields().Delete("A");
    EXPECT_EQ(Value("C"), first.fieldNamed("C").value());
    const Recordset second = database.OpenRecordset("Four");
    EXPECT_EQ(Value("D"), second.fieldNamed("D").value());
    EXPECT_EQ(Value("B"), second.fieldNamed("B").value());
}

TEST_F(TableDefinitions, TablesAreMadeFoundListedAndDeleted)
{
    TableDef made = CreateTableDef("Second");
    made.Fields().Append(CreateField("A", FieldType::Text, 8));
    made.Fields().Append(CreateField("B", FieldType::Currency));
    EXPECT_EQ(3191, errorOf([&] { made.Fields().Append(CreateField("a", FieldType::Long)); }));
    made.Fields()["A"].AllowZeroLength(false);
    made.Indexes().Append(CreateIndex("AB", {"A", "B"}));
    EXPECT_EQ(3284, errorOf([&] { made.Indexes().Append(CreateIndex("ab", {"A"})); }));
    TableDefs tables = database.TableDefs();
    tables.Append(made);
    EXPECT_EQ(QStringList({"T", "Second"}), tables.Names());
    EXPECT_EQ(2, tables.Count());
    EXPECT_TRUE(tables.contains("SECOND"));
    EXPECT_EQ("Second", tables["second"].Name());
    EXPECT_EQ(3010, errorOf([&] {
                  TableDef again = CreateTableDef("SECOND");
                  tables.Append(again);
              }));
    const FieldDef field = tables["Second"].Fields()["b"];
    EXPECT_EQ("B", field.Name());
    EXPECT_EQ(FieldType::Currency, field.Type());
    EXPECT_EQ(8, field.Size());
    EXPECT_EQ(1, field.OrdinalPosition());
    EXPECT_FALSE(tables["Second"].Fields()[0].AllowZeroLength());
    EXPECT_EQ(QStringList({"A", "B"}), tables["Second"].Indexes()["ab"].fields);
    tables.Delete("SECOND");
    EXPECT_FALSE(tables.contains("Second"));
    EXPECT_EQ(3265, errorOf([&] { tables.Delete("Second"); }));
    EXPECT_EQ(3265, errorOf([&] { tables["Second"]; }));
    EXPECT_EQ(3078, errorOf([&] { database.OpenRecordset("Second"); }));
    EXPECT_EQ(3420, errorOf([&] { Database().TableDefs(); }));
}

TEST_F(TableDefinitions, FieldsAreAppendedDeletedAndOrdered)
{
    table().Fields().Append(CreateField("LATE", FieldType::Boolean));
    EXPECT_EQ(QStringList({"K", "N", "M", "LATE"}), fieldNames());
    EXPECT_EQ(Value(0), rs.fieldNamed("LATE").value()) << "a yes/no field is never null";
    table().Fields()["LATE"].OrdinalPosition(0);
    table().Fields()["K"].OrdinalPosition(9);
    EXPECT_EQ(QStringList({"LATE", "N", "M", "K"}), fieldNames());
    rs.MoveLast();
    EXPECT_EQ(QStringList({"a", "b", "c"}), [&] {
        rs.Index("K");
        return walk(rs, "K");
    }()) << "positions move, data and indexes do not";
    EXPECT_EQ(3191, errorOf([&] { table().Fields().Append(CreateField("k", FieldType::Long)); }));
    EXPECT_EQ(3280, errorOf([&] { table().Fields().Delete("N"); }));
    table().Fields().Delete("late");
    EXPECT_EQ(3265, errorOf([&] { table().Fields().Delete("LATE"); }));
    EXPECT_EQ(3265, errorOf([&] { table().Fields()["LATE"]; }));
    EXPECT_EQ(3265, errorOf([&] { table().Fields()[3]; }));
    table().Fields()["M"].AllowZeroLength(false);
    EXPECT_FALSE(table().Fields()["M"].AllowZeroLength());
    rs.MoveFirst();
    rs.Edit();
    EXPECT_EQ(3315, errorOf([&] { rs.fieldNamed("M") = ""; })) << "an open handle knows it, too";
}

TEST_F(TableDefinitions, IndexesAreAppendedDeletedAndCannotBeBroken)
{
    EXPECT_EQ(3, table().Indexes().Count());
    EXPECT_EQ(3022, errorOf([&] { table().Indexes().Append(CreateIndex("U", {"N"}, true)); }));
    EXPECT_EQ(3, table().Indexes().Count());
    EXPECT_NO_THROW(add(rs, {{"K", "d"}, {"N", 7}})) << "nothing of the refused index is left";
    table().Indexes().Append(CreateIndex("U", {"K"}, true));
    EXPECT_TRUE(table().Indexes()["u"].unique);
    EXPECT_EQ(3022, errorOf([&] { add(rs, {{"K", "A"}}); }));
    EXPECT_EQ(3284, errorOf([&] { table().Indexes().Append(CreateIndex("u", {"N"})); }));
    EXPECT_EQ(3265, errorOf([&] { table().Indexes().Append(CreateIndex("X", {"NONE"})); }));
    EXPECT_EQ(3265, errorOf([&] { table().Indexes().Delete("X"); }));
    EXPECT_EQ(3265, errorOf([&] { table().Indexes()["X"]; }));

    for (int i = 0; i < 8; ++i)
        table().Fields().Append(CreateField(QString("F%1").arg(i), FieldType::Long));
    const QStringList eleven = fieldNames();
    ASSERT_EQ(11, eleven.size());
    EXPECT_EQ(3190, errorOf([&] { table().Indexes().Append(CreateIndex("TOO", eleven)); }));
    table().Indexes().Append(CreateIndex("TEN", eleven.first(10)));
    rs.Index("TEN");
    EXPECT_EQ(4, walk(rs, "K").size());
    EXPECT_EQ(4, walkBackward(rs, "K").size());
}

// The way in which a field gets another size or type, on a table that others look at meanwhile.
TEST_F(TableDefinitions, AFieldChangesItsSizeThroughATemporaryOne)
{
    for (int i = 0; i < 300; ++i)
        add(rs, {{"K", QString("key%1").arg(i, 6)}, {"N", i}});
    Recordset watcher = openOnOtherConnection();
    watcher.MoveFirst();
    const QStringList before = walk(rs, "K");
    const auto copyAll = [&](const char* from, const char* to, int size) {
        Recordset copying = database.OpenRecordset("T");
        for (copying.MoveFirst(); !copying.EOF(); copying.MoveNext())
            change(copying, {{to, text(copying, from).left(size)}});
    };
    while (table().Indexes().Count() > 0)
        table().Indexes().Delete(table().Indexes()[0].name);
    table().Fields().Append(CreateField("TEMPFIELD", FieldType::Text, 4));
    copyAll("K", "TEMPFIELD", 4);
    table().Fields().Delete("K");
    FieldDefinition again = CreateField("K", FieldType::Text, 4);
    table().Fields().Append(again);
    copyAll("TEMPFIELD", "K", 4);
    table().Fields().Delete("TEMPFIELD");
    table().Fields()["K"].OrdinalPosition(0);
    table().Indexes().Append(CreateIndex("K", {"K"}));

    EXPECT_EQ(4, table().Fields()["K"].Size());
    QStringList after;
    for (const QString& key : before)
        after.append(key.left(4));
    EXPECT_EQ(after, walk(rs, "K"));
    watcher.MoveNext();
    EXPECT_EQ("a", text(watcher, "K"));
    EXPECT_EQ("a", text(watcher, "M"));
    EXPECT_EQ(3163, errorOf([&] { add(watcher, {{"K", "12345"}}); }));
    EXPECT_EQ(QStringList(), database.engine().checkIntegrity());
}

TEST_F(TableDefinitions, AnOpenHandleReadsTheRightFieldsWhateverIsDeletedBeforeThem)
{
    Recordset other = openOnOtherConnection();
    EXPECT_EQ("b", text(rs, "K"));
    other.Close();
    elsewhere.OpenDatabase(path).TableDefs()["T"].Fields().Append(
        CreateField("Z", FieldType::Long));
    change(rs, {{"Z", 99}});
    for (const char* index : {"K", "N", "KN"})
        table().Indexes().Delete(index);
    table().Fields().Delete("N");
    const Field z = rs.fieldNamed("Z");
    EXPECT_EQ(Value(99), z.value());
    EXPECT_EQ("Z", z.Name());
    table().Indexes().Append(CreateIndex("Z", {"Z"}));
    rs.Index("Z");
    EXPECT_EQ("b", text(rs, "M"));
    EXPECT_EQ("b", text(rs, "K"));
    EXPECT_EQ(3265, errorOf([&] { rs.fieldNamed("N"); }));
    EXPECT_EQ(3, walk(rs, "K").size());
}

TEST_F(TableDefinitions, AnEditThatIsUnderWayGoesOnWithTheNewDefinition)
{
    rs.Edit();
    rs.fieldNamed("K") = "kk";
    rs.fieldNamed("M") = "mm";
    define({"delete-index", "N"});
    define({"delete-index", "KN"});
    define({"delete-field", "N"});
    define({"append-field", "NEW"});
    rs.fieldNamed("NEW") = 5;
    rs.Update();
    EXPECT_EQ("kk", text(rs, "K"));
    EXPECT_EQ("mm", text(rs, "M"));
    rs.AddNew();
    rs.fieldNamed("M") = "added";
    define({"delete-index", "K"});
    define({"delete-field", "K"});
    rs.Update();
    rs.Bookmark(rs.LastModified());
    EXPECT_EQ("added", text(rs, "M"));
    EXPECT_EQ("5", [&] {
        rs.MoveFirst();
        return text(rs, "NEW");
    }());
}

TEST_F(TableDefinitions, AnIndexThatGoesAwayUnderAWalkIsAClearError)
{
    rs.Index("K");
    rs.MoveFirst();
    define({"delete-index", "K"});
    EXPECT_EQ(3015, errorOf([&] { rs.MoveNext(); }));
    EXPECT_EQ("a", text(rs, "K")) << "the record stays";
    EXPECT_EQ("", rs.Index());
    EXPECT_FALSE(rs.MovePrevious() && rs.MovePrevious()) << "goes on in physical order";
    EXPECT_EQ(3015, errorOf([&] { rs.Index("K"); }));
    rs.Index("KN");
    rs.Seek("=", "a", 7);
    define({"delete-index", "KN"});
    define({"append-index", "KN", "N"});
    EXPECT_TRUE(rs.MoveNext()) << "the index of that name has other keys now";
    EXPECT_EQ("c", text(rs, "K"));
    define({"delete-index", "KN"});
    define({"append-index", "KN", "K", "N", "M"});
    EXPECT_FALSE(rs.MoveNext());
    EXPECT_EQ(3265, errorOf([&] { rs.Seek("=", "a", 7, "a", "too many"); }));
}

TEST_F(TableDefinitions, ADroppedTableIsAClearErrorForEveryOperation)
{
    rs.Index("K");
    rs.MoveFirst();
    define({"delete-table", "T"});
    EXPECT_EQ(3078, errorOf([&] { rs.MoveNext(); }));
    EXPECT_EQ(3078, errorOf([&] { rs.MoveFirst(); }));
    EXPECT_EQ(3078, errorOf([&] { rs.RecordCount(); }));
    EXPECT_EQ(3078, errorOf([&] { rs.Seek("=", "a"); }));
    EXPECT_EQ(3078, errorOf([&] { rs.Index("N"); }));
    EXPECT_EQ(3078, errorOf([&] { rs.Edit(); }));
    EXPECT_EQ(3078, errorOf([&] { rs.Delete(); }));
    EXPECT_EQ(3078, errorOf([&] { add(rs, {{"K", "x"}}); }));
    EXPECT_EQ(0, database.TableDefs().Count());
}

TEST_F(TableDefinitions, NewFieldsAndIndexesOfAnotherProcessAreSeen)
{
    define({"append-field", "NEW"});
    define({"append-index", "NEW", "NEW"});
    EXPECT_TRUE(rs.fieldNamed("NEW").value().isNull());
    add(rs, {{"NEW", 3}});
    rs.Index("NEW");
    EXPECT_TRUE(rs.Seek("=", 3));
    EXPECT_EQ(4, table().Fields().Count());
    define({"append-field", "NEWER"});
    workspace.BeginTrans();
    change(rs, {{"NEWER", 4}});
    workspace.CommitTrans();
    EXPECT_EQ("4", text(rs, "NEWER"));
}

TEST_F(TableDefinitions, AFieldThatCameBackWithAnotherTypeShowsNothingOfTheOld)
{
    EXPECT_EQ("b", text(rs, "M"));
    table().Fields().Delete("M");
    table().Fields().Append(CreateField("M", FieldType::Long));
    EXPECT_EQ(3, rs.RecordCount());
    EXPECT_TRUE(rs.fieldNamed("M").value().isNull());
    EXPECT_EQ(FieldType::Long, rs.fieldNamed("M").Type());
}

TEST_F(TableDefinitions, ReadersOfDefinitionsNeverSeeHalfAChange)
{
    OtherProcess other({"redefine", path});
    other.hear();
    int withPassing = 0;
    QElapsedTimer passed;
    passed.start();
    while (passed.elapsed() < 1000) {
        const TableDefs tables = database.TableDefs();
        const QStringList names = tables.Names();
        EXPECT_EQ("T", names.value(0));
        withPassing += names.size() == 2 ? 1 : 0;
        const auto passing = database.engine().table("PASSING");
        if (passing) {
            EXPECT_EQ(3U, passing->fields.size());
            EXPECT_EQ(3U, passing->indexes.size());
        }
        if (HasFailure())
            break;
    }
    other.finish();
    EXPECT_GT(withPassing, 0) << "the other process was not met at its work";
}

TEST_F(TableDefinitions, ChangesInATransactionThatIsRolledBackLeaveNothing)
{
    workspace.BeginTrans();
    table().Fields().Append(CreateField("NEW", FieldType::Long));
    table().Indexes().Append(CreateIndex("NEW", {"NEW"}));
    change(rs, {{"NEW", 1}});
    workspace.Rollback();
    EXPECT_EQ(3265, errorOf([&] { rs.fieldNamed("NEW").value(); }));
    EXPECT_EQ(QStringList({"K", "N", "M"}), fieldNames());
    EXPECT_EQ(3015, errorOf([&] { rs.Index("NEW"); }));
    EXPECT_EQ(3, walk(rs, "K").size());
}

}  // namespace
}  // namespace storage
