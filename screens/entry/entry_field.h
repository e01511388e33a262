// What is particular to one field of an entry, whether it lies over a row of a list or stands on a
// screen of its own.
#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "core/schema/field_name.h"
#include "core/session.h"
#include "screens/field_keys.h"

class Entry;

// Gives the refusal's text, lines parted by '\n'; empty when the entry is fine.
using EntryCheck = std::function<QString(const Entry&)>;

// One of the values that a field may have, and how it is shown.
struct EntryChoice
{
    QString value;
    QString text;
};

struct EntryField
{
    enum class Kind {
        Text,
        Memo,     // several lines
        Date,     // with the date keys and a calendar
        Box,      // to be ticked: "-1", else "0"
        Choice,   // one of `choices`
        Shown,    // not typed: what `shows` gives, asked anew after each change
        Picture,  // the image file of which `shows` gives the full name; none where it is no image
        Heading   // the caption across; no value
    };
    Kind kind = Kind::Text;
    QString name = {};                                // the control's system name
    schema::FieldName field = {};                     // none: it is not written by itself
    QString caption = {};                             // with its key
    int length = 0;                                   // characters at most; 0: as the column
    std::function<int(const Entry&)> lengthFor = {};  // in place of `length`, asked at each entry
    FieldKeys keys = {};                              // a number's come by its column
    QString format = {};                              // a mask in which a number is shown
    Qt::Alignment alignment = Qt::AlignLeft;
    std::vector<EntryChoice> choices = {};
    std::function<std::vector<EntryChoice>(const Entry&)> choicesFor = {};  // in place of `choices`
    std::function<QString(const Entry&)> shows = {};
    // What a new entry begins with.
    QString initial = {};
    // What a typed text becomes when the field is left; a stored one that is not touched stays.
    std::function<QString(const QString&)> tidy = {};
    EntryCheck check = {};
    // Asked only when the field is left: Update takes what stands there.
    bool isCheckedOnlyWhenLeft = false;
    // The title of a box that tells the refusal as soon as the field is left; blank: none does.
    QString boxWhenLeft = {};
    // Opened by "?", "/" or the button beside the field; gives the text chosen, blank for none.
    std::function<QString(const Entry&)> search = {};
    // In place of `search`, where a choice may also empty the field or change others: sets the
    // texts itself. False when nothing was chosen.
    std::function<bool(Entry&)> choose = {};
    QString searchName = {};  // the button's system name
    // The user has left the field after changing it, and its check has passed: what the change
    // does to other fields.
    std::function<void(Entry&)> left = {};
    bool isReadOnly = false;
    bool keepsTyped = false;  // a date is not put in the form in which others are shown
    QString hint = {};        // the tool tip
    // Asked anew after each change: false leaves the control dead. None: it lives.
    std::function<bool(const Entry&)> isLive = {};
};

// The checks that most fields need: the text when the field is blank, or when another record of the
// list's parent has the code along the list's index.
EntryCheck required(schema::FieldName field, const QString& text);
EntryCheck unusedCode(schema::FieldName field, const QString& text);
// A phone number as it is shown and kept: "(713) 555-0142", of nothing "(   )    -    ".
QString maskedPhone(const QString& text);
EntryField phoneField(const QString& name, schema::FieldName field, const QString& caption);
// The first refusal of several checks, in order.
EntryCheck inOrder(std::vector<EntryCheck> checks);
