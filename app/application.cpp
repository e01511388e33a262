#include "app/application.h"

#include <QtWidgets>

#include "core/storage/storage_error.h"
#include "screens/command_runner.h"

namespace {

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

}  // namespace

VexleyApplication::VexleyApplication(int& argc, char** argv) : QApplication(argc, argv)
{
    setApplicationName("Vexley Module");
    // The splash and boxes come and go before the main window is there.
    setQuitOnLastWindowClosed(false);
    setStyle("Fusion");
    setWindowIcon(programIcon());
}

bool VexleyApplication::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const storage::StorageError& error) {
        showStorageError(error);
        return true;
    }
}
