#include <QDir>
#include <QFileInfo>
#include <cstdlib>

#include "app/application.h"
#include "app/main_window.h"
#include "core/locators.h"
#include "screens/qt_messages.h"
#include "screens/qt_system_dialogs.h"

namespace {

// The program runs in the folder that holds the locator files: the current one, or where the
// program itself lies for those who start it from elsewhere.
void findProgramFolder()
{
    const QString own = QCoreApplication::applicationDirPath();
    if (!locatorExists("VEXPATH") && QFileInfo::exists(own + "/VEXPATH.mdb"))
        QDir::setCurrent(own);
}

}  // namespace

int main(int argc, char** argv)
{
    VexleyApplication application(argc, argv);
    findProgramFolder();

    QtMessages messages;
    Messages::install(&messages);
    QtSystemDialogs dialogs;
    SystemDialogs::install(&dialogs);
    frmVEXMAIN mainWindow([] { std::_Exit(EXIT_SUCCESS); });
    QTimer::singleShot(0, &mainWindow, [&] {
        if (mainWindow.load() == LoadResult::EndProcess)
            QCoreApplication::exit();
    });
    return QApplication::exec();
}
