// The search window's session over 100,000 vendors: one typed character, and opening with the list
// of a parent's 100,000 records. The bounds are what a user does not notice.
#include <QDir>
#include <QRandomGenerator>

#include "benchmarks/bench_report.h"
#include "benchmarks/bench_site.h"
#include "core/storage/workspace.h"
#include "screens/search/search_session.h"

namespace {

constexpr int rowCount = 100'000;

const BenchGoal typeGoal{.ratio = 1.0, .unit = "ms", .perSecond = 1e-3, .bound = 5};
const BenchGoal openGoal{.ratio = 1.0, .unit = "ms", .perSecond = 1e-3, .bound = 5};

// Evenly spread, so that whatever is typed is found.
QString threeLetters(quint32 number)
{
    QString letters;
    for (int i = 0; i < 3; ++i, number /= 26)
        letters.append(QChar('a' + static_cast<int>(number % 26)));
    return letters;
}

// Vendors, and as many G/L codes of company 2 between two other companies.
const QString& searchFolder()
{
    static const QString folder = [] {
        const QString made = benchScratchFolder();
        storage::Workspace wks = storage::CreateWorkspace("wksVEX");
        const storage::Database db = wks.CreateDatabase(made + "/ZORVEX.mdb");
        wks.BeginTrans();
        for (const schema::Table* table : {&schema::VENDORS, &schema::GLCODES}) {
            storage::TableDef definition = storage::CreateTableDef(storage::definitionOf(*table));
            db.TableDefs().Append(definition);
        }
        storage::Recordset vendors = db.OpenRecordset("VENDORS");
        storage::Recordset codes = db.OpenRecordset("GLCODES");
        for (int i = 0; i < rowCount; ++i) {
            const quint32 mixed = static_cast<quint32>(i) * 2654435761U;
            vendors.AddNew();
            vendors["VENTAG"] = i + 1;
            vendors["VENNO"] = QString::number(i);
            vendors["Name"] = threeLetters(mixed) + " Supply";
            vendors.Update();
            codes.AddNew();
            codes["CONO"] = i == 0 ? 1 : i == 1 ? 3 : 2;
            codes["GLCODE"] = QString("%1").arg(i, 10, 10, QChar('0'));
            codes["Desc"] = QString("Account %1").arg(mixed);
            codes.Update();
        }
        wks.CommitTrans();
        return made;
    }();
    return folder;
}

SearchRequest vendors()
{
    return {.DBPath = searchFolder(),
            .TableName = "VENDORS",
            .IndexList = "VENNAME|VENNO",
            .FieldList = "NAME|VENNO",
            .TypeList = "C|C",
            .LengthList = "40|10",
            .WidthList = "5000|1600"};
}

// Each time another character, and every other time it is taken back.
void typeCharacter(benchmark::State& state)
{
    SearchSession search(vendors());
    if (!search.open())
        state.SkipWithError("the search did not open");
    for (auto _ : state) {
        if (search.SearchText().size() < 3)
            search.type(QChar('a' + static_cast<int>(QRandomGenerator::global()->bounded(26))));
        else
            search.backspace();
        benchmark::DoNotOptimize(search.list().lines().data());
    }
}

void openInParent(benchmark::State& state)
{
    const SearchRequest request{.DBPath = searchFolder(),
                                .TableName = "GLCODES",
                                .IndexList = "GLCODES",
                                .FieldList = "GLCODE|DESC",
                                .TypeList = "C|C",
                                .LengthList = "10|50",
                                .WidthList = "1400|5000",
                                .keys = {{"CONO", 2}}};
    for (auto _ : state) {
        SearchSession search(request);
        if (!search.open() || search.list().isEmpty())
            state.SkipWithError("the search found nothing");
    }
}

}  // namespace

void registerSearchBenchmarks()
{
    registerPair("search_type_character", typeGoal, typeCharacter, nullptr);
    registerPair("search_open_in_parent", openGoal, openInParent, nullptr);
}
