#include "screens/browse/browse_window.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

#include "screens/browse/browse_grid.h"
#include "screens/browse/parent_bar.h"
#include "screens/command_bar.h"
#include "screens/command_runner.h"
#include "screens/desktop.h"
#include "screens/field_keys.h"
#include "screens/help.h"
#include "screens/key_line.h"
#include "screens/load_error.h"
#include "screens/selectors/error_box.h"

namespace {

Session sessionFor(const ScreenContext& context)
{
    return context.session;
}

bool isNumber(storage::FieldType type)
{
    return type != storage::FieldType::Text && type != storage::FieldType::Memo &&
           type != storage::FieldType::Date;
}

bool isWhole(storage::FieldType type)
{
    return type == storage::FieldType::Byte || type == storage::FieldType::Integer ||
           type == storage::FieldType::Long;
}

}  // namespace

BrowseWindow::BrowseWindow(BrowseSpec spec, const ScreenContext& context)
    : BrowseWindow(std::move(spec), context, {})
{
}

BrowseWindow::BrowseWindow(BrowseSpec spec, const ScreenContext& context,
                           const std::vector<KeyField>& parent)
    : m_session(std::move(spec), sessionFor(context)),
      m_context(context),
      m_givenParent(parent),
      m_grid(new BrowseGrid(m_session.list(), "hsbMAIN")),
      m_commands(new CommandBar),
      m_keys(new KeyLine),
      m_errorBox(new tqErrorBox)
{
    setObjectName(m_session.spec().name);
    setWindowTitle(m_session.spec().caption);
    setProperty(helpPageProperty, "browse");
    build();
    m_loaded = loadScreen(this, [this] { load(); });
}

BrowseWindow::~BrowseWindow() = default;

void BrowseWindow::build()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 8);
    layout->setSpacing(8);
    m_parent = makeParentBar(m_session);
    if (m_parent)
        layout->addWidget(m_parent);
    layout->addWidget(m_grid, 1);
    // Over the rows: it does not move the one in hand when it comes and goes.
    m_errorBox->setParent(this);
    auto* foot = new QHBoxLayout;
    foot->addWidget(m_grid->moveButtons(), 0, Qt::AlignTop);
    foot->addSpacing(12);
    foot->addWidget(m_commands, 1);
    layout->addLayout(foot);
    layout->addWidget(m_keys);

    std::vector<GridColumn> columns;
    for (const BrowseColumn& column : m_session.spec().columns)
        columns.push_back({column.heading, column.width, column.alignment});
    m_grid->setColumns(columns);
    m_grid->keepWidths(UserLayout(m_context.session.UserSettingsPath), objectName() + "/columns");
    setFocusProxy(m_grid);
    connect(m_grid, &BrowseGrid::acted, this, [this] { run([this] { m_session.act(); }); });
    connect(m_grid, &BrowseGrid::layoutChanged, this, &BrowseWindow::placeFields);
    buildCommands();
    buildFields();
}

void BrowseWindow::buildCommands()
{
    const BrowseSpec& spec = m_session.spec();
    const auto add = [this](const char* name, const char* caption, auto command) {
        return m_commands->add(name, caption, [this, command] { run(command); });
    };
    m_browsing = {add("cmdAdd", "&Add", [this] { m_session.add(); }),
                  add("cmdEdit", "&Edit", [this] { m_session.edit(); }),
                  add("cmdDelete", "&Delete", [this] { m_session.remove(); })};
    if (spec.search)
        m_browsing.push_back(add("cmdSearch", "&Search", [this] { m_session.search(); }));
    for (const BrowseCommand& command : spec.commands)
        (command.inEntryMode ? m_entering : m_browsing)
            .push_back(add(command.name, command.caption, [this, &command] {
                takeTexts();
                m_session.run(command);
            }));
    if (spec.print.window[0] != '\0' || spec.print.run)
        m_browsing.push_back(add("cmdPrint", "&Print", [this] { m_session.print(); }));
    m_update = add("cmdUpdate", "&Update", [this] {
        takeTexts();
        m_session.update();
    });
    m_entering.push_back(m_update);
    m_exit = m_commands->add("cmdExit", "E&xit", [this] {
        if (m_session.isBrowsing())
            close();
        else
            run([this] { m_session.cancel(); });
    });
}

