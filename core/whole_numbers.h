// Arithmetic of the caller on 32-bit numbers, checked.
#pragma once

#include <utility>

#include "core/storage/storage_error.h"

// `number` as a 32-bit integer; Overflow when it does not fit.
inline qint32 asLong(qint64 number)
{
    if (!std::in_range<qint32>(number))
        storage::fail(storage::ErrorNumber::Overflow);
    return static_cast<qint32>(number);
}
