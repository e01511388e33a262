#include "core/storage/sqlite_connection.h"

#include <sqlite3.h>

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <utility>

#include "core/storage/date_form.h"
#include "core/storage/sqlite_collation.h"
#include "core/storage/writer_turn.h"

namespace storage {
namespace {

constexpr int applicationId = 0x5645584C;  // "VEXL", so that other programs' files are told apart
int waitLimit = 10'000;

int onBusy(void* /*unused*/, int tries)
{
    static QElapsedTimer since;
    if (tries == 0)
        since.start();
    if (since.elapsed() >= waitLimit)
        return 0;
    sleepBeforeRetry(tries);
    return 1;
}

ErrorNumber errorNumberOf(int code)
{
    switch (code & 0xFF) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return ErrorNumber::Locked;
        case SQLITE_READONLY:
        case SQLITE_PERM:
        case SQLITE_AUTH:
            return ErrorNumber::ReadOnly;
        case SQLITE_FULL:
            return ErrorNumber::DiskFull;
        case SQLITE_NOTADB:
            return ErrorNumber::UnknownFormat;
        case SQLITE_CORRUPT:
            return ErrorNumber::Damaged;
        case SQLITE_CANTOPEN:
            return ErrorNumber::CannotOpen;
        case SQLITE_IOERR:
            return ErrorNumber::DiskError;
        case SQLITE_TOOBIG:
            return ErrorNumber::TooLong;
        default:
            return ErrorNumber::Internal;
    }
}

}  // namespace

void removeDatabaseFiles(const QString& path)
{
    for (const char* suffix : {"", "-journal", "-turn"})
        QFile::remove(path + suffix);
}

int lockWaitLimit()
{
    return waitLimit;
}
void setLockWaitLimit(int milliseconds)
{
    waitLimit = milliseconds;
}

SqliteStatement::SqliteStatement(SqliteConnection& connection, const QByteArray& sql)
    : m_connection(&connection)
{
    const int code =
        sqlite3_prepare_v3(connection.handle(), sql.constData(), static_cast<int>(sql.size()),
                           SQLITE_PREPARE_PERSISTENT, &m_statement, nullptr);
    if (code != SQLITE_OK)
        connection.failWith(code);
}

SqliteStatement::~SqliteStatement()
{
    sqlite3_finalize(m_statement);
}

SqliteStatement::SqliteStatement(SqliteStatement&& other) noexcept
    : m_connection(other.m_connection), m_statement(std::exchange(other.m_statement, nullptr))
{
}

SqliteStatement& SqliteStatement::operator=(SqliteStatement&& other) noexcept
{
    std::swap(m_connection, other.m_connection);
    std::swap(m_statement, other.m_statement);
    return *this;
}

void SqliteStatement::bindInteger(int parameter, qint64 value)
{
    sqlite3_bind_int64(m_statement, parameter, value);
}

void SqliteStatement::bind(int parameter, const Value& value)
{
    int code = SQLITE_OK;
    if (const auto* whole = value.as<qint64>()) {
        code = sqlite3_bind_int64(m_statement, parameter, *whole);
    } else if (const auto* money = value.as<Currency>()) {
        code = sqlite3_bind_int64(m_statement, parameter, money->tenThousandths);
    } else if (const auto* fraction = value.as<double>()) {
        code = sqlite3_bind_double(m_statement, parameter, *fraction);
    } else if (const auto* moment = value.as<QDateTime>()) {
        code = sqlite3_bind_int64(m_statement, parameter, storedFromDate(*moment));
    } else if (const auto* text = value.as<QString>()) {
        const QByteArray utf8 = text->toUtf8();
        code = sqlite3_bind_text64(m_statement, parameter, utf8.constData(),
                                   static_cast<sqlite3_uint64>(utf8.size()), SQLITE_TRANSIENT,
                                   SQLITE_UTF8);
    } else if (const auto* bytes = value.as<QByteArray>()) {
        code = sqlite3_bind_blob64(m_statement, parameter, bytes->constData(),
                                   static_cast<sqlite3_uint64>(bytes->size()), SQLITE_TRANSIENT);
    } else {
        code = sqlite3_bind_null(m_statement, parameter);
    }
    if (code != SQLITE_OK)
        m_connection->failWith(code);
}

