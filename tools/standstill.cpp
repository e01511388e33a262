#include "tools/standstill.h"

#include <QElapsedTimer>

#include "core/storage/engine_pool.h"
#include "core/storage/sqlite_connection.h"
#include "core/storage/storage_error.h"
#include "core/storage/writer_turn.h"
#include "tools/command.h"

namespace {

// Others wait for us while we hold what we have got, so the first file is waited for longest.
constexpr int millisecondsForTheFirst = 2000;
constexpr int millisecondsForEach = 400;

// The store's limit for waiting, as long as this lives.
class WaitLimit
{
public:
    explicit WaitLimit(int milliseconds) : m_before(storage::lockWaitLimit())
    {
        storage::setLockWaitLimit(std::min(milliseconds, m_before));
    }
    ~WaitLimit() { storage::setLockWaitLimit(m_before); }
    WaitLimit(const WaitLimit&) = delete;
    WaitLimit& operator=(const WaitLimit&) = delete;

private:
    int m_before;
};

}  // namespace

Standstill::Standstill(QStringList paths, int seconds)
{
    paths.sort();
    QElapsedTimer waited;
    waited.start();
    for (int tries = 0;; ++tries) {
        try {
            takeAll(paths);
            return;
        } catch (const storage::StorageError& error) {
            release();
            if (error.errorNumber() != storage::ErrorNumber::Locked)
                throw;
            if (waited.elapsed() >= seconds * 1000)
                throw CommandFailure(QString("Others are writing, waited %1 seconds. %2")
                                         .arg(seconds)
                                         .arg(error.description()));
        }
        storage::sleepBeforeRetry(tries + 50);
    }
}

Standstill::~Standstill()
{
    release();
}

void Standstill::takeAll(QStringList& paths)
{
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const WaitLimit limit(i == 0 ? millisecondsForTheFirst : millisecondsForEach);
        try {
            m_files.push_back(storage::acquireEngine(paths[i]));
            m_files.back()->begin();
        } catch (const storage::StorageError&) {
            paths.move(i, 0);
            throw;
        }
    }
}

void Standstill::release()
{
    for (const auto& file : m_files)
        if (file->inTransaction())
            file->rollback();
    m_files.clear();
}

void Standstill::copy(const QString& path, const QString& toPath) const
{
    for (const auto& file : m_files)
        if (file->path() == path)
            return file->copyTo(toPath);
    throw CommandFailure(path + " is not held.");
}