void BrowseWindow::buildFields()
{
    for (int i = 0; i < m_session.entryCount(); ++i) {
        const BrowseColumn& column = m_session.entryColumn(i);
        auto* field = new QLineEdit(m_grid->view()->viewport());
        field->setObjectName(column.entry);
        field->setAccessibleName(column.heading);
        field->setMaxLength(column.length);
        field->setAlignment(column.alignment | Qt::AlignVCenter);
        field->installEventFilter(this);
        field->hide();
        m_fields.push_back(field);
    }
    for (size_t i = 1; i < m_fields.size(); ++i)
        setTabOrder(m_fields[i - 1], m_fields[i]);
    if (!m_fields.empty()) {
        QWidget* before = m_fields.back();
        for (QPushButton* button : m_entering) {
            setTabOrder(before, button);
            before = button;
        }
        setTabOrder(before, m_exit);
    }
}

void BrowseWindow::load()
{
    m_session.open();
    for (int i = 0; i < m_session.entryCount(); ++i) {
        const BrowseColumn& column = m_session.entryColumn(i);
        const storage::FieldType type = m_session.list().typeOf(column.field);
        FieldKeys keys{.upperCase = column.upperCase};
        if (isNumber(type))
            keys.numbers = isWhole(type) ? NumberKeys::SignedDigits : NumberKeys::SignedDecimal;
        setFieldKeys(*m_fields[static_cast<size_t>(i)], keys);
    }
    if (m_parent) {
        m_parent->load();
        connect(m_parent, &ParentBar::entered, this, [this] { m_grid->setMovesEnabled(false); });
        connect(m_parent, &ParentBar::left, this, [this] {
            m_grid->setMovesEnabled(m_session.isBrowsing());
            run([this] { takeParent(); });
        });
        m_session.setParent(m_parent->keys());
    } else if (!m_givenParent.empty()) {
        m_session.setParent(m_givenParent);
    }
    showState();
    takeFocus();
}

// A choice that did not change leaves the list alone, and one that is not valid the last good one.
void BrowseWindow::takeParent()
{
    const std::vector<KeyField> keys = m_parent->keys();
    m_session.setParentValid(!keys.empty());
    if (!m_session.isBrowsing() || keys.empty())
        return;
    const std::vector<KeyField>& now = m_session.list().source().parent;
    const auto same = [](const KeyField& a, const KeyField& b) { return a.key == b.key; };
    if (m_session.hasParent() && std::equal(keys.begin(), keys.end(), now.begin(), now.end(), same))
        return;
    m_parent->save();
    m_session.setParent(keys);
}

void BrowseWindow::run(const std::function<void()>& command)
{
    runCommand(command);
    showState();
}

void BrowseWindow::showState()
{
    const bool browsing = m_session.isBrowsing();
    m_grid->setEndTexts("End of List",
                        m_parent && !m_session.hasParent() ? m_parent->hint() : "List is Empty");
    m_grid->setMovesEnabled(browsing);
    m_grid->view()->setFocusPolicy(browsing ? Qt::StrongFocus : Qt::NoFocus);
    m_grid->refresh();
    for (QPushButton* button : m_browsing)
        button->setVisible(browsing);
    for (QPushButton* button : m_entering)
        button->setVisible(!browsing);
    m_exit->setText(browsing ? "E&xit" : "&Cancel");
    if (m_parent)
        m_parent->setLocked(!browsing);
    showKeys();
    showEntry();
    m_wasEntering = !browsing;
}

void BrowseWindow::showEntry()
{
    const bool entering = !m_session.isBrowsing();
    for (int i = 0; i < static_cast<int>(m_fields.size()); ++i) {
        QLineEdit* field = m_fields[static_cast<size_t>(i)];
        if (entering && field->text() != m_session.text(i))
            field->setText(m_session.text(i));
    }
    if (!entering && m_wasEntering)
        takeFocus();
    placeFields();
    for (QLineEdit* field : m_fields)
        field->setVisible(entering);
    showErrors();
    if (entering && !m_fields.empty())
        m_fields[static_cast<size_t>(m_session.fieldToFocus())]->setFocus(Qt::OtherFocusReason);
    else if (!entering && m_session.hasParent())
        takeFocus();
}

// The list has the keyboard while the user browses; until there is one, the choice of its parent.
void BrowseWindow::takeFocus()
{
    const QWidget* now = QApplication::focusWidget();
    if (isVisible() && now && !isAncestorOf(now))
        return;  // a command has opened another screen
    if (m_parent && focusWidget() && m_parent->isAncestorOf(focusWidget()))
        return;  // the user is choosing
    if (m_parent && !m_session.hasParent())
        m_parent->setFocus(Qt::OtherFocusReason);
    else
        m_grid->takeFocus();
}

void BrowseWindow::placeFields()
{
    if (m_session.isBrowsing())
        return;
    m_session.keepEntryInView();
    int entry = 0;
    const std::vector<BrowseColumn>& columns = m_session.spec().columns;
    for (int i = 0; i < static_cast<int>(columns.size()); ++i)
        if (columns[static_cast<size_t>(i)].entry[0] != '\0')
            m_fields[static_cast<size_t>(entry++)]->setGeometry(
                m_grid->cellRect(m_session.entryRow(), i));
    placeErrorBox();
}

