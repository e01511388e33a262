#include "screens/browse/browse_window.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <array>

#include "screens/browse/browse_grid.h"
#include "screens/browse/browse_pane.h"
#include "screens/browse/parent_bar.h"
#include "screens/command_bar.h"
#include "screens/command_runner.h"
#include "screens/desktop.h"
#include "screens/help.h"
#include "screens/key_line.h"
#include "screens/load_error.h"

BrowseWindow::BrowseWindow(BrowseSpec spec, const ScreenContext& context)
    : BrowseWindow(std::move(spec), context, {})
{
}

BrowseWindow::BrowseWindow(BrowseSpec spec, const ScreenContext& context,
                           const std::vector<KeyField>& parent)
    : BrowseWindow(BrowseLevels{{std::move(spec)}, {}}, context, parent)
{
}

BrowseWindow::BrowseWindow(BrowseLevels levels, const ScreenContext& context,
                           const std::vector<KeyField>& parent)
    : m_mayEnter(std::move(levels.mayEnter)),
      m_context(context),
      m_givenParent(parent),
      m_commands(new CommandBar),
      m_keys(new KeyLine)
{
    for (BrowseSpec& level : levels.levels)
        m_levels.push_back(
            {std::make_unique<BrowseSession>(std::move(level), m_context.session), nullptr});
    setObjectName(spec().name);
    setWindowTitle(spec().caption);
    setProperty(fillsDesktopProperty, spec().fillsDesktop);
    setProperty(helpPageProperty, "browse");
    build();
    m_loaded = loadScreen(this, [this] { load(); });
}

BrowseWindow::~BrowseWindow()
{
    // The panes show the sessions, which go first otherwise.
    for (Level& level : m_levels)
        delete level.pane;
}

BrowseGrid& BrowseWindow::grid()
{
    return pane().grid();
}

BrowseGrid& BrowseWindow::grid(size_t level)
{
    return m_levels[level].pane->grid();
}

void BrowseWindow::build()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 8);
    layout->setSpacing(8);
    m_parent = makeParentBar(session(0));
    if (m_parent)
        layout->addWidget(m_parent);
    if (spec().status) {
        m_status = new QLabel;
        m_status->setObjectName("lblStatus");
        m_status->setTextFormat(Qt::PlainText);
        layout->addWidget(m_status);
    }
    layout->addWidget(buildLevels(), 1);
    auto* foot = new QHBoxLayout;
    if (m_levels.size() == 1) {
        foot->addWidget(grid().moveButtons(), 0, Qt::AlignTop);
        foot->addSpacing(12);
    }
    foot->addWidget(m_commands, 1);
    layout->addLayout(foot);
    layout->addWidget(m_keys);
    buildCommands();
    orderTabs();
}

QWidget* BrowseWindow::buildLevels()
{
    auto* row = new QWidget;
    auto* panes = new QHBoxLayout(row);
    panes->setContentsMargins(0, 0, 0, 0);
    const UserLayout layout(m_context.session.UserSettingsPath);
    for (size_t i = 0; i < m_levels.size(); ++i) {
        const QString key = i == 0 ? objectName() : objectName() + '-' + QString::number(i + 1);
        auto* made = new BrowsePane(*m_levels[i].session, layout, key);
        m_levels[i].pane = made;
        panes->addWidget(made);
        BrowseGrid* rows = &made->grid();
        connect(rows, &BrowseGrid::acted, this, [this] { run([this] { session().act(); }); });
        connect(rows, &BrowseGrid::moved, this, [this, i] {
            runCommand([&] { fillBelow(i); });
            showStatus();
        });
        connect(made, &BrowsePane::fieldLeft, this, [this] { showStatus(); });
        if (m_levels.size() > 1)
            rows->view()->installEventFilter(this);
    }
    // A window that gives the keyboard on is a stop of the Tab key, which would lead past the
    // parent.
    if (!m_parent)
        setFocusProxy(&grid(0));
    return row;
}

