#include "screens/date_field.h"

#include <QBoxLayout>
#include <QCalendarWidget>
#include <QDate>
#include <QFrame>
#include <QKeyEvent>
#include <QToolButton>

#include "core/dates.h"
#include "core/system.h"
#include "core/text.h"
#include "screens/field_keys.h"

namespace {

constexpr char shownForm[] = "MM/dd/yyyy";
constexpr int dateLength = 10;

}  // namespace

DateField::DateField(const QString& name, QWidget* parent)
    : QLineEdit(parent), m_button(new QToolButton(this))
{
    setObjectName(name);
    setMaxLength(dateLength);
    setFieldKeys(*this, {.dateKeys = true});
    setToolTip("= today, + next day, - day before, F4 calendar");
    m_button->setObjectName(name + "Calendar");
    m_button->setArrowType(Qt::DownArrow);
    m_button->setAutoRaise(true);
    m_button->setFocusPolicy(Qt::NoFocus);
    m_button->setCursor(Qt::ArrowCursor);
    m_button->setToolTip("Calendar (F4)");
    m_button->setAccessibleName("Calendar");
    connect(m_button, &QToolButton::clicked, this, &DateField::openCalendar);
    connect(this, &QLineEdit::editingFinished, this, &DateField::take);
    const int buttonWidth = fontMetrics().height() + 4;
    setTextMargins(0, 0, buttonWidth, 0);
    setMinimumWidth(fontMetrics().horizontalAdvance("00/00/0000") + buttonWidth + 24);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QString DateField::date() const
{
    return dnFixDate(text());
}

bool DateField::isValid() const
{
    constexpr char nullDate[] = "01/01/1900";  // the store's word for no date
    return dnNotBlank(date()) && date() != nullDate;
}

QString DateField::dateKey() const
{
    return dnDateKey(text());
}

void DateField::setDate(const QString& date)
{
    const QString shown = dnFixDate(date);
    m_taken = shown == "01/01/1900" ? QString() : shown.trimmed();
    setText(m_taken);
}

void DateField::take()
{
    if (!m_keepsTyped && isValid() && text() != date())
        setText(date());
    if (text() == m_taken)
        return;
    m_taken = text();
    Q_EMIT dateChanged();
}

void DateField::focusOutEvent(QFocusEvent* event)
{
    // A date key sets the text as a program would, after which no editing is told to be finished.
    take();
    QLineEdit::focusOutEvent(event);
}

void DateField::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    const int width = fontMetrics().height() + 4;
    m_button->setGeometry(this->width() - width - 2, 2, width, height() - 4);
}

void DateField::keyPressEvent(QKeyEvent* event)
{
    const bool isAltDown = event->key() == Qt::Key_Down && event->modifiers() & Qt::AltModifier;
    if (event->key() == Qt::Key_F4 && event->modifiers() == Qt::NoModifier)
        openCalendar();
    else if (isAltDown)
        openCalendar();
    else
        QLineEdit::keyPressEvent(event);
}

void DateField::openCalendar()
{
    if (isReadOnly())
        return;
    auto* frame = new QFrame(this, Qt::Popup);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    frame->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    frame->setObjectName(objectName() + "Popup");
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(1, 1, 1, 1);
    auto* calendar = new QCalendarWidget;
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    const QDate shown = QDate::fromString(date(), shownForm);
    calendar->setSelectedDate(shown.isValid() ? shown : System::current().now().date());
    layout->addWidget(calendar);
    const auto choose = [this, frame](const QDate& chosen) {
        setText(chosen.toString(shownForm));
        take();
        frame->close();
        setFocus(Qt::PopupFocusReason);
    };
    connect(calendar, &QCalendarWidget::clicked, this, choose);
    connect(calendar, &QCalendarWidget::activated, this, choose);
    frame->move(mapToGlobal(QPoint(0, height())));
    frame->show();
    calendar->setFocus();
}
