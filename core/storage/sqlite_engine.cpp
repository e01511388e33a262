#include "core/storage/sqlite_engine.h"

#include <sqlite3.h>
#include <sys/vfs.h>

#include <QFile>

#include "core/storage/sqlite_fetch.h"

namespace storage {
namespace {

constexpr int leaseFromRows = 16;  // blocks of this size are a walk

// File system numbers of the kernel: NFS, SMB, CIFS, SMB2, FUSE (sshfs and the like), 9P.
bool liesOnShare(const QString& path)
{
    struct statfs information
    {
    };
    if (::statfs(QFile::encodeName(path).constData(), &information) != 0)
        return false;
    switch (static_cast<unsigned long>(information.f_type) & 0xFFFFFFFFUL) {
        case 0x6969UL:
        case 0x517BUL:
        case 0xFF534D42UL:
        case 0xFE534D42UL:
        case 0x65735546UL:
        case 0x01021997UL:
            return true;
        default:
            return false;
    }
}

QByteArray columnList(const TableDefinition& table, std::span<const Engine::Assignment> values,
                      const char* separator)
{
    QByteArray sql;
    for (const Engine::Assignment& value : values)
        sql += quotedName(table.fields[static_cast<size_t>(value.field)].name) + separator;
    sql.chop(1);
    return sql;
}

QByteArray insertSql(const TableDefinition& table, std::span<const Engine::Assignment> values)
{
    const QByteArray start = "INSERT INTO " + quotedName(table.name);
    if (values.empty())
        return start + " DEFAULT VALUES";
    QByteArray marks = QByteArray("?,").repeated(static_cast<qsizetype>(values.size()));
    marks.chop(1);
    return start + '(' + columnList(table, values, ",") + ") VALUES(" + marks + ')';
}

}  // namespace

// A read transaction around the statements of one block, where none is open.
class SqliteEngine::ReadScope
{
public:
    ReadScope(SqliteEngine& engine, bool needed)
        : m_engine(engine), m_open(needed && !engine.m_connection.inTransaction())
    {
        if (m_open)
            runOnce("BEGIN");
    }
    ~ReadScope()
    {
        if (m_open)
            m_engine.m_connection.executeQuietly("COMMIT");
    }
    ReadScope(const ReadScope&) = delete;
    ReadScope& operator=(const ReadScope&) = delete;

private:
    void runOnce(const char* sql)
    {
        SqliteStatement& statement = m_engine.statement(sql);
        const SqliteStatement::Run run(statement);
        statement.step();
    }

