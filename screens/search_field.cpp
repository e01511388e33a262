#include "screens/search_field.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>

#include "core/text.h"
#include "screens/command_runner.h"

SearchField::SearchField(QLineEdit* edit, std::function<QString()> search)
    : m_edit(edit), m_search(std::move(search))
{
    auto* button = new QToolButton;
    button->setObjectName(edit->objectName() + "Search");
    button->setText("...");
    button->setToolTip("Search (?)");
    button->setAccessibleName("Search");
    button->setFocusPolicy(Qt::NoFocus);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    row->addWidget(edit, 1);
    row->addWidget(button);
    row->addStretch();
    setFocusProxy(edit);
    onPressed(button, [this] { open(); });
    // Before the field's own keys, which may refuse these two.
    edit->installEventFilter(this);
}

bool SearchField::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_edit || event->type() != QEvent::KeyPress)
        return false;
    const QString typed = static_cast<QKeyEvent*>(event)->text();
    if (typed != "?" && typed != "/")
        return false;
    runCommand([this] { open(); });
    return true;
}

void SearchField::open()
{
    const QString found = m_search();
    if (dnNotBlank(found))
        m_edit->setText(found.trimmed());
    m_edit->setFocus(Qt::OtherFocusReason);
}
