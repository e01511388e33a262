// A user's hands on a window, by the system names of its controls.
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>

// The control of that name and kind; fails the test when there is none.
template <class Control = QWidget>
Control& control(const QObject& window, const QString& name)
{
    auto* found = window.findChild<Control*>(name);
    if (!found) {
        ADD_FAILURE() << "no control " << name.toStdString();
        static Control none;
        return none;
    }
    return *found;
}

inline QString labelText(const QObject& window, const QString& name)
{
    return control<QLabel>(window, name).text();
}

// Presses a button that a user could press.
inline void press(const QObject& window, const QString& name)
{
    auto& button = control<QPushButton>(window, name);
    ASSERT_TRUE(button.isEnabled() && !button.isHidden()) << name.toStdString();
    QTest::mouseClick(&button, Qt::LeftButton);
}

// Types into a field after clearing it.
inline void type(const QObject& window, const QString& name, const QString& text)
{
    auto& field = control<QLineEdit>(window, name);
    ASSERT_TRUE(field.isEnabled() && !field.isHidden()) << name.toStdString();
    field.clear();
    QTest::keyClicks(&field, text);
}

// What to do with the modal window that the next statement opens.
inline void whenModalOpens(std::function<void(QDialog&)> act)
{
    QTimer::singleShot(0, [act = std::move(act)] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog) << "no modal window opened";
        act(*dialog);
    });
}
