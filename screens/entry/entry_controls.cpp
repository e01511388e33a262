#include "screens/entry/entry_controls.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>

#include "screens/command_runner.h"
#include "screens/date_field.h"
#include "screens/selectors/error_box.h"

using storage::FieldType;
using Kind = EntryField::Kind;

namespace {

bool isWhole(FieldType type)
{
    return type == FieldType::Byte || type == FieldType::Integer || type == FieldType::Long;
}

bool isText(FieldType type)
{
    return type == FieldType::Text || type == FieldType::Memo || type == FieldType::Date ||
           type == FieldType::Boolean;
}

QWidget* newControl(const EntryField& field, QWidget* parent)
{
    switch (field.kind) {
        case Kind::Text:
            return new QLineEdit(parent);
        case Kind::Date:
            return new DateField(field.name, parent);
        case Kind::Memo: {
            auto* memo = new QPlainTextEdit(parent);
            memo->setTabChangesFocus(true);
            return memo;
        }
        case Kind::Box:
            return new QCheckBox(field.caption, parent);
        case Kind::Choice:
            return new QComboBox(parent);
        case Kind::Shown:
        case Kind::Heading:
            break;
    }
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    if (field.kind == Kind::Heading)
        label->setText(field.caption);
    else
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QString textOf(const QWidget* control)
{
    if (const auto* edit = qobject_cast<const QLineEdit*>(control))
        return edit->text();
    if (const auto* memo = qobject_cast<const QPlainTextEdit*>(control))
        return memo->toPlainText();
    if (const auto* box = qobject_cast<const QCheckBox*>(control))
        return box->isChecked() ? "-1" : "0";
    if (const auto* choice = qobject_cast<const QComboBox*>(control))
        return choice->currentData().toString();
    return {};
}

void setText(QWidget* control, const QString& text)
{
    if (textOf(control) == text)
        return;
    if (auto* edit = qobject_cast<QLineEdit*>(control))
        edit->setText(text);
    else if (auto* memo = qobject_cast<QPlainTextEdit*>(control))
        memo->setPlainText(text);
    else if (auto* box = qobject_cast<QCheckBox*>(control))
        box->setChecked(text == "-1");
    else if (auto* choice = qobject_cast<QComboBox*>(control))
        choice->setCurrentIndex(choice->findData(text));
}

}  // namespace

EntryControls::EntryControls(Entry& entry, bool collects, QObject* parent)
    : QObject(parent),
      m_entry(entry),
      m_collects(collects),
      m_controls(static_cast<size_t>(entry.count())),
      m_buttons(static_cast<size_t>(entry.count()))
{
}

QWidget* EntryControls::control(int at, QWidget* parent)
{
    QWidget*& control = m_controls[static_cast<size_t>(at)];
    if (control)
        return control;
    const EntryField& field = m_entry.field(at);
    control = newControl(field, parent);
    control->setObjectName(field.name);
    QString accessible = field.caption;
    control->setAccessibleName(accessible.remove('&'));
    control->installEventFilter(this);
    if (auto* edit = qobject_cast<QLineEdit*>(control))
        edit->setAlignment(field.alignment | Qt::AlignVCenter);
    const auto changedNow = [this, at] {
        if (!m_isShowing)
            leave(at, true);
    };
    if (auto* box = qobject_cast<QCheckBox*>(control))
        connect(box, &QCheckBox::clicked, this, changedNow);
    else if (auto* choice = qobject_cast<QComboBox*>(control))
        connect(choice, &QComboBox::activated, this, changedNow);
    return control;
}

QAbstractButton* EntryControls::searchButton(int at, QWidget* parent)
{
    const EntryField& field = m_entry.field(at);
    QAbstractButton*& button = m_buttons[static_cast<size_t>(at)];
    if (button || !field.search)
        return button;
    auto* made = new QToolButton(parent);
    made->setObjectName(field.searchName);
    made->setText("?");
    made->setAccessibleName("Search " + control(at)->accessibleName());
    made->setToolTip("Search ('?' or '/' in the field)");
    made->setFocusPolicy(Qt::NoFocus);  // the keys of the field open the same window
    connect(made, &QToolButton::clicked, this, [this, at] { search(at); });
    button = made;
    return button;
}

void EntryControls::prepare()
{
    for (int i = 0; i < m_entry.count(); ++i) {
        QWidget* made = m_controls[static_cast<size_t>(i)];
        if (!made)
            continue;
        if (auto* edit = qobject_cast<QLineEdit*>(made))
            edit->setMaxLength(m_entry.lengthOf(i));
        const FieldType type = m_entry.typeOf(i);
        FieldKeys keys = m_entry.field(i).keys;
        if (!isText(type) && !keys.numbers)
            keys.numbers = isWhole(type) ? NumberKeys::SignedDigits : NumberKeys::SignedDecimal;
        const Kind kind = m_entry.field(i).kind;
        if (kind == Kind::Memo)
            keys.keepEnter = true;
        if (kind == Kind::Text || kind == Kind::Memo || kind == Kind::Date)
            setFieldKeys(*made, keys);
    }
}

void EntryControls::fillChoices(int at)
{
    auto* choice = qobject_cast<QComboBox*>(m_controls[static_cast<size_t>(at)]);
    if (!choice)
        return;
    const EntryField& field = m_entry.field(at);
    const std::vector<EntryChoice> choices =
        field.choicesFor ? field.choicesFor(m_entry) : field.choices;
    bool same = choice->count() == static_cast<int>(choices.size());
    for (int i = 0; same && i < choice->count(); ++i)
        same = choice->itemText(i) == choices[static_cast<size_t>(i)].text &&
               choice->itemData(i).toString() == choices[static_cast<size_t>(i)].value;
    if (same)
        return;
    choice->clear();
    for (const EntryChoice& one : choices)
        choice->addItem(one.text, one.value);
}

void EntryControls::showOne(int at, bool isForTyping)
{
    QWidget* control = m_controls[static_cast<size_t>(at)];
    const EntryField& field = m_entry.field(at);
    const bool mayType = isForTyping && !field.isReadOnly;
    if (field.kind == Kind::Choice)
        fillChoices(at);
    if (auto* label = qobject_cast<QLabel*>(control); label && field.shows)
        label->setText(field.shows(m_entry));
    else
        setText(control, m_entry.text(at));
    if (auto* edit = qobject_cast<QLineEdit*>(control))
        edit->setReadOnly(!mayType);
    else if (auto* memo = qobject_cast<QPlainTextEdit*>(control))
        memo->setReadOnly(!mayType);
    else if (field.kind == Kind::Box || field.kind == Kind::Choice)
        control->setEnabled(mayType);
    if (QAbstractButton* button = m_buttons[static_cast<size_t>(at)])
        button->setEnabled(mayType);
    if (field.kind != Kind::Heading)
        markError(*control, m_entry.errors().hasError(at + 1));
}

void EntryControls::show(bool isForTyping)
{
    m_isShowing = true;
    m_isForTyping = isForTyping;
    for (int i = 0; i < m_entry.count(); ++i)
        if (m_controls[static_cast<size_t>(i)])
            showOne(i, isForTyping);
    m_isShowing = false;
}

void EntryControls::take()
{
    for (int i = 0; i < m_entry.count(); ++i) {
        const Kind kind = m_entry.field(i).kind;
        if (m_controls[static_cast<size_t>(i)] && kind != Kind::Shown && kind != Kind::Heading)
            m_entry.setText(i, textOf(m_controls[static_cast<size_t>(i)]));
    }
}

void EntryControls::takeFocus()
{
    if (m_controls.empty())
        return;
    QWidget* control = m_controls[static_cast<size_t>(m_entry.focus())];
    for (size_t i = 0; control && control->focusPolicy() == Qt::NoFocus && i < m_controls.size();
         ++i)
        control = m_controls[i];
    if (control)
        control->setFocus(Qt::OtherFocusReason);
}

QList<QWidget*> EntryControls::tabChain() const
{
    QList<QWidget*> chain;
    for (QWidget* control : m_controls)
        if (control && control->focusPolicy() != Qt::NoFocus)
            chain.append(control);
    return chain;
}

int EntryControls::indexOf(const QObject* control) const
{
    for (size_t i = 0; i < m_controls.size(); ++i)
        if (m_controls[i] == control)
            return static_cast<int>(i);
    return -1;
}

void EntryControls::leave(int at, bool changedNow)
{
    if (!m_isForTyping)
        return;
    take();
    runCommand([&] { m_entry.leave(at, m_collects, changedNow); });
    show(m_isForTyping);
    Q_EMIT changed();
}

void EntryControls::search(int at)
{
    take();
    QString found;
    runCommand([&] { found = m_entry.field(at).search(m_entry); });
    QWidget* control = m_controls[static_cast<size_t>(at)];
    if (!found.trimmed().isEmpty()) {
        m_entry.setText(at, found);
        m_isShowing = true;
        setText(control, m_entry.text(at));
        m_isShowing = false;
        leave(at, true);
    }
    m_textAtEntry = m_entry.text(at);
    control->setFocus(Qt::OtherFocusReason);
}

bool EntryControls::eventFilter(QObject* watched, QEvent* event)
{
    const int at = indexOf(watched);
    if (at < 0)
        return false;
    if (event->type() == QEvent::KeyPress) {
        const QString typed = static_cast<QKeyEvent*>(event)->text();
        const bool asks = typed == "?" || typed == "/";
        if (asks && m_isForTyping && m_entry.field(at).search && !m_entry.field(at).isReadOnly) {
            search(at);
            return true;
        }
    }
    if (event->type() == QEvent::FocusIn) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            m_textAtEntry = m_entry.text(at);
        Q_EMIT entered(at);
    }
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        const bool stays = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
        if (!stays)
            leave(at, textOf(m_controls[static_cast<size_t>(at)]) != m_textAtEntry);
    }
    return false;
}
