// Screens of one record and lists side by side, driven by their keys.
#include "screens/data/data_window.h"
#include "core/window_registry.h"
#include "screens/browse/browse_grid.h"
#include "screens/browse/browse_window.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"
#include "tests/support/window_helpers.h"

namespace {

class DataWindows : public testing::Test
{
protected:
    DataWindows()
    {
        context.session.JobSitePath = site.siteFolder();
        context.session.UserSettingsPath = site.userFolder();
        context.session.UserName = TestInstallation::userName;
        for (const char* table : {"ILCLIST", "SERIESCODES"})
            site.emptyTable("ZORVEX.mdb", table);
        for (const auto& [tag, code] : {std::pair{1, "A"}, {2, "B"}})
            site.addRow("ZORVEX.mdb", "ILCLIST",
                        {{"ILCTAG", tag}, {"ILCCODE", code}, {"ILCNAME", "x"}});
        site.addRow("ZORVEX.mdb", "SERIESCODES",
                    {{"ILCTAG", 2}, {"SERIESTAG", 21}, {"SERIESCODE", "100"}});
    }
    static void key(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    }
    static QString focused()
    {
        return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
    }
    static void show(QWidget& window)
    {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        QCoreApplication::processEvents();
    }

    TestInstallation site;
    ScriptedMessages user;
    ScreenContext context;
};

DataSpec settingsScreen()
{
    using Kind = EntryField::Kind;
    return {.name = "frmSettings",
            .caption = "Settings",
            .namesMode = false,
            .file = "ZORSYS.mdb",
            .table = "SYSSETTINGS",
            .sections = {{.caption = "&First",
                          .fields = {{.name = "txtSIZE",
                                      .field = "JOBNOSIZE",
                                      .caption = "Si&ze:",
                                      .length = 2,
                                      .check =
                                          [](const Entry& entry) {
                                              return entry.number("JOBNOSIZE") > 8
                                                         ? QString("Too large.")
                                                         : QString();
                                          }},
                                     {.kind = Kind::Choice,
                                      .name = "cboTYPE",
                                      .field = "JOBNOTYPE",
                                      .caption = "Ty&pe:",
                                      .choices = {{"C", "Characters"}, {"N", "Numbers"}}}}},
                         {.caption = "&Second",
                          .fields = {{.kind = Kind::Box,
                                      .name = "ckbDECIMAL",
                                      .field = "VEXNODECIMAL",
                                      .caption = "Integer &Quantities"},
                                     {.name = "txtMCODE",
                                      .field = "MCODEDEFAULT",
                                      .caption = "&Material:",
                                      .keys = {.upperCase = true},
                                      .search = [](const Entry&) { return QString("V"); },
                                      .searchName = "cmdSearchMC"}}}},
            .staysOpen = true,
            .hasFieldSearch = true};
}

TEST_F(DataWindows, TakeAndGiveEveryKindOfField)
{
    site.setFirst("ZORSYS.mdb", "SYSSETTINGS", "JOBNOSIZE", 8);
    site.setFirst("ZORSYS.mdb", "SYSSETTINGS", "JOBNOTYPE", "N");
    DataWindow window(settingsScreen(), context.session, {.mode = "E"});
    show(window);
    EXPECT_EQ(focused(), "txtSIZE");
    EXPECT_EQ(control<QComboBox>(window, "cboTYPE").currentText(), "Numbers");
    type(window, "txtSIZE", "9");
    key(Qt::Key_Return);
    EXPECT_EQ(focused(), "cboTYPE") << "Enter goes on";
    EXPECT_TRUE(control<QFrame>(window, "tqErrorBox1").isVisible());
    type(window, "txtSIZE", "6");
    auto& pages = *window.findChild<QTabWidget*>();
    QTest::keyClicks(&control<QLineEdit>(window, "txtFindField"), "material");
    EXPECT_EQ(pages.currentIndex(), 1) << "the page of the caption that was found";
    QTest::keyClick(&control<QLineEdit>(window, "txtFindField"), Qt::Key_Return);
    EXPECT_EQ(focused(), "txtMCODE");
    QTest::keyClicks(QApplication::focusWidget(), "?");
    EXPECT_EQ(control<QLineEdit>(window, "txtMCODE").text(), "V") << "from the search";
    QTest::mouseClick(&control<QCheckBox>(window, "ckbDECIMAL"), Qt::LeftButton, {}, QPoint(5, 8));
    press(window, "cmdUpdate");
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(site.first("ZORSYS.mdb", "SYSSETTINGS", "JOBNOSIZE").toInt(), 6);
    EXPECT_EQ(site.first("ZORSYS.mdb", "SYSSETTINGS", "MCODEDEFAULT").toString(), "V");
    EXPECT_TRUE(site.first("ZORSYS.mdb", "SYSSETTINGS", "VEXNODECIMAL").toBool());
    key(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(DataWindows, BeginInTheFirstFieldThatLives)
{
    DataSpec spec = settingsScreen();
    spec.sections[0].fields[0].isLive = [](const Entry&) { return false; };
    DataWindow window(spec, context.session, {.mode = "E"});
    show(window);
    EXPECT_EQ(focused(), "cboTYPE") << "else the keyboard stays in the screen before";
}

TEST_F(DataWindows, ShowTheWholeFieldThatHasTheKeyboard)
{
    DataSpec spec = settingsScreen();
    std::vector<EntryField>& fields = spec.sections[0].fields;
    for (const schema::FieldName field :
         std::vector<schema::FieldName>{"VEXCOL2TXT", "VEXCOL10TXT", "VEXCOL11TXT"})
        fields.insert(fields.begin(), {.name = "txtTEXT", .field = field, .caption = "Text"});
    fields.back().check = [](const Entry&) { return QString("One\nTwo\nThree"); };
    spec.sections.resize(1);
    spec.hasFieldSearch = false;
    DataWindow window(spec, context.session, {.mode = "E"});
    show(window);
    window.resize(window.width(), 190);
    auto& last = control<QComboBox>(window, "cboTYPE");
    last.setFocus(Qt::OtherFocusReason);
    QCoreApplication::processEvents();
    const auto isWhole = [&] {
        return last.visibleRegion().boundingRect().height() == last.height();
    };
    EXPECT_TRUE(isWhole());
    user.expect("Cannot Update", "Errors Detected: \n\nOne\nTwo\nThree");
    press(window, "cmdUpdate");
    QCoreApplication::processEvents();
    ASSERT_TRUE(control<QFrame>(window, "tqErrorBox1").isVisible());
    EXPECT_EQ(focused(), "cboTYPE");
    EXPECT_TRUE(isWhole()) << "the errors have taken room";
}

TEST_F(DataWindows, AreForReadingWhenTheRecordIsOnlyViewed)
{
    DataSpec spec = settingsScreen();
    spec.refusesFocusInView = true;
    DataWindow window(spec, context.session, {.mode = "V"});
    show(window);
    EXPECT_TRUE(control<QLineEdit>(window, "txtSIZE").isReadOnly());
    EXPECT_FALSE(control<QComboBox>(window, "cboTYPE").isEnabled());
    user.expect("Changes Not Allowed", "Changes Not Allowed When Viewing.");
    control<QLineEdit>(window, "txtSIZE").setFocus(Qt::TabFocusReason);
    EXPECT_EQ(focused(), "cmdCancel");
}

TEST_F(DataWindows, LevelsFollowTheListAtTheirLeft)
{
    const auto level = [](const char* table, const char* index, schema::FieldName code,
                          schema::FieldName owner, const char* tag) {
        return BrowseSpec{.name = "frmLevels",
                          .caption = "Levels",
                          .table = table,
                          .index = index,
                          .parent = owner.isNone() ? BrowseParent{}
                                                   : BrowseParent{.kind = BrowseParent::Kind::Given,
                                                                  .keys = {owner}},
                          .columns = {{.field = code,
                                       .length = 3,
                                       .heading = "Code",
                                       .width = 1000,
                                       .entry = "txtCODE"}},
                          .tag = {.field = tag},
                          .deleteQuestion = askToDelete("Code", {code})};
    };
    BrowseLevels levels;
    levels.levels = {level("ILCLIST", "ILCCODE", "ILCCODE", {}, "ILCTAG"),
                     level("SERIESCODES", "SERIESCODE", "SERIESCODE", "ILCTAG", "SERIESTAG")};
    levels.mayEnter = [](BrowseSession& from, BrowseSession&) -> std::optional<Message> {
        if (from.list().isOnRecord())
            return std::nullopt;
        return Message{.title = "Cannot Switch Levels", .text = "Empty Line."};
    };
    BrowseWindow window(levels, context, {});
    window.resize(1000, 500);
    show(window);
    const auto below = [&] { return window.session(1).list().lines()[0].cells.value(0); };
    EXPECT_EQ(below(), "");
    key(Qt::Key_Down);
    EXPECT_EQ(below(), "100") << "the series of branch B";
    key(Qt::Key_Down);
    ASSERT_FALSE(window.session(0).list().isOnRecord());
    user.expect("Cannot Switch Levels", "Empty Line.");
    window.grid(1).takeFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(window.levelInHand(), 0U);
    key(Qt::Key_Up);
    key(Qt::Key_Tab);
    QCoreApplication::processEvents();
    ASSERT_EQ(window.levelInHand(), 1U);
    EXPECT_TRUE(window.grid(1).view()->hasFocus()) << "a Tab moves by one";
    key(Qt::Key_A);
    QTest::keyClicks(QApplication::focusWidget(), "200");
    press(window, "cmdUpdate");
    EXPECT_EQ(site.rowCount("ZORVEX.mdb", "SERIESCODES"), 2);
    EXPECT_EQ(window.session(1).list().lines()[1].cells.value(0), "200");
    EXPECT_TRUE(window.session(0).isBrowsing());
    key(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

}  // namespace
