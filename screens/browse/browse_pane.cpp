#include "screens/browse/browse_pane.h"

#include <QBoxLayout>
#include <QEvent>
#include <QTableView>

#include "screens/browse/browse_grid.h"
#include "screens/selectors/error_box.h"

BrowsePane::BrowsePane(BrowseSession& session, const UserLayout& layout, const QString& layoutKey)
    : m_session(session),
      m_grid(new BrowseGrid(session.list(), "hsbMAIN")),
      m_fields(new EntryControls(session.entry(), session.tellsErrorsAtOnce(), this)),
      m_errorBox(new tqErrorBox)
{
    auto* box = new QVBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(m_grid);
    // Over the rows: it does not move the one in hand when it comes and goes.
    m_errorBox->setParent(this);
    std::vector<GridColumn> columns;
    for (const BrowseColumn& column : m_session.spec().columns)
        columns.push_back({column.heading, column.width, column.alignment});
    m_grid->setColumns(columns);
    m_grid->keepWidths(layout, layoutKey + "/columns");
    setFocusProxy(m_grid);
    connect(m_grid, &BrowseGrid::layoutChanged, this, &BrowsePane::placeFields);
    connect(m_fields, &EntryControls::changed, this, [this] {
        showErrors();
        Q_EMIT fieldLeft();
    });
    connect(m_fields, &EntryControls::entered, this, [this](int at) {
        m_grid->bringIntoView(m_columnOf[static_cast<size_t>(at)]);
        placeFields();
    });
    buildFields();
}

BrowsePane::~BrowsePane() = default;

void BrowsePane::buildFields()
{
    const std::vector<BrowseColumn>& columns = m_session.spec().columns;
    for (int i = 0; i < static_cast<int>(columns.size()); ++i)
        if (!columns[static_cast<size_t>(i)].entry.isEmpty())
            m_columnOf.push_back(i);
    QWidget* before = nullptr;
    for (int i = 0; i < m_session.entry().count(); ++i) {
        QWidget* field = m_fields->control(i, m_grid->view()->viewport());
        field->hide();
        if (before)
            QWidget::setTabOrder(before, field);
        before = field;
    }
}

void BrowsePane::load()
{
    // The columns' types and lengths are those of the table.
    m_session.entry().attach(m_session.list().rows());
    m_fields->prepare();
}

void BrowsePane::showHeadings()
{
    const std::vector<BrowseColumn>& columns = m_session.spec().columns;
    for (int i = 0; i < static_cast<int>(columns.size()); ++i)
        if (const auto& headingFor = columns[static_cast<size_t>(i)].headingFor)
            m_grid->setHeading(i, headingFor(m_session));
}

void BrowsePane::showState(const QString& emptyText, bool isInHand)
{
    const bool entering = !m_session.isBrowsing();
    m_grid->setEndTexts("End of List", emptyText);
    m_grid->setMovesEnabled(!entering && isInHand);
    m_grid->view()->setFocusPolicy(entering || !isInHand ? Qt::NoFocus : Qt::StrongFocus);
    m_grid->refresh();
    // Before they are hidden: a field that loses the keyboard then is not checked any more.
    m_fields->show(entering);
    placeFields();
    for (int i = 0; i < m_session.entry().count(); ++i)
        m_fields->control(i)->setVisible(entering);
    showErrors();
    if (entering)
        m_fields->takeFocus();
}

void BrowsePane::placeFields()
{
    if (m_session.isBrowsing())
        return;
    m_session.keepEntryInView();
    for (int i = 0; i < m_session.entry().count(); ++i)
        m_fields->control(i)->setGeometry(
            m_grid->cellRect(m_session.entryRow(), m_columnOf[static_cast<size_t>(i)]));
    placeErrorBox();
}

void BrowsePane::showErrors()
{
    m_errorBox->showErrors(m_session.entry().errors());
    placeErrorBox();
}

// At the foot of the rows, or at their head when the entry is in the lower half.
void BrowsePane::placeErrorBox()
{
    if (m_errorBox->isHidden())
        return;
    const QWidget* rows = m_grid->view()->viewport();
    const QRect room(rows->mapTo(this, QPoint()), rows->size());
    const int height = m_errorBox->heightForWidth(room.width()) > 0
                           ? m_errorBox->heightForWidth(room.width())
                           : m_errorBox->sizeHint().height();
    const bool below = m_grid->cellRect(m_session.entryRow(), 0).bottom() < room.height() - height;
    m_errorBox->setGeometry(room.x(), below ? room.bottom() + 1 - height : room.y(), room.width(),
                            height);
    m_errorBox->raise();
}

bool BrowsePane::event(QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
        placeErrorBox();
    return QWidget::event(event);
}