bool SqliteStatement::step()
{
    const int code = sqlite3_step(m_statement);
    if (code == SQLITE_ROW)
        return true;
    if (code == SQLITE_DONE)
        return false;
    m_connection->failWith(sqlite3_extended_errcode(m_connection->handle()));
}

void SqliteStatement::reset()
{
    sqlite3_reset(m_statement);
}

qint64 SqliteStatement::integerAt(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

QString SqliteStatement::textAt(int column) const
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(m_statement, column));
    return QString::fromUtf8(text, sqlite3_column_bytes(m_statement, column));
}

Value SqliteStatement::valueAt(int column) const
{
    switch (sqlite3_column_type(m_statement, column)) {
        case SQLITE_INTEGER:
            return integerAt(column);
        case SQLITE_FLOAT:
            return sqlite3_column_double(m_statement, column);
        case SQLITE_TEXT:
            return textAt(column);
        case SQLITE_BLOB:
            return QByteArray(static_cast<const char*>(sqlite3_column_blob(m_statement, column)),
                              sqlite3_column_bytes(m_statement, column));
        default:
            return {};
    }
}

SqliteConnection::SqliteConnection(const QString& path, Mode mode) : m_path(path)
{
    if (mode == Mode::Existing)
        refuseWhatIsNotThere();
    else
        refuseWhatCannotBeMade();
    try {
        open(mode);
        prepareForUse(mode);
    } catch (...) {
        sqlite3_close(m_handle);
        throw;
    }
}

// Statements that cursors still keep go with their last holder.
SqliteConnection::~SqliteConnection()
{
    sqlite3_close_v2(m_handle);
}

void SqliteConnection::refuseWhatIsNotThere() const
{
    const QFileInfo file(m_path);
    const QFileInfo folder(file.path());
    if (!folder.exists())
        fail(ErrorNumber::PathNotValid, m_path);
    if (!file.exists())  // or it is not for us to know
        fail(folder.isExecutable() ? ErrorNumber::FileNotFound : ErrorNumber::CannotOpen, m_path);
    if (!file.isFile())
        fail(ErrorNumber::PathNotValid, m_path);
    if (file.size() == 0)  // the library would take an empty file for a new database
        fail(ErrorNumber::UnknownFormat, m_path);
}

void SqliteConnection::refuseWhatCannotBeMade() const
{
    const QFileInfo file(m_path);
    if (file.exists())
        fail(ErrorNumber::DatabaseExists, m_path);
    const QFileInfo folder(file.path());
    if (!folder.isDir())
        fail(ErrorNumber::PathNotValid, m_path);
    if (!folder.isWritable())
        fail(ErrorNumber::ReadOnly, m_path);
}

void SqliteConnection::open(Mode mode)
{
    int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    if (mode == Mode::Create)
        flags |= SQLITE_OPEN_CREATE;
    const int code = sqlite3_open_v2(m_path.toUtf8().constData(), &m_handle, flags, nullptr);
    if (code != SQLITE_OK)
        failWith(code);
    sqlite3_extended_result_codes(m_handle, 1);
    // First of all: even the pragmas below read the file under a lock.
    sqlite3_busy_handler(m_handle, onBusy, nullptr);
    registerCaseBlindCollation(m_handle);
    sqlite3_file_control(m_handle, "main", SQLITE_FCNTL_FILE_POINTER, &m_file);
}

