// What is particular to one browse-and-edit screen. How such a screen behaves is told in
// browse_session.h; a screen is a function that gives one of these.
#pragma once

#include <QStringList>
#include <functional>
#include <optional>

#include "core/keyed_access.h"
#include "core/messages.h"
#include "core/session.h"

class BrowseSession;

// What stands in the entry fields while a record is added or edited.
class Entry
{
public:
    explicit Entry(BrowseSession& session) : m_session(session) {}

    QString operator[](schema::FieldName field) const;  // as typed
    bool isBlank(schema::FieldName field) const;
    bool isAdding() const;
    const std::vector<KeyField>& parent() const;
    const Session& session() const;

    // True if another record than the one in hand has these keys along the index.
    bool isTaken(const QString& index, KeyFields keys) const;
    // The same, with the parent's keys before those given.
    bool isTakenInParent(const QString& index, KeyFields keys) const;

private:
    BrowseSession& m_session;
};

// Gives the refusal's text, lines parted by '\n'; empty when the entry is fine.
using EntryCheck = std::function<QString(const Entry&)>;

struct BrowseColumn
{
    schema::FieldName field;
    int length;  // characters, of the entry and in print
    const char* heading;
    int width;               // twips
    const char* entry = "";  // the entry field's system name; blank: the column is only shown
    bool upperCase = false;
    const char* format = "";  // a number mask; blank: text
    EntryCheck check = {};
};

// Whose rows these are: the fields of the parent's keys, and the settings that remember the user's
// last choice of it. None: the whole table.
struct BrowseParent
{
    enum class Kind { None, Company, CompanyAndJob, Branch };
    Kind kind = Kind::None;
    std::vector<schema::FieldName> keys;
};

// Where a new record's tag comes from; no field: the table has none.
struct TagSource
{
    const char* field = "";
    const char* file = "ZORVEX.mdb";
    const char* table = "VEXTAGS";
    bool besideProgram = false;
};

// A further command of a screen.
struct BrowseCommand
{
    const char* name;
    const char* caption;
    std::function<void(BrowseSession&)> run;
    bool inEntryMode = false;  // otherwise while browsing
    Qt::Key key = Qt::Key_unknown;
};

struct BrowseSpec
{
    // How a refused update is told.
    enum class Refusals {
        ErrorBox,      // beside the fields, and in one box that counts them
        BoxWithCancel  // a box for the first; Cancel in it leaves the entry
    };

    const char* name;
    const char* caption;
    const char* file = "ZORVEX.mdb";
    bool besideProgram = false;  // the file is a locator, not of the job site
    bool inUserFolder = false;
    const char* table;
    const char* index;
    BrowseParent parent = {};
    std::vector<BrowseColumn> columns;
    TagSource tag = {};
    Refusals refusals = Refusals::ErrorBox;

    // Writes what is not typed, between AddNew or Edit and Update.
    std::function<void(const Entry&, storage::Recordset&)> complete = {};
    std::function<QString(storage::Recordset&)> deleteQuestion;
    // Gives the text of "Cannot Delete" when others refer to the record, else empty text.
    std::function<QString(const BrowseSession&, storage::Recordset&)> deleteTest = {};
    // Opens the search window; gives a bookmark or blank.
    std::function<QString(const BrowseSession&)> search = {};
    std::vector<BrowseCommand> commands = {};
    // Shown once on the way out when an existing record was edited.
    std::optional<Message> reminderAfterEdit = {};
    const char* printWindow = "";
    const char* printTitle = "";
};

// The checks that most fields need.
EntryCheck required(schema::FieldName field, const QString& text);
// The first refusal of several checks, in order.
EntryCheck inOrder(std::vector<EntryCheck> checks);
