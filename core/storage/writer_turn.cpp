#include "core/storage/writer_turn.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>
#include <cerrno>
#include <thread>

#include "core/storage/storage_error.h"

namespace storage {
namespace {

// The turn itself, and the sign of those who wait for it.
enum Byte : off_t { turnByte = 0, waitingByte = 1 };

// A tight loop of writes takes the turn again before any waiter wakes up. That is quick, because
// the file stays in one process's hands, but it must not go on for ever: after so many milliseconds
// of it a process lets those who wait go first. Writes further apart than `pause` are no loop.
constexpr qint64 burstMilliseconds = 25;
constexpr qint64 pauseMilliseconds = 5;

struct flock lockOf(Byte byte, short type)
{
    struct flock lock = {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_start = byte;
    lock.l_len = 1;
    return lock;
}

bool setLock(int file, Byte byte, short type)
{
    struct flock lock = lockOf(byte, type);
    return ::fcntl(file, F_OFD_SETLK, &lock) == 0;
}

bool someoneWaits(int file)
{
    struct flock lock = lockOf(waitingByte, F_WRLCK);
    return ::fcntl(file, F_OFD_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}

void sleepMicroseconds(int least, int most)
{
    const int microseconds =
        least + static_cast<int>(QRandomGenerator::global()->bounded(most - least));
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds));
}

// Shows that we wait, for as long as it lives. All who wait share the lock.
class WaitingSign
{
public:
    explicit WaitingSign(int file) : m_file(file) { setLock(m_file, waitingByte, F_RDLCK); }
    ~WaitingSign() { setLock(m_file, waitingByte, F_UNLCK); }
    WaitingSign(const WaitingSign&) = delete;
    WaitingSign& operator=(const WaitingSign&) = delete;

private:
    int m_file;
};

}  // namespace

void sleepBeforeRetry(int tries)
{
    sleepMicroseconds(50, tries < 10 ? 250 : tries < 50 ? 1000 : 5000);
}

WriterTurn::WriterTurn(const QString& databasePath) : m_databasePath(databasePath) {}

WriterTurn::~WriterTurn()
{
    if (m_file >= 0)
        ::close(m_file);
}

void WriterTurn::openFile()
{
    if (m_file >= 0)
        return;
    const QByteArray name = QFile::encodeName(m_databasePath + "-turn");
    m_file = ::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    if (m_file < 0)
        fail(errno == ENOSPC || errno == EDQUOT ? ErrorNumber::DiskFull : ErrorNumber::ReadOnly,
             m_databasePath);
    // Whoever may write the database must be able to queue for it, whatever this process's umask.
    struct stat database = {};
    if (::stat(QFile::encodeName(m_databasePath).constData(), &database) == 0)
        (void)::fchmod(m_file, database.st_mode & 0666);
}

void WriterTurn::take(int limitMilliseconds)
{
    if (m_held)
        return;
    openFile();
    if (!m_sinceLast.isValid() || m_sinceLast.elapsed() > pauseMilliseconds) {
        m_burst.start();
    } else if (m_burst.elapsed() > burstMilliseconds && someoneWaits(m_file)) {
        sleepMicroseconds(1000, 1500);
        m_burst.start();
    }
    if (!setLock(m_file, turnByte, F_WRLCK)) {
        waitForTurn(limitMilliseconds);
        m_burst.start();
    }
    m_held = true;
}

void WriterTurn::waitForTurn(int limitMilliseconds)
{
    const WaitingSign sign(m_file);
    QElapsedTimer waited;
    waited.start();
    int tries = 0;
    do {
        if (errno != EAGAIN && errno != EACCES && errno != EINTR)
            fail(ErrorNumber::DiskError, m_databasePath);
        if (waited.elapsed() >= limitMilliseconds)
            fail(ErrorNumber::Locked, m_databasePath);
        // Soon at first, then seldom enough not to take the processor from who has the turn.
        if (++tries < 8)
            sleepMicroseconds(50, 250);
        else
            sleepMicroseconds(200, 1000);
    } while (!setLock(m_file, turnByte, F_WRLCK));
}

void WriterTurn::giveBack()
{
    if (!m_held)
        return;
    setLock(m_file, turnByte, F_UNLCK);
    m_held = false;
    m_sinceLast.start();
}

}  // namespace storage
