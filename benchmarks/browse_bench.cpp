// A browse screen on the screen: from the key press to the painted row, in a long list and a short
// one, and opening the screen of the G/L codes.
#include <QApplication>
#include <QKeyEvent>
#include <QTableView>

#include "benchmarks/bench_report.h"
#include "benchmarks/bench_site.h"
#include "core/storage/workspace.h"
#include "cost/gl_codes.h"
#include "screens/browse/browse_grid.h"
#include "screens/browse/browse_window.h"

namespace {

constexpr int longList = 500'000;
constexpr int shortList = 500;

const BenchGoal keyGoal{.ratio = 1.0, .unit = "ms", .perSecond = 1e-3, .bound = 5};
const BenchGoal lengthGoal{.ratio = 1.5, .unit = "ms", .perSecond = 1e-3};
const BenchGoal openGoal{.ratio = 1.0, .unit = "ms", .perSecond = 1e-3, .bound = 60};

// Company 2 has the long list, company 1 the short one.
Session makeSite()
{
    Session session;
    session.JobSitePath = session.UserSettingsPath = benchScratchFolder();
    session.SiteTag = 1;
    storage::Workspace wks = storage::CreateWorkspace("wksVEX");
    const QString folder = session.JobSitePath + '/';
    const storage::Database main = benchFile(wks, folder + "MAIN.mdb", {&schema::COLIST});
    const storage::Database user = benchFile(wks, folder + "ZORUSER.mdb", {&schema::VEXSETTINGS});
    const storage::Database lists = benchFile(wks, folder + "ZORVEX.mdb", {&schema::GLCODES});
    wks.BeginTrans();
    storage::Recordset companies = main.OpenRecordset("COLIST");
    for (const int company : {1, 2}) {
        companies.AddNew();
        companies["CONO"] = company;
        companies["CONAME"] = "Builders";
        companies.Update();
    }
    storage::Recordset settings = user.OpenRecordset("VEXSETTINGS");
    settings.AddNew();
    settings["DBTAG"] = 1;
    settings["CONO"] = 2;
    settings.Update();
    wks.CommitTrans();
    wks.BeginTrans();
    storage::Recordset codes = lists.OpenRecordset("GLCODES");
    for (int i = 0; i < longList + shortList; ++i) {
        codes.AddNew();
        codes["CONO"] = i < shortList ? 1 : 2;
        codes["GLCODE"] = QString("%1").arg(i, 10, 10, QChar('0'));
        codes["Desc"] = QString("Account %1").arg(i);
        codes.Update();
    }
    wks.CommitTrans();
    return session;
}

const Session& session()
{
    static const Session made = makeSite();
    return made;
}

BrowseWindow& windowOf(int company)
{
    static QHash<int, BrowseWindow*> windows;
    BrowseWindow*& window = windows[company];
    if (!window) {
        window = new BrowseWindow(frmVEXGLC01(), {.session = session(), .mode = {}, .desktop = {}});
        window->resize(900, 640);
        window->show();
        window->session().setParent({{"CONO", company}});
        window->session().list().showAt((company == 1 ? shortList : longList) / 2);
        window->grid().refresh();
        QApplication::processEvents();
    }
    return *window;
}

// Rows and pages down and up again, each painted before the next key.
void pressKeys(benchmark::State& state, int company)
{
    QWidget* rows = windowOf(company).grid().view();
    static constexpr Qt::Key keys[] = {Qt::Key_PageDown, Qt::Key_Down, Qt::Key_Down,
                                       Qt::Key_PageUp,   Qt::Key_Up,   Qt::Key_Up};
    size_t next = 0;
    for (auto _ : state) {
        QKeyEvent press(QEvent::KeyPress, keys[next++ % std::size(keys)], Qt::NoModifier);
        QApplication::sendEvent(rows, &press);
        QApplication::processEvents();
    }
}

void keysInLongList(benchmark::State& state)
{
    pressKeys(state, 2);
}
void keysInShortList(benchmark::State& state)
{
    pressKeys(state, 1);
}

void openScreen(benchmark::State& state)
{
    session();
    for (auto _ : state) {
        BrowseWindow window(frmVEXGLC01(), {.session = session(), .mode = {}, .desktop = {}});
        window.show();
        QApplication::processEvents();
    }
}

}  // namespace

void registerBrowseBenchmarks()
{
    registerPair("browse_key_500000_rows", keyGoal, keysInLongList, nullptr);
    registerPair("browse_key_long_to_short", lengthGoal, keysInLongList, keysInShortList);
    registerPair("browse_open_frmVEXGLC01", openGoal, openScreen, nullptr);
}
