#include "screens/help.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QKeyEvent>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {

constexpr char firstPage[] = "index";

QString pathOf(const QString& page)
{
    return ":/help/" + page + ".md";
}

}  // namespace

QString helpPageFor(const QWidget* control)
{
    for (; control; control = control->parentWidget()) {
        if (!control->objectName().isEmpty() && QFile::exists(pathOf(control->objectName())))
            return control->objectName();
        if (const QVariant page = control->property(helpPageProperty); page.isValid())
            return page.toString();
    }
    return firstPage;
}

void showHelp(const QString& page)
{
    QDialog window(QApplication::activeWindow());
    window.setObjectName("frmHelp");
    auto* text = new QTextBrowser;
    text->setObjectName("txtHelp");
    text->setSearchPaths({":/help"});
    text->setSource(QUrl("qrc" + pathOf(page)), QTextDocument::MarkdownResource);
    window.setWindowTitle("Help - " + text->documentTitle());
    if (text->documentTitle().isEmpty())
        window.setWindowTitle("Help");
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(text);
    window.resize(640, 560);
    window.exec();
}

HelpKey::HelpKey(QObject* parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType() ||
        static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1)
        return false;
    auto* control = static_cast<QWidget*>(watched);
    if (!control->window()->findChild<QTextBrowser*>("txtHelp"))
        showHelp(helpPageFor(control));
    return true;
}
