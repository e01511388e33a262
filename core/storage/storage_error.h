// The one exception of the store. Numbers and texts are those that administrators of such files
// know; screens show both as they come.
#pragma once

#include <QString>
#include <exception>

namespace storage {

enum class ErrorNumber : int {
    Overflow = 6,  // arithmetic of the caller, reported through the same boxes
    NoCurrentRecord = 3021,
    DuplicateKey = 3022,
    NoCurrentIndex = 3019,
    NoEditBegun = 3020,
    FileNotFound = 3024,
    DiskFull = 3026,
    ReadOnly = 3027,
    TableExists = 3010,
    IndexNotFound = 3015,
    DiskError = 3043,
    PathNotValid = 3044,
    Damaged = 3049,
    CannotOpen = 3051,
    TableNotFound = 3078,
    BookmarkNotValid = 3159,
    TooLong = 3163,
    RecordDeleted = 3167,
    TooManyFields = 3190,
    FieldExists = 3191,
    DatabaseExists = 3204,
    Locked = 3260,
    NotInCollection = 3265,
    FieldIndexed = 3280,
    IndexExists = 3284,
    Required = 3314,
    ZeroLength = 3315,
    UnknownFormat = 3343,
    NumericOverflow = 3349,
    ClosedObject = 3420,
    Conversion = 3421,
    TransactionMismatch = 3034,
    Internal = 3000,
};

class StorageError : public std::exception
{
public:
    StorageError(ErrorNumber number, QString description);

    ErrorNumber errorNumber() const { return m_number; }
    int number() const { return static_cast<int>(m_number); }
    const QString& description() const { return m_description; }
    const char* what() const noexcept override { return m_utf8.constData(); }

private:
    ErrorNumber m_number;
    QString m_description;
    QByteArray m_utf8;
};

// Throws the error with its standing text. `subject` is what it is about: a path, a table, a field.
[[noreturn]] void fail(ErrorNumber number, const QString& subject = {});

}  // namespace storage
