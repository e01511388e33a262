#include "core/storage/date_form.h"
#include "core/storage/engine.h"

namespace storage {

void RowBlock::start(size_t columnCount)
{
    m_columns = columnCount;
    m_ids.clear();
    m_cells.clear();
    m_arena.clear();
}

void RowBlock::addBytes(Kind kind, const void* data, int length)
{
    const size_t offset = m_arena.size();
    const char* bytes = static_cast<const char*>(data);
    m_arena.insert(m_arena.end(), bytes, bytes + length);
    m_cells.push_back({kind, static_cast<quint32>(length), {.offset = offset}});
}

qint64 RowBlock::integer(int row, size_t column) const
{
    const Cell& found = cell(row, column);
    return found.kind == Kind::Integer ? found.u.integer : 0;
}

double RowBlock::number(int row, size_t column) const
{
    const Cell& found = cell(row, column);
    return found.kind == Kind::Real      ? found.u.real
           : found.kind == Kind::Integer ? static_cast<double>(found.u.integer)
                                         : 0;
}

std::string_view RowBlock::text(int row, size_t column) const
{
    const Cell& found = cell(row, column);
    if (found.kind != Kind::Text)
        return {};
    return {m_arena.data() + found.u.offset, found.length};
}

Value RowBlock::value(int row, size_t column, FieldType type) const
{
    const Cell& cell = this->cell(row, column);
    switch (cell.kind) {
        case Kind::Null:
            return {};
        case Kind::Integer:
            if (type == FieldType::Currency)
                return Currency{cell.u.integer};
            if (type == FieldType::Date)
                return dateFromStored(cell.u.integer);
            return cell.u.integer;
        case Kind::Real:
            return cell.u.real;
        case Kind::Text:
            return QString::fromUtf8(m_arena.data() + cell.u.offset, cell.length);
        case Kind::Bytes:
            return QByteArray(m_arena.data() + cell.u.offset, cell.length);
    }
    return {};
}

}  // namespace storage
