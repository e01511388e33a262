// The buttons of a screen's commands, side by side and on further lines where the window is narrow.
// Enter on a button with the focus presses it.
#pragma once

#include <QWidget>
#include <functional>

class QPushButton;

class CommandBar : public QWidget
{
public:
    CommandBar();

    // `name` is the button's system name. A failure of the store in the command is shown.
    QPushButton* add(const QString& name, const QString& caption, std::function<void()> command);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