void BrowseWindow::showErrors()
{
    const ErrorCollector& errors = m_session.errors();
    for (int i = 0; i < static_cast<int>(m_fields.size()); ++i)
        markError(*m_fields[static_cast<size_t>(i)], errors.hasError(i + 1));
    m_errorBox->showErrors(errors);
    placeErrorBox();
}

// At the foot of the rows, or at their head when the entry is in the lower half.
void BrowseWindow::placeErrorBox()
{
    if (m_errorBox->isHidden())
        return;
    const QWidget* rows = m_grid->view()->viewport();
    const QRect room(rows->mapTo(this, QPoint()), rows->size());
    const int height = m_errorBox->heightForWidth(room.width()) > 0
                           ? m_errorBox->heightForWidth(room.width())
                           : m_errorBox->sizeHint().height();
    const bool below = m_grid->cellRect(m_session.entryRow(), 0).bottom() < room.height() - height;
    m_errorBox->setGeometry(room.x(), below ? room.bottom() + 1 - height : room.y(), room.width(),
                            height);
    m_errorBox->raise();
}

void BrowseWindow::takeTexts()
{
    if (m_session.isBrowsing())
        return;
    for (int i = 0; i < static_cast<int>(m_fields.size()); ++i)
        m_session.setText(i, m_fields[static_cast<size_t>(i)]->text());
}

void BrowseWindow::fieldLeft(int entry)
{
    if (m_session.isBrowsing())
        return;
    takeTexts();
    runCommand([&] { m_session.validate(entry); });
    if (m_fields[static_cast<size_t>(entry)]->text() != m_session.text(entry))
        m_fields[static_cast<size_t>(entry)]->setText(m_session.text(entry));
    showErrors();
}

void BrowseWindow::showKeys()
{
    if (!m_session.isBrowsing())
        return m_keys->setKeys({{"Enter", "Next field"}, {"Alt+U", "Update"}, {"Esc", "Cancel"}});
    QList<std::pair<QString, QString>> keys = {
        {"Enter", "Edit"}, {"A", "Add"}, {"E", "Edit"}, {"Del", "Delete"}};
    if (m_session.spec().search)
        keys.emplaceBack("S", "Search");
    if (m_commands->findChild<QPushButton*>("cmdPrint"))
        keys.emplaceBack("P", "Print");
    keys.emplaceBack("Ctrl+C", "Copy list");
    keys.emplaceBack("X", "Exit");
    m_keys->setKeys(keys);
}

bool BrowseWindow::commandForKey(int key)
{
    static constexpr std::pair<Qt::Key, const char*> letters[] = {
        {Qt::Key_A, "cmdAdd"},         {Qt::Key_E, "cmdEdit"},   {Qt::Key_D, "cmdDelete"},
        {Qt::Key_Delete, "cmdDelete"}, {Qt::Key_S, "cmdSearch"}, {Qt::Key_X, "cmdExit"},
        {Qt::Key_P, "cmdPrint"}};
    const char* name = nullptr;
    for (const BrowseCommand& command : m_session.spec().commands)
        if (command.key == key && !command.inEntryMode)
            name = command.name;
    for (const auto& [letter, command] : letters)
        if (letter == key && !name)
            name = command;
    auto* button = name ? m_commands->findChild<QPushButton*>(name) : nullptr;
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
    const bool plain = !(event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
    if (plain && m_session.isBrowsing() && m_grid->view()->hasFocus() &&
        commandForKey(event->key()))
        return;
    QWidget::keyPressEvent(event);
}

bool BrowseWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        const bool stays = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
        for (int i = 0; i < static_cast<int>(m_fields.size()) && !stays; ++i)
            if (watched == m_fields[static_cast<size_t>(i)])
                fieldLeft(i);
    }
    return false;
}

bool BrowseWindow::event(QEvent* event)
{
    const bool inFront =
        event->type() == screenInFront || (event->type() == QEvent::WindowActivate && isWindow());
    if (inFront && m_loaded && m_session.isBrowsing()) {
        run([this] { m_session.comeToFront(); });
        takeFocus();
    }
    return QWidget::event(event);
}

void BrowseWindow::closeEvent(QCloseEvent* event)
{
    if (!m_session.isBrowsing()) {
        // The way out of an entry is its Cancel.
        event->ignore();
        return run([this] { m_session.cancel(); });
    }
    runCommand([this] {
        m_session.leave();
        m_session.close();
    });
    event->accept();
}
