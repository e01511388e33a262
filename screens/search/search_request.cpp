#include "screens/search/search_request.h"

#include <QStringList>

#include "core/number_format.h"
#include "core/text.h"

namespace {

// The whole number at the start of a text, 0 for none.
int leadingNumber(const QString& text)
{
    int number = 0;
    for (const QChar c : text.trimmed()) {
        if (c < '0' || c > '9')
            break;
        number = number * 10 + c.digitValue();
    }
    return number;
}

// Hands each entry of a list to the column that it belongs to.
template <class Take>
void split(const QString& list, std::vector<SearchColumn>& columns, Take take)
{
    if (list.isEmpty())
        return;
    const QStringList entries = list.split('|');
    for (size_t i = 0; i < columns.size() && i < static_cast<size_t>(entries.size()); ++i)
        take(columns[i], entries[static_cast<qsizetype>(i)]);
}

}  // namespace

std::vector<SearchColumn> searchColumns(const SearchRequest& request)
{
    std::vector<SearchColumn> columns(searchColumnCount);
    const auto texts = [&columns](const QString& list, QString SearchColumn::*member) {
        split(list, columns, [member](SearchColumn& column, const QString& entry) {
            column.*member = entry.isEmpty() ? QString(" ") : entry;
        });
    };
    const auto numbers = [&columns](const QString& list, int SearchColumn::*member) {
        split(list, columns, [member](SearchColumn& column, const QString& entry) {
            column.*member = leadingNumber(entry);
        });
    };
    texts(request.IndexList, &SearchColumn::index);
    texts(request.FieldList, &SearchColumn::field);
    split(request.TypeList, columns, [](SearchColumn& column, const QString& entry) {
        column.type = entry.isEmpty() ? QChar(' ') : entry[0];
        column.format = entry.size() > 1 ? entry.mid(1) : QString(" ");
    });
    numbers(request.LengthList, &SearchColumn::length);
    texts(request.HeadingList, &SearchColumn::heading);
    numbers(request.WidthList, &SearchColumn::width);
    numbers(request.AlignList, &SearchColumn::alignment);
    return columns;
}

QString SearchColumn::cellOf(const storage::Recordset& rows) const
{
    const storage::Value value = dnNullCheck(rows.fieldNamed(field));
    if (dnIsBlank(format))
        return ' ' + value.toString();
    return value.toDouble() == 0 ? QString(" ") : dnFormat(value.toDouble(), format) + ' ';
}
