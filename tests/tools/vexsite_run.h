// Runs the program itself, as an administrator does.
#pragma once

#include <QProcess>
#include <QTemporaryDir>

struct VexsiteRun
{
    int exitCode = -1;
    QString output;
    QString errors;
};

inline VexsiteRun vexsite(const QStringList& arguments)
{
    QProcess process;
    process.start(VEXSITE_PROGRAM, arguments);
    if (!process.waitForFinished(100'000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromLocal8Bit(process.readAllStandardOutput()),
            QString::fromLocal8Bit(process.readAllStandardError())};
}

// An installation of one job site, SOUTH YARD, in a temporary folder.
class MadeInstallation
{
public:
    MadeInstallation()
        : m_made(vexsite({"create", folder(), "--site", "South Yard", "--user", "pat"}))
    {
    }

    QString folder() const { return m_folder.filePath("made"); }
    QString file(const QString& name) const { return folder() + '/' + name; }
    QString siteFile(const QString& name) const { return file("ZORDATA/SOUTH_YARD/" + name); }
    // Beside the installation.
    QString beside(const QString& name) const { return m_folder.filePath(name); }
    const VexsiteRun& made() const { return m_made; }

private:
    QTemporaryDir m_folder;
    VexsiteRun m_made;
};
