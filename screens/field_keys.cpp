#include "screens/field_keys.h"

#include <QtWidgets>

namespace {

// Lives as a child of the field that it watches.
class FieldKeyFilter : public QObject
{
public:
    FieldKeyFilter(QWidget& field, const FieldKeys& keys)
        : QObject(&field), m_field(field), m_keys(keys)
    {
        setObjectName(ownName());
        field.installEventFilter(this);
        // A combo box has the keyboard itself, but its line edit gets the clicks.
        if (lineEdit() && lineEdit() != &field)
            lineEdit()->installEventFilter(this);
    }

    static QString ownName() { return "fieldKeys"; }
    void setKeys(const FieldKeys& keys) { m_keys = keys; }

    bool eventFilter(QObject*, QEvent* event) override
    {
        switch (event->type()) {
            case QEvent::KeyPress:
                return keyPressed(static_cast<QKeyEvent&>(*event));
            case QEvent::InputMethod:
                filterInput(static_cast<QInputMethodEvent&>(*event));
                return false;
            case QEvent::FocusIn:
                focusCame(static_cast<QFocusEvent&>(*event));
                return false;
            case QEvent::MouseButtonRelease:
                mouseReleased();
                return false;
            default:
                return false;
        }
    }

private:
    bool keyPressed(const QKeyEvent& event)
    {
        if (event.matches(QKeySequence::Paste))
            return paste();
        int key = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter ? enterKey
                  : event.text().size() == 1 ? event.text().front().unicode()
                                             : 0;
        const bool hasCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
        if (key == 0 || hasCommand)
            return false;
        if (dnEnterToTab(key, m_keys.upperCase, m_keys.keepEnter)) {
            sendTab();
            return true;
        }
        if (key == enterKey)
            return false;
        if (m_keys.dateKeys && editDate(QChar(key)))
            return true;
        if (m_keys.numbers && !dnNumericKey(QChar(key), *m_keys.numbers))
            return true;
        if (event.text().front() == QChar(key))
            return false;
        sendKey(event.key(), event.modifiers(), QChar(key));
        return true;
    }

    void sendKey(int key, Qt::KeyboardModifiers modifiers, const QString& text)
    {
        QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
        QCoreApplication::sendEvent(&m_field, &press);
    }

    // A text edit would take a Tab key as a character.
    void sendTab()
    {
        const QPointer<QWidget> field = &m_field;
        auto* text = qobject_cast<QPlainTextEdit*>(&m_field);
        const bool tabWasTyped = text && !text->tabChangesFocus();
        if (tabWasTyped)
            text->setTabChangesFocus(true);
        sendKey(Qt::Key_Tab, Qt::NoModifier, "\t");
        if (tabWasTyped && field)
            text->setTabChangesFocus(false);
    }

    QString filtered(const QString& text) const
    {
        const QString kept = m_keys.numbers ? withNumericKeysOnly(text, *m_keys.numbers) : text;
        return m_keys.upperCase ? withTypedCapitals(kept) : kept;
    }

    bool paste()
    {
        if (!m_keys.upperCase && !m_keys.numbers)
            return false;
        const QString text = filtered(QGuiApplication::clipboard()->text());
        if (QLineEdit* line = lineEdit()) {
            if (!line->isReadOnly())
                line->insert(text);
        } else if (auto* edit = qobject_cast<QPlainTextEdit*>(&m_field)) {
            if (!edit->isReadOnly())
                edit->insertPlainText(text);
        } else {
            return false;
        }
        return true;
    }

    void filterInput(QInputMethodEvent& event) const
    {
        const QString text = filtered(event.commitString());
        if (text != event.commitString())
            event.setCommitString(text, event.replacementStart(), event.replacementLength());
    }

    bool editDate(QChar key)
    {
        QLineEdit* line = lineEdit();
        if (!line || line->isReadOnly())
            return false;
        const std::optional<QString> date = dnDateKeyEdit(key, line->text());
        if (date) {
            line->selectAll();  // replaced as typing would, so that it can be undone
            line->insert(*date);
        }
        return date || key == '+' || key == '=';
    }

    void focusCame(const QFocusEvent& event)
    {
        if (!m_keys.selectAll || event.reason() == Qt::PopupFocusReason ||
            event.reason() == Qt::ActiveWindowFocusReason)
            return;
        // A click sets the cursor after this, and would drop the selection.
        m_selectAfterClick = event.reason() == Qt::MouseFocusReason;
        if (!m_selectAfterClick)
            dnSelectAll(m_field);
    }

    void mouseReleased()
    {
        if (!std::exchange(m_selectAfterClick, false))
            return;
        QLineEdit* line = lineEdit();
        if (line && !line->hasSelectedText())
            QTimer::singleShot(0, line, [line] { line->selectAll(); });
    }

    QLineEdit* lineEdit() const
    {
        auto* combo = qobject_cast<QComboBox*>(&m_field);
        return combo ? combo->lineEdit() : qobject_cast<QLineEdit*>(&m_field);
    }

    QWidget& m_field;
    FieldKeys m_keys;
    bool m_selectAfterClick = false;
};

}  // namespace

void setFieldKeys(QWidget& field, const FieldKeys& keys)
{
    QObject* before =
        field.findChild<QObject*>(FieldKeyFilter::ownName(), Qt::FindDirectChildrenOnly);
    if (before)
        static_cast<FieldKeyFilter*>(before)->setKeys(keys);
    else
        new FieldKeyFilter(field, keys);
}

void dnSelectAll(QWidget& field)
{
    if (auto* combo = qobject_cast<QComboBox*>(&field); combo && combo->lineEdit())
        combo->lineEdit()->selectAll();
    else if (auto* line = qobject_cast<QLineEdit*>(&field))
        line->selectAll();
    else if (auto* text = qobject_cast<QPlainTextEdit*>(&field))
        text->selectAll();
}