void BrowseWindow::buildCommands()
{
    const auto add = [this](const QString& name, const QString& caption, auto command) {
        return m_commands->add(name, caption, [this, command] { run(command); });
    };
    const auto browsing = [&](const QString& name, const QString& caption, auto command) {
        m_browsing.push_back({add(name, caption, command), nullptr});
    };
    const BrowseSpec& first = spec();
    if (first.mayAdd)
        browsing("cmdAdd", "&Add", [this] { session().add(); });
    if (first.mayEdit)
        browsing("cmdEdit", "&Edit", [this] { session().edit(); });
    if (first.detail.hasView)
        browsing("cmdView", "&View", [this] { session().openDetail("V"); });
    if (first.mayDelete)
        browsing("cmdDelete", "&Delete", [this] { session().remove(); });
    if (first.search)
        browsing("cmdSearch", "&Search", [this] { session().search(); });
    for (const BrowseCommand& command : first.commands)
        (command.inEntryMode ? m_entering : m_browsing)
            .push_back({add(command.name, session(0).captionOf(command),
                            [this, &command] {
                                if (command.inEntryMode)
                                    pane().fields().take();
                                session().run(command);
                            }),
                        &command});
    if (!first.print.window.isEmpty() || first.print.run)
        browsing("cmdPrint", first.print.caption, [this] { session().print(); });
    m_entering.push_back({add("cmdUpdate", "&Update",
                              [this] {
                                  pane().fields().take();
                                  session().update();
                              }),
                          nullptr});
    m_exit = m_commands->add("cmdExit", "E&xit", [this] {
        if (session().isBrowsing())
            close();
        else
            run([this] { session().cancel(); });
    });
}

// One ring of all that takes the keyboard, from the parent to the last command and round again.
void BrowseWindow::orderTabs()
{
    QList<QWidget*> chain;
    if (m_parent)
        for (QLineEdit* edit : m_parent->findChildren<QLineEdit*>())
            chain.append(edit);
    for (const Level& level : m_levels) {
        chain.append(level.pane->grid().view());
        chain += level.pane->fields().tabChain();
    }
    for (const auto& commands : {m_entering, m_browsing})
        for (const CommandButton& command : commands)
            chain.append(command.button);
    chain.append(m_exit);
    for (qsizetype i = 1; i < chain.size(); ++i)
        setTabOrder(chain[i - 1], chain[i]);
}

void BrowseWindow::load()
{
    for (const Level& level : m_levels) {
        level.session->open();
        level.pane->load();
    }
    if (m_parent) {
        m_parent->load();
        connect(m_parent, &ParentBar::entered, this, [this] { grid().setMovesEnabled(false); });
        connect(m_parent, &ParentBar::left, this, [this] {
            grid().setMovesEnabled(session().isBrowsing());
            run([this] { takeParent(); });
        });
        session().setParent(m_parent->keys());
    } else if (!m_givenParent.empty()) {
        session().setParent(m_givenParent);
    }
    fillBelow(0);
    showState();
    takeFocus();
}

// A choice that did not change leaves the list alone, and one that is not valid the last good one.
void BrowseWindow::takeParent()
{
    BrowseSession& list = session(0);
    const std::vector<KeyField> keys = m_parent->keys();
    list.setParentValid(!keys.empty());
    if (!list.isBrowsing() || keys.empty())
        return;
    const std::vector<KeyField>& now = list.list().source().parent;
    const auto same = [](const KeyField& a, const KeyField& b) { return a.key == b.key; };
    // The screen may have gone further into them.
    if (list.hasParent() && keys.size() <= now.size() &&
        std::equal(keys.begin(), keys.end(), now.begin(), same))
        return;
    m_parent->save();
    list.setParent(keys);
}

