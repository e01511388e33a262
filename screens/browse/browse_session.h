// How a browse-and-edit screen behaves, without its widgets.
//
// It is browsing (EditMode blank), adding ("A") or editing ("E"). While browsing its list moves
// (browse_list.h). An entry is typed on the row itself: the window lays its fields over
// `entryRow()`, keeps what is typed in `setText`, and asks to validate a field when it is left.
// Update validates all, refuses or writes, and browses on with the written record under the
// highlight.
//
// A record that another user deleted meanwhile: the user is told, the list is read anew, and an
// entry in hand stays as it is typed, so that nothing typed is lost.
#pragma once

#include "screens/browse/browse_list.h"
#include "screens/browse/browse_spec.h"
#include "screens/browse/error_collector.h"

class BrowseSession
{
public:
    BrowseSession(BrowseSpec spec, Session session);
    ~BrowseSession();
    BrowseSession(const BrowseSession&) = delete;
    BrowseSession& operator=(const BrowseSession&) = delete;

    const BrowseSpec& spec() const { return m_spec; }
    const Session& session() const { return m_session; }
    BrowseList& list() { return m_list; }
    const BrowseList& list() const { return m_list; }

    // Load and unload step. Without a parent key the list is full at once.
    void open();
    void close();

    // The parent was chosen; an empty one leaves no list. Nothing happens in entry mode.
    void setParent(const std::vector<KeyField>& parent);
    bool hasParent() const { return m_hasParent; }
    // What stands above the list is no parent now; the list stays that of the last good one, and
    // commands are refused.
    void setParentValid(bool valid) { m_isParentValid = valid; }
    // A key of the parent in hand; null without one.
    storage::Value parentKey(schema::FieldName field) const;

    QString EditMode = " ";
    bool isBrowsing() const { return EditMode == " "; }

    // Enter on the highlight: edit, or on the end of the list add.
    void act();
    void add();
    void edit();
    void remove();
    void search();
    void print();
    void run(const BrowseCommand& command);
    // This screen's number in the window registry; 0 without a detail screen. The list follows only
    // what Add, Edit, Delete and Enter have opened.
    qint16 winTag() const { return m_winTag; }
    // The screen is in front again: shows what a detail screen has left.
    void comeToFront();
    // In entry mode. True when the screen is browsing again.
    bool update();
    void cancel();
    // The way out while browsing: says what is to be remembered.
    void leave();

    // ---- the entry
    int entryRow() const { return m_entryRow; }
    // The page has another number of rows.
    void keepEntryInView();
    int entryCount() const { return static_cast<int>(m_entryColumns.size()); }
    const BrowseColumn& entryColumn(int entry) const;
    const QString& text(int entry) const { return m_texts[entry]; }
    void setText(int entry, const QString& text);
    // The same for a command of the entry: the field is focused then.
    void setText(schema::FieldName field, const QString& text);
    QString entryText(schema::FieldName field) const;  // empty for a field that is not typed
    // Tidies and validates a field that is left; its error, or the lack of one, stands in `errors`.
    void validate(int entry);
    const ErrorCollector& errors() const { return m_errors; }
    // The entry field to focus, from 0.
    int fieldToFocus() const { return m_fieldToFocus; }

private:
    friend class Entry;

    QString folder() const;
    bool mayChange() const;
    bool activeRecordTest(bool needsRecord);
    bool opensDetail() const { return m_spec.detail.tagField[0] != '\0'; }
    void openDetail(const QString& mode);
    QString refusalOf(int entry);
    void beginEntry(const QString& mode, int row);
    void leaveEntry();
    bool refuseFirst();
    bool refuseAll();
    bool write();
    bool goToEdited();
    storage::Value valueOf(const BrowseColumn& column, const QString& text) const;
    QStringList cellsOf(storage::Recordset& rows) const;

    BrowseSpec m_spec;
    Session m_session;
    BrowseList m_list;
    bool m_hasParent = false;
    bool m_isParentValid = true;
    QString m_edited = noBookmark;  // the record of the entry in hand
    bool m_editedExisting = false;
    qint16 m_winTag = 0;  // in the window registry, of a list with detail screens
    bool m_openedDetail = false;

    std::vector<size_t> m_entryColumns;
    QStringList m_texts;
    int m_entryRow = 0;
    int m_fieldToFocus = 0;
    ErrorCollector m_errors;
};
