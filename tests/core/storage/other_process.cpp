#include "other_process.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

namespace storage {
namespace {

constexpr int patienceMilliseconds = 40'000;

QStringList linesOf(const QByteArray& output)
{
    return QString::fromUtf8(output).split('\n', Qt::SkipEmptyParts);
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
    while (!m_process.canReadLine())
        if (!m_process.waitForReadyRead(patienceMilliseconds)) {
            ADD_FAILURE() << "the other process says nothing";
            return {};
        }
    return QString::fromUtf8(m_process.readLine()).trimmed();
}

QStringList OtherProcess::finish()
{
    m_process.closeWriteChannel();
    EXPECT_TRUE(m_process.state() == QProcess::NotRunning ||
                m_process.waitForFinished(patienceMilliseconds));
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
