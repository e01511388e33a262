#include "screens/browse/browse_grid.h"

#include <QApplication>
#include <QBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>
#include <QTimer>
#include <QWheelEvent>

#include "screens/browse/browse_page.h"
#include "screens/browse/row_delegate.h"
#include "screens/command_runner.h"

namespace {

constexpr int twipsPerInch = 1440;
// The place in the list is counted only when the user pauses: over many records it takes a while.
constexpr int positionDelay = 150;

struct MoveKey
{
    Qt::Key key;
    BrowseGrid::Move move;
};
constexpr MoveKey moveKeys[] = {
    {Qt::Key_Down, BrowseGrid::Move::Down},
    {Qt::Key_Right, BrowseGrid::Move::Down},
    {Qt::Key_Up, BrowseGrid::Move::Up},
    {Qt::Key_Left, BrowseGrid::Move::Up},
    {Qt::Key_PageDown, BrowseGrid::Move::PageDown},
    {Qt::Key_PageUp, BrowseGrid::Move::PageUp},
    {Qt::Key_Home, BrowseGrid::Move::Home},
    {Qt::Key_End, BrowseGrid::Move::End},
};

int pixels(int twips, const QWidget& on)
{
    return twips * on.logicalDpiX() / twipsPerInch;
}

}  // namespace

BrowseGrid::BrowseGrid(BrowseList& list, const QString& focusHolder)
    : m_list(list),
      m_page(new BrowsePage(list)),
      m_view(new QTableView),
      m_position(new QScrollBar(Qt::Vertical)),
      m_positionDue(new QTimer(this))
{
    m_page->setParent(this);
    m_view->setObjectName(focusHolder);
    m_view->setModel(m_page);
    m_view->setItemDelegate(new RowDelegate(m_view));
    m_view->setSelectionMode(QAbstractItemView::NoSelection);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setTabKeyNavigation(false);
    m_view->setWordWrap(false);
    m_view->setShowGrid(false);
    m_view->setAlternatingRowColors(true);
    m_view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_view->verticalHeader()->setMinimumSectionSize(0);
    m_view->verticalHeader()->setDefaultSectionSize(m_view->fontMetrics().height() + 10);
    QHeaderView* headings = m_view->horizontalHeader();
    headings->setHighlightSections(false);
    headings->setSectionsClickable(true);
    headings->setStretchLastSection(true);
    headings->setMinimumSectionSize(m_view->fontMetrics().height() + 8);
    m_position->setFocusPolicy(Qt::NoFocus);
    m_position->setObjectName(focusHolder + "Position");
    setFocusProxy(m_view);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_position);

    m_view->installEventFilter(this);
    m_view->viewport()->installEventFilter(this);
    connect(headings, &QHeaderView::sectionClicked, this, [this](int section) {
        if (section > 0 && m_movesEnabled)
            Q_EMIT headingClicked(section - 1);
    });
    connect(headings, &QHeaderView::sectionResized, this, [this] { storeWidths(); });
    connect(m_view->horizontalScrollBar(), &QScrollBar::valueChanged, this,
            [this] { Q_EMIT layoutChanged(); });
    connect(m_view, &QTableView::customContextMenuRequested, this, &BrowseGrid::showMenu);
    connect(m_position, &QScrollBar::actionTriggered, this,
            [this] { jumpTo(m_position->sliderPosition()); });
    m_positionDue->setSingleShot(true);
    m_positionDue->setInterval(positionDelay);
    connect(m_positionDue, &QTimer::timeout, this, &BrowseGrid::showPosition);
}

BrowseGrid::~BrowseGrid() = default;

void BrowseGrid::setColumns(const std::vector<GridColumn>& columns)
{
    m_settingWidths = true;
    m_view->clearSpans();
    m_messageRow = -1;
    m_page->setColumns(columns);
    QHeaderView* headings = m_view->horizontalHeader();
    const QFontMetrics metrics = m_view->fontMetrics();
    const int markerWidth = metrics.height() + 8;
    headings->setSectionResizeMode(0, QHeaderView::Fixed);
    headings->resizeSection(0, markerWidth);
    int total = markerWidth;
    for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
        const GridColumn& column = columns[static_cast<size_t>(i)];
        headings->setSectionHidden(i + 1, column.width == 0);
        if (column.width == 0)
            continue;
        const int width =
            std::max(pixels(column.width, *this), metrics.horizontalAdvance(column.heading) + 20);
        headings->resizeSection(i + 1, width);
        total += width;
    }
    m_wishedWidth = total + 4;
    m_view->setMinimumWidth(std::min(m_wishedWidth, 900));
    m_settingWidths = false;
    refresh();
}

