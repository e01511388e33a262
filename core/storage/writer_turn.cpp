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

bool setLock(int file, short type)
{
    struct flock lock
    {
    };
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_start = 0;
    lock.l_len = 1;
    return ::fcntl(file, F_OFD_SETLK, &lock) == 0;
}

}  // namespace

void sleepBeforeRetry(int tries)
{
    const int ceiling = tries < 10 ? 200 : tries < 50 ? 1000 : 5000;
    const int microseconds = 50 + static_cast<int>(QRandomGenerator::global()->bounded(ceiling));
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds));
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
    struct stat database
    {
    };
    if (::stat(QFile::encodeName(m_databasePath).constData(), &database) == 0)
        (void)::fchmod(m_file, database.st_mode & 0666);
}

void WriterTurn::take(int limitMilliseconds)
{
    if (m_held)
        return;
    openFile();
    QElapsedTimer waited;
    waited.start();
    for (int tries = 0; !setLock(m_file, F_WRLCK); ++tries) {
        if (errno != EAGAIN && errno != EACCES && errno != EINTR)
            fail(ErrorNumber::DiskError, m_databasePath);
        if (waited.elapsed() >= limitMilliseconds)
            fail(ErrorNumber::Locked, m_databasePath);
        sleepBeforeRetry(tries);
    }
    m_held = true;
}

void WriterTurn::giveBack()
{
    if (m_held)
        setLock(m_file, F_UNLCK);
    m_held = false;
}

}  // namespace storage
