// The program's application object: its look, and where failures of the store end that no command
// has met. Each is shown, and the program goes on.
#pragma once

#include <QApplication>

class VexleyApplication : public QApplication
{
public:
    VexleyApplication(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;
};
