// What a table is made of, as the store knows it at run time.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "core/schema/field_name.h"
#include "core/schema/schema.h"
#include "core/storage/value.h"

namespace storage {

using schema::FieldType;

struct FieldDefinition
{
    QString name;
    FieldType type = FieldType::Text;
    int size = 0;  // characters, for Text; the engine's own width for the other types
    bool allowZeroLength = true;
    bool required = false;
    Value defaultValue;  // what AddNew starts with; null for none
    int ordinalPosition = 0;
};

struct IndexDefinition
{
    QString name;
    QStringList fields;
    bool unique = false;
};

struct TableDefinition
{
    QString name;
    std::vector<FieldDefinition> fields;  // by ordinal position
    std::vector<IndexDefinition> indexes;

    // Positions in `fields` and `indexes`, case-blind; -1 for none.
    int fieldPosition(const QString& fieldName) const;
    int indexPosition(const QString& indexName) const;

    // The position of a field of the schema, without comparing names; -1 for none. Known once
    // `numberFields` was called, as the catalogue does.
    int fieldPosition(schema::FieldName name) const;
    void numberFields();

private:
    std::vector<qint16> m_positionByNumber;
};

// The definition of a table of the schema.
TableDefinition definitionOf(const schema::Table& table);

// The width that the definition listing shows for a type: the text's own, or the bytes of a number.
int sizeOfType(FieldType type, int textSize);

// `value` in the form in which a field of this type keeps it: rounded, ranged, of the right kind.
// What does not fit is refused: Conversion, NumericOverflow, TooLong, ZeroLength, Required.
Value fitted(const FieldDefinition& field, const Value& value);

// `value` as a key for comparing with this field: as `fitted`, but any length of text is allowed.
Value asKey(const FieldDefinition& field, const Value& value);

}  // namespace storage
