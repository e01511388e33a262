#include "other_process.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>

namespace storage {
namespace {

constexpr int patienceMilliseconds = 40'000;

QStringList linesOf(const QByteArray& output)
{
    return QString::fromUtf8(output).split('\n', Qt::SkipEmptyParts);
}

// Runs the event loop meanwhile, so that this process holds no locks while it waits.
template <class Condition>
bool waitUntil(Condition condition)
{
    QElapsedTimer waited;
    waited.start();
    while (!condition() && waited.elapsed() < patienceMilliseconds)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    return condition();
}

}  // namespace

OtherProcess::OtherProcess(const QStringList& arguments)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QCoreApplication::applicationDirPath() + "/storage_test_writer", arguments);
    EXPECT_TRUE(m_process.waitForStarted());
}

OtherProcess::~OtherProcess()
{
    kill();
}

void OtherProcess::say(const QString& line)
{
    m_process.write(line.toUtf8() + '\n');
    m_process.waitForBytesWritten();
}

QString OtherProcess::hear()
{
    if (!waitUntil([this] { return m_process.canReadLine(); })) {
        ADD_FAILURE() << "the other process says nothing";
        return {};
    }
    return QString::fromUtf8(m_process.readLine()).trimmed();
}

QStringList OtherProcess::finish()
{
    m_process.closeWriteChannel();
    EXPECT_TRUE(waitUntil([this] { return m_process.state() == QProcess::NotRunning; }));
    EXPECT_EQ(QProcess::NormalExit, m_process.exitStatus());
    EXPECT_EQ(0, m_process.exitCode());
    return linesOf(m_process.readAllStandardOutput());
}

QStringList OtherProcess::kill()
{
    m_process.kill();
    m_process.waitForFinished();
    return linesOf(m_process.readAllStandardOutput());
}

QStringList runElsewhere(const QStringList& arguments)
{
    OtherProcess other(arguments);
    return other.finish();
}

}  // namespace storage