void BrowseGrid::setHeading(int column, const QString& heading)
{
    m_page->setHeading(column, heading);
}

void BrowseGrid::keepWidths(const UserLayout& layout, const QString& key)
{
    m_layout = layout;
    m_layoutKey = key;
    const QStringList stored = m_layout.value(key).toStringList();
    QHeaderView* headings = m_view->horizontalHeader();
    m_settingWidths = true;
    for (int i = 0; i < stored.size() && i + 1 < headings->count(); ++i)
        if (const int width = stored[i].toInt(); width > 0 && !headings->isSectionHidden(i + 1))
            headings->resizeSection(i + 1, width);
    m_settingWidths = false;
}

void BrowseGrid::storeWidths()
{
    if (m_settingWidths)
        return;
    Q_EMIT layoutChanged();
    // Only what the user's hand did; the last column also follows the window.
    if (m_layoutKey.isEmpty() || !(QApplication::mouseButtons() & Qt::LeftButton))
        return;
    const QHeaderView* headings = m_view->horizontalHeader();
    QStringList widths;
    for (int i = 1; i < headings->count(); ++i)
        widths.append(QString::number(headings->sectionSize(i)));
    m_layout.setValue(m_layoutKey, widths);
}

void BrowseGrid::setEndTexts(const QString& endOfList, const QString& listIsEmpty)
{
    m_page->setEndTexts(endOfList, listIsEmpty);
}

void BrowseGrid::setMovesEnabled(bool enabled)
{
    m_movesEnabled = enabled;
    m_position->setEnabled(enabled);
    if (m_buttons)
        m_buttons->setEnabled(enabled);
}

void BrowseGrid::move(Move move)
{
    if (!m_movesEnabled || !m_list.isOpen())
        return;
    runCommand([&] {
        switch (move) {
            case Move::Home:
                return m_list.home();
            case Move::End:
                return m_list.end();
            case Move::PageUp:
                return m_list.pageUp();
            case Move::PageDown:
                return m_list.pageDown();
            case Move::Up:
                return m_list.previousRow();
            case Move::Down:
                return m_list.nextRow();
        }
    });
    changed();
}

bool BrowseGrid::takeMoveKey(int key)
{
    for (const MoveKey& known : moveKeys)
        if (known.key == key) {
            move(known.move);
            return true;
        }
    return false;
}

// Left and Right by themselves are moves; with Ctrl they show columns that the window cuts.
bool BrowseGrid::takeSidewaysKey(const QKeyEvent& key)
{
    const bool isLeft = key.key() == Qt::Key_Left;
    if ((key.modifiers() & ~Qt::KeypadModifier) != Qt::ControlModifier ||
        (!isLeft && key.key() != Qt::Key_Right))
        return false;
    QScrollBar* bar = m_view->horizontalScrollBar();
    const int step = m_view->viewport()->width() / 4;
    bar->setValue(bar->value() + (isLeft ? -step : step));
    return true;
}

void BrowseGrid::act()
{
    if (m_movesEnabled)
        Q_EMIT acted();
}

void BrowseGrid::changed()
{
    refresh();
    Q_EMIT moved();
}

