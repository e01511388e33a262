// Paths as they stand in the files: without extension, with backslashes, capitals, drive letters.
#include "core/storage/file_paths.h"

#include <QDir>

#include "store_fixture.h"

namespace storage {
namespace {

class FilePaths : public StoreTest
{
protected:
    FilePaths()
    {
        QDir::setCurrent(m_folder.path());
        QDir().mkpath("drives/c/Zordata/site");
        makeDatabase(workspace, pathOf("drives/c/Zordata/site/ZORVEX.mdb"), "T",
                     {CreateField("K", FieldType::Text, 5)});
    }
    ~FilePaths() override { QDir::setCurrent("/"); }

    bool opens(const QString& stored)
    {
        return elsewhere.OpenDatabase(stored).Name() == nativePath("C:/Zordata/site/ZORVEX.mdb");
    }
};

TEST_F(FilePaths, AllFormsOfAPathMeanTheSameFile)
{
    for (const char* stored : {R"(C:\Zordata\site\ZORVEX.mdb)", R"(c:\ZORDATA\SITE\ZORVEX)",
                               "C:/ZorData/Site/zorvex.MDB", R"( C:\Zordata\site\ZORVEX )",
                               R"(C:\Zordata\\site\.\ZORVEX)", R"(drives\C\zordata\site\zorvex)",
                               R"(C:Zordata\site\ZORVEX)"})
        EXPECT_TRUE(opens(stored)) << stored;
    EXPECT_TRUE(opens(pathOf(R"(drives\c\ZORDATA\site\zorvex)")));
    QDir::setCurrent("drives/c/Zordata/site");
    EXPECT_EQ("ZORVEX.mdb", QFileInfo(elsewhere.OpenDatabase("ZORVEX").Name()).fileName());
    EXPECT_EQ(3044, errorOf([&] { elsewhere.OpenDatabase(R"(X:\ZORDATA\ZORVEX)"); }));
    EXPECT_EQ(3044, errorOf([&] { elsewhere.OpenDatabase(R"(\\server\share\ZORVEX)"); }));
}

TEST_F(FilePaths, TheExactNameComesFirstThenTheFirstThatDiffersInCase)
{
    EXPECT_EQ(pathOf("drives/c/Zordata"), nativePath(R"(C:\ZORDATA)"));
    QDir().mkpath("drives/c/ZORData");
    EXPECT_EQ(pathOf("drives/c/ZORData"), nativePath(R"(C:\zordata)"));
    QDir().mkpath("drives/c/zordata");
    EXPECT_EQ(pathOf("drives/c/zordata"), nativePath(R"(C:\zordata)"));
    EXPECT_EQ(pathOf("drives/c/Zordata/site/NEW.mdb"), nativePath(R"(C:\Zordata\SITE\NEW.mdb)"));
    QDir().mkpath("drives/c/Zordata/SITE");
    EXPECT_EQ(pathOf("drives/c/Zordata/SITE/NEW.mdb"), nativePath(R"(C:\Zordata\SITE\NEW.mdb)"))
        << "a folder made meanwhile";
    EXPECT_TRUE(pathExists(R"(C:\Zordata\site)"));
    EXPECT_FALSE(pathExists(R"(C:\Zordata\none)"));
    EXPECT_FALSE(pathExists(" "));
}

TEST_F(FilePaths, JoiningKeepsTheFoldersOwnSeparator)
{
    EXPECT_EQ(R"(C:\A\B.mdb)", joinPath(R"(C:\A)", "B.mdb"));
    EXPECT_EQ(R"(C:\B.mdb)", joinPath("C:", "B.mdb"));
    EXPECT_EQ(R"(C:\B.mdb)", joinPath(R"(C:\)", "B.mdb"));
    EXPECT_EQ("/a/B.mdb", joinPath("/a ", "B.mdb"));
    EXPECT_EQ("B.mdb", joinPath("  ", "B.mdb"));
}

}  // namespace
// Every absolute path that an entry field put in capitals begins there.
TEST_F(FilePaths, FoldersOfTheRootAreFoundWithoutRegardToCase)
{
    EXPECT_EQ(nativePath("/TMP/" + QString(40, 'x')), "/tmp/" + QString(40, 'x'));
    EXPECT_EQ(nativePath("/TMP"), "/tmp");
}

}  // namespace storage
