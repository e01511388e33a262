// The house rules that a compiler does not see, held against every source file.
#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>

namespace {

struct Source
{
    QString path;  // below the project's folder
    QString text;
};

const std::vector<Source>& sources()
{
    static const std::vector<Source> all = [] {
        std::vector<Source> found;
        const QString top = PROJECT_FOLDER;
        for (const char* room :
             {"app", "core", "multiuser", "screens", "cost", "purchasing", "receiving", "inventory",
              "reports", "interchange", "utilities", "tools", "tests", "benchmarks"}) {
            QDirIterator files(top + '/' + room, {"*.h", "*.cpp"}, QDir::Files,
                               QDirIterator::Subdirectories);
            while (files.hasNext()) {
                QFile file(files.next());
                if (file.open(QIODevice::ReadOnly))
                    found.push_back(
                        {file.fileName().mid(top.size() + 1), QString::fromUtf8(file.readAll())});
            }
        }
        return found;
    }();
    return all;
}

QString roomOf(const QString& path)
{
    for (const char* inner : {"core/schema", "core/storage", "screens/report", "tools/tour"})
        if (path.startsWith(QString(inner) + '/'))
            return inner;
    return path.section('/', 0, 0);
}

// A room includes itself and rooms of a lower floor. The domain rooms stand side by side.
int floorOf(const QString& room)
{
    static const QHash<QString, int> floors = {
        {"core/schema", 0}, {"core/storage", 1}, {"core", 2},
        {"multiuser", 3},   {"screens", 4},      {"screens/report", 4},
        {"cost", 5},        {"purchasing", 5},   {"receiving", 5},
        {"inventory", 5},   {"reports", 5},      {"interchange", 5},
        {"utilities", 5},   {"app", 6},          {"tools", 6},
        {"tools/tour", 7},  {"tests", 8},        {"benchmarks", 8},
    };
    return floors.value(room, -1);
}

QStringList includesOf(const Source& source, const char* pattern)
{
    QStringList found;
    auto matches =
        QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(source.text);
    while (matches.hasNext())
        found.append(matches.next().captured(1));
    return found;
}

TEST(Rooms, IncludeOnlyThemselvesAndWhatIsBelow)
{
    ASSERT_GT(sources().size(), 50U);
    for (const Source& source : sources()) {
        const int own = floorOf(roomOf(source.path));
        ASSERT_GE(own, 0) << qPrintable(source.path);
        for (const QString& include : includesOf(source, "^#include \"([^\"]+)\"")) {
            if (!include.contains('/'))
                continue;  // a neighbour in the same folder
            const int other = floorOf(roomOf(include));
            const bool neighbours = other == own && (own == 4 || own == 5);
            EXPECT_TRUE(other >= 0 &&
                        (other < own || neighbours || roomOf(include) == roomOf(source.path)))
                << qPrintable(source.path) << " includes " << qPrintable(include);
        }
    }
}

TEST(Rooms, WithoutWidgetsKnowTheCoreLibraryAlone)
{
    static const QRegularExpression widgets(
        "^#include <(Qt(Widgets|Gui|PrintSupport)|Q(Widget|Dialog|Main|Mdi|Message|Painter|Font|"
        "Key|Mouse|Table|Line|Label|Push|Menu|Action|Application)\\w*)",
        QRegularExpression::MultilineOption);
    for (const Source& source : sources()) {
        if (floorOf(roomOf(source.path)) <= 3) {
            EXPECT_FALSE(source.text.contains(widgets)) << qPrintable(source.path);
        }
    }
}

TEST(Rooms, LetOnlyTheDriverSeeTheEngine)
{
    for (const Source& source : sources()) {
        if (!includesOf(source, "^#include <(sqlite3.h)>").isEmpty()) {
            EXPECT_TRUE(source.path.startsWith("core/storage/sqlite_") ||
                        source.path.startsWith("benchmarks/") ||
                        source.path.startsWith("tests/core/storage/"))
                << qPrintable(source.path);
        }
    }
}

TEST(Rooms, ShowBoxesOnlyThroughTheSeam)
{
    for (const Source& source : sources()) {
        // The tour reads boxes, as tests do.
        if (source.path.startsWith("tests/") || source.path.startsWith("tools/tour/"))
            continue;
        for (const char* box : {"QMessageBox", "QFileDialog", "QPrintDialog", "QInputDialog"}) {
            if (source.text.contains(box)) {
                EXPECT_TRUE(source.path.startsWith("screens/qt_"))
                    << qPrintable(source.path) << box;
            }
        }
    }
}

}  // namespace
