// F1: the help page of the screen in hand. Pages are those of the user guide (docs/guide), carried
// in the program.
//
// A screen's page has the screen's system name; that of a list tells of the list's entry screen,
// too. A screen without one has the page of its shape,
// which its window names in the property "helpPage"; everything else has the page of the main
// window.
#pragma once

#include <QObject>

class QWidget;

inline constexpr char helpPageProperty[] = "helpPage";

// The name of the page for a control.
QString helpPageFor(const QWidget* control);

// Shows a page until it is closed.
void showHelp(const QString& page);

// Makes F1 show help, wherever the keyboard is.
class HelpKey : public QObject
{
public:
    explicit HelpKey(QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
