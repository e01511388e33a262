// The grid's commands beside its keys: the movement buttons, the menu, the list to the clipboard.
#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QMenu>
#include <QRegularExpression>
#include <QTableView>
#include <QTimer>
#include <QToolButton>

#include "core/messages.h"
#include "screens/browse/browse_grid.h"
#include "screens/browse/browse_page.h"
#include "screens/command_runner.h"
#include "screens/progress.h"

namespace {

struct MoveButton
{
    const char* name;
    const char* glyph;
    const char* hint;
    BrowseGrid::Move move;
};
constexpr MoveButton moveButtonRow[] = {
    {"HOME", "\u21E4", "First record (Home)", BrowseGrid::Move::Home},
    {"PGUP", "\u21C8", "Previous page (Page Up)", BrowseGrid::Move::PageUp},
    {"UPARROW", "\u2191", "Previous row (Up)", BrowseGrid::Move::Up},
    {"DNARROW", "\u2193", "Next row (Down)", BrowseGrid::Move::Down},
    {"PGDN", "\u21CA", "Next page (Page Down)", BrowseGrid::Move::PageDown},
    {"END", "\u21E5", "Last record (End)", BrowseGrid::Move::End},
};

QToolButton* toolButton(const QString& name, const QString& glyph, const QString& hint)
{
    auto* button = new QToolButton;
    button->setObjectName(name);
    button->setText(glyph);
    button->setToolTip(hint);
    button->setAccessibleName(hint);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);  // the keyboard stays with the list
    return button;
}

}  // namespace

QWidget* BrowseGrid::moveButtons(const QString& prefix)
{
    if (m_buttons)
        return m_buttons;
    m_buttons = new QWidget;
    auto* row = new QHBoxLayout(m_buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    for (const MoveButton& one : moveButtonRow) {
        QToolButton* button = toolButton(prefix + one.name, QString::fromUtf8(one.glyph), one.hint);
        connect(button, &QToolButton::clicked, this, [this, to = one.move] {
            move(to);
            takeFocus();
        });
        row->addWidget(button);
    }
    QToolButton* action = toolButton(prefix + "ACTION", u"\u21B5"_qs, "Take this row (Enter)");
    connect(action, &QToolButton::clicked, this, [this] {
        takeFocus();
        act();
    });
    row->addWidget(action);
    return m_buttons;
}

void BrowseGrid::showMenu(const QPoint& at)
{
    QMenu menu(this);
    menu.addAction("&Copy List", QKeySequence::Copy, this, &BrowseGrid::copyList);
    menu.exec(m_view->viewport()->mapToGlobal(at));
}

void BrowseGrid::copyList()
{
    if (!m_list.isOpen())
        return;
    QString text;
    const auto addLine = [&](const QStringList& cells) {
        for (int i = 0; i < cells.size(); ++i) {
            QString cell = cells[i].trimmed();
            cell.replace(QRegularExpression("[\\t\\r\\n]+"), " ");
            text += (i > 0 ? "\t" : "") + cell;
        }
        text += '\n';
    };
    QStringList headings;
    for (const GridColumn& column : m_page->columns())
        headings.append(column.heading);
    addLine(headings);
    Progress progress(this, "Copying the list...");
    m_positionDue->stop();  // it moves the same handle
    bool whole = false;
    bool stopped = false;
    const bool read = runCommand([&] {
        whole = m_list.walk([&](const QStringList& cells) {
            addLine(cells);
            stopped = !progress.step();
            return !stopped;
        });
    });
    if (whole)
        QApplication::clipboard()->setText(text);
    else if (read && !stopped)
        showCritical("Cannot Copy",
                     "Another user has changed the list while it was copied.\nCopy it again.");
    refresh();
}
