#include "app/screen_keys.h"

#include <QMdiArea>
#include <QMdiSubWindow>

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
    QWidget* control = controlFor(*static_cast<QKeyEvent*>(event));
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
    if (event.modifiers() != Qt::AltModifier || !frame || QApplication::activeModalWidget() ||
        QApplication::activePopupWidget())
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
