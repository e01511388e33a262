#include "screens/small_dialog.h"

#include <QApplication>
#include <QWindow>

#include "screens/command_runner.h"

int widthOfCaption(const QWidget& window, const QString& caption)
{
    constexpr int frameButtons = 160;
    return window.fontMetrics().horizontalAdvance(caption) + frameButtons;
}

SmallDialog::SmallDialog(const QString& name, const QString& caption)
    : m_rows(new QFormLayout), m_buttons(new QHBoxLayout)
{
    setObjectName(name);
    setWindowTitle(caption);
    setMinimumWidth(widthOfCaption(*this, caption));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 12);
    layout->setSpacing(14);
    m_rows->setHorizontalSpacing(14);
    m_rows->setVerticalSpacing(8);
    m_rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    layout->addLayout(m_rows, 1);
    m_buttons->addStretch();
    layout->addLayout(m_buttons);
}

QLabel* SmallDialog::addText(const QString& name, const QString& text)
{
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(320);
    addAcross(label);
    return label;
}

QLabel* SmallDialog::addHeading(const QString& text)
{
    QLabel* label = addText({}, text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    if (m_rows->rowCount() > 1)
        label->setContentsMargins(0, 8, 0, 0);
    return label;
}

QLabel* SmallDialog::addValue(const QString& caption, const QString& name, const QString& value)
{
    auto* label = new QLabel(value);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setMinimumWidth(220);
    m_rows->addRow(caption, label);
    return label;
}

void SmallDialog::addField(const QString& caption, QWidget* field)
{
    m_rows->addRow(caption, field);
}

void SmallDialog::addAcross(QWidget* widget)
{
    m_rows->addRow(widget);
}

QPushButton* SmallDialog::addButton(const QString& name, const QString& caption,
                                    std::function<void()> command)
{
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setAutoDefault(true);
    onPressed(button, std::move(command));
    m_buttons->addWidget(button);
    return button;
}

QPushButton* SmallDialog::addClosingButton(const QString& name, const QString& caption, int result)
{
    return addButton(name, caption, [this, result] { done(result); });
}

void SmallDialog::centreButtons()
{
    m_buttons->addStretch();
}

void SmallDialog::enterTakes(QPushButton* button)
{
    button->setDefault(true);
    button->setFocus();
}

void SmallDialog::reject()
{
    if (m_escape && m_escape->isEnabled())
        m_escape->click();
    else
        QDialog::reject();
}

// A dialog of its own belongs to the window from which it was opened: it stands in that window's
// middle, and does not fall behind it.
void SmallDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    QWidget* below = QApplication::activeWindow();
    if (event->spontaneous() || parentWidget() || !below || below == this)
        return;
    windowHandle()->setTransientParent(below->windowHandle());
    adjustPosition(below);
}
