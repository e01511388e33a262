#include <gtest/gtest.h>

#include "tests/tools/vexsite_run.h"

namespace {

TEST(Vexsite, RefusesWrongUsageWithItsOwnExitCode)
{
    const QTemporaryDir folder;
    const QString inside = folder.filePath("new");
    const std::vector<QStringList> wrong = {
        {},
        {"nonsense"},
        {"create"},
        {"create", inside, "more"},
        {"create", inside, "--colour"},
        {"create", inside, "--site", "###"},
        {"site", inside},
        {"demo", inside, "--scale", "0"},
        {"demo", inside, "--scale", "many"},
        {"demo", inside, "--scale", "1000"},
        {"demo", inside, "--seed", "-1"},
        {"check"},
        {"check", " "},
        {"backup", inside},
        {"backup", inside, "file", "--wait", "soon"},
        {"restore", "file"},
    };
    for (const QStringList& arguments : wrong) {
        const VexsiteRun run = vexsite(arguments);
        EXPECT_EQ(run.exitCode, 2) << qPrintable(arguments.join(' '));
        EXPECT_FALSE(run.errors.isEmpty()) << qPrintable(arguments.join(' '));
        EXPECT_EQ(run.output, QString()) << qPrintable(arguments.join(' '));
    }
}

TEST(Vexsite, TellsOfEachCommand)
{
    const VexsiteRun overview = vexsite({"--help"});
    EXPECT_EQ(overview.exitCode, 0);
    for (const char* command : {"create", "site", "demo", "check", "backup", "restore", "schema"}) {
        EXPECT_TRUE(overview.output.contains(QString("\n  %1 ").arg(command))) << command;
        const VexsiteRun help = vexsite({command, "--help"});
        EXPECT_EQ(help.exitCode, 0) << command;
        EXPECT_TRUE(help.output.startsWith(QString("Usage: vexsite ") + command)) << command;
    }
}

TEST(Vexsite, FailsWhereThereIsNoInstallation)
{
    const QTemporaryDir folder;
    EXPECT_EQ(vexsite({"site", folder.filePath("none"), "X"}).exitCode, 1);
    EXPECT_EQ(vexsite({"site", folder.path(), "X"}).exitCode, 1);
    EXPECT_EQ(vexsite({"backup", folder.path(), folder.filePath("copy.zip")}).exitCode, 1);
    EXPECT_EQ(vexsite({"restore", folder.filePath("none.zip"), folder.path()}).exitCode, 1);
    EXPECT_EQ(vexsite({"check", folder.filePath("none")}).exitCode, 1);
    // An empty folder is an installation of which everything is missing.
    const VexsiteRun checked = vexsite({"check", folder.path()});
    EXPECT_EQ(checked.exitCode, 1);
    EXPECT_TRUE(checked.output.contains("VEXPATH.mdb: the file is missing"));
}

}  // namespace
