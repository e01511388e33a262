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
