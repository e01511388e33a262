// Another program on the same file: storage_test_writer, spoken to by lines.
#pragma once

#include <QProcess>
#include <QString>

namespace storage {

class OtherProcess
{
public:
    // Starts it; the first argument is what it shall do (see storage_test_writer.cpp).
    explicit OtherProcess(const QStringList& arguments);
    ~OtherProcess();
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    void say(const QString& line);
    // The next line that it says; a failure of the test and "" when none comes in time.
    QString hear();
    // Waits until it has come to its end, with success; the lines that were not heard yet.
    QStringList finish();
    // Ends it on the spot, wherever it stands; what it had said.
    QStringList kill();

private:
    QProcess m_process;
};

// Runs it to its end.
QStringList runElsewhere(const QStringList& arguments);

}  // namespace storage
