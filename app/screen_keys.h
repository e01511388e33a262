// Lets the keys of the screen in front go before those of the menu bar: with Alt+C a screen that
// has a "&Cancel" cancels, although the menu has a "&Cost Structure". F10 opens the first
// menu from everywhere.
#pragma once

#include <QObject>

class QMdiArea;
class QKeyEvent;

class ScreenKeys : public QObject
{
public:
    // Sees all keys of the program while it lives. The area stands in a QMainWindow by then.
    explicit ScreenKeys(QMdiArea* area);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The control of the screen in front that Alt and this key name; null for none.
    QWidget* controlFor(const QKeyEvent& event) const;

    QMdiArea* m_area;
};
