// The keys of entry fields. Enter moves to the next field as Tab does; letters become capitals and
// other characters are refused where the field asks for it, typed, pasted or from an input method;
// coming into a field selects its text.
#pragma once

#include <optional>

#include "core/keys.h"

class QWidget;

struct FieldKeys
{
    bool upperCase = false;
    bool keepEnter = false;  // Enter stays what it is: a new line, the default button
    std::optional<NumberKeys> numbers = {};
    bool dateKeys = false;  // '=', '+' and '-' in a line edit
    bool selectAll = true;
};

// Gives a line edit, a text edit or an editable combo box these keys, in place of those that it had
// from an earlier call.
void setFieldKeys(QWidget& field, const FieldKeys& keys = {});

// Selects the whole text of a line edit, a text edit or an editable combo box.
void dnSelectAll(QWidget& field);
