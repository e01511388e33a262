// vextour FOLDER: goes the road of one purchase through the program's windows, on an installation
// that it makes in FOLDER. Leaves there a page with pictures and the printed order; the exit code
// is 0 when all was as expected.
#include <QDir>
#include <QFileInfo>
#include <QThread>

#include "app/application.h"
#include "app/main_window.h"
#include "core/system.h"
#include "screens/qt_messages.h"
#include "tools/command.h"
#include "tools/new_files.h"
#include "tools/tour/hands.h"
#include "tools/tour/purchase_road.h"
#include "tools/tour/road.h"
#include "tools/tour/tour_dialogs.h"

namespace {

constexpr char guidePage[] = "purchase";
constexpr char installation[] = "installation";

// The day and the user that the pictures show, whoever goes the road and whenever.
class TourSystem : public System
{
public:
    QString loginName() const override { return "buyer"; }
    QDateTime now() const override
    {
        return QDateTime(QDate(2026, 3, 9), QTime(8, 0)).addMSecs(m_clock.elapsed());
    }

private:
    QElapsedTimer m_clock = [] {
        QElapsedTimer clock;
        clock.start();
        return clock;
    }();
};

// A tour begins with nothing: what an earlier one left is taken away, anything else is left alone.
QString emptyFolder(const QString& name)
{
    const QString folder = QDir(name).absolutePath();
    if (!QDir().mkpath(folder))
        throw TourFailure("Cannot make the folder " + folder + '.');
    QDir dir(folder);
    const bool isOurs = QFileInfo::exists(dir.filePath("index.html")) &&
                        QFileInfo::exists(dir.filePath(QString(guidePage) + ".md"));
    if (!dir.isEmpty() && !isOurs)
        throw TourFailure("The folder " + folder + " holds other files.");
    if (!dir.isEmpty() && !(dir.removeRecursively() && QDir().mkpath(folder)))
        throw TourFailure("Cannot empty the folder " + folder + '.');
    return folder;
}

// A name on a coloured field, where the program looks for pictures.
void drawLogo(const QString& folder)
{
    QImage logo(480, 160, QImage::Format_RGB32);
    logo.fill(QColor(0x2f, 0x5d, 0x8a));
    QPainter painter(&logo);
    QFont font = painter.font();
    font.setPixelSize(96);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(logo.rect(), Qt::AlignCenter, "ALDER");
    painter.end();
    if (!QDir().mkpath(folder) || !logo.save(folder + '/' + logoFile))
        throw TourFailure("Cannot draw a logo in " + folder + '.');
}

void makeInstallation(const QString& folder)
{
    if (!QDir().mkpath(folder) || !QDir::setCurrent(folder))
        throw TourFailure("Cannot make the folder " + folder + '.');
    createInstallation({"MAIN OFFICE", System::current().loginName()});
    drawLogo("ZORMedia");
}

int report(Road& road, const QString& folder)
{
    if (!road.write())
        road.fail("The page cannot be written.");
    say(QString("%1 checks, %2 differ. The road is told in %3/index.html.")
            .arg(road.checks())
            .arg(road.failures())
            .arg(folder));
    return road.failures() == 0 ? exitDone : exitFailed;
}

int tour(const QString& folder)
{
    QtMessages messages;
    Messages::install(&messages);
    const QString pdf = folder + "/order.pdf";
    TourDialogs dialogs(pdf);
    SystemDialogs::install(&dialogs);
    frmVEXMAIN mainWindow([] { std::_Exit(exitFailed); });
    mainWindow.resize(1280, 720);
    QTimer::singleShot(0, &mainWindow, [&] { mainWindow.load(); });
    Road road(folder, guidePage);
    const std::unique_ptr<QThread> walk(QThread::create([&] {
        Hands hands(mainWindow);
        try {
            walkPurchaseRoad(hands, road, pdf);
        } catch (const std::exception& failure) {
            road.fail(QString::fromUtf8(failure.what()));
            try {
                road.picture("failure", hands.picture(), "Where the road ended");
            } catch (const std::exception&) {
                // The windows do not answer; the road tells it.
            }
            // Boxes may stand open; nothing is to be saved.
            std::_Exit(report(road, folder));
        }
    }));
    walk->start();
    VexleyApplication::exec();
    walk->wait();
    road.step("The files");
    road.check("What the check of the installation's files gives",
               QString::number(runCheck({"vexsite check", folder + '/' + installation})),
               QString::number(exitDone));
    return report(road, folder);
}

}  // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
        qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    VexleyApplication application(argc, argv);
    TourSystem system;
    System::install(&system);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 2 || arguments[1].startsWith('-')) {
        complain("Usage: vextour FOLDER");
        return exitUsage;
    }
    try {
        const QString folder = emptyFolder(arguments[1]);
        makeInstallation(folder + '/' + installation);
        return tour(folder);
    } catch (const std::exception& failure) {
        complain(QString::fromUtf8(failure.what()));
        return exitFailed;
    }
}
