#include "benchmarks/bench_site.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>

#include "core/storage/workspace.h"

namespace {

constexpr int linesAnOrder = 5;
constexpr int rowsACommit = 20'000;

storage::TableDefinition lineItemsWithBenchIndex()
{
    storage::TableDefinition lines = storage::definitionOf(schema::RQILIST);
    lines.indexes.push_back(storage::CreateIndex("BENCH3", {"POTAG", "POITEMNO", "POLINENO"}));
    return lines;
}

void addLine(storage::Recordset& rs, int i)
{
    const int order = i / linesAnOrder + 1;
    const int item = i % linesAnOrder + 1;
    const quint32 mixed = static_cast<quint32>(i) * 2654435761U;
    rs.AddNew();
    rs["RQITAG"] = i + 1;
    rs["REQTAG"] = order / 2;
    rs["POTAG"] = order;
    rs["REQITEMNO"] = item;
    rs["POITEMNO"] = item;
    rs["REQLINENO"] = item;
    rs["POLINENO"] = item;
    rs["ISNTAG"] = static_cast<int>(mixed % 2000);
    rs["QTY"] = static_cast<double>(mixed % 400) / 4;
    rs["UNIT"] = "EA";
    rs["Desc"] = QString("Steel bracket %1 mm, zinc plated").arg(mixed % 997);
    rs["SHORTDESC"] = QString("Steel bracket %1 mm").arg(mixed % 997);
    rs["UNITPRICE"] = static_cast<double>(mixed % 90000) / 100;
    rs["AMOUNT"] = static_cast<double>(mixed % 9000000) / 100;
    rs["COSTCODEA"] = QString("     %1").arg(mixed % 90000, 5);
    rs["GLCODE"] = "4000-10";
    rs["ADDNAME"] = "buyer";
    rs["ADDDATE"] = "03/07/2026";
    rs.Update();
}

void makeLines(const QString& path)
{
    std::fprintf(stderr, "making %d line items in %s\n", benchLineCount, qPrintable(path));
    storage::Workspace wks = storage::CreateWorkspace("wksVEX");
    const storage::Database db = wks.CreateDatabase(path);
    wks.BeginTrans();
    for (const schema::Table* table : schema::ZORVEX_file) {
        storage::TableDef definition = storage::CreateTableDef(
            table == &schema::RQILIST ? lineItemsWithBenchIndex() : storage::definitionOf(*table));
        db.TableDefs().Append(definition);
    }
    wks.CommitTrans();
    storage::Recordset rs = db.OpenRecordset("RQILIST");
    for (int i = 0; i < benchLineCount; ++i) {
        if (i % rowsACommit == 0) {
            if (i > 0)
                wks.CommitTrans();
            wks.BeginTrans();
        }
        addLine(rs, i);
    }
    wks.CommitTrans();
}

}  // namespace

const QString& benchLinesFile()
{
    static const QString path = [] {
        const QString folder = QCoreApplication::applicationDirPath() + "/data";
        const QString finished = folder + "/lines_of_3_keys/ZORVEX.mdb";
        if (!QFile::exists(finished)) {
            // Made under another name first: an interrupted run leaves nothing that looks whole.
            QDir(folder + "/unfinished").removeRecursively();
            QDir().mkpath(folder + "/unfinished");
            makeLines(folder + "/unfinished/ZORVEX.mdb");
            QDir().rename(folder + "/unfinished", folder + "/lines_of_3_keys");
        }
        return finished;
    }();
    return path;
}

storage::Database benchFile(storage::Workspace& workspace, const QString& path,
                            std::initializer_list<const schema::Table*> tables)
{
    const storage::Database file = workspace.CreateDatabase(path);
    for (const schema::Table* table : tables) {
        storage::TableDef definition = storage::CreateTableDef(storage::definitionOf(*table));
        file.TableDefs().Append(definition);
    }
    return file;
}

QString benchScratchFolder()
{
    static const QTemporaryDir folder;
    static int number = 0;
    const QString path = folder.filePath(QString::number(++number));
    QDir().mkpath(path);
    return path;
}
