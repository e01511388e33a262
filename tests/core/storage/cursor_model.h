// What a table handle must do, told in the dullest way: all rows in a map, every move a search
// through all of them. It shares no code with the store.
#pragma once

#include <map>
#include <optional>

#include "core/storage/definitions.h"
#include "core/storage/engine.h"

namespace storage {

// Negative, 0 or positive: nulls first, texts case-blind by code points, the rest by amount.
int compareValues(const Value& a, const Value& b);

struct TableModel
{
    using Row = std::vector<Value>;

    // By the first `keys` fields of the index, then, where both have one, by id.
    int compare(int index, const Row& a, RecordId idA, const Row& b, RecordId idB) const;
    bool violatesUnique(const Row& row, RecordId self) const;

    TableDefinition definition;
    std::map<RecordId, Row> rows;
};

struct CursorModel
{
    enum class Place { OnRecord, BeforeFirst, AfterLast, NoRecords, Nowhere, OnDeleted };

    explicit CursorModel(TableModel& model) : table(&model) {}

    bool isBof() const { return place == Place::BeforeFirst || place == Place::NoRecords; }
    bool isEof() const { return place == Place::AfterLast || place == Place::NoRecords; }

    // Each gives the error's number, 0 for none.
    int setIndex(int wanted);
    // The first match, or with a step of -1 the last.
    int seek(bool onlyEqual, int step, const std::vector<Value>& keys);
    int moveToEnd(int step);
    int move(int step);
    int goTo(RecordId wanted);
    int beginEdit();
    int update(const TableModel::Row& changed);
    int remove();
    int currentError() const;  // what asking for the current record gives

    void standOn(RecordId wanted);

    TableModel* table;
    int index = -1;
    Place place = Place::NoRecords;
    bool noMatch = false;
    RecordId id = 0;
    TableModel::Row seen;  // the current record as it was when the handle came to it

private:
    std::optional<RecordId> nearest(int step, bool fromHere) const;
};

}  // namespace storage
