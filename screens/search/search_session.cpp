#include "screens/search/search_session.h"

#include <algorithm>
#include <limits>

#include "core/messages.h"
#include "core/storage/storage_error.h"
#include "core/text.h"

namespace {

constexpr char boxTitle[] = "Error: dnSearch";
constexpr int usualRowCount = 12;

// What is no number is sought as 0.
template <class Whole>
storage::Value soughtNumber(const QString& text)
{
    using Limits = std::numeric_limits<Whole>;
    return std::clamp<qint64>(storage::Value(text).toLongLong(), Limits::min(), Limits::max());
}

}  // namespace

SearchSession::SearchSession(SearchRequest request)
    : m_request(std::move(request)),
      m_columns(searchColumns(m_request)),
      m_list([this](storage::Recordset& rows) { return cellsOf(rows); })
{
    m_list.setRowCount(usualRowCount);
}

bool SearchSession::open()
{
    if (m_request.keys.size() > mostSearchKeys) {
        showCritical(boxTitle, "Invalid Key Count in dnSearch");
        return false;
    }
    try {
        m_list.open({.folder = m_request.DBPath.trimmed(),
                     .file = m_request.DBName,
                     .table = m_request.TableName,
                     .index = m_columns[0].index.trimmed(),
                     .parent = {},
                     .accepts = {}},
                    "wksSEARCH");
        m_list.fill(m_request.keys);
        return true;
    } catch (const storage::StorageError& error) {
        showCritical(boxTitle, "Error Opening Search Window\n" + QString::number(error.number()) +
                                   ' ' + error.description());
        return false;
    }
}

int SearchSession::usedColumnCount() const
{
    return static_cast<int>(
        std::count_if(m_columns.begin(), m_columns.end(), std::mem_fn(&SearchColumn::isUsed)));
}

QString SearchSession::columnKey() const
{
    QStringList headings;
    for (const SearchColumn& column : m_columns)
        if (column.isUsed())
            headings.append(column.heading);
    return headings.join('|');
}

QString SearchSession::firstInstruction() const
{
    if (dnNotBlank(m_request.Instruction))
        return m_request.Instruction;
    return m_columns[0].isNumeric()
               ? QString("1. Enter the number of the item you are searching for.")
               : QString("1. Type the first few characters you are looking for.");
}

QStringList SearchSession::cellsOf(storage::Recordset& rows) const
{
    QStringList cells;
    for (const SearchColumn& column : m_columns)
        cells.append(column.isUsed() ? column.cellOf(rows) : QString());
    return cells;
}

bool SearchSession::type(QChar character)
{
    if (!character.isPrint() || m_searchText.size() >= m_columns[0].length)
        return false;
    m_searchText.append(character);
    textChanged();
    return true;
}

bool SearchSession::backspace()
{
    if (m_searchText.isEmpty())
        return false;
    m_searchText.chop(1);
    textChanged();
    return true;
}

void SearchSession::textChanged()
{
    if (m_list.isEmpty())
        m_list.rebuild();  // others may have added the first record
    if (m_searchText.isEmpty())
        m_list.home();
    else if (seek())
        m_list.show(m_list.rows().Bookmark());
    else
        m_list.rebuild();
}

// To the first record at or after the text, within the parent.
bool SearchSession::seek()
{
    if (dnIsBlank(m_columns[0].index))
        return false;
    std::vector<storage::Value> values;
    for (const KeyField& key : m_request.keys)
        values.push_back(key.key);
    if (!m_columns[0].isNumeric())
        values.push_back(m_searchText);
    else
        values.push_back(m_request.hasLongNumbers ? soughtNumber<qint32>(m_searchText)
                                                  : soughtNumber<qint16>(m_searchText));
    storage::Recordset& rows = m_list.rows();
    return rows.seekKeys(">=", values) && dnInbounds(rows, m_request.keys);
}

bool SearchSession::searchBy(int column)
{
    SearchColumn& chosen = m_columns[static_cast<size_t>(column)];
    if (!chosen.isUsed())
        return false;
    if (dnIsBlank(chosen.index)) {
        showCritical("Search Not Available",
                     "There is no Search Available by Column: " + chosen.heading);
        return false;
    }
    if (chosen.index == m_columns[0].index)
        return false;
    m_list.useIndex(chosen.index);
    std::swap(chosen, m_columns[0]);
    m_searchText.clear();
    m_list.home();
    return true;
}
