#include "cursor_model.h"

#include <algorithm>

namespace storage {
namespace {

constexpr int noCurrentRecord = 3021;
constexpr int recordDeleted = 3167;

QList<uint> folded(const QString& text)
{
    QList<uint> points = text.toUcs4();
    for (uint& point : points)
        point = QChar::toUpper(point);
    return points;
}

template <class T>
int order(const T& a, const T& b)
{
    return a < b ? -1 : b < a ? 1 : 0;
}

}  // namespace

int compareValues(const Value& a, const Value& b)
{
    if (a.isNull() || b.isNull())
        return order(!a.isNull(), !b.isNull());
    if (a.as<QString>())
        return order(folded(a.toString()), folded(b.toString()));
    if (a.as<QDateTime>())
        return order(a.toDateTime(), b.toDateTime());
    return order(a.toDouble(), b.toDouble());
}

int TableModel::compare(int index, const Row& a, RecordId idA, const Row& b, RecordId idB) const
{
    if (index >= 0)
        for (const QString& key : definition.indexes[size_t(index)].fields) {
            const auto field = size_t(definition.fieldPosition(key));
            if (const int result = compareValues(a[field], b[field]); result != 0)
                return result;
        }
    return order(idA, idB);
}

bool TableModel::violatesUnique(const Row& row, RecordId self) const
{
    for (const IndexDefinition& index : definition.indexes) {
        if (!index.unique)
            continue;
        for (const auto& [id, other] : rows) {
            const bool same = std::all_of(
                index.fields.begin(), index.fields.end(), [&, &theirs = other](const QString& key) {
                    const auto field = size_t(definition.fieldPosition(key));
                    return !row[field].isNull() && compareValues(row[field], theirs[field]) == 0;
                });
            if (same && id != self)
                return true;
        }
    }
    return false;
}

// The first row after (step 1) or before (step -1) the place, or of all rows.
std::optional<RecordId> CursorModel::nearest(int step, bool fromHere) const
{
    std::optional<RecordId> best;
    for (const auto& [candidate, row] : table->rows) {
        if (fromHere && table->compare(index, row, candidate, seen, id) * step <= 0)
            continue;
        if (!best || table->compare(index, row, candidate, table->rows[*best], *best) * step < 0)
            best = candidate;
    }
    return best;
}

void CursorModel::standOn(RecordId wanted)
{
    place = Place::OnRecord;
    id = wanted;
    seen = table->rows.at(wanted);
}

int CursorModel::setIndex(int wanted)
{
    if (wanted != index && place == Place::OnDeleted)
        place = Place::Nowhere;
    index = wanted;
    return 0;
}

int CursorModel::seek(bool onlyEqual, int step, const std::vector<Value>& keys)
{
    if (index < 0)
        return 3019;
    const QStringList& fields = table->definition.indexes[size_t(index)].fields;
    const auto compareKeys = [&](const TableModel::Row& row) {
        for (size_t i = 0; i < keys.size(); ++i) {
            const Value& cell = row[size_t(table->definition.fieldPosition(fields[qsizetype(i)]))];
            if (const int result = compareValues(cell, keys[i]); result != 0)
                return result;
        }
        return 0;
    };
    std::optional<RecordId> best;
    for (const auto& [candidate, row] : table->rows) {
        const int result = compareKeys(row);
        if (result < 0 || (onlyEqual && result > 0))
            continue;
        if (!best || table->compare(index, row, candidate, table->rows[*best], *best) * step < 0)
            best = candidate;
    }
    noMatch = !best;
    place = Place::Nowhere;
    if (best)
        standOn(*best);
    return 0;
}

int CursorModel::moveToEnd(int step)
{
    place = Place::NoRecords;
    const auto found = nearest(step, false);
    if (!found)
        return noCurrentRecord;
    standOn(*found);
    return 0;
}

int CursorModel::move(int step)
{
    const Place outside = step > 0 ? Place::AfterLast : Place::BeforeFirst;
    if (place == Place::BeforeFirst || place == Place::AfterLast)
        return place == outside ? noCurrentRecord : moveToEnd(step);
    if (place != Place::OnRecord && place != Place::OnDeleted)
        return noCurrentRecord;
    const auto found = nearest(step, true);
    if (found)
        standOn(*found);
    else
        place = outside;
    return 0;
}

int CursorModel::goTo(RecordId wanted)
{
    if (!table->rows.contains(wanted))
        return recordDeleted;
    standOn(wanted);
    return 0;
}

int CursorModel::currentError() const
{
    return place == Place::OnRecord    ? 0
           : place == Place::OnDeleted ? recordDeleted
                                       : noCurrentRecord;
}

int CursorModel::beginEdit()
{
    return currentError() != 0 ? currentError() : goTo(id);
}

int CursorModel::update(const TableModel::Row& changed)
{
    if (table->violatesUnique(changed, id))
        return 3022;
    table->rows[id] = changed;
    standOn(id);
    return 0;
}

int CursorModel::remove()
{
    if (currentError() != 0)
        return currentError();
    if (table->rows.erase(id) == 0)
        return recordDeleted;
    place = Place::OnDeleted;
    return 0;
}

}  // namespace storage
