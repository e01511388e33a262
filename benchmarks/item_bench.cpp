// The lists in which users work all day: items of a branch of 100,000, and 50,000 purchase orders,
// from the key press to the painted row; and each of the searches for an item.
#include <QApplication>
#include <QKeyEvent>
#include <QTableView>

#include "benchmarks/bench_report.h"
#include "benchmarks/bench_site.h"
#include "core/storage/workspace.h"
#include "inventory/item_search.h"
#include "inventory/items.h"
#include "purchasing/document_list.h"
#include "screens/browse/browse_grid.h"
#include "screens/browse/browse_window.h"
#include "screens/search/search_session.h"

namespace {

constexpr int itemCount = 100'000;
constexpr int orderCount = 50'000;
constexpr int seriesCount = 10;
constexpr int subcategoryCount = 10;

const BenchGoal keyGoal{.ratio = 1.0, .unit = "ms", .perSecond = 1e-3, .bound = 5};
const BenchGoal openGoal{.ratio = 1.0, .unit = "ms", .perSecond = 1e-3, .bound = 80};

void addItems(const storage::Database& file)
{
    storage::Recordset items = file.OpenRecordset("INVENTORY");
    storage::Recordset numbers = file.OpenRecordset("INVPNMASTER");
    for (int i = 1; i <= itemCount; ++i) {
        const quint32 mixed = static_cast<quint32>(i) * 2654435761U;
        const QString number = QString("%1-%2").arg(mixed % 26 + 10).arg(i, 6, 10, QChar('0'));
        items.AddNew();
        items["ISNTAG"] = i;
        items["ILCTAG"] = 1;
        items["SERIESTAG"] = 1 + i % seriesCount;
        items["SUBCATTAG"] = 1 + i % subcategoryCount;
        items["PARTNO"] = number;
        items["MFGPARTNO"] = 'M' + number;
        items["UPCCODE"] = QString::number(mixed);
        items["SHORTDESC"] = QString("%1 VALVE").arg(mixed, 8, 36, QChar('0'));
        items["BINTAG"] = 1;
        items["TAGGED"] = " ";
        items.Update();
        numbers.AddNew();
        numbers["ILCTAG"] = 1;
        numbers["ISNTAG"] = i;
        numbers["ICNTAG"] = 0;
        numbers["PARTNO"] = number;
        numbers.Update();
    }
}

void addOrders(const storage::Database& file)
{
    storage::Recordset orders = file.OpenRecordset("POLIST");
    for (int i = 1; i <= orderCount; ++i) {
        orders.AddNew();
        orders["POTAG"] = i;
        orders["REQTAG"] = 0;
        orders["PONO"] = QString("%1").arg(i, 8, 10, QChar('0'));
        orders["CONO"] = 1;
        orders["JOBNO"] = "    4711";
        orders["VENTAG"] = 1 + i % 100;
        orders["AMOUNT"] = i * 1.25;
        orders["Status"] = i % 3 == 0 ? "Open" : "Closed";
        orders.Update();
    }
    storage::Recordset vendors = file.OpenRecordset("VENDORS");
    for (int i = 1; i <= 100; ++i) {
        vendors.AddNew();
        vendors["VENTAG"] = i;
        vendors["VENNO"] = QString("V%1").arg(i);
        vendors["Name"] = "Harbor Supply";
        vendors.Update();
    }
}

Session makeSite()
{
    Session session;
    session.JobSitePath = session.UserSettingsPath = benchScratchFolder();
    session.SiteTag = 1;
    storage::Workspace wks = storage::CreateWorkspace("wksVEX");
    const QString folder = session.JobSitePath + '/';
    const storage::Database user =
        benchFile(wks, folder + "ZORUSER.mdb",
                  {&schema::VEXSETTINGS, &schema::WINTAG, &schema::WINLIST, &schema::TAGLIST});
    const storage::Database file =
        benchFile(wks, folder + "ZORVEX.mdb",
                  {&schema::INVENTORY, &schema::INVCATALOG, &schema::INVPNMASTER, &schema::ILCLIST,
                   &schema::SERIESCODES, &schema::SUBCATEGORIES, &schema::BINLIST, &schema::POLIST,
                   &schema::VENDORS});
    wks.BeginTrans();
    storage::Recordset branches = file.OpenRecordset("ILCLIST");
    branches.AddNew();
    branches["ILCTAG"] = 1;
    branches["ILCCODE"] = "01";
    branches.Update();
    storage::Recordset settings = user.OpenRecordset("VEXSETTINGS");
    settings.AddNew();
    settings["DBTAG"] = 1;
    settings["ILCTAG"] = 1;
    settings.Update();
    addItems(file);
    addOrders(file);
    wks.CommitTrans();
    return session;
}

const Session& session()
{
    static const Session made = makeSite();
    return made;
}

// In the middle of the list.
BrowseWindow& windowOf(BrowseSpec (*spec)())
{
    static QHash<BrowseSpec (*)(), BrowseWindow*> windows;
    BrowseWindow*& window = windows[spec];
    if (!window) {
        window = new BrowseWindow(spec(), {.session = session(), .mode = {}, .desktop = {}});
        window->resize(1280, 700);
        window->show();
        window->session().list().showAt(20'000);
        window->grid().refresh();
        QApplication::processEvents();
    }
    return *window;
}

template <BrowseSpec (*spec)()>
void pressKeys(benchmark::State& state)
{
    QWidget* rows = windowOf(spec).grid().view();
    static constexpr Qt::Key keys[] = {Qt::Key_PageDown, Qt::Key_Down, Qt::Key_Down,
                                       Qt::Key_PageUp,   Qt::Key_Up,   Qt::Key_Up};
    size_t next = 0;
    for (auto _ : state) {
        QKeyEvent press(QEvent::KeyPress, keys[next++ % std::size(keys)], Qt::NoModifier);
        QApplication::sendEvent(rows, &press);
        QApplication::processEvents();
    }
}

template <BrowseSpec (*spec)()>
void openScreen(benchmark::State& state)
{
    session();
    for (auto _ : state) {
        BrowseWindow window(spec(), {.session = session(), .mode = {}, .desktop = {}});
        window.resize(1280, 700);
        window.show();
        QApplication::processEvents();
        if (window.session().list().isEmpty())
            state.SkipWithError("the list is empty");
    }
}

// In each of the eight ways in turn: a character typed, and taken back every other time.
void typeInSearches(benchmark::State& state)
{
    std::vector<std::unique_ptr<SearchSession>> searches;
    for (int way = 1; way <= 8; ++way) {
        searches.push_back(std::make_unique<SearchSession>(
            itemSearchRequest(way, branchItems, session(),
                              {.level = 2, .ILCTAG = 1, .SERIESTAG = 1, .SUBCATTAG = 1})));
        if (!searches.back()->open() || searches.back()->list().isEmpty())
            state.SkipWithError("a search found nothing");
    }
    size_t step = 0;
    for (auto _ : state) {
        SearchSession& search = *searches[step % searches.size()];
        if (++step / searches.size() % 2 == 0)
            search.type(QChar('1'));
        else
            search.backspace();
        benchmark::DoNotOptimize(search.list().lines().data());
    }
}

void openSearches(benchmark::State& state)
{
    int way = 0;
    for (auto _ : state) {
        SearchSession search(
            itemSearchRequest(way++ % 8 + 1, branchItems, session(),
                              {.level = 2, .ILCTAG = 1, .SERIESTAG = 1, .SUBCATTAG = 1}));
        if (!search.open())
            state.SkipWithError("a search did not open");
    }
}

}  // namespace

void registerItemBenchmarks()
{
    registerPair("item_browse_key_100000", keyGoal, pressKeys<frmVEXINV01>, nullptr);
    registerPair("item_browse_open_100000", openGoal, openScreen<frmVEXINV01>, nullptr);
    registerPair("item_searches_type_100000", keyGoal, typeInSearches, nullptr);
    registerPair("item_searches_open_100000", keyGoal, openSearches, nullptr);
    registerPair("order_browse_key_50000", keyGoal, pressKeys<frmVEXPO01>, nullptr);
    registerPair("order_browse_open_50000", openGoal, openScreen<frmVEXPO01>, nullptr);
}
