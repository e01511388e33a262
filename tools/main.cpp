// vexsite: makes, fills, checks and copies installations of the Vexley Module.

#include <QCoreApplication>

#include "core/messages.h"
#include "core/storage/storage_error.h"
#include "tools/command.h"

namespace {

constexpr Command commands[] = {
    {"create", "make an installation with a first job site", runCreate},
    {"site", "add a job site to an installation", runSite},
    {"demo", "make an installation and fill it with a contractor's data", runDemo},
    {"check", "check the files of an installation for damage and against the schema", runCheck},
    {"backup", "pack a consistent copy of an installation or of a job site", runBackup},
    {"restore", "unpack a backup and check what it holds", runRestore},
    {"schema", "write the page that tells every table", runSchema},
};

// Boxes of shared routines become lines. Nobody is there to answer a question: the answer is no.
class ConsoleMessages : public Messages
{
public:
    Answer show(const Message& message) override
    {
        complain(message.title + ": " + QString(message.text).replace('\n', ' '));
        return message.buttons == Buttons::Ok         ? Answer::Ok
               : message.buttons == Buttons::OkCancel ? Answer::Cancel
                                                      : Answer::No;
    }
};

QString overview()
{
    QString text = "Usage: vexsite COMMAND ...\n\n";
    for (const Command& command : commands)
        text += QString("  %1 %2\n").arg(command.name, -8).arg(command.summary);
    return text +
           "\nvexsite COMMAND --help tells more of one. Exit codes: 0 done, 1 failed or "
           "something found, 2 wrong usage.";
}

int run(const Command& command, QStringList arguments)
{
    arguments.removeFirst();
    arguments[0] = QString("vexsite ") + command.name;
    try {
        return command.run(arguments);
    } catch (const UsageError& error) {
        complain(QString("vexsite %1: %2 See vexsite %1 --help.").arg(command.name, error.what()));
        return exitUsage;
    } catch (const CommandFailure& error) {
        complain(QString("vexsite %1: %2").arg(command.name, error.what()));
    } catch (const storage::StorageError& error) {
        complain(QString("vexsite %1: %2 (%3)")
                     .arg(command.name, error.description())
                     .arg(error.number()));
    }
    return exitFailed;
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("vexsite");
    ConsoleMessages messages;
    Messages::install(&messages);

    const QStringList arguments = QCoreApplication::arguments();
    const QString name = arguments.value(1);
    if (name == "--help" || name == "-h" || name == "help") {
        say(overview());
        return exitDone;
    }
    for (const Command& command : commands)
        if (name == command.name)
            return run(command, arguments);
    complain(name.isEmpty() ? QString("vexsite: which command?")
                            : "vexsite: there is no command '" + name + "'.");
    complain(overview());
    return exitUsage;
}
