#include <QDir>
#include <QFileInfo>
#include <cstdlib>

#include "app/main_window.h"
#include "core/locators.h"
#include "core/storage/storage_error.h"
#include "screens/command_runner.h"
#include "screens/qt_messages.h"
#include "screens/qt_system_dialogs.h"

namespace {

// Failures of the store that no command has met: shown, and the program goes on.
class VexleyApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override
    {
        try {
            return QApplication::notify(receiver, event);
        } catch (const storage::StorageError& error) {
            showStorageError(error);
            return true;
        }
    }
};

// A letter on a coloured tile, drawn in the sizes that title bars and task lists ask for.
QIcon programIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128}) {
        QPixmap tile(size, size);
        tile.fill(Qt::transparent);
        QPainter painter(&tile);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0x2f, 0x5d, 0x8a));
        painter.drawRoundedRect(tile.rect(), size / 6.0, size / 6.0);
        QFont font = painter.font();
        font.setPixelSize(size * 3 / 4);
        font.setBold(true);
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawText(tile.rect(), Qt::AlignCenter, "V");
        icon.addPixmap(tile);
    }
    return icon;
}

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
    QCoreApplication::setApplicationName("Vexley Module");
    // The splash and boxes come and go before the main window is there.
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle("Fusion");
    QApplication::setWindowIcon(programIcon());
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
