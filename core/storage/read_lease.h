// On a share each look at a file costs a round trip. A walk there keeps its read lock for a few
// milliseconds instead, during which nobody can commit and every block read stays true. The lock is
// given back by a timer of the event loop, when the file falls idle, and before any write. A
// process that is busy with something else in the middle of a walk keeps it until its event loop
// runs again, and others who write wait that long. Without an event loop there is no lease.
#pragma once

#include <QElapsedTimer>
#include <functional>
#include <memory>

#include "core/storage/engine.h"

class QTimer;

namespace storage {

class SqliteConnection;

class ReadLease
{
public:
    explicit ReadLease(SqliteConnection& connection);
    ~ReadLease();

    // Takes the read lock, unless it is held or a transaction is open. `readVersion` gives the
    // file's version once it is.
    void take(const std::function<Version()>& readVersion);
    void end();

    bool isOpen() const { return m_open; }
    // True while the lock is held and young enough; gives it back when it is too old.
    bool holds();
    const Version& version() const { return m_version; }

private:
    SqliteConnection& m_connection;
    bool m_open = false;
    QElapsedTimer m_age;
    Version m_version;
    std::unique_ptr<QTimer> m_timer;
};

}  // namespace storage