// A command has gone to another parent, which it has made the user's: the choice shows it.
void BrowseWindow::followParent()
{
    const std::vector<KeyField> shown = m_parent->keys();
    const std::vector<KeyField>& now = session(0).list().source().parent;
    const auto same = [](const KeyField& a, const KeyField& b) { return a.key == b.key; };
    if (!shown.empty() && shown.size() <= now.size() &&
        !std::equal(shown.begin(), shown.end(), now.begin(), same))
        m_parent->load();
}

// Each level at the right shows what belongs to the record at its left; nothing belongs to tag 0.
void BrowseWindow::fillBelow(size_t level)
{
    for (size_t i = level + 1; i < m_levels.size(); ++i) {
        BrowseSession& below = *m_levels[i].session;
        const schema::FieldName key = below.spec().parent.keys.front();
        const storage::Value tag = m_levels[i - 1].session->currentTag();
        if (below.hasParent() && below.parentKey(key) == tag)
            return;
        below.setParent({{key, tag}});
        m_levels[i].pane->showState("List is Empty");
    }
}

// The keyboard has come to the rows of another level.
void BrowseWindow::enterLevel(size_t level)
{
    if (level == m_inHand || !session().isBrowsing())
        return;
    std::optional<Message> refusal;
    if (level > m_inHand && m_mayEnter)
        runCommand([&] {
            for (size_t i = m_inHand; i < level && !refusal; ++i)
                refusal = m_mayEnter(*m_levels[i].session, *m_levels[i + 1].session);
        });
    if (!refusal)
        m_inHand = level;
    showState();
    if (!refusal)
        return;
    Messages::current().show(*refusal);
    grid().takeFocus();
}

void BrowseWindow::run(const std::function<void()>& command)
{
    runCommand(command);
    runCommand([this] { fillBelow(m_inHand); });
    showState();
}

void BrowseWindow::showState()
{
    const bool browsing = session().isBrowsing();
    const bool lacksParent = m_parent && !session(0).hasParent();
    if (m_parent && !lacksParent)
        runCommand([this] { followParent(); });
    runCommand([this] {
        setWindowTitle(session(0).caption());
        for (const Level& level : m_levels)
            level.pane->showHeadings();
    });
    showCommands();
    if (m_parent)
        m_parent->setLocked(!browsing);
    showKeys();
    for (size_t i = 0; i < m_levels.size(); ++i)
        m_levels[i].pane->showState(i == 0 && lacksParent ? m_parent->hint() : "List is Empty",
                                    browsing || i == m_inHand);
    showStatus();
    if (browsing && (m_wasEntering || session(0).hasParent()))
        takeFocus();
    m_wasEntering = !browsing;
}

void BrowseWindow::showCommands()
{
    const bool browsing = session().isBrowsing();
    for (const std::vector<CommandButton>* group : {&m_browsing, &m_entering})
        for (const CommandButton& shown : *group) {
            shown.button->setVisible((group == &m_browsing) == browsing);
            if (shown.command && shown.command->captionFor)
                shown.button->setText(session(0).captionOf(*shown.command));
        }
    m_exit->setText(browsing ? "E&xit" : "&Cancel");
}

void BrowseWindow::showStatus()
{
    if (m_status)
        runCommand([this] { m_status->setText(spec().status(session(0))); });
}

// The list has the keyboard while the user browses; until there is one, the choice of its parent.
void BrowseWindow::takeFocus()
{
    const QWidget* now = QApplication::focusWidget();
    if (isVisible() && now && !isAncestorOf(now))
        return;  // a command has opened another screen
    if (m_parent && focusWidget() && m_parent->isAncestorOf(focusWidget()))
        return;  // the user is choosing
    if (m_parent && !session(0).hasParent())
        m_parent->setFocus(Qt::OtherFocusReason);
    else
        grid().takeFocus();
}

