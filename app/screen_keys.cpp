#include "app/screen_keys.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>

namespace {

bool hasKey(const QString& caption, const QKeySequence& key)
{
    return caption.contains('&') && QKeySequence::mnemonic(caption) == key;
}

bool canTakeKey(const QWidget* control)
{
    return control->isVisible() && control->isEnabled();
}

}  // namespace

ScreenKeys::ScreenKeys(QMdiArea* area) : QObject(area), m_area(area)
{
    qApp->installEventFilter(this);
}

bool ScreenKeys::eventFilter(QObject* watched, QEvent* event)
{
    const bool isOffer = event->type() == QEvent::ShortcutOverride;
    if ((!isOffer && event->type() != QEvent::KeyPress) || !watched->isWidgetType())
        return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget())
        return false;
    if (key.keyCombination() == QKeyCombination(Qt::Key_F10)) {
        QMenuBar* menu = static_cast<QMainWindow*>(m_area->window())->menuBar();
        if (!isOffer)
            menu->setActiveAction(menu->actions().first());
        return !isOffer;
    }
    QWidget* control = controlFor(key);
    if (!control)
        return false;
    event->accept();
    if (isOffer)
        return true;  // what follows is the key itself, no shortcut
    control->setFocus(Qt::ShortcutFocusReason);
    if (auto* button = qobject_cast<QAbstractButton*>(control))
        button->click();
    return true;
}

QWidget* ScreenKeys::controlFor(const QKeyEvent& event) const
{
    const QMdiSubWindow* frame = m_area->activeSubWindow();
    if (event.modifiers() != Qt::AltModifier || !frame)
        return nullptr;
    const QKeySequence key(event.keyCombination());
    for (QAbstractButton* button : frame->findChildren<QAbstractButton*>())
        if (canTakeKey(button) && hasKey(button->text(), key))
            return button;
    for (const QLabel* label : frame->findChildren<QLabel*>())
        if (label->buddy() && canTakeKey(label->buddy()) && hasKey(label->text(), key))
            return label->buddy();
    return nullptr;
}