void BrowseGrid::refresh()
{
    m_page->refresh();
    showMessageRow();
    m_view->scrollToTop();
    if (m_list.BrowseRow < m_page->rowCount())
        m_view->selectionModel()->select(
            m_page->index(m_list.BrowseRow, 0),
            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_positionDue->start();
}

void BrowseGrid::bringIntoView(int column)
{
    const QHeaderView* headings = m_view->horizontalHeader();
    const int left = headings->sectionPosition(column + 1);
    const int right = left + headings->sectionSize(column + 1);
    const int offset = headings->offset();
    if (left < offset)
        m_view->horizontalScrollBar()->setValue(left);
    else if (right > offset + m_view->viewport()->width())
        m_view->horizontalScrollBar()->setValue(right - m_view->viewport()->width());
}

QSize BrowseGrid::sizeHint() const
{
    constexpr int rows = 14;
    const int height = m_view->verticalHeader()->defaultSectionSize() * rows +
                       m_view->horizontalHeader()->sizeHint().height() + 2 * m_view->frameWidth();
    const int width = m_wishedWidth + m_position->sizeHint().width();
    return {std::max(QWidget::sizeHint().width(), width), height};
}

// What stands in place of a record has the width of all columns.
void BrowseGrid::showMessageRow()
{
    int messageRow = -1;
    for (int row = 0; row < m_page->rowCount(); ++row) {
        const BrowseLine::Kind kind = m_list.lines()[static_cast<size_t>(row)].kind;
        if (kind == BrowseLine::Kind::EndOfList || kind == BrowseLine::Kind::ListIsEmpty)
            messageRow = row;
    }
    if (messageRow == m_messageRow)
        return;
    m_view->clearSpans();
    if (messageRow >= 0 && m_page->columnCount() > 2)
        m_view->setSpan(messageRow, 1, 1, m_page->columnCount() - 1);
    m_messageRow = messageRow;
}

void BrowseGrid::takeFocus()
{
    m_view->setFocus(Qt::OtherFocusReason);
}

QRect BrowseGrid::cellRect(int row, int column) const
{
    // Not the view's own answer: a message in the row has the width of all columns.
    return {m_view->columnViewportPosition(column + 1), m_view->rowViewportPosition(row),
            m_view->columnWidth(column + 1), m_view->rowHeight(row)};
}

void BrowseGrid::takeRoom()
{
    const int rowHeight = m_view->verticalHeader()->defaultSectionSize();
    const int rows = std::max(1, m_view->viewport()->height() / rowHeight);
    if (rows == static_cast<int>(m_list.lines().size()))
        return Q_EMIT layoutChanged();
    runCommand([&] { m_list.setRowCount(rows); });
    refresh();
    Q_EMIT layoutChanged();
}

bool BrowseGrid::clicked(const QPoint& at, bool isDouble)
{
    if (m_view->focusPolicy() != Qt::NoFocus)
        takeFocus();
    const int row = m_view->rowAt(at.y());
    if (!m_movesEnabled || row < 0)
        return true;
    if (row == m_list.BrowseRow) {
        if (isDouble || m_actsOnClick)
            act();
        return true;
    }
    m_list.selectRow(row);
    changed();
    return true;
}

bool BrowseGrid::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_view && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Copy)) {
            copyList();
            return true;
        }
        if (takeSidewaysKey(*key))
            return true;
        if (key->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier))
            return false;
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            act();
            return true;
        }
        if (takeMoveKey(key->key()))
            return true;
        // Left accepted: an ignored Tab would go on to the parent, which moves the focus again.
        if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab)
            return false;
        // The letters are the window's; the view would look for a row that begins so.
        event->ignore();
        return !key->text().isEmpty();
    }
    if (watched != m_view->viewport())
        return false;
    switch (event->type()) {
        case QEvent::Resize:
            takeRoom();
            return false;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick: {
            auto* mouse = static_cast<QMouseEvent*>(event);
            if (mouse->button() != Qt::LeftButton)
                return false;
            return clicked(mouse->position().toPoint(),
                           event->type() == QEvent::MouseButtonDblClick);
        }
        case QEvent::Wheel: {
            m_wheel += static_cast<QWheelEvent*>(event)->angleDelta().y();
            constexpr int eighthsARow = 40;  // three rows a notch
            for (; m_wheel >= eighthsARow; m_wheel -= eighthsARow)
                move(Move::Up);
            for (; m_wheel <= -eighthsARow; m_wheel += eighthsARow)
                move(Move::Down);
            return true;
        }
        default:
            return false;
    }
}

void BrowseGrid::showPosition()
{
    if (!m_list.isOpen() || m_position->isSliderDown())
        return;
    runCommand([this] {
        const BrowseList::Position place = m_list.position();
        const QSignalBlocker quiet(m_position);
        const int page = static_cast<int>(m_list.lines().size());
        m_position->setRange(0, static_cast<int>(std::max<qint64>(0, place.count - 1)));
        m_position->setPageStep(page);
        m_position->setValue(static_cast<int>(place.before));
    });
}

void BrowseGrid::jumpTo(int position)
{
    if (!m_movesEnabled)
        return;
    runCommand([&] { m_list.showAt(position); });
    changed();
}
