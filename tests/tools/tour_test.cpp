// What a tour leaves behind, and that it tells what differs.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "tools/tour/road.h"

namespace {

QString contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

TEST(Tour, ARoadThatDiffersSaysSo)
{
    const QTemporaryDir folder;
    Road road(folder.path(), "guide");
    road.begin("A road", "Short.");
    road.step("One step");
    road.check("A number", "7", "7");
    EXPECT_EQ(road.failures(), 0);
    road.check("A name", "Harbor_*", "Coast");
    road.picture("none", QImage(), "nothing");
    EXPECT_EQ(road.checks(), 2);
    EXPECT_EQ(road.failures(), 2) << "a picture that is none is a failure";
    ASSERT_TRUE(road.write());
    const QString page = contentOf(folder.filePath("index.html"));
    EXPECT_TRUE(page.contains("DIFFERS: A name: &quot;Harbor_*&quot; is seen"))
        << page.toStdString();
    const QString guide = contentOf(folder.filePath("guide.md"));
    EXPECT_TRUE(guide.contains("## One step"));
    EXPECT_FALSE(guide.contains("DIFFERS")) << "the guide tells the road alone";
    Road lost(folder.filePath("missing"), "guide");
    EXPECT_FALSE(lost.write());
}

TEST(Tour, LeavesAFolderOfOtherFilesAlone)
{
    const QTemporaryDir folder;
    QFile letter(folder.filePath("letter.txt"));
    ASSERT_TRUE(letter.open(QIODevice::WriteOnly));
    letter.close();
    QProcess tour;
    tour.start(VEXTOUR_PROGRAM, {folder.path()});
    ASSERT_TRUE(tour.waitForFinished());
    EXPECT_EQ(tour.exitCode(), 1);
    EXPECT_TRUE(tour.readAllStandardError().contains("holds other files"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{"letter.txt"});
}

}  // namespace
