#include "screens/data/data_window.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <memory>

#include "screens/command_bar.h"
#include "screens/command_runner.h"
#include "screens/data/form_area.h"
#include "screens/desktop.h"
#include "screens/help.h"
#include "screens/key_line.h"
#include "screens/load_error.h"
#include "screens/selectors/error_box.h"

using Kind = EntryField::Kind;

namespace {

// The letter that stands behind '&' in a caption.
QString keyOf(const QString& caption)
{
    return caption.mid(caption.indexOf('&') + 1, 1).toUpper();
}

// As wide as its text, within reason.
void fitWidth(QLineEdit& edit, int length)
{
    const int shown = std::clamp(length, 4, 50);
    const int character = edit.fontMetrics().averageCharWidth() + 1;
    edit.setMinimumWidth(character * std::min(shown, 30) + 24);
    edit.setMaximumWidth(character * shown + 40);
}

}  // namespace

DataWindow::DataWindow(DataSpec spec, const Session& session, const DataRecord& record)
    : m_session(std::move(spec), session, record),
      m_fields(new EntryControls(m_session.entry(), true, this)),
      m_errorBox(new tqErrorBox),
      m_commands(new CommandBar),
      m_keys(new KeyLine)
{
    setObjectName(m_session.spec().name);
    setProperty(helpPageProperty, "data");
    build();
    loadScreen(this, [this] {
        m_loaded = m_session.open();
        if (!m_loaded)
            return;
        m_fields->prepare();
        for (int i = 0; i < m_session.entry().count(); ++i)
            if (auto* edit = qobject_cast<QLineEdit*>(m_fields->control(i)))
                fitWidth(*edit, m_session.entry().lengthOf(i));
    });
    setWindowTitle(m_session.caption());
    connect(m_fields, &EntryControls::changed, this, [this] { showState(); });
    connect(m_fields, &EntryControls::entered, this, &DataWindow::fieldEntered);
    if (m_loaded)
        showState();
}

DataWindow::~DataWindow() = default;

void DataWindow::build()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 8);
    layout->setSpacing(8);
    const DataSpec& spec = m_session.spec();
    if (spec.hasFieldSearch) {
        m_finder = new QLineEdit;
        m_finder->setObjectName("txtFindField");
        m_finder->setPlaceholderText("Find a setting by its text (Ctrl+F); Enter for the next");
        m_finder->setClearButtonEnabled(true);
        connect(m_finder, &QLineEdit::textEdited, this,
                [this](const QString& text) { findField(text, false); });
        connect(m_finder, &QLineEdit::returnPressed, this,
                [this] { findField(m_finder->text(), true); });
        layout->addWidget(m_finder);
    }
    const bool hasPages = spec.sections.size() > 1 && !spec.sections.front().caption.isEmpty();
    if (hasPages) {
        m_pages = new QTabWidget;
        layout->addWidget(m_pages, 1);
    }
    int first = 0;
    for (const DataSection& section : spec.sections) {
        auto* page = new FormArea(section, first, *m_fields);
        m_pageOf.insert(m_pageOf.end(), section.fields.size(), page);
        first += static_cast<int>(section.fields.size());
        if (hasPages)
            m_pages->addTab(page, section.caption);
        else
            layout->addWidget(page, 1);
    }
    if (m_pages) {  // room for all their captions, as far as displays are wide
        constexpr int widest = 1000;
        m_pages->setMinimumWidth(std::min(m_pages->tabBar()->sizeHint().width(), widest));
    }
    layout->addWidget(m_errorBox);
    layout->addWidget(m_commands);
    layout->addWidget(m_keys);
    buildCommands();
    QWidget* before = m_finder;
    for (QWidget* next : m_fields->tabChain()) {
        if (before)
            setTabOrder(before, next);
        before = next;
    }
}

void DataWindow::buildCommands()
{
    for (const DataCommand& command : m_session.spec().commands) {
        QPushButton* button = m_commands->add(command.name, command.caption, [this, &command] {
            run([&] { m_session.run(command); });
        });
        if (!command.whileViewing)
            m_whileTyping.push_back(button);
        if (command.isShown)
            m_shownAtTimes.emplace_back(button, &command);
    }
    const DataSpec& spec = m_session.spec();
    if (!spec.stayCaption.isEmpty() && m_session.isForTyping())
        m_commands->add("cmdUpdateStay", spec.stayCaption, [this] { update(true); });
    m_update = m_commands->add(spec.updateName, m_session.updateCaption(),
                               [this] { update(m_session.spec().staysOpen); });
    m_cancel = m_commands->add("cmdCancel", m_session.cancelCaption(), [this] { close(); });
}

