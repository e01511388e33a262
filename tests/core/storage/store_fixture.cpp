#include "store_fixture.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include "core/storage/engine_pool.h"
#include "core/storage/sqlite_connection.h"

namespace storage {

void PrintTo(const Value& value, std::ostream* out)
{
    *out << (value.isNull() ? "null" : '"' + value.toString().toStdString() + '"');
}

QString add(Recordset& rs, Assignments values)
{
    rs.AddNew();
    for (const auto& [field, value] : values)
        rs.fieldNamed(field) = value;
    rs.Update();
    return rs.LastModified();
}

void change(Recordset& rs, Assignments values)
{
    rs.Edit();
    for (const auto& [field, value] : values)
        rs.fieldNamed(field) = value;
    rs.Update();
}

QString text(const Recordset& rs, const char* field)
{
    return rs.fieldNamed(field).value().toString();
}

QStringList walk(Recordset& rs, const char* field)
{
    QStringList texts;
    if (rs.RecordCount() == 0)
        return texts;
    for (rs.MoveFirst(); !rs.EOF(); rs.MoveNext())
        texts.append(text(rs, field));
    return texts;
}

QStringList walkBackward(Recordset& rs, const char* field)
{
    QStringList texts;
    if (rs.RecordCount() == 0)
        return texts;
    for (rs.MoveLast(); !rs.BOF(); rs.MovePrevious())
        texts.append(text(rs, field));
    return texts;
}

Database makeDatabase(const Workspace& workspace, const QString& path, const QString& table,
                      const std::vector<FieldDefinition>& fields,
                      const std::vector<IndexDefinition>& indexes)
{
    Database database = workspace.CreateDatabase(path);
    TableDef definition = CreateTableDef(table);
    for (const FieldDefinition& field : fields)
        definition.Fields().Append(field);
    for (const IndexDefinition& index : indexes)
        definition.Indexes().Append(index);
    database.TableDefs().Append(definition);
    return database;
}

StoreTest::StoreTest()
    : m_folder(QFileInfo("/dev/shm").isWritable() ? "/dev/shm/store-XXXXXX" : QString())
{
    // Other users of the machine come along in the tests.
    QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755));
    setLockWaitLimit(10'000);
}

StoreTest::~StoreTest()
{
    workspace.Close();
    elsewhere.Close();
    closeIdleEngines();
}

Database StoreTest::makeTableT()
{
    return makeDatabase(
        workspace, path, "T",
        {CreateField("K", FieldType::Text, 10), CreateField("N", FieldType::Integer),
         CreateField("M", FieldType::Memo)},
        {CreateIndex("K", {"K"}), CreateIndex("N", {"N"}), CreateIndex("KN", {"K", "N"})});
}

Recordset StoreTest::openElsewhere()
{
    return elsewhere.OpenDatabase(path).OpenRecordset("T");
}

Recordset StoreTest::openOnOtherConnection()
{
    const QString other = pathOf("other");
    QFile::link(m_folder.path(), other);
    return elsewhere.OpenDatabase(other + "/STORE.mdb").OpenRecordset("T");
}

void beIdle(int milliseconds)
{
    QElapsedTimer passed;
    passed.start();
    while (passed.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 1);
}

}  // namespace storage
