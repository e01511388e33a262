// Several processes in one file: tags drawn, records written while others read. Ours against the
// engine used plainly, with its own busy wait.
#include <sqlite3.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "benchmarks/bench_report.h"
#include "benchmarks/bench_site.h"
#include "core/messages.h"
#include "core/storage/workspace.h"
#include "core/tags.h"

namespace {

constexpr int processCount = 4;
constexpr int tagsEach = 150;
constexpr int commitsEach = 150;

const BenchGoal tagGoal{.ratio = 1.5, .unit = "us/tag", .perSecond = 1e-6, .ownFigure = true};
// What a person at another desk may notice; the baseline's own busy wait lies anywhere between 0.1
// and several seconds.
const BenchGoal waitGoal{
    .ratio = 1.0, .unit = "ms", .perSecond = 1e-3, .bound = 200, .ownFigure = true};
// Turns cost something: the baseline's writers starve each other, and the winner runs unhindered.
const BenchGoal commitGoal{.ratio = 2.0, .unit = "us/commit", .perSecond = 1e-6, .ownFigure = true};

// ---- the processes that the benchmark starts

class NoBoxes : public Messages
{
public:
    Answer show(const Message& message) override
    {
        std::fprintf(stderr, "%s: %s\n", qPrintable(message.title), qPrintable(message.text));
        std::exit(3);
    }
};

sqlite3* openRaw(const QString& file)
{
    sqlite3* db = nullptr;
    sqlite3_open_v2(file.toUtf8().constData(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE,
                    nullptr);
    sqlite3_busy_timeout(db, 60'000);
    sqlite3_exec(db, "PRAGMA journal_mode = TRUNCATE; PRAGMA synchronous = FULL", nullptr, nullptr,
                 nullptr);
    return db;
}

void runRaw(sqlite3* db, const char* sql)
{
    char* message = nullptr;
    if (sqlite3_exec(db, sql, nullptr, nullptr, &message) != SQLITE_OK) {
        std::fprintf(stderr, "%s\n", message);
        std::exit(3);
    }
}

// Runs `work` again and again and tells the longest time in milliseconds that it took.
template <class Work>
void timeEach(int count, Work work)
{
    qint64 longest = 0;
    for (int i = 0; i < count; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        longest = std::max(longest, timer.nsecsElapsed());
    }
    std::printf("%.3f\n", static_cast<double>(longest) * 1e-6);
    std::fflush(stdout);
}

void drawTags(const QString& file, int count)
{
    timeEach(count, [&file] {
        if (dnGetNewTag({}, "PAYTAG", file, "VEXTAGS", 0) == 0)
            std::exit(3);
    });
}

void drawRawTags(const QString& file, int count)
{
    sqlite3* db = openRaw(file);
    timeEach(count, [db] {
        runRaw(db, "BEGIN IMMEDIATE");
        runRaw(db, "SELECT next FROM tags");
        runRaw(db, "UPDATE tags SET next = next + 1");
        runRaw(db, "COMMIT");
    });
    sqlite3_close(db);
}

void writeRows(const QString& file, int count)
{
    storage::Workspace wks = storage::CreateWorkspace("wksVEX");
    storage::Recordset rs = wks.OpenDatabase(file).OpenRecordset("GLCODES");
    for (int i = 0; i < count; ++i) {
        rs.AddNew();
        rs["CONO"] = i % 90;
        rs["GLCODE"] =
            QString::number(QCoreApplication::applicationPid()) + '.' + QString::number(i % 10);
        rs["Desc"] = "Written under contention";
        rs.Update();
    }
}

void writeRawRows(const QString& file, int count)
{
    sqlite3* db = openRaw(file);
    for (int i = 0; i < count; ++i)
        runRaw(db, "INSERT INTO codes VALUES(NULL, 1, '4000-10', 'Written under contention')");
    sqlite3_close(db);
}

[[noreturn]] void readRows(const QString& file)
{
    storage::Workspace wks = storage::CreateWorkspace("wksVEX");
    storage::Recordset rs = wks.OpenDatabase(file).OpenRecordset("GLCODES");
    rs.Index("GLCODES");
    for (;;)
        for (rs.RecordCount() > 0 && rs.MoveFirst(); !rs.EOF(); rs.MoveNext())
            rs["Desc"].value();
}

[[noreturn]] void readRawRows(const QString& file)
{
    sqlite3* db = openRaw(file);
    for (;;)
        runRaw(db, "SELECT * FROM codes ORDER BY code");
}

// ---- the benchmark itself

// Starts processes that say when they are ready and wait for the word.
class Crew
{
public:
    void add(const QString& role, const QString& file, int count)
    {
        auto process = std::make_unique<QProcess>();
        process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process->start(QCoreApplication::applicationFilePath(),
                       {"--worker", role, file, QString::number(count)});
        m_processes.push_back(std::move(process));
    }
    void waitUntilReady()
    {
        for (auto& process : m_processes)
            while (!process->canReadLine() && process->waitForReadyRead(30'000)) {
            }
    }
    void go()
    {
        for (auto& process : m_processes) {
            process->write("go\n");
            process->waitForBytesWritten();
        }
    }
    bool waitUntilDone()
    {
        bool good = true;
        for (auto& process : m_processes)
            good = process->waitForFinished(300'000) && process->exitCode() == 0 && good;
        return good;
    }
    // The longest of what the processes told, in milliseconds.
    double longestTold()
    {
        double longest = 0;
        for (auto& process : m_processes)
            longest = std::max(longest, process->readAll().trimmed().split('\n').last().toDouble());
        return longest;
    }
    void kill()
    {
        for (auto& process : m_processes) {
            process->kill();
            process->waitForFinished();
        }
    }

private:
    std::vector<std::unique_ptr<QProcess>> m_processes;
};

// Lets the crew go; the seconds until the last one was done.
double timeCrew(benchmark::State& state, Crew& crew)
{
    crew.waitUntilReady();
    QElapsedTimer timer;
    timer.start();
    crew.go();
    if (!crew.waitUntilDone())
        state.SkipWithError("a process failed");
    return static_cast<double>(timer.nsecsElapsed()) * 1e-9;
}

QString newFile(const schema::Table& table)
{
    const QString file = benchScratchFolder() + "/ZORVEX.mdb";
    storage::Workspace wks = storage::CreateWorkspace("wksVEX");
    const storage::Database db = wks.CreateDatabase(file);
    storage::TableDef definition = storage::CreateTableDef(storage::definitionOf(table));
    db.TableDefs().Append(definition);
    return file;
}

QString newRawFile(const char* sql)
{
    const QString file = benchScratchFolder() + "/raw.db";
    sqlite3* db = openRaw(file);
    runRaw(db, sql);
    sqlite3_close(db);
    return file;
}

void tags(benchmark::State& state, const QString& role, const QString& file,
          bool tellLongest = false)
{
    for (auto _ : state) {
        Crew crew;
        for (int i = 0; i < processCount; ++i)
            crew.add(role, file, tagsEach);
        const double seconds = timeCrew(state, crew);
        state.SetIterationTime(tellLongest ? crew.longestTold() * 1e-3 : seconds);
    }
    if (!tellLongest)
        state.counters["items"] = processCount * tagsEach;
}

void longestWait(benchmark::State& state)
{
    tags(state, "tags", newFile(schema::VEXTAGS), true);
}

void tagsOurs(benchmark::State& state)
{
    const QString file = newFile(schema::VEXTAGS);
    tags(state, "tags", file);
    storage::Workspace wks = storage::CreateWorkspace("wksVEX");
    const storage::Recordset rs = wks.OpenDatabase(file).OpenRecordset("VEXTAGS");
    if (rs["PAYTAG"].value().toInt() != processCount * tagsEach + 1)
        state.SkipWithError("tags were lost or drawn twice");
}

void tagsBase(benchmark::State& state)
{
    tags(state, "rawtags",
         newRawFile("CREATE TABLE tags(next INTEGER); INSERT INTO tags VALUES(1)"));
}

void commits(benchmark::State& state, const QString& writer, const QString& reader,
             const QString& file)
{
    for (auto _ : state) {
        Crew readers;
        for (int i = 0; i < processCount; ++i)
            readers.add(reader, file, 0);
        readers.waitUntilReady();
        readers.go();
        Crew writers;
        for (int i = 0; i < processCount; ++i)
            writers.add(writer, file, commitsEach);
        state.SetIterationTime(timeCrew(state, writers));
        readers.kill();
    }
    state.counters["items"] = processCount * commitsEach;
}

void commitsOurs(benchmark::State& state)
{
    const QString file = newFile(schema::GLCODES);
    commits(state, "write", "read", file);
    storage::Workspace wks = storage::CreateWorkspace("wksVEX");
    if (wks.OpenDatabase(file).OpenRecordset("GLCODES").RecordCount() != processCount * commitsEach)
        state.SkipWithError("commits were lost");
}

void commitsBase(benchmark::State& state)
{
    commits(state, "rawwrite", "rawread",
            newRawFile("CREATE TABLE codes(id INTEGER PRIMARY KEY AUTOINCREMENT, company INTEGER,"
                       " code TEXT, description TEXT) STRICT;"
                       "CREATE INDEX byCode ON codes(company, code);"
                       "CREATE INDEX byDescription ON codes(company, description)"));
}

}  // namespace

int runContentionWorker(const QStringList& arguments)
{
    const QString role = arguments.value(0);
    const QString file = arguments.value(1);
    const int count = arguments.value(2).toInt();
    NoBoxes boxes;
    Messages::install(&boxes);
    std::puts("ready");
    std::fflush(stdout);
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly) || input.readLine() != "go\n")
        return 2;
    if (role == "tags")
        drawTags(file, count);
    else if (role == "rawtags")
        drawRawTags(file, count);
    else if (role == "write")
        writeRows(file, count);
    else if (role == "rawwrite")
        writeRawRows(file, count);
    else if (role == "read")
        readRows(file);
    else
        readRawRows(file);
    return 0;
}

void registerContentionBenchmarks()
{
    registerPair("store_tags_4_processes", tagGoal, tagsOurs, tagsBase, 3);
    registerPair("store_tag_longest_wait", waitGoal, longestWait, nullptr, 3);
    registerPair("store_commits_4_writers_4_readers", commitGoal, commitsOurs, commitsBase, 3);
}
