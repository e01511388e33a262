// One connection to one SQLite file: how it is opened, its statements, its errors as StorageError.
// Only the files sqlite_*.cpp see the library's header.
#pragma once

#include <QByteArray>
#include <QString>
#include <memory>

#include "core/storage/storage_error.h"
#include "core/storage/value.h"

struct sqlite3;
struct sqlite3_file;
struct sqlite3_stmt;

namespace storage {

class SqliteConnection;

// A prepared statement. `Run` resets it when it goes, so that no lock outlives an operation.
class SqliteStatement
{
public:
    SqliteStatement() = default;
    SqliteStatement(SqliteConnection& connection, const QByteArray& sql);
    ~SqliteStatement();
    SqliteStatement(SqliteStatement&& other) noexcept;
    SqliteStatement& operator=(SqliteStatement&& other) noexcept;

    bool isPrepared() const { return m_statement != nullptr; }
    sqlite3_stmt* handle() const { return m_statement; }

    // Parameters count from 1.
    void bind(int parameter, const Value& value);
    void bindInteger(int parameter, qint64 value);

    // True with a row in hand, false at the end.
    bool step();
    void reset();

    qint64 integerAt(int column) const;
    QString textAt(int column) const;
    Value valueAt(int column) const;  // whole number, fraction, text, bytes or null

    class Run
    {
    public:
        explicit Run(SqliteStatement& statement) : m_statement(statement) {}
        ~Run() { m_statement.reset(); }
        Run(const Run&) = delete;
        Run& operator=(const Run&) = delete;

    private:
        SqliteStatement& m_statement;
    };

private:
    SqliteConnection* m_connection = nullptr;
    sqlite3_stmt* m_statement = nullptr;
};

class SqliteConnection
{
public:
    enum class Mode { Existing, Create };

    // Fails with FileNotFound, PathNotValid, CannotOpen, UnknownFormat, DatabaseExists, ReadOnly.
    // A file whose making fails may be left half made.
    SqliteConnection(const QString& path, Mode mode);
    ~SqliteConnection();
    SqliteConnection(const SqliteConnection&) = delete;
    SqliteConnection& operator=(const SqliteConnection&) = delete;

    const QString& path() const { return m_path; }
    sqlite3* handle() const { return m_handle; }
    bool isReadOnly() const;
    bool inTransaction() const;
    quint64 rowsWritten() const;

    void execute(const char* sql);
    // For what ends a read or a broken transaction, where there is nothing to do about a failure.
    void executeQuietly(const char* sql);
    // The rows of a statement that is run once; `row` is called for each.
    template <class Row>
    void query(const QByteArray& sql, Row row)
    {
        SqliteStatement statement(*this, sql);
        while (statement.step())
            row(statement);
    }

    // The file's commit counter and definition counter, read past the page cache: cheap, and true
    // at any moment. Both stand in the file header at offsets 24 and 40.
    struct Counters
    {
        quint32 commits = 0;
        quint32 definitions = 0;
    };
    Counters counters() const;

    // Throws what an engine's result code means.
    [[noreturn]] void failWith(int code) const;

    // A consistent copy into a new file.
    void copyTo(const QString& path);

private:
    void refuseWhatIsNotThere() const;
    void refuseWhatCannotBeMade() const;
    void open(Mode mode);
    void prepareForUse(Mode mode);

    QString m_path;
    sqlite3* m_handle = nullptr;
    sqlite3_file* m_file = nullptr;
};

// What is left of a file that could not be made whole.
void removeDatabaseFiles(const QString& path);

// How long a writer waits for its turn and a reader for a commit to end, in milliseconds, before
// the Locked error. Tests shorten it.
int lockWaitLimit();
void setLockWaitLimit(int milliseconds);

}  // namespace storage
