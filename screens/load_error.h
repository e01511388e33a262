// A screen that cannot be loaded says so and keeps only its way out.
#pragma once

#include <QWidget>
#include <functional>

// Tells the user, hides all controls of the screen and leaves the button `cmdExit`, or the first
// one there is for closing.
void dnLoadError(QWidget* screen, int number, const QString& description);

// Runs the load step of a screen; false after a failure of the store, which dnLoadError has told.
bool loadScreen(QWidget* screen, const std::function<void()>& load);
