#include "core/storage/read_lease.h"

#include <QAbstractEventDispatcher>
#include <QTimer>

#include "core/storage/sqlite_connection.h"

namespace storage {
namespace {
constexpr int leaseMilliseconds = 5;
}

ReadLease::ReadLease(SqliteConnection& connection) : m_connection(connection) {}

ReadLease::~ReadLease() = default;

bool ReadLease::holds()
{
    if (m_open && m_age.elapsed() >= leaseMilliseconds)
        end();
    return m_open;
}

void ReadLease::take(const std::function<Version()>& readVersion)
{
    if (holds() || m_connection.inTransaction() || !QAbstractEventDispatcher::instance())
        return;
    m_connection.execute("BEGIN");
    try {
        m_connection.query("SELECT count(*) FROM _tables WHERE rowid < 0", [](SqliteStatement&) {});
    } catch (...) {
        // Left open, it would swallow the next write, which then would never be committed.
        m_connection.execute("ROLLBACK");
        throw;
    }
    m_version = readVersion();
    m_open = true;
    m_age.start();
    if (!m_timer) {
        m_timer = std::make_unique<QTimer>();
        m_timer->setSingleShot(true);
        QObject::connect(m_timer.get(), &QTimer::timeout, [this] { end(); });
    }
    m_timer->start(leaseMilliseconds);
}

void ReadLease::end()
{
    if (!m_open)
        return;
    m_open = false;
    m_connection.executeQuietly("COMMIT");
}

}  // namespace storage