    SqliteEngine& m_engine;
    bool m_open;
};

SqliteEngine::SqliteEngine(const QString& path, SqliteConnection::Mode mode)
    : m_connection(path, mode),
      m_catalogue(m_connection),
      m_turn(path),
      m_onShare(liesOnShare(path)),
      m_lease(m_connection)
{
    // With the head of the file mapped, a look at its counters costs nanoseconds, not a system
    // call. No more of it: a file that someone cuts short under a mapping would end the process.
    if (!m_onShare)
        m_connection.execute("PRAGMA mmap_size = 4096");
    if (mode == SqliteConnection::Mode::Create)
        changeDefinitions([this] { m_catalogue.createTables(); });
    m_catalogueCookie = m_connection.counters().definitions;
    refuseWithoutCatalogue();
}

// Here, not at the first use of the file.
void SqliteEngine::refuseWithoutCatalogue()
{
    try {
        m_catalogue.tableNames();
    } catch (const StorageError& error) {
        if (error.errorNumber() == ErrorNumber::Internal)
            fail(ErrorNumber::UnknownFormat, path());
        throw;
    }
}

SqliteEngine::~SqliteEngine()
{
    if (m_inTransaction)
        rollback();
    m_lease.end();
}

SqliteStatement& SqliteEngine::statement(const QByteArray& sql)
{
    auto& known = m_statements[sql];
    if (!known)
        known = std::make_shared<SqliteStatement>(m_connection, sql);
    return *known;
}

void SqliteEngine::refreshCatalogue()
{
    if (m_inTransaction)
        return;  // nobody else can have changed it, and own changes forget it themselves
    const quint32 cookie = m_connection.counters().definitions;
    if (cookie == m_catalogueCookie)
        return;
    m_catalogueCookie = cookie;
    m_catalogue.forget();
    m_plans.clear();
    m_inserts.clear();
    m_counts.clear();
}

std::shared_ptr<const TableDefinition> SqliteEngine::table(const QString& name)
{
    refreshCatalogue();
    return m_catalogue.table(name);
}

QStringList SqliteEngine::tableNames()
{
    refreshCatalogue();
    return m_catalogue.tableNames();
}

Version SqliteEngine::version()
{
    const SqliteConnection::Counters counters = m_connection.counters();
    return {.commits = counters.commits,
            .ownChanges = m_connection.rowsWritten() + (m_rollbacks << 40),
            .definitions = quint64(m_ownDefinitionChanges) << 32 | counters.definitions};
}

bool SqliteEngine::isFresh(const Version& seen)
{
    // Own writes end the lease.
    return seen == (m_lease.holds() ? m_lease.version() : version());
}

std::shared_ptr<FetchPlan> SqliteEngine::plan(const std::shared_ptr<const TableDefinition>& table,
                                              int index, const std::vector<int>& columns)
{
    // By the definition, not its name: a handle that has not followed a change yet asks with the
    // old one. The plan holds it, so its address is nobody else's meanwhile.
    const TableDefinition* definition = table.get();
    QByteArray name(reinterpret_cast<const char*>(&definition), sizeof definition);
    name.append(QByteArray::number(index));
    for (const int column : columns)
        name.append(',').append(QByteArray::number(column));
    auto& known = m_plans[name];
    if (!known)
        known = std::make_shared<SqliteFetch>(m_connection, table, index, columns);
    return known;
}

void SqliteEngine::fetch(FetchPlan& plan, Direction direction, const FetchStart& start, int limit,
                         RowBlock& block)
{
    auto& rows = static_cast<SqliteFetch&>(plan);
    block.start(rows.columnCount());
    if (m_onShare && limit >= leaseFromRows)
        m_lease.take([this] { return version(); });
    const ReadScope scope(*this, !rows.isOneStatement(direction, start));
    bool versionRead = false;
    rows.fetch(direction, start, limit, block, [&] {
        if (!versionRead)
            block.version = m_lease.isOpen() ? m_lease.version() : version();
        versionRead = true;
    });
}

void SqliteEngine::fetchRecord(FetchPlan& plan, RecordId id, RowBlock& block)
{
    auto& rows = static_cast<SqliteFetch&>(plan);
    block.start(rows.columnCount());
    rows.fetchRecord(id, block, [&] { block.version = version(); });
}

qint64 SqliteEngine::count(const TableDefinition& table)
{
    const auto known = m_counts.constFind(table.name);
    if (known != m_counts.constEnd() && isFresh(known->version))
        return known->rows;
    SqliteStatement& counting = statement("SELECT count(*) FROM " + quotedName(table.name));
    const SqliteStatement::Run run(counting);
    counting.step();
    const Count counted{version(), counting.integerAt(0)};
    m_counts.insert(table.name, counted);
    return counted.rows;
}

void SqliteEngine::refuseReadOnly() const
{
    if (isReadOnly())
        fail(ErrorNumber::ReadOnly, path());
}

// A full disk makes the library roll back the whole transaction. What came after it would be
// written by itself.
void SqliteEngine::refuseBrokenTransaction() const
{
    if (m_inTransaction && !m_connection.inTransaction())
        fail(ErrorNumber::TransactionMismatch, path());
}

int SqliteEngine::write(SqliteStatement& writing)
{
    refuseReadOnly();
    refuseBrokenTransaction();
    m_lease.end();
    if (!m_inTransaction)
        m_turn.take(lockWaitLimit());
    const SqliteStatement::Run run(writing);
    try {
        writing.step();
        writing.reset();  // ends the statement's own transaction while the turn is still ours
    } catch (...) {
        writing.reset();
        if (!m_inTransaction)
            m_turn.giveBack();
        else if (!m_connection.inTransaction())
            ++m_rollbacks;
        throw;
    }
    if (!m_inTransaction)
        m_turn.giveBack();
    return sqlite3_changes(m_connection.handle());
}

RecordId SqliteEngine::insert(const TableDefinition& table, std::span<const Assignment> values)
{
    // Bulk loads put in rows of one kind: found without writing the statement out each time. The
    // address tells definitions apart for as long as these statements are kept.
    const TableDefinition* definition = &table;
    QByteArray kind(reinterpret_cast<const char*>(&definition), sizeof definition);
    for (const Assignment& value : values)
        kind.append(reinterpret_cast<const char*>(&value.field), sizeof value.field);
    auto& known = m_inserts[kind];
    if (!known)
        known = std::make_shared<SqliteStatement>(m_connection, insertSql(table, values));
    SqliteStatement& inserting = *known;
    int parameter = 0;
    for (const Assignment& value : values)
        inserting.bind(++parameter, value.value);
    write(inserting);
    return sqlite3_last_insert_rowid(m_connection.handle());
}

void SqliteEngine::update(const TableDefinition& table, RecordId id,
                          std::span<const Assignment> values)
{
    if (values.empty())
        return;
    SqliteStatement& updating = statement("UPDATE " + quotedName(table.name) + " SET " +
                                          columnList(table, values, "=?,") + " WHERE _id=?");
    int parameter = 0;
    for (const Assignment& value : values)
        updating.bind(++parameter, value.value);
    updating.bindInteger(++parameter, id);
    if (write(updating) == 0)
        fail(ErrorNumber::RecordDeleted);
}

void SqliteEngine::remove(const TableDefinition& table, RecordId id)
{
    SqliteStatement& removing = statement("DELETE FROM " + quotedName(table.name) + " WHERE _id=?");
    removing.bindInteger(1, id);
    if (write(removing) == 0)
        fail(ErrorNumber::RecordDeleted);
}

void SqliteEngine::begin()
{
    refuseReadOnly();
    m_lease.end();
    m_turn.take(lockWaitLimit());
    try {
        m_connection.execute("BEGIN IMMEDIATE");
    } catch (...) {
        m_turn.giveBack();
        throw;
    }
    refreshCatalogue();
    m_inTransaction = true;
}

void SqliteEngine::commit()
{
    try {
        refuseBrokenTransaction();
        m_connection.execute("COMMIT");
    } catch (...) {
        rollback();
        throw;
    }
    m_inTransaction = false;
    m_catalogueCookie = m_connection.counters().definitions;
    m_turn.giveBack();
}

void SqliteEngine::rollback()
{
    m_connection.executeQuietly("ROLLBACK");
    ++m_rollbacks;  // what was read inside is no longer true, though no counter of the file moved
    m_catalogue.forget();
    ++m_ownDefinitionChanges;
    m_plans.clear();
    m_inserts.clear();
    m_counts.clear();
    m_inTransaction = false;
    m_turn.giveBack();
}

template <class Change>
void SqliteEngine::changeDefinitions(Change change)
{
    const bool ownTransaction = !m_inTransaction;
    refuseBrokenTransaction();
    if (ownTransaction)
        begin();
    // Statements that still know the old table would keep it from being changed.
    m_statements.clear();
    m_plans.clear();
    m_inserts.clear();
    m_counts.clear();
    try {
        change();
    } catch (...) {
        m_catalogue.forget();
        if (ownTransaction)
            rollback();
        throw;
    }
    m_catalogue.forget();
    ++m_ownDefinitionChanges;
    if (ownTransaction)
        commit();
}

void SqliteEngine::createTable(const TableDefinition& table)
{
    changeDefinitions([&] { m_catalogue.createTable(table); });
}

void SqliteEngine::deleteTable(const QString& table)
{
    changeDefinitions([&] { m_catalogue.deleteTable(table); });
}

void SqliteEngine::appendField(const QString& table, const FieldDefinition& field)
{
    changeDefinitions([&] { m_catalogue.appendField(table, field); });
}

void SqliteEngine::deleteField(const QString& table, const QString& field)
{
    changeDefinitions([&] { m_catalogue.deleteField(table, field); });
}

void SqliteEngine::changeField(const QString& table, const FieldDefinition& field)
{
    changeDefinitions([&] { m_catalogue.changeField(table, field); });
}

void SqliteEngine::appendIndex(const QString& table, const IndexDefinition& index)
{
    changeDefinitions([&] { m_catalogue.appendIndex(table, index); });
}

void SqliteEngine::deleteIndex(const QString& table, const QString& index)
{
    changeDefinitions([&] { m_catalogue.deleteIndex(table, index); });
}

QStringList SqliteEngine::checkIntegrity()
{
    QStringList findings;
    m_connection.query("PRAGMA integrity_check", [&](SqliteStatement& row) {
        if (row.textAt(0) != "ok")
            findings.append(row.textAt(0));
    });
    return findings;
}

}  // namespace storage
