#include "core/storage/storage_error.h"

namespace storage {
namespace {

QString standingText(ErrorNumber number)
{
    switch (number) {
        case ErrorNumber::Overflow:
            return "Overflow";
        case ErrorNumber::NoCurrentRecord:
            return "No current record.";
        case ErrorNumber::DuplicateKey:
            return "The change was not made because it would create duplicate values in a unique "
                   "index (%1).";
        case ErrorNumber::NoCurrentIndex:
            return "Operation invalid without a current index.";
        case ErrorNumber::NoEditBegun:
            return "Update without AddNew or Edit.";
        case ErrorNumber::FileNotFound:
            return "Could not find file '%1'.";
        case ErrorNumber::DiskFull:
            return "Not enough space on disk ('%1').";
        case ErrorNumber::ReadOnly:
            return "Cannot update. Database is read-only ('%1').";
        case ErrorNumber::TableExists:
            return "Table '%1' already exists.";
        case ErrorNumber::IndexNotFound:
            return "'%1' is not an index of this table.";
        case ErrorNumber::DiskError:
            return "Disk or network error ('%1').";
        case ErrorNumber::PathNotValid:
            return "'%1' is not a valid path.";
        case ErrorNumber::Damaged:
            return "Cannot open database '%1'. The file is damaged.";
        case ErrorNumber::CannotOpen:
            return "The file '%1' cannot be opened. You may not have the permission to read it.";
        case ErrorNumber::TableNotFound:
            return "Could not find the table '%1'.";
        case ErrorNumber::BookmarkNotValid:
            return "Not a valid bookmark.";
        case ErrorNumber::TooLong:
            return "The field '%1' is too small to accept the amount of data you attempted to add.";
        case ErrorNumber::RecordDeleted:
            return "Record is deleted.";
        case ErrorNumber::TooManyFields:
            return "Too many fields defined in '%1'.";
        case ErrorNumber::FieldExists:
            return "Cannot define field '%1' more than once.";
        case ErrorNumber::DatabaseExists:
            return "Database '%1' already exists.";
        case ErrorNumber::Locked:
            return "Could not update; the file is locked by another user ('%1').";
        case ErrorNumber::NotInCollection:
            return "Item '%1' not found in this collection.";
        case ErrorNumber::FieldIndexed:
            return "Cannot delete the field '%1'. It is part of an index.";
        case ErrorNumber::IndexExists:
            return "Index '%1' already exists.";
        case ErrorNumber::Required:
            return "The field '%1' cannot be empty; it is required.";
        case ErrorNumber::ZeroLength:
            return "The field '%1' cannot be a zero-length text.";
        case ErrorNumber::UnknownFormat:
            return "Unrecognized database format '%1'.";
        case ErrorNumber::NumericOverflow:
            return "Numeric field overflow in '%1'.";
        case ErrorNumber::ClosedObject:
            return "Object invalid or no longer set.";
        case ErrorNumber::Conversion:
            return "Data type conversion error in '%1'.";
        case ErrorNumber::TransactionMismatch:
            return "CommitTrans or Rollback without BeginTrans.";
        case ErrorNumber::Internal:
            return "Reserved error (%1).";
    }
    return "Reserved error (%1).";
}

}  // namespace

StorageError::StorageError(ErrorNumber number, QString description)
    : m_number(number), m_description(std::move(description)), m_utf8(m_description.toUtf8())
{
}

void fail(ErrorNumber number, const QString& subject)
{
    QString text = standingText(number);
    if (text.contains("%1"))
        text = text.arg(subject);
    throw StorageError(number, text);
}

}  // namespace storage
