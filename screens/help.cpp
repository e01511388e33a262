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

// Pictures as wide as the page at most.
class HelpText : public QTextBrowser
{
public:
    QVariant loadResource(int type, const QUrl& name) override
    {
        QVariant loaded = QTextBrowser::loadResource(type, name);
        if (type != QTextDocument::ImageResource)
            return loaded;
        QImage picture = loaded.value<QImage>();
        if (picture.isNull())
            picture.loadFromData(loaded.toByteArray());
        const int room = viewport()->width() - 4 * static_cast<int>(document()->documentMargin());
        return picture.width() > room ? picture.scaledToWidth(room, Qt::SmoothTransformation)
                                      : picture;
    }
};

bool hasPage(const QString& page)
{
    return !page.isEmpty() && QFile::exists(pathOf(page));
}

// The screen of an entry has the number after its list's, whose page tells of both.
QString listOf(const QString& screen)
{
    return screen.endsWith("02") ? screen.chopped(2) + "01" : QString();
}

}  // namespace

QString helpPageFor(const QWidget* control)
{
    for (; control; control = control->parentWidget()) {
        for (const QString& page : {control->objectName(), listOf(control->objectName())})
            if (hasPage(page))
                return page;
        if (const QVariant page = control->property(helpPageProperty); page.isValid())
            return page.toString();
    }
    return firstPage;
}

void showHelp(const QString& page)
{
    QDialog window(QApplication::activeWindow());
    window.setObjectName("frmHelp");
    auto* text = new HelpText;
    text->setObjectName("txtHelp");
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(text);
    window.resize(760, 600);
    window.ensurePolished();
    layout->activate();  // pictures ask how wide the page is
    text->setSearchPaths({":/help"});
    text->setSource(QUrl("qrc" + pathOf(page)), QTextDocument::MarkdownResource);
    window.setWindowTitle("Help - " + text->documentTitle());
    if (text->documentTitle().isEmpty())
        window.setWindowTitle("Help");
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
