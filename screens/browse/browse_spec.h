// What is particular to one browse-and-edit screen. How such a screen behaves is told in
// browse_session.h; a screen is a function that gives one of these.
#pragma once

#include <QKeyCombination>
#include <QStringList>
#include <functional>
#include <optional>

#include "core/keyed_access.h"
#include "core/messages.h"
#include "core/session.h"
#include "screens/browse/browse_list.h"
#include "screens/entry/entry.h"

class BrowseSession;

struct BrowseColumn
{
    schema::FieldName field;
    int length;  // characters, of the entry and in print
    QString heading;
    int width;           // twips, on the screen and in print
    QString entry = {};  // the entry field's system name; blank: the column is only shown
    FieldKeys keys = {};
    QString format = {};  // a number mask; blank: text
    Qt::Alignment alignment = Qt::AlignLeft;
    // What is shown in place of the field's own text, such as a name looked up.
    std::function<QString(const BrowseSession&, storage::Recordset&)> shows = {};
    // As in EntryField.
    std::function<QString(const QString&)> tidy = {};
    EntryCheck check = {};
    std::function<QString(const Entry&)> search = {};
    std::function<void(Entry&)> left = {};
    EntryField::Kind kind = EntryField::Kind::Text;
    std::function<std::vector<EntryChoice>(const Entry&)> choicesFor = {};
    bool isPrinted = true;
    // The heading, and how many characters the entry takes, where they follow the parent.
    std::function<QString(const BrowseSession&)> headingFor = {};
    std::function<int(const Entry&)> lengthFor = {};
    QString hint = {};  // of the entry field
};

// A number that is only shown: at the right, in the mask.
BrowseColumn numberColumn(schema::FieldName field, int length, const QString& heading, int width,
                          const QString& format);

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

// A further command of a screen. It runs while the user browses or, of an entry, while he enters.
struct BrowseCommand
{
    QString name;
    QString caption = {};
    std::function<void(BrowseSession&)> run = {};
    bool inEntryMode = false;
    QKeyCombination key = Qt::Key_unknown;  // while the list has the keyboard
    bool needsRecord = false;
    // A caption that changes, asked anew after each command.
    std::function<QString(const BrowseSession&)> captionFor = {};
    bool asksUpdatesTest = true;  // false: runs where updates are refused, too
};

// A screen of its own shows and changes one record: Add, Edit, Delete, Enter and further commands
// open it by `BrowseSession::openDetail`, and when it closes the list shows what it left
// (core/window_registry.h). `mode` is "A", "E", "D", "V" or any letter that the screen knows, `tag`
// the record's, 0 for a new one; the screen's last act is dnUnloadWindow with `winTag`.
struct BrowseDetail
{
    QString tagField = {};  // no field: entries are typed on the row
    QString tagIndex = {};
    // Asked before the lock is taken: false opens nothing (the user was told).
    std::function<bool(BrowseSession&, const QString& mode)> mayOpen = {};
    // False: nothing was opened (the user was told).
    std::function<bool(BrowseSession&, const QString& mode, qint32 tag, qint16 winTag)> open = {};
    // The record lock taken before the screen opens in one of those modes, such as "VENDORS"; it
    // gives it up when it closes. Blank: none.
    QString lock = {};
    QString lockedModes = "ED";
    bool hasView = false;       // View is a command of the list
    bool tellsNoRecord = true;  // false: a command that needs a record does nothing without one
};

struct BrowsePrint
{
    QString window = {};  // no window: nothing is printed
    QString title = {};
    // The title where it names the parent.
    std::function<QString(const BrowseSession&)> titleFor = {};
    // In place of the plain list.
    std::function<void(BrowseSession&)> run = {};
    QString caption = "&Print";
};

// A table that stays open beside the list, for what cells look up: `BrowseSession::beside`.
struct BesideTable
{
    QString file;
    QString table;
    QString index = {};
};

struct BrowseSpec
{
    // How a refused update is told.
    enum class Refusals {
        ErrorBox,        // beside the fields, and in one box that counts them
        BoxWithCancel,   // a box for the first; Cancel in it leaves the entry
        BoxToFirstField  // the same, and OK always goes back to the first field
    };

    QString name;
    QString caption;
    // The window's title where it changes, asked anew after each command.
    std::function<QString(const BrowseSession&)> captionFor = {};
    QString file = "ZORVEX.mdb";  // where it lies tells core/session.h
    QString table;
    QString index;
    BrowseParent parent = {};
    // A narrower filter within the parent, where there is one.
    std::function<bool(storage::Recordset&)> accepts = {};
    std::vector<BrowseColumn> columns;
    std::vector<BesideTable> besides = {};
    TagSource tag = {};
    Refusals refusals = Refusals::ErrorBox;
    QString editRight = {};  // tested at Add, Edit and Delete; blank: none
    bool mayAdd = true;
    bool mayEdit = true;
    bool mayDelete = true;

    // The steps around an entry and a deletion that are this screen's own.
    std::shared_ptr<EntryRules> rules = {};
    // Needed unless a detail screen deletes.
    std::function<QString(storage::Recordset&)> deleteQuestion = {};
    // Before that question: the text of "Cannot Delete" when others refer to the record, else
    // empty.
    std::function<QString(const BrowseSession&, storage::Recordset&)> deleteTest = {};
    // Asked at each command but the moves, once there is a parent: the text of "Updates Not
    // Allowed.", else empty.
    std::function<QString(const BrowseSession&)> updatesTest = {};
    BrowseDetail detail = {};
    // Opens the search window; gives a bookmark or blank.
    std::function<QString(const BrowseSession&)> search = {};
    BrowsePrint print = {};
    std::vector<BrowseCommand> commands = {};
    // A text above the rows, asked anew after each command and move; '\n' parts lines.
    std::function<QString(const BrowseSession&)> status = {};
    std::function<RowTone(const BrowseSession&, storage::Recordset&)> tone = {};
    // The list is open and full; another parent was chosen (and read); the list closes, its files
    // still open - once.
    std::function<void(BrowseSession&)> opened = {};
    std::function<void(BrowseSession&)> parentChosen = {};
    std::function<void(BrowseSession&)> closing = {};
    // Opens as large as the main window has room for it.
    bool fillsDesktop = false;
    // It has come to the front and shows what other screens have left.
    std::function<void(BrowseSession&)> inFront = {};
    // Other screens change what it shows: it reads its rows anew when it comes to the front.
    bool readsAnewInFront = false;
    // Shown once on the way out when an existing record was edited.
    std::optional<Message> reminderAfterEdit = {};
};

// The entry fields of a screen's columns, in their order.
std::vector<EntryField> entryFieldsOf(const std::vector<BrowseColumn>& columns);

// "OK to Delete " and what it is, the record's fields parted by the separator, and the end.
std::function<QString(storage::Recordset&)> askToDelete(const QString& what,
                                                        std::vector<schema::FieldName> fields,
                                                        const QString& separator = " ",
                                                        const QString& end = "?");
