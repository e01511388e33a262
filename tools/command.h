// The commands of vexsite. Each reads its arguments, does its work and gives the exit code.
#pragma once

#include <QStringList>
#include <optional>
#include <stdexcept>

class QCommandLineOption;
class QCommandLineParser;

enum ExitCode { exitDone = 0, exitFailed = 1, exitUsage = 2 };

// Something that keeps a command from doing its work, told to the user in one line.
class CommandFailure : public std::runtime_error
{
public:
    explicit CommandFailure(const QString& text) : std::runtime_error(text.toStdString()) {}
};

// The arguments are not what the command takes; the text says what is wrong.
class UsageError : public CommandFailure
{
public:
    using CommandFailure::CommandFailure;
};

struct Command
{
    const char* name;
    const char* summary;
    int (*run)(const QStringList& arguments);  // [0] is "vexsite NAME"
};

int runCreate(const QStringList& arguments);
int runSite(const QStringList& arguments);
int runDemo(const QStringList& arguments);
int runCheck(const QStringList& arguments);
int runBackup(const QStringList& arguments);
int runRestore(const QStringList& arguments);
int runSchema(const QStringList& arguments);

// A command's positional arguments, by `names` ("FOLDER", "NAME"), and its options.
class Arguments
{
public:
    // Throws UsageError for too few or too many and for unknown options; ends the process with the
    // help text when that is asked for.
    Arguments(const QStringList& arguments, const QString& description, const QStringList& names,
              const QList<QCommandLineOption>& options);
    ~Arguments();

    QString operator[](int position) const;
    bool isSet(const QString& option) const;
    QString text(const QString& option) const;
    // A whole number within the limits, otherwise UsageError.
    qint64 number(const QString& option, qint64 least, qint64 most) const;

private:
    std::unique_ptr<QCommandLineParser> m_parser;
};

// One line to the standard output, or to the standard error.
void say(const QString& line);
void complain(const QString& line);

// The login name of whoever runs the command, by which the program will know them.
QString ownLoginName();

// Makes the installation's folder the current one, as it is for the program, so that the relative
// paths in its files mean the same. Fails when there is no such folder.
void enterInstallation(const QString& folder);
