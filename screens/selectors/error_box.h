// The box of an entry screen that tells all errors of its fields, and the routines with which a
// screen marks them.
#pragma once

#include <QFrame>

#include "screens/entry/error_collector.h"

class QLabel;

// Hidden at first. The routines below show and hide it; a screen may do so, too.
class tqErrorBox : public QFrame
{
public:
    explicit tqErrorBox(const QString& name = "tqErrorBox1");

    // A later error of a field takes the place of the one before. Lines are parted by '\n'.
    void AddError(const QString& text, int fieldNo);
    void ClearField(int fieldNo);
    void ClearAll();
    int ErrorCount() const { return m_errors.ErrorCount(); }
    int FirstFieldInError() const { return m_errors.FirstFieldInError(); }
    // All messages, in the order of the fields.
    QString text() const { return m_errors.text(); }
    // Takes the place of what was collected here, for a screen that collects by itself; shown if
    // there is any, with a sound for a new one.
    void showErrors(const ErrorCollector& errors);

private:
    void showText();

    ErrorCollector m_errors;
    QLabel* m_text;
};

// Shows the box with the error, sounds, and marks the field.
void dnShowError(tqErrorBox& box, QWidget& field, int fieldNo, const QString& text);
// Takes the field's error out, and hides the box when it was the last one.
void dnClearError(tqErrorBox& box, QWidget& field, int fieldNo);
// Forgets all errors and unmarks every text field of the screen.
void dnResetErrors(tqErrorBox& box, QWidget& screen);

// Gives a field or label the colour of errors, or its own again: a background that its text can be
// read on in a light and in a dark palette.
void markError(QWidget& widget, bool isError);
