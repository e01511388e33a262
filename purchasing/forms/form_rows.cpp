#include "purchasing/forms/form_rows.h"

namespace {

constexpr size_t fewestRows = 2;  // of a description on a page
constexpr size_t longPart = 3;    // a group of more than this part of a page may be parted

// Where a text that is too long for its column is parted: behind a dash or a blank.
qsizetype partOf(const QString& text, int width)
{
    const qsizetype fits = cellLength(width);
    if (fits >= text.size())
        return text.size();
    const qsizetype dash =
        std::max(text.lastIndexOf('-', fits - 1), text.lastIndexOf(' ', fits - 1));
    return dash > 0 ? dash + 1 : fits;
}

void spread(const Form& form, int width, std::vector<PrintedRow>& rows, size_t at, size_t column)
{
    static const FormRow more{.isContinuation = true};
    const auto place = static_cast<qsizetype>(column);
    QString rest = rows[at].cells[place];
    for (qsizetype part = partOf(rest, width); part < rest.size(); part = partOf(rest, width)) {
        rows[at].cells[place] = rest.left(part);
        rest = rest.mid(part);
        ++at;
        if (at == rows.size() || !rows[at].row->isContinuation)
            rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(at),
                        {&more, cellsOf(form, more)});
        rows[at].cells[place] = rest;
    }
}

bool isBlank(const PrintedRow& row)
{
    return !row.row->isSmall &&
           std::all_of(row.cells.begin(), row.cells.end(),
                       [](const QString& cell) { return cell.trimmed().isEmpty(); });
}

// True if the row belongs to what begins before it.
bool goesOn(const std::vector<PrintedRow>& rows, size_t at)
{
    const FormRow& row = *rows[at].row;
    return row.isContinuation || (row.isSmall && at > 0 && rows[at - 1].row->isSmall);
}

// Where the page ends that begins at `begin` and could hold the rows before `end`.
size_t pageEnd(const std::vector<PrintedRow>& rows, size_t begin, size_t end, size_t perPage)
{
    if (end == rows.size() || !goesOn(rows, end))
        return end;
    size_t first = end, last = end;  // of the group that would be parted
    while (first > begin && goesOn(rows, first))
        --first;
    while (last < rows.size() && goesOn(rows, last))
        ++last;
    const bool isLong = last - first > perPage / longPart;
    const bool canMove = first > begin;
    if (canMove && (!isLong || end - first < fewestRows))
        return first;
    const size_t left = last - end;
    return left < fewestRows && end - begin > 2 * fewestRows ? end - (fewestRows - left) : end;
}

}  // namespace

QStringList cellsOf(const Form& form, const FormRow& row)
{
    QStringList cells;
    for (const FormColumn& column : form.columns)
        cells.append(column.cell(row));
    return cells;
}

std::vector<PrintedRow> printedRows(const Form& form, const std::vector<int>& widths,
                                    const std::vector<FormRow>& rows)
{
    std::vector<PrintedRow> printed;
    printed.reserve(rows.size());
    size_t first = 0;  // row of the line in hand
    const auto spreadLine = [&] {
        if (first < printed.size())
            for (size_t column = 0; column < form.columns.size(); ++column)
                if (form.columns[column].wraps)
                    spread(form, widths[column], printed, first, column);
    };
    for (const FormRow& row : rows) {
        if (!row.isContinuation) {
            spreadLine();
            first = printed.size();
        }
        printed.push_back({&row, cellsOf(form, row)});
    }
    spreadLine();
    return printed;
}

std::vector<std::span<const PrintedRow>> pagesOf(const std::vector<PrintedRow>& rows,
                                                 size_t perPage)
{
    std::vector<std::span<const PrintedRow>> pages;
    for (size_t begin = 0; begin < rows.size();) {
        const size_t end = pageEnd(rows, begin, std::min(begin + perPage, rows.size()), perPage);
        pages.push_back(std::span(rows).subspan(begin, end - begin));
        begin = end;
        while (begin < rows.size() && isBlank(rows[begin]) && !rows[begin].row->isContinuation)
            ++begin;
    }
    if (pages.empty())
        pages.emplace_back();
    return pages;
}
