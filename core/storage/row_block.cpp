#include <cstring>

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
    m_arena.resize(offset + static_cast<size_t>(length));
    if (length > 0)
        std::memcpy(m_arena.data() + offset, data, static_cast<size_t>(length));
    m_cells.push_back({kind, static_cast<quint32>(length), {.offset = offset}});
}

Value RowBlock::value(int row, size_t column, FieldType type) const
{
    const Cell& cell = m_cells[static_cast<size_t>(row) * m_columns + column];
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
