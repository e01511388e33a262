// What other processes do to a file while the tests of the store look at it:
//
//   storage_test_writer draw-tags FILE COUNT      draws tags from table TAGS; says each
//   storage_test_writer commit-pairs FILE FIRST   writes pairs for ever; says each committed number
//   storage_test_writer churn FILE SEED           changes the loose records of T until its input
//                                                 ends; says "churning", at the end how often
//   storage_test_writer add-slowly FILE COUNT     adds to T now and then; says the longest wait
//   (ms) storage_test_writer hold FILE HOW             BEGIN HOW as another program might; says
//   "held",
//                                                 and rolls back at the next line
//   storage_test_writer redefine FILE             makes and deletes tables until its input ends
//   storage_test_writer define FILE WHAT NAME...  one change to the definition of T
//   storage_test_writer fill FILE BYTES           adds to T under a file size limit; says how many
//                                                 were added, the error, and the error after it
//   storage_test_writer as-nobody FILE            says the errors of opening, reading, writing, and
//                                                 of making a file beside it, for a stranger
#include <sqlite3.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>
#include <csignal>
#include <cstdio>
#include <iostream>
#include <random>

#include "core/storage/storage_error.h"
#include "core/storage/workspace.h"

using namespace storage;

namespace {

Workspace workspace("wksWRITER");

void say(const QString& line)
{
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

template <class Action>
int errorOf(Action action)
{
    try {
        action();
    } catch (const StorageError& error) {
        return error.number();
    }
    return 0;
}

void drawTags(const QString& path, const QStringList& arguments)
{
    for (int i = 0; i < arguments[0].toInt(); ++i) {
        Workspace session("wksMAIN");
        Recordset rs = session.OpenDatabase(path).OpenRecordset("TAGS");
        session.BeginTrans();
        if (rs.RecordCount() == 0) {
            rs.AddNew();
            rs.Update();
        }
        rs.MoveFirst();
        const int tag = qMax(1, rs.fieldNamed("TAG").value().toInt());
        rs.Edit();
        rs.fieldNamed("TAG") = tag + 1;
        rs.Update();
        session.CommitTrans();
        say(QString::number(tag));
    }
}

// Each number once on the left, once on the right and counted in TOTAL, in one transaction; and
// then alone, without one.
void commitPairs(const QString& path, const QStringList& arguments)
{
    const Database database = workspace.OpenDatabase(path);
    Recordset pairs = database.OpenRecordset("PAIRS");
    Recordset total = database.OpenRecordset("TOTAL");
    const auto addTo = [&](const char* side, int number) {
        pairs.AddNew();
        pairs.fieldNamed("SIDE") = side;
        pairs.fieldNamed("NUMBER") = number;
        pairs.fieldNamed("BULK") = QString(number * 37 % 5000, 'x');
        pairs.Update();
    };
    for (int number = arguments[0].toInt();; ++number) {
        workspace.BeginTrans();
        addTo("left", number);
        addTo("right", number);
        total.MoveFirst();
        total.Edit();
        total.fieldNamed("COUNT") = total.fieldNamed("COUNT").value().toInt() + 1;
        total.Update();
        workspace.CommitTrans();
        addTo("alone", number);
        say(QString::number(number));
    }
}

bool inputEnded()
{
    fd_set input;
    FD_ZERO(&input);
    FD_SET(0, &input);
    timeval atOnce{};
    return ::select(1, &input, nullptr, nullptr, &atOnce) > 0;
}

void changeSomething(Recordset& rs, int number, int what)
{
    if (what == 0 || !rs.Seek(">=", number) || rs.fieldNamed("M").value() == Value("steady"))
        rs.AddNew();
    else if (what == 1)
        return rs.Delete();
    else
        rs.Edit();
    rs.fieldNamed("K") = QString(QChar('a' + number % 26));
    rs.fieldNamed("N") = (number * 7) % 30'000;
    rs.fieldNamed("M") = "loose";
    rs.Update();
}

void churn(const QString& path, const QStringList& arguments)
{
    Recordset rs = workspace.OpenDatabase(path).OpenRecordset("T");
    std::mt19937 random(arguments[0].toUInt());
    rs.Index("N");
    int changes = 0;
    say("churning");
    for (; !inputEnded(); ++changes) {
        const int error =
            errorOf([&] { changeSomething(rs, int(random() % 30'000), int(random() % 3)); });
        if (error != 0 && error != 3167)  // another churner may have deleted it
            throw StorageError(ErrorNumber(error), "while churning");
        rs.CancelUpdate();
    }
    say(QString::number(changes));
}

void addSlowly(const QString& path, const QStringList& arguments)
{
    Recordset rs = workspace.OpenDatabase(path).OpenRecordset("T");
    qint64 longest = 0;
    for (int i = 0; i < arguments[0].toInt(); ++i) {
        QThread::msleep(5);
        QElapsedTimer waited;
        waited.start();
        rs.AddNew();
        rs.fieldNamed("K") = "added";
        rs.fieldNamed("N") = 1000 + i;
        rs.Update();
        longest = qMax(longest, waited.elapsed());
    }
    say(QString::number(longest));
}

void hold(const QString& path, const QStringList& arguments)
{
    sqlite3* connection = nullptr;
    sqlite3_open(path.toUtf8().constData(), &connection);
    sqlite3_busy_timeout(connection, 5000);
    const QByteArray begin = "BEGIN " + arguments[0].toUtf8();
    const int code = sqlite3_exec(connection, begin.constData(), nullptr, nullptr, nullptr);
    say(code == SQLITE_OK ? "held" : "not held");
    std::cin.get();
    sqlite3_close(connection);
}

void redefine(const QString& path, const QStringList& /*unused*/)
{
    TableDefs tables = workspace.OpenDatabase(path).TableDefs();
    say("redefining");
    while (!inputEnded()) {
        TableDef table = CreateTableDef("PASSING");
        for (const char* name : {"A", "B", "C"}) {
            table.Fields().Append(CreateField(name, FieldType::Long));
            table.Indexes().Append(CreateIndex(name, {name}));
        }
        tables.Append(table);
        QThread::usleep(300);
        tables.Delete("PASSING");
    }
}

void define(const QString& path, const QStringList& arguments)
{
    const TableDefs tables = workspace.OpenDatabase(path).TableDefs();
    const QString& what = arguments[0];
    const QString& name = arguments[1];
    if (what == "append-field")
        tables["T"].Fields().Append(CreateField(name, FieldType::Long));
    else if (what == "delete-field")
        tables["T"].Fields().Delete(name);
    else if (what == "append-index")
        tables["T"].Indexes().Append(CreateIndex(name, arguments.mid(2)));
    else if (what == "delete-index")
        tables["T"].Indexes().Delete(name);
    else if (what == "delete-table")
        TableDefs(tables).Delete(name);
}

void fill(const QString& path, const QStringList& arguments)
{
    Recordset rs = workspace.OpenDatabase(path).OpenRecordset("T");
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{arguments[0].toULong(), RLIM_INFINITY};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    int added = 0;
    const auto addOne = [&] {
        rs.AddNew();
        rs.fieldNamed("M") = QString(2000, 'x');
        rs.Update();
    };
    int error = 0;
    for (; error == 0; ++added)
        error = errorOf(addOne);
    say(QString::number(added - 1));
    say(QString::number(error));
    const rlimit lifted{RLIM_INFINITY, RLIM_INFINITY};
    ::setrlimit(RLIMIT_FSIZE, &lifted);
    say(QString::number(errorOf(addOne)));
}

void asNobody(const QString& path, const QStringList& /*unused*/)
{
    if (::geteuid() == 0 && ::setuid(65534) != 0)
        return say("still root");
    Recordset rs;
    say(QString::number(errorOf([&] { rs = workspace.OpenDatabase(path).OpenRecordset("T"); })));
    say(QString::number(errorOf([&] { rs.MoveFirst(); })));
    say(QString::number(errorOf([&] {
        rs.Edit();
        rs.fieldNamed("K") = "nobody";
        rs.Update();
    })));
    say(QString::number(errorOf([&] { workspace.CreateDatabase(path + ".new.mdb"); })));
}

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    using Deed = void (*)(const QString&, const QStringList&);
    const std::initializer_list<std::pair<const char*, Deed>> deeds = {
        {"draw-tags", drawTags}, {"commit-pairs", commitPairs},
        {"churn", churn},        {"add-slowly", addSlowly},
        {"hold", hold},          {"redefine", redefine},
        {"define", define},      {"fill", fill},
        {"as-nobody", asNobody}};
    try {
        for (const auto& [name, deed] : deeds)
            if (arguments.value(1) == name) {
                deed(arguments[2], arguments.mid(3));
                return 0;
            }
    } catch (const StorageError& error) {
        std::fprintf(stderr, "%d %s\n", error.number(), error.what());
    }
    return 1;
}
