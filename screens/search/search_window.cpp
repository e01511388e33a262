#include "screens/search/search_window.h"

#include <QApplication>
#include <QBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>

#include "core/text.h"
#include "screens/browse/browse_grid.h"
#include "screens/command_runner.h"
#include "screens/help.h"

namespace {

constexpr int leastRowCount = 12;
constexpr int twipsPerInch = 1440;
constexpr int narrowColumn = 2000;  // twips

Qt::Alignment alignmentOf(int code)
{
    return code == 1 ? Qt::AlignRight : code == 2 ? Qt::AlignHCenter : Qt::AlignLeft;
}

QLabel* plainLabel(const QString& name, const QString& text)
{
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* boldLabel(const QString& name, const QString& text)
{
    QLabel* label = plainLabel(name, text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

}  // namespace

QString dnSearch(const SearchRequest& request)
{
    SearchSession search(request);
    if (!search.open())
        return noBookmark;
    frmDNSearch window(search, QApplication::activeWindow());
    window.exec();
    return window.result();
}

frmDNSearch::frmDNSearch(SearchSession& search, QWidget* parent)
    : QDialog(parent),
      m_search(search),
      m_grid(new BrowseGrid(search.list(), "hsbMAIN")),
      m_firstInstruction(plainLabel("lblInstruct1", {})),
      m_columnKeys(plainLabel("lblColumnKeys", {})),
      m_text(plainLabel("lblSearch", " "))
{
    setObjectName(search.request().ScreenName);
    setProperty(helpPageProperty, "search");
    setWindowTitle(search.request().WindowTitle);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 14, 16, 12);
    layout->setSpacing(10);
    layout->addLayout(instructions());
    if (dnNotBlank(search.request().SearchTitle))
        layout->addWidget(boldLabel("lblSearchTitle", search.request().SearchTitle));
    layout->addWidget(m_grid, 1);
    layout->addLayout(buttons());

    m_grid->setEndTexts(search.request().EndOfList, search.request().ListIsEmpty);
    m_grid->setActsOnClick(false);
    QTableView* rows = m_grid->view();
    rows->setMinimumHeight(leastRowCount * rows->verticalHeader()->defaultSectionSize() +
                           rows->horizontalHeader()->sizeHint().height() + 2 * rows->frameWidth());
    rows->installEventFilter(this);
    connect(m_grid, &BrowseGrid::acted, this, &frmDNSearch::selectRecord);
    connect(m_grid, &BrowseGrid::headingClicked, this, &frmDNSearch::searchBy);
    for (int i = 0; i < searchColumnCount; ++i)
        connect(new QShortcut(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + i), this),
                &QShortcut::activated, this, [this, i] { searchBy(i); });
    showColumns();
    m_grid->takeFocus();
}

QLayout* frmDNSearch::instructions()
{
    auto* layout = new QVBoxLayout;
    layout->setSpacing(2);
    layout->addWidget(boldLabel("lblSearchForItem", "Search for an item"));
    layout->addWidget(m_firstInstruction);
    layout->addWidget(
        plainLabel("lblInstruct2", "2. If needed, click on desired item to highlight it."));
    layout->addWidget(plainLabel("lblInstruct3", "3. Click Select to choose highlighted item."));
    auto* byColumn = new QHBoxLayout;
    byColumn->addWidget(
        plainLabel("lblInstruct4", "To search by another column click on column title."));
    byColumn->addWidget(m_columnKeys, 1);
    layout->addLayout(byColumn);
    m_columnKeys->setForegroundRole(QPalette::PlaceholderText);
    m_text->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    m_text->setBackgroundRole(QPalette::Base);
    m_text->setForegroundRole(QPalette::Text);
    m_text->setAutoFillBackground(true);
    m_text->setMargin(4);
    layout->addSpacing(4);
    layout->addWidget(m_text);
    return layout;
}

QLayout* frmDNSearch::buttons()
{
    const auto button = [this](const char* name, const char* caption) {
        auto* made = new QPushButton(caption);
        made->setObjectName(name);
        made->setFocusPolicy(Qt::NoFocus);  // what is typed is always for the search
        return made;
    };
    QPushButton* select = button("cmdSelect", "&Select");
    QPushButton* cancel = button("cmdCancel", "&Cancel");
    select->setDefault(true);
    connect(select, &QPushButton::clicked, this, &frmDNSearch::select);
    connect(cancel, &QPushButton::clicked, this, &frmDNSearch::reject);
    auto* layout = new QHBoxLayout;
    layout->addWidget(m_grid->moveButtons());
    layout->addStretch();
    layout->addWidget(select);
    layout->addWidget(cancel);
    return layout;
}

// The told widths are those of another font: a narrow column, which holds a code or a date, is
// widened where the page would cut it. Long texts may be cut.
int frmDNSearch::widthOf(int column) const
{
    const int told = m_search.columns()[static_cast<size_t>(column)].width;
    if (told == 0 || told > narrowColumn)
        return told;
    const QFontMetrics metrics = m_grid->view()->fontMetrics();
    int widest = 0;
    for (const BrowseLine& line : m_search.list().lines())
        widest = std::max(widest, metrics.horizontalAdvance(line.cells.value(column) + "0"));
    return std::max(told, (widest + metrics.height()) * twipsPerInch / logicalDpiX());
}

void frmDNSearch::showColumns()
{
    std::vector<GridColumn> columns;
    QStringList keys;
    for (const SearchColumn& column : m_search.columns()) {
        const int width = widthOf(static_cast<int>(columns.size()));
        columns.push_back({column.heading.trimmed(), width, alignmentOf(column.alignment)});
        if (columns.size() > 1 && column.isUsed() && dnNotBlank(column.index))
            keys.append(QString("Alt+%1: %2").arg(columns.size()).arg(column.heading));
    }
    m_grid->setColumns(columns);
    m_firstInstruction->setText(m_search.firstInstruction());
    m_columnKeys->setText(keys.isEmpty() ? QString() : '(' + keys.join(", ") + ')');
    showText();
}

void frmDNSearch::showText()
{
    m_text->setText(m_search.SearchText().isEmpty() ? QString(" ") : m_search.SearchText());
    m_grid->refresh();
}

void frmDNSearch::searchBy(int column)
{
    runCommand([&] {
        if (m_search.searchBy(column))
            showColumns();
    });
}

void frmDNSearch::select()
{
    m_result = m_search.Current();
    accept();
}

void frmDNSearch::selectRecord()
{
    if (m_search.Current() != noBookmark)
        select();
}

// Enter, unlike a double click, also ends the search on the end of the list.
bool frmDNSearch::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_grid->view() && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            select();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void frmDNSearch::keyPressEvent(QKeyEvent* event)
{
    const Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const QString text = event->text();
    if (event->key() == Qt::Key_Backspace)
        runCommand([this] { m_search.backspace(); });
    else if (!(event->modifiers() & commands) && !text.isEmpty() && text[0].isPrint())
        runCommand([&] {
            for (const QChar character : text)
                m_search.type(character);
        });
    else
        return QDialog::keyPressEvent(event);
    showText();
}
