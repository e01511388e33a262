#include "tools/command.h"

#include <QCommandLineParser>
#include <QDir>
#include <cstdio>

Arguments::Arguments(const QStringList& arguments, const QString& description,
                     const QStringList& names, const QList<QCommandLineOption>& options)
    : m_parser(std::make_unique<QCommandLineParser>())
{
    m_parser->setApplicationDescription(description);
    m_parser->addOption({{"h", "help"}, "Tells this."});
    m_parser->addOptions(options);
    for (const QString& name : names)
        m_parser->addPositionalArgument(name, QString());
    if (!m_parser->parse(arguments))
        throw UsageError(m_parser->errorText());
    if (m_parser->isSet("help")) {
        // The parser knows the program by its file and nothing of commands.
        const QString help = "Usage: " + arguments[0] + " [options] " + names.join(' ') +
                             m_parser->helpText().section('\n', 1).prepend('\n');
        std::fputs(help.toLocal8Bit().constData(), stdout);
        std::fflush(stdout);
        std::exit(exitDone);
    }
    const QStringList given = m_parser->positionalArguments();
    if (given.size() < names.size())
        throw UsageError(names[given.size()] + " is missing.");
    if (given.size() > names.size())
        throw UsageError("What is '" + given[names.size()] + "' for?");
    for (qsizetype i = 0; i < names.size(); ++i)
        if (given[i].trimmed().isEmpty())
            throw UsageError(names[i] + " is empty.");
}

Arguments::~Arguments() = default;

QString Arguments::operator[](int position) const
{
    return m_parser->positionalArguments().at(position);
}

bool Arguments::isSet(const QString& option) const
{
    return m_parser->isSet(option);
}

QString Arguments::text(const QString& option) const
{
    return m_parser->value(option);
}

qint64 Arguments::number(const QString& option, qint64 least, qint64 most) const
{
    bool ok = false;
    const qint64 number = m_parser->value(option).toLongLong(&ok);
    if (!ok || number < least || number > most)
        throw UsageError(
            QString("--%1 takes a whole number from %2 to %3.").arg(option).arg(least).arg(most));
    return number;
}

void say(const QString& line)
{
    std::puts(line.toLocal8Bit().constData());
}

void complain(const QString& line)
{
    std::fprintf(stderr, "%s\n", line.toLocal8Bit().constData());
}

void enterInstallation(const QString& folder)
{
    if (!QDir::setCurrent(folder))
        throw CommandFailure("There is no folder " + folder + '.');
}
