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
    QString index() const;  // by which the list is browsed
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
    int width;               // twips, on the screen and in print
    const char* entry = "";  // the entry field's system name; blank: the column is only shown
    bool upperCase = false;
    const char* format = "";  // a number mask; blank: text
    Qt::Alignment alignment = Qt::AlignLeft;
    // What is shown in place of the field's own text, such as a name looked up.
    std::function<QString(const BrowseSession&, storage::Recordset&)> shows = {};
    // What a typed text becomes when the field is left.
    std::function<QString(const QString&)> tidy = {};
    EntryCheck check = {};
};

// Whose rows these are: the user chooses it above the list. None: the whole table.
struct BrowseParent
{
    enum class Kind {
        None,
        Company,        // tqCoNumber, remembered as CONO
        CompanyAndJob,  // tqCoJobNumber, remembered as CONOPAIR and JOBNOPAIR
        Branch,         // a branch code, remembered as ILCTAG
        Given           // whoever opens the screen gives the keys, once
    };
    Kind kind = Kind::None;
    std::vector<schema::FieldName> keys = {};  // the first fields of the index
    QString missing = {};                      // told when a command needs a parent
};
BrowseParent companyParent();
BrowseParent companyAndJobParent();
BrowseParent branchParent();

// Where a new record's tag comes from; no field: the table has none.
struct TagSource
{
    const char* field = "";
    const char* file = "ZORVEX.mdb";
    const char* table = "VEXTAGS";
    bool besideProgram = false;
};

// A further command of a screen. It runs while the user browses or, of an entry, while he enters.
struct BrowseCommand
{
    const char* name;
    const char* caption;
    std::function<void(BrowseSession&)> run;
    bool inEntryMode = false;
    Qt::Key key = Qt::Key_unknown;
    bool needsRecord = false;
};

// A screen of its own shows and changes one record: Add, Edit, Delete and Enter open it, and when
// it closes the list shows what it left (core/window_registry.h). `mode` is "A", "E" or "D", `tag`
// the record's, 0 for a new one; the screen's last act is dnUnloadWindow with `winTag`.
struct BrowseDetail
{
    const char* tagField = "";  // no field: entries are typed on the row
    const char* tagIndex = "";
    std::function<void(BrowseSession&, const QString& mode, qint32 tag, qint16 winTag)> open = {};
};

struct BrowsePrint
{
    const char* window = "";  // no window: nothing is printed
    const char* title = "";
    // The title where it names the parent.
    std::function<QString(const BrowseSession&)> titleFor = {};
    // In place of the plain list.
    std::function<void(BrowseSession&)> run = {};
};

struct BrowseSpec
{
    // How a refused update is told.
    enum class Refusals {
        ErrorBox,        // beside the fields, and in one box that counts them
        BoxWithCancel,   // a box for the first; Cancel in it leaves the entry
        BoxToFirstField  // the same, and OK always goes back to the first field
    };

    const char* name;
    const char* caption;
    const char* file = "ZORVEX.mdb";
    bool besideProgram = false;  // the file is a locator, not of the job site
    bool inUserFolder = false;
    const char* table;
    const char* index;
    BrowseParent parent = {};
    // A narrower filter within the parent, where there is one.
    std::function<bool(storage::Recordset&)> accepts = {};
    std::vector<BrowseColumn> columns;
    TagSource tag = {};
    Refusals refusals = Refusals::ErrorBox;
    const char* editRight = "";  // tested at Add, Edit and Delete; blank: none

    // Writes what is not typed, between AddNew or Edit and Update: the parent's keys, a new tag and
    // the typed fields are written already.
    std::function<void(const Entry&, storage::Recordset&)> complete = {};
    // Needed unless a detail screen deletes.
    std::function<QString(storage::Recordset&)> deleteQuestion = {};
    // Gives the text of "Cannot Delete" when others refer to the record, else empty text.
    std::function<QString(const BrowseSession&, storage::Recordset&)> deleteTest = {};
    BrowseDetail detail = {};
    // Opens the search window; gives a bookmark or blank.
    std::function<QString(const BrowseSession&)> search = {};
    BrowsePrint print = {};
    std::vector<BrowseCommand> commands = {};
    // Shown once on the way out when an existing record was edited.
    std::optional<Message> reminderAfterEdit = {};
};

// The checks that most fields need: the text when the field is blank, or when another record of the
// list's parent has the code along the list's index.
EntryCheck required(schema::FieldName field, const QString& text);
EntryCheck unusedCode(schema::FieldName field, const QString& text);
// The first refusal of several checks, in order.
EntryCheck inOrder(std::vector<EntryCheck> checks);

// "OK to Delete " and what it is, the record's fields parted by the separator, and the end.
std::function<QString(storage::Recordset&)> askToDelete(const QString& what,
                                                        std::vector<schema::FieldName> fields,
                                                        const QString& separator = " ",
                                                        const QString& end = "?");
