// A user's hands and eyes on the program's windows. They work in a thread of their own, beside the
// one of the windows, so that a road through modal boxes reads as one goes it. Keys go where the
// window system would send them: to the window that has the focus, whatever that is.
//
// Each call waits until the windows have come to rest, and those that need something wait for it.
// What does not come in time is a TourFailure, whose text says what was there instead.
#pragma once

#include <QImage>
#include <QMainWindow>
#include <QStringList>
#include <functional>
#include <stdexcept>

class TourFailure : public std::runtime_error
{
public:
    explicit TourFailure(const QString& text) : std::runtime_error(text.toStdString()) {}
};

struct TypedField
{
    QString control;  // its system name
    QString text;
};

class Hands
{
public:
    explicit Hands(QMainWindow& mainWindow) : m_main(mainWindow) {}

    // One or several keys, such as "Alt+D" or "Ctrl+F4", one after the other.
    void keys(const QStringList& keys);
    // The key that ends the program: nothing comes after it.
    void leaveBy(const QString& key);
    // Letters, to the control that has the keyboard.
    void type(const QString& text);
    // Goes to the field by the Tab key and puts the text in place of what stands there; one that
    // Tab does not lead to fails.
    void fill(const QString& control, const QString& text);
    void fill(const std::vector<TypedField>& fields);
    // Goes by Tab until that control has the keyboard.
    void tabTo(const QString& control);
    // A button of the screen in front, by its underlined letter.
    void command(const QString& button);

    // Waits until the screen, or the dialog, of that system name is in front.
    void awaitScreen(const QString& name);
    // Waits for a box, gives its text, and answers it by the key.
    QString answerBox(const QString& key);
    // Waits until the keyboard is in the control.
    void awaitFocus(const QString& control);
    void awaitText(const QString& control, const QString& text);
    void awaitMainWindow();

    // ---- what is seen on the screen in front
    QString screenInFront();
    QString caption();
    QString text(const QString& control);
    // The rows of its list, the cells of each.
    QList<QStringList> rows();
    // All windows of the program, as they lie above each other.
    QImage picture();

    // Runs it in the thread of the windows, and comes back when it is done.
    void inWindows(const std::function<void()>& work);

private:
    void press(const std::function<void()>& key);
    void settle();
    void await(const std::function<bool()>& isThere, const QString& what);
    QString shortcutOf(const QString& button);

    QMainWindow& m_main;
};
