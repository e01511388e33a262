#include "core/storage/engine_pool.h"

#include <sys/stat.h>

#include <QAbstractEventDispatcher>
#include <QElapsedTimer>
#include <QFile>
#include <QHash>
#include <QTimer>

#include "core/storage/sqlite_engine.h"
#include "core/storage/storage_error.h"

namespace storage {
namespace {

constexpr qint64 lingerMilliseconds = 1000;

struct FileIdentity
{
    quint64 device = 0;
    quint64 inode = 0;
    bool operator==(const FileIdentity&) const = default;
};

FileIdentity identityOf(const QString& path)
{
    struct stat information
    {
    };
    if (::stat(QFile::encodeName(path).constData(), &information) != 0)
        return {};
    return {information.st_dev, information.st_ino};
}

std::shared_ptr<Engine> makeEngine(const QString& path, SqliteConnection::Mode mode)
{
    const bool isNew = mode == SqliteConnection::Mode::Create && identityOf(path) == FileIdentity{};
    try {
        return std::make_shared<SqliteEngine>(path, mode);
    } catch (...) {
        if (isNew)
            removeDatabaseFiles(path);
        throw;
    }
}

class EnginePool
{
public:
    std::shared_ptr<Engine> acquire(const QString& path, SqliteConnection::Mode mode)
    {
        dropWhatLingeredEnough();
        const FileIdentity identity = identityOf(path);
        auto known = m_entries.find(path);
        if (known != m_entries.end() && mode == SqliteConnection::Mode::Existing &&
            known->identity == identity && identity != FileIdentity{})
            return handOut(*known);
        Entry entry{makeEngine(path, mode), {}, identityOf(path), {}};
        return handOut(*m_entries.insert(path, std::move(entry)));
    }

    void closeIdle()
    {
        m_entries.removeIf([](const auto& it) { return it->holders.expired(); });
    }

private:
    struct Entry
    {
        std::shared_ptr<Engine> engine;
        std::weak_ptr<Engine> holders;
        FileIdentity identity;
        QElapsedTimer idleSince;
    };

    std::shared_ptr<Engine> handOut(Entry& entry)
    {
        if (auto held = entry.holders.lock())
            return held;
        const std::shared_ptr<Engine> engine = entry.engine;
        std::shared_ptr<Engine> held(engine.get(), [this, engine](Engine* /*unused*/) {
            if (engine->inTransaction())
                engine->rollback();
            engine->goIdle();
            noteIdle(engine);
        });
        entry.holders = held;
        return held;
    }

    void noteIdle(const std::shared_ptr<Engine>& engine)
    {
        const auto entry = m_entries.find(engine->path());
        if (entry == m_entries.end() || entry->engine != engine)
            return;
        entry->idleSince.start();
        if (QAbstractEventDispatcher::instance() && !m_sweepPlanned) {
            m_sweepPlanned = true;
            QTimer::singleShot(lingerMilliseconds + 100, [this] {
                m_sweepPlanned = false;
                dropWhatLingeredEnough();
            });
        }
    }

    void dropWhatLingeredEnough()
    {
        m_entries.removeIf([](const auto& it) {
            return it->holders.expired() && it->idleSince.isValid() &&
                   it->idleSince.elapsed() > lingerMilliseconds;
        });
    }

    QHash<QString, Entry> m_entries;
    bool m_sweepPlanned = false;
};

EnginePool& pool()
{
    // Never destroyed: handles that live in static objects give back to it at the very end.
    static auto* instance = new EnginePool;
    return *instance;
}

}  // namespace

std::shared_ptr<Engine> acquireEngine(const QString& path)
{
    return pool().acquire(path, SqliteConnection::Mode::Existing);
}

std::shared_ptr<Engine> createEngine(const QString& path)
{
    return pool().acquire(path, SqliteConnection::Mode::Create);
}

void closeIdleEngines()
{
    pool().closeIdle();
}

}  // namespace storage
