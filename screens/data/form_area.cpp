#include "screens/data/form_area.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "screens/data/data_spec.h"
#include "screens/entry/entry_controls.h"

using Kind = EntryField::Kind;

namespace {

// How many rows of a form a field takes.
int rowsOf(const EntryField& field)
{
    return field.kind == Kind::Picture || field.kind == Kind::Memo ? 4 : 1;
}

// Where each field stands. Columns are as long as each other, but for a heading near the foot of
// one, which goes on to the next with its fields.
struct FormCell
{
    int row;
    int column;
};
std::vector<FormCell> cellsOf(const std::vector<EntryField>& fields, int columns)
{
    constexpr int leastBelowHeading = 2;
    int rows = 0;
    for (const EntryField& field : fields)
        rows += rowsOf(field);
    const int perColumn = (rows + columns - 1) / columns;
    std::vector<FormCell> cells;
    FormCell next{0, 0};
    for (const EntryField& field : fields) {
        const bool fits = field.kind == Kind::Heading ? next.row + leastBelowHeading < perColumn
                                                      : next.row < perColumn;
        if (!fits && next.column < columns - 1)
            next = {0, next.column + 1};
        cells.push_back(next);
        next.row += rowsOf(field);
    }
    return cells;
}

}  // namespace

// Captions at the left of their fields; boxes and headings across. Wide forms scroll on small
// displays.
FormArea::FormArea(const DataSection& section, int firstField, EntryControls& controls)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    auto* form = new QWidget;
    auto* grid = new QGridLayout(form);
    grid->setHorizontalSpacing(10);
    const int columns = std::max(section.columns, 1);
    const std::vector<FormCell> cells = cellsOf(section.fields, columns);
    int at = firstField - 1;
    for (const EntryField& field : section.fields) {
        ++at;
        const FormCell& cell = cells[static_cast<size_t>(at - firstField)];
        const int row = cell.row;
        const int column = cell.column * 3;
        const int height = rowsOf(field);
        QWidget* control = controls.control(at, form);
        // Names come and go with what is typed: the form keeps room for the usual ones.
        constexpr int nameLength = 30;
        if (field.kind == Kind::Shown)
            control->setMinimumWidth(control->fontMetrics().averageCharWidth() * nameLength);
        // Beside other fields a memo is as high as its rows: more would tear theirs apart.
        if (field.kind == Kind::Memo && columns > 1) {
            control->setMinimumHeight(height * QLineEdit().sizeHint().height() +
                                      (height - 1) * grid->verticalSpacing());
            control->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
        }
        if (field.kind == Kind::Heading) {
            QFont font = control->font();
            font.setBold(true);
            control->setFont(font);
        }
        if (field.kind == Kind::Box || field.kind == Kind::Heading) {
            grid->addWidget(control, row, column, 1, 2);
            continue;
        }
        auto* caption = new QLabel(field.caption);
        caption->setBuddy(control);
        const Qt::Alignment side = height > 1 ? Qt::AlignTop : Qt::AlignVCenter;
        grid->addWidget(caption, row, column, height, 1, Qt::AlignRight | side);
        const bool fills =
            field.kind == Kind::Memo || field.kind == Kind::Text || field.kind == Kind::Shown;
        QWidget* button = controls.searchButton(at, form);
        if (!button) {
            grid->addWidget(control, row, column + 1, height, 1,
                            fills ? Qt::Alignment() : Qt::AlignLeft);
            continue;
        }
        auto* both = new QHBoxLayout;
        both->addWidget(control, 1);
        both->addWidget(button);
        both->addStretch();
        grid->addLayout(both, row, column + 1, height, 1);
    }
    for (int c = 0; c < columns; ++c)
        grid->setColumnStretch(c * 3 + 1, 1);
    grid->setRowStretch(grid->rowCount(), 1);
    setWidget(form);
}

QSize FormArea::sizeHint() const
{
    if (!widget())
        return QScrollArea::sizeHint();
    // A name that comes with what is typed may have a line more.
    const QSize spare(verticalScrollBar()->sizeHint().width(), 10);
    return widget()->sizeHint().expandedTo(widget()->minimumSizeHint()) + spare;
}

void FormArea::showWhole(QWidget* control)
{
    constexpr int room = 6;
    ensureWidgetVisible(control, room, room);
}

// The box of errors takes room from the form while a field has the keyboard.
void FormArea::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    QWidget* focused = widget() ? widget()->focusWidget() : nullptr;
    if (focused && focused->hasFocus())
        showWhole(focused);
}
