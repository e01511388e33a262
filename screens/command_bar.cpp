#include "screens/command_bar.h"

#include <QKeyEvent>
#include <QPushButton>

#include "screens/command_runner.h"
#include "screens/flow_layout.h"

CommandBar::CommandBar()
{
    new FlowLayout(this);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QPushButton* CommandBar::add(const QString& name, const QString& caption,
                             std::function<void()> command)
{
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setAutoDefault(false);
    button->installEventFilter(this);
    onPressed(button, std::move(command));
    layout()->addWidget(button);
    return button;
}

bool CommandBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return false;
    static_cast<QPushButton*>(watched)->click();
    return true;
}
