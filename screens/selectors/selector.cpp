#include "screens/selectors/selector.h"

#include <QApplication>
#include <QFormLayout>

Selector::Selector(const QString& name) : m_rows(new QFormLayout(this))
{
    setObjectName(name);
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setHorizontalSpacing(10);
    m_rows->setVerticalSpacing(6);
    m_rows->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* to) { focusMoved(to); });
    setActive(false);
}

// The fields lose the keyboard as they go.
Selector::~Selector()
{
    disconnect(qApp, nullptr, this, nullptr);
}

void Selector::setActive(bool active)
{
    m_active = active;
    setToolTip(active ? QString() : "Click Anywhere on this Control to Activate It.");
}

void Selector::focusMoved(const QWidget* to)
{
    // Nobody has the keyboard while another program or another window is in front.
    if (!to || to->window() != window())
        return;
    const bool isInside = to == this || isAncestorOf(to);
    if (isInside == m_hasFocusInside)
        return;
    m_hasFocusInside = isInside;
    if (isInside)
        return Q_EMIT entered();
    takeTyped();
    Q_EMIT left();
}

void Selector::mousePressEvent(QMouseEvent* event)
{
    if (focusProxy())
        focusProxy()->setFocus(Qt::MouseFocusReason);
    QWidget::mousePressEvent(event);
}
