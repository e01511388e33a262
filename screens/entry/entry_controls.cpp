#include "screens/entry/entry_controls.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>

#include "core/storage/file_paths.h"
#include "core/storage/storage_error.h"
#include "screens/command_runner.h"
#include "screens/date_field.h"
#include "screens/name_label.h"
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

// What a field shows that is not typed; a failure of the store stands there as its text.
QString shownBy(const EntryField& field, const Entry& entry)
{
    try {
        return field.shows(entry);
    } catch (const storage::StorageError& error) {
        return error.description();
    }
}

constexpr QSize pictureSize(240, 90);

QWidget* newPicture(QWidget* parent)
{
    auto* picture = new QLabel(parent);
    picture->setFixedSize(pictureSize);
    picture->setFrameShape(QFrame::StyledPanel);
    picture->setAlignment(Qt::AlignCenter);
    return picture;
}

// The image scaled into its frame; a file that is not there shows nothing.
void showPicture(QLabel& picture, const QString& path)
{
    if (picture.property("path") == path)
        return;
    picture.setProperty("path", path);
    QImageReader reader(path.isEmpty() ? QString() : storage::nativePath(path));
    reader.setDecideFormatFromContent(true);
    const QImage image = path.isEmpty() ? QImage() : reader.read();
    const QSize room =
        (QSizeF(picture.contentsRect().size()) * picture.devicePixelRatioF()).toSize();
    QPixmap shown =
        image.isNull()
            ? QPixmap()
            : QPixmap::fromImage(image.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    shown.setDevicePixelRatio(picture.devicePixelRatioF());
    if (image.isNull())
        picture.setText(reader.error() == QImageReader::FileNotFoundError || path.isEmpty()
                            ? QString()
                            : "Not an Image File");
    else
        picture.setPixmap(shown);
}

QWidget* newControl(const EntryField& field, QWidget* parent)
{
    switch (field.kind) {
        case Kind::Text:
            return new QLineEdit(parent);
        case Kind::Date: {
            auto* date = new DateField(field.name, parent);
            date->setKeepsTyped(field.keepsTyped);
            return date;
        }
        case Kind::Memo: {
            auto* memo = new QPlainTextEdit(parent);
            memo->setTabChangesFocus(true);
            return memo;
        }
        case Kind::Box:
            return new QCheckBox(field.caption, parent);
        case Kind::Choice: {
            // The room that it asks for does not change when it is first shown.
            auto* choice = new QComboBox(parent);
            choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
            return choice;
        }
        case Kind::Picture:
            return newPicture(parent);
        case Kind::Shown:
        case Kind::Heading:
            break;
    }
    auto* label = new NameLabel(parent);
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

// What is stored but is no choice becomes one, so that it is not lost unseen.
void choose(QComboBox& choice, const QString& text)
{
    int at = choice.findData(text);
    if (at < 0)
        at = choice.findData(text.trimmed());
    if (at < 0 && !text.trimmed().isEmpty()) {
        at = choice.count();
        choice.addItem(text, text);
    }
    choice.setCurrentIndex(at);
}

void setText(QWidget* control, const QString& text)
{
    if (textOf(control) == text)
        return;
    if (auto* edit = qobject_cast<QLineEdit*>(control)) {
        edit->setText(text);
        if (!edit->hasFocus())
            edit->setCursorPosition(0);  // a long text shows its beginning
    }
    if (auto* memo = qobject_cast<QPlainTextEdit*>(control))
        memo->setPlainText(text);
    else if (auto* box = qobject_cast<QCheckBox*>(control))
        box->setChecked(text == "-1");
    else if (auto* choice = qobject_cast<QComboBox*>(control))
        choose(*choice, text);
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
    control->setToolTip(field.hint);
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
    if (button || (!field.search && !field.choose))
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
        if (kind != Kind::Shown && kind != Kind::Picture && kind != Kind::Heading)
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
    const bool isLive = !field.isLive || field.isLive(m_entry);
    const bool mayType = isForTyping && !field.isReadOnly && isLive;
    if (field.isLive)
        control->setEnabled(isLive);
    if (field.kind == Kind::Choice)
        fillChoices(at);
    if (auto* label = qobject_cast<QLabel*>(control); label && field.kind == Kind::Picture)
        showPicture(*label, shownBy(field, m_entry));
    else if (label && field.shows)
        label->setText(shownBy(field, m_entry));
    else
        setText(control, m_entry.text(at));
    if (auto* edit = qobject_cast<QLineEdit*>(control)) {
        if (field.lengthFor)
            edit->setMaxLength(m_entry.lengthOf(at));
        edit->setReadOnly(!mayType);
    } else if (auto* memo = qobject_cast<QPlainTextEdit*>(control))
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
        if (m_controls[static_cast<size_t>(i)] && kind != Kind::Shown && kind != Kind::Heading &&
            kind != Kind::Picture)
            m_entry.setText(i, textOf(m_controls[static_cast<size_t>(i)]));
    }
}

// A dead or shown field leads on to the next one that takes the keyboard.
void EntryControls::takeFocus()
{
    const size_t first = static_cast<size_t>(m_entry.focus());
    for (size_t i = 0; i < m_controls.size(); ++i) {
        QWidget* control = m_controls[(first + i) % m_controls.size()];
        if (control && control->isEnabled() && control->focusPolicy() != Qt::NoFocus)
            return control->setFocus(Qt::OtherFocusReason);
    }
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
    const EntryField& field = m_entry.field(at);
    bool isChosen = false;
    runCommand([&] {
        if (field.choose) {
            isChosen = field.choose(m_entry);
            return;
        }
        const QString found = field.search(m_entry);
        isChosen = !found.trimmed().isEmpty();
        if (isChosen)
            m_entry.setText(at, found);
    });
    QWidget* control = m_controls[static_cast<size_t>(at)];
    if (isChosen) {
        show(m_isForTyping);
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
        const EntryField& field = m_entry.field(at);
        if (asks && m_isForTyping && (field.search || field.choose) && !field.isReadOnly) {
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
