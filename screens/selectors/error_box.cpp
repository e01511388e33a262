#include "screens/selectors/error_box.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

#include "core/sounds.h"

namespace {

constexpr char errorSound[] = "ZORMedia\\ErrorSound.wav";

struct ErrorColours
{
    QColor background;
    QColor text;
};

ErrorColours errorColours(const QPalette& normal)
{
    const bool isDark = normal.color(QPalette::Window).lightness() < 128;
    return isDark ? ErrorColours{QColor(0x7a, 0x1f, 0x1f), QColor(0xff, 0xff, 0xff)}
                  : ErrorColours{QColor(0xff, 0xd9, 0xd6), QColor(0x5a, 0x00, 0x00)};
}

}  // namespace

void markError(QWidget& widget, bool isError)
{
    if (!isError) {
        widget.setPalette(QPalette());
        if (qobject_cast<QLabel*>(&widget))
            widget.setAutoFillBackground(false);
        return;
    }
    // From the parent, so that a field marked twice is not taken for a dark one.
    const QPalette normal = widget.parentWidget() ? widget.parentWidget()->palette() : QPalette();
    const ErrorColours colours = errorColours(normal);
    QPalette marked;
    for (const auto role : {QPalette::Base, QPalette::Window, QPalette::Button})
        marked.setColor(role, colours.background);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        marked.setColor(role, colours.text);
    widget.setPalette(marked);
    if (qobject_cast<QLabel*>(&widget))
        widget.setAutoFillBackground(true);
}

tqErrorBox::tqErrorBox(const QString& name) : m_text(new QLabel)
{
    setObjectName(name);
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    m_text->setObjectName("lblErrors");
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setMargin(6);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);
    markError(*m_text, true);
    hide();
}

void tqErrorBox::showText()
{
    markError(*m_text, true);  // the palette may be another one by now
    m_text->setText(m_errors.text());
}

void tqErrorBox::AddError(const QString& text, int fieldNo)
{
    m_errors.AddError(text, fieldNo);
    showText();
}

void tqErrorBox::ClearField(int fieldNo)
{
    m_errors.ClearField(fieldNo);
    showText();
}

void tqErrorBox::ClearAll()
{
    m_errors.ClearAll();
    showText();
}

void tqErrorBox::showErrors(const ErrorCollector& errors)
{
    const bool isNew = errors.text() != text() && errors.ErrorCount() >= ErrorCount();
    m_errors = errors;
    if (isNew)
        dnPlaySound(errorSound);
    showText();
    setVisible(m_errors.ErrorCount() > 0);
}

void dnShowError(tqErrorBox& box, QWidget& field, int fieldNo, const QString& text)
{
    box.show();
    box.AddError(text, fieldNo);
    dnPlaySound(errorSound);
    markError(field, true);
}

void dnClearError(tqErrorBox& box, QWidget& field, int fieldNo)
{
    box.ClearField(fieldNo);
    if (box.ErrorCount() == 0)
        box.hide();
    markError(field, false);
}

void dnResetErrors(tqErrorBox& box, QWidget& screen)
{
    box.ClearAll();
    box.hide();
    for (QWidget* widget : screen.findChildren<QWidget*>())
        if (qobject_cast<QLineEdit*>(widget) || qobject_cast<QPlainTextEdit*>(widget) ||
            qobject_cast<QTextEdit*>(widget) || qobject_cast<QComboBox*>(widget))
            markError(*widget, false);
}