void SqliteConnection::prepareForUse(Mode mode)
{
    execute("PRAGMA cache_size = -32000");
    execute("PRAGMA synchronous = FULL");
    if (mode == Mode::Create) {
        execute(QByteArray("PRAGMA application_id = ").append(QByteArray::number(applicationId)));
    } else {
        qint64 found = 0;
        query("PRAGMA application_id", [&](SqliteStatement& row) { found = row.integerAt(0); });
        if (found != applicationId)
            fail(ErrorNumber::UnknownFormat, m_path);
    }
    // Its end is synced, unlike that of a deleted journal, and readers are not slowed down as by a
    // persistent one. Write-ahead logs need all users on one machine.
    execute("PRAGMA journal_mode = TRUNCATE");
}

bool SqliteConnection::isReadOnly() const
{
    return sqlite3_db_readonly(m_handle, "main") == 1;
}

bool SqliteConnection::inTransaction() const
{
    return sqlite3_get_autocommit(m_handle) == 0;
}

quint64 SqliteConnection::rowsWritten() const
{
    return static_cast<quint64>(sqlite3_total_changes64(m_handle));
}

void SqliteConnection::execute(const char* sql)
{
    const int code = sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        failWith(sqlite3_extended_errcode(m_handle));
}

void SqliteConnection::executeQuietly(const char* sql)
{
    sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr);
}

SqliteConnection::Counters SqliteConnection::counters() const
{
    unsigned char bytes[20] = {};
    if (m_file->pMethods == nullptr || m_file->pMethods->xRead(m_file, bytes, 20, 24) != SQLITE_OK)
        return {};
    const auto number = [&bytes](int at) {
        return static_cast<quint32>(bytes[at]) << 24 | static_cast<quint32>(bytes[at + 1]) << 16 |
               static_cast<quint32>(bytes[at + 2]) << 8 | bytes[at + 3];
    };
    return {number(0), number(16)};
}

void SqliteConnection::failWith(int code) const
{
    if (code == SQLITE_CONSTRAINT_UNIQUE || code == SQLITE_CONSTRAINT_PRIMARYKEY) {
        const QString message = QString::fromUtf8(sqlite3_errmsg(m_handle));
        fail(ErrorNumber::DuplicateKey, message.section(": ", 1));
    }
    const ErrorNumber number = errorNumberOf(code);
    if (number == ErrorNumber::Internal)
        throw StorageError(number, QString("Reserved error (%1): %2 ('%3').")
                                       .arg(code)
                                       .arg(QString::fromUtf8(m_handle ? sqlite3_errmsg(m_handle)
                                                                       : sqlite3_errstr(code)),
                                            m_path));
    fail(number, m_path);
}

void SqliteConnection::copyTo(const QString& path)
{
    // The library refuses to copy through a connection that is writing. Another one reads what was
    // committed before, and a transaction of ours keeps it from changing meanwhile.
    if (inTransaction())
        return SqliteConnection(m_path, Mode::Existing).copyTo(path);
    if (QFileInfo::exists(path))
        fail(ErrorNumber::DatabaseExists, path);
    sqlite3* target = nullptr;
    const auto closeTarget = [&target] { sqlite3_close(target); };
    int code = sqlite3_open_v2(path.toUtf8().constData(), &target,
                               SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    if (code != SQLITE_OK) {
        closeTarget();
        fail(errorNumberOf(code), path);
    }
    sqlite3_backup* backup = sqlite3_backup_init(target, "main", m_handle, "main");
    if (backup == nullptr) {
        code = sqlite3_errcode(target);
        closeTarget();
        fail(errorNumberOf(code), path);
    }
    for (int tries = 0; (code = sqlite3_backup_step(backup, -1)) != SQLITE_DONE; ++tries) {
        if ((code & 0xFF) != SQLITE_BUSY && (code & 0xFF) != SQLITE_LOCKED)
            break;
        if (tries > waitLimit)
            break;
        sleepBeforeRetry(tries);
    }
    const int finished = sqlite3_backup_finish(backup);
    closeTarget();
    if (code != SQLITE_DONE || finished != SQLITE_OK) {
        removeDatabaseFiles(path);
        fail(errorNumberOf(code != SQLITE_DONE ? code : finished), path);
    }
}

}  // namespace storage
