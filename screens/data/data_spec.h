// What is particular to one data screen: a screen of its own on which one record is added, edited,
// deleted or looked at. How such a screen behaves is told in data_session.h; a screen is a function
// that gives one of these.
#pragma once

#include <optional>

#include "core/messages.h"
#include "screens/entry/entry.h"

class DataSession;

// A further command of a data screen; the texts of the fields were taken up before.
struct DataCommand
{
    QString name;
    QString caption;
    std::function<void(DataSession&)> run;
    bool whileViewing = false;           // in modes "V" and "D", too
    std::function<bool()> isShown = {};  // asked at each change; none: always
};

// Fields that stand together: a page of its own where a screen has several with a caption,
// otherwise one form.
struct DataSection
{
    QString caption = {};
    std::vector<EntryField> fields;
    // Of fields side by side, filled one after the other; a picture and a memo take four rows.
    int columns = 1;
};

struct DataSpec
{
    QString name;
    // Of what it shows, such as "Vendors", to which the mode is added: "Vendors - Add".
    QString caption;
    bool namesMode = true;
    QString file = "ZORVEX.mdb";
    QString table;
    QString index = {};                          // of codes; along it a deletion finds what follows
    std::vector<schema::FieldName> parent = {};  // the keys that are given, the first of the index
    std::vector<DataSection> sections;
    TagSource tag = {};
    QString lock = {};  // the record lock that the list took; given up when the screen closes

    std::shared_ptr<EntryRules> rules = {};
    // Before the question of a deletion: why it cannot be, else empty.
    std::function<QString(const Session&, storage::Recordset&)> deleteTest = {};
    QString deleteRefusalTitle = "Cannot Delete";
    std::function<Message(storage::Recordset&)> deleteQuestion = {};  // OK or Yes deletes
    // The tag with which a list follows; none: the record's own by `tag.field`.
    std::function<qint32(storage::Recordset&)> hotTag = {};
    std::vector<DataCommand> commands = {};
    // A field that takes the focus while the record is only looked at tells that changes are not
    // allowed.
    bool refusesFocusInView = false;
    // Also at Update; blank: there is no Update in mode "V".
    QString viewRefusal = "Changes Not Allowed When Viewing.";
    // Asked when the screen is left with changes; none: it closes without a word.
    std::optional<Message> abandonQuestion = {};
    std::optional<Message> savedMessage = {};  // told after Update
    bool staysOpen = false;                    // Update does not close the screen
    QString updateCaption = "&Update";
    QString updateName = "cmdUpdate";
    // After Update of a new record the screen begins the next one, in the field of that name;
    // blank: it closes.
    QString addsOnAt = {};
    // A second command, cmdUpdateStay, that saves and goes on with the record; blank: none.
    QString stayCaption = {};
    bool hasFieldSearch = false;  // a box that finds fields by their captions
};

// The question that most screens ask.
Message confirmDelete(const QString& title, const QString& text);
