// Where screens open. The main window is the desktop of the program; without one, as in tests, a
// screen stands as a window of its own.
#pragma once

#include <QEvent>
#include <QWidget>

class Desktop
{
public:
    virtual ~Desktop() = default;

    // Shows the screen, not modally, and owns it; it is deleted when it closes.
    virtual void openScreen(QWidget* screen) = 0;

    // Gives the one that was there. The desktop stays the caller's.
    static Desktop* install(Desktop* desktop);
};

// Sent to a screen each time it comes to the front of the desktop.
inline constexpr auto screenInFront = static_cast<QEvent::Type>(QEvent::User + 1);

// A property of a screen that opens as large as the desktop is, unless the user has resized it.
inline constexpr char fillsDesktopProperty[] = "fillsDesktop";

// Opens the screen on the current desktop.
void openScreen(QWidget* screen);
