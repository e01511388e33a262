// The engine on SQLite. See engine.h for what each function promises.
#pragma once

#include <QHash>

#include "core/storage/engine.h"
#include "core/storage/read_lease.h"
#include "core/storage/sqlite_catalogue.h"
#include "core/storage/sqlite_connection.h"
#include "core/storage/writer_turn.h"

namespace storage {

class SqliteEngine : public Engine
{
public:
    SqliteEngine(const QString& path, SqliteConnection::Mode mode);
    ~SqliteEngine() override;

    QString path() const override { return m_connection.path(); }
    bool isReadOnly() const override { return m_connection.isReadOnly(); }
    std::shared_ptr<const TableDefinition> table(const QString& name) override;
    QStringList tableNames() override;

    Version version() override;
    bool isFresh(const Version& version) override;

    std::shared_ptr<FetchPlan> plan(const std::shared_ptr<const TableDefinition>& table, int index,
                                    const std::vector<int>& columns) override;
    void fetch(FetchPlan& plan, Direction direction, const FetchStart& start, int limit,
               RowBlock& block) override;
    void fetchRecord(FetchPlan& plan, RecordId id, RowBlock& block) override;
    qint64 count(const TableDefinition& table) override;
    qint64 countBefore(const TableDefinition& table, int index, std::span<const Value> parent,
                       std::span<const Value> key, RecordId id) override;
    RecordId recordAt(const TableDefinition& table, int index, std::span<const Value> parent,
                      qint64 before) override;

    RecordId insert(const TableDefinition& table, std::span<const Assignment> values) override;
    void update(const TableDefinition& table, RecordId id,
                std::span<const Assignment> values) override;
    void remove(const TableDefinition& table, RecordId id) override;

    void begin() override;
    void commit() override;
    void rollback() override;
    bool inTransaction() const override { return m_inTransaction; }

    void createTable(const TableDefinition& table) override;
    void deleteTable(const QString& table) override;
    void appendField(const QString& table, const FieldDefinition& field) override;
    void deleteField(const QString& table, const QString& field) override;
    void changeField(const QString& table, const FieldDefinition& field) override;
    void appendIndex(const QString& table, const IndexDefinition& index) override;
    void deleteIndex(const QString& table, const QString& index) override;

    QStringList checkIntegrity() override;
    void copyTo(const QString& path) override { m_connection.copyTo(path); }
    void goIdle() override { m_lease.end(); }

    // Treats the file as lying on a share, whatever it lies on; for tests.
    void assumeShare() { m_onShare = true; }

private:
    class ReadScope;

    SqliteStatement& statement(const QByteArray& sql);
    void refuseWithoutCatalogue();
    void refreshCatalogue();
    // The first number of the first row; 0 without one.
    qint64 countRows(const QByteArray& sql, std::span<const Value> equal,
                     const Value* beyond = nullptr);
    void refuseReadOnly() const;
    void refuseBrokenTransaction() const;
    // Runs one writing statement, in its turn; gives the number of rows written.
    int write(SqliteStatement& statement);
    template <class Change>
    void changeDefinitions(Change change);

    SqliteConnection m_connection;
    SqliteCatalogue m_catalogue;
    WriterTurn m_turn;
    bool m_inTransaction = false;
    quint64 m_rollbacks = 0;
    quint32 m_catalogueCookie = 0;
    quint32 m_ownDefinitionChanges = 0;
    QHash<QByteArray, std::shared_ptr<SqliteStatement>> m_statements;  // by text
    QHash<QByteArray, std::shared_ptr<SqliteStatement>> m_inserts;     // by table and fields
    QHash<QByteArray, std::shared_ptr<FetchPlan>> m_plans;

    struct Count
    {
        Version version;
        qint64 rows;
    };
    QHash<QString, Count> m_counts;

    bool m_onShare = false;
    ReadLease m_lease;
};

}  // namespace storage