void BrowseWindow::showKeys()
{
    if (!session().isBrowsing())
        return m_keys->setKeys({{"Enter", "Next field"}, {"Alt+U", "Update"}, {"Esc", "Cancel"}});
    static constexpr std::array<std::array<const char*, 3>, 6> shown = {
        {{"cmdAdd", "A", "Add"},
         {"cmdEdit", "E", "Edit"},
         {"cmdView", "V", "View"},
         {"cmdDelete", "Del", "Delete"},
         {"cmdSearch", "S", "Search"},
         {"cmdPrint", "P", "Print"}}};
    QList<std::pair<QString, QString>> keys;
    if (spec().mayEdit)
        keys.emplaceBack("Enter", "Edit");
    for (const auto& [command, key, text] : shown)
        if (m_commands->findChild<QPushButton*>(command))
            keys.emplaceBack(key, text);
    if (m_levels.size() > 1)
        keys.emplaceBack("Tab", "Next level");
    keys.emplaceBack("Ctrl+C", "Copy list");
    keys.emplaceBack("X", "Exit");
    m_keys->setKeys(keys);
}

bool BrowseWindow::commandForKey(QKeyCombination key)
{
    static constexpr std::pair<Qt::Key, const char*> letters[] = {
        {Qt::Key_A, "cmdAdd"},         {Qt::Key_E, "cmdEdit"},   {Qt::Key_D, "cmdDelete"},
        {Qt::Key_Delete, "cmdDelete"}, {Qt::Key_S, "cmdSearch"}, {Qt::Key_X, "cmdExit"},
        {Qt::Key_P, "cmdPrint"},       {Qt::Key_V, "cmdView"}};
    const Qt::KeyboardModifiers modifiers = key.keyboardModifiers();
    const bool isPlain = (modifiers & ~Qt::ShiftModifier) == 0;
    QString name;
    const std::vector<BrowseCommand>& commands = spec().commands;
    for (const BrowseCommand& command : commands)
        if (command.key == key && !command.inEntryMode)
            name = command.name;
    // A letter does the same with Shift unless a command wants that.
    for (const BrowseCommand& command : commands)
        if (name.isEmpty() && isPlain && command.key == QKeyCombination(key.key()) &&
            !command.inEntryMode)
            name = command.name;
    for (const auto& [letter, command] : letters)
        if (name.isEmpty() && isPlain && letter == key.key())
            name = command;
    auto* button = name.isEmpty() ? nullptr : m_commands->findChild<QPushButton*>(name);
    if (!button)
        return false;
    button->click();
    return true;
}

void BrowseWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        m_exit->click();
        return;
    }
    // On a button, too: the letters mean the same there.
    const bool isAtHand =
        grid().view()->hasFocus() || qobject_cast<QPushButton*>(QApplication::focusWidget());
    const QKeyCombination key(event->modifiers() & ~Qt::KeypadModifier, Qt::Key(event->key()));
    if (session().isBrowsing() && isAtHand && commandForKey(key))
        return;
    QWidget::keyPressEvent(event);
}

bool BrowseWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        for (size_t i = 0; i < m_levels.size(); ++i)
            if (watched == m_levels[i].pane->grid().view())
                // After the focus has settled: a refusal takes it back.
                QMetaObject::invokeMethod(
                    this, [this, i] { enterLevel(i); }, Qt::QueuedConnection);
    return QWidget::eventFilter(watched, event);
}

bool BrowseWindow::event(QEvent* event)
{
    const bool inFront =
        event->type() == screenInFront || (event->type() == QEvent::WindowActivate && isWindow());
    if (inFront && m_loaded && session().isBrowsing()) {
        run([this] { session().comeToFront(); });
        takeFocus();
    }
    return QWidget::event(event);
}

void BrowseWindow::closeEvent(QCloseEvent* event)
{
    if (!session().isBrowsing()) {
        // The way out of an entry is its Cancel.
        event->ignore();
        return run([this] { session().cancel(); });
    }
    for (const Level& level : m_levels)
        runCommand([&] {
            level.session->leave();
            level.session->close();
        });
    event->accept();
}

void openBrowseScreen(BrowseSpec spec, const Session& session, const std::vector<KeyField>& parent)
{
    openScreen(new BrowseWindow(std::move(spec), {.session = session}, parent));
}
