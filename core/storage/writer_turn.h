// The queue of writers of one database file. The engine's own busy wait lets one writer starve the
// others; writers who first take this turn are served within a fraction of a second of each other.
// The turn is byte 0 of a lock file beside the database, held by the open file description, so
// that the system frees it when a process dies.
#pragma once

#include <QElapsedTimer>
#include <QString>

namespace storage {

class WriterTurn
{
public:
    explicit WriterTurn(const QString& databasePath);
    ~WriterTurn();
    WriterTurn(const WriterTurn&) = delete;
    WriterTurn& operator=(const WriterTurn&) = delete;

    // Waits its turn. Fails with Locked after `limitMilliseconds`, with ReadOnly where no lock file
    // can be made.
    void take(int limitMilliseconds);
    void giveBack();
    bool isHeld() const { return m_held; }

private:
    void openFile();
    void waitForTurn(int limitMilliseconds);

    QString m_databasePath;
    int m_file = -1;
    bool m_held = false;
    QElapsedTimer m_sinceLast;  // had the turn
    QElapsedTimer m_burst;      // of turns one after the other
};

// Sleeps a short random time, longer with each failed try, so that waiters do not march in step.
void sleepBeforeRetry(int tries);

}  // namespace storage