void DataWindow::update(bool stays)
{
    bool isFinished = false;
    run([&] { isFinished = m_session.update(stays); });
    const bool isSaved =
        stays && !m_session.entry().isChanged() && m_session.entry().errors().ErrorCount() == 0;
    if (isFinished)
        close();
    else if (!isSaved)  // else the user stays on his page
        takeFocus();
}

void DataWindow::run(const std::function<void()>& command)
{
    m_fields->take();
    runCommand(command);
    showState();
}

void DataWindow::showState()
{
    m_fields->show(m_session.isForTyping());
    m_errorBox->showErrors(m_session.entry().errors());
    setWindowTitle(m_session.caption());
    m_update->setText(m_session.updateCaption());
    m_update->setVisible(m_session.mode() != "V" || !m_session.spec().viewRefusal.isEmpty());
    for (QPushButton* button : m_whileTyping)
        button->setEnabled(m_session.isForTyping());
    for (const auto& [button, command] : m_shownAtTimes)
        button->setVisible(command->isShown());
    showKeys();
}

void DataWindow::showKeys()
{
    const QString update = m_update->text();
    const std::pair<QString, QString> updateKey{"Alt+" + keyOf(update),
                                                QString(update).remove('&')};
    const std::pair<QString, QString> leaveKey{"Esc", "Leave"};
    const bool isInMemo = m_entered >= 0 && m_session.entry().field(m_entered).kind == Kind::Memo;
    if (!m_session.isForTyping())
        m_keys->setKeys(m_session.mode() == "V" ? KeyLine::Keys{leaveKey}
                                                : KeyLine::Keys{updateKey, leaveKey});
    else if (isInMemo)
        m_keys->setKeys({{"Tab", "Next field"}, {"Enter", "New line"}, updateKey, leaveKey});
    else
        m_keys->setKeys({{"Enter", "Next field"}, {"?", "Search"}, updateKey, leaveKey});
}

// The field that the entry names, on its page.
void DataWindow::takeFocus()
{
    const auto at = static_cast<size_t>(m_session.entry().focus());
    if (m_pages && at < m_pageOf.size())
        m_pages->setCurrentWidget(m_pageOf[at]);
    if (m_session.isForTyping())
        m_fields->takeFocus();
    else
        (m_session.mode() == "D" ? m_update : m_cancel)->setFocus(Qt::OtherFocusReason);
}

void DataWindow::showWhole(int at)
{
    m_pageOf[static_cast<size_t>(at)]->showWhole(m_fields->control(at));
}

void DataWindow::fieldEntered(int at)
{
    m_entered = at;
    showWhole(at);
    showKeys();
    if (m_isTelling || m_session.mode() != "V" || !m_session.spec().refusesFocusInView)
        return;
    m_isTelling = true;
    showCritical("Changes Not Allowed", m_session.spec().viewRefusal);
    m_cancel->setFocus(Qt::OtherFocusReason);
    m_isTelling = false;
}

// Goes through the captions from the last one found on.
void DataWindow::findField(const QString& text, bool next)
{
    const int count = m_session.entry().count();
    if (text.trimmed().isEmpty())
        return;
    const int from = next ? m_found + 1 : 0;
    for (int i = 0; i < count; ++i) {
        const int at = (from + i) % count;
        QString caption = m_session.entry().field(at).caption;
        if (!caption.remove('&').contains(text.trimmed(), Qt::CaseInsensitive))
            continue;
        m_found = at;
        if (m_pages)
            m_pages->setCurrentWidget(m_pageOf[static_cast<size_t>(at)]);
        QWidget* control = m_fields->control(at);
        showWhole(at);
        if (next)
            control->setFocus(Qt::OtherFocusReason);
        return;
    }
}

void DataWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        return m_cancel->click();
    if (m_finder && event->matches(QKeySequence::Find))
        return m_finder->setFocus(Qt::ShortcutFocusReason);
    QWidget::keyPressEvent(event);
}

void DataWindow::closeEvent(QCloseEvent* event)
{
    if (m_loaded) {
        m_fields->take();
        bool mayLeave = true;
        runCommand([&] { mayLeave = m_session.mayLeave(); });
        if (!mayLeave)
            return event->ignore();
    }
    m_fields->stop();
    runCommand([this] { m_session.close(); });
    event->accept();
}

bool DataWindow::event(QEvent* event)
{
    if (event->type() == screenInFront && m_loaded && m_session.isForTyping() &&
        m_session.spec().rules)
        run([this] { m_session.spec().rules->inFront(m_session.entry()); });
    if (event->type() == QEvent::Show && m_loaded)
        QMetaObject::invokeMethod(
            this, [this] { takeFocus(); }, Qt::QueuedConnection);
    return QWidget::event(event);
}

bool openDataScreen(DataSpec spec, const Session& session, const DataRecord& record)
{
    auto window = std::make_unique<DataWindow>(std::move(spec), session, record);
    if (!window->session().isLoaded())
        return false;
    openScreen(window.release());
    return true;
}
