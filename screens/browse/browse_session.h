// How a browse-and-edit screen behaves, without its widgets.
//
// It is browsing (EditMode blank), adding ("A") or editing ("E"). While browsing its list moves
// (browse_list.h). An entry (screens/entry/entry.h) is typed on the row itself: the window lays its
// fields over `entryRow()`.
// Update validates all, refuses or writes, and browses on with the written record under the
// highlight.
//
// A record that another user deleted meanwhile: the user is told, the list is read anew, and an
// entry in hand stays as it is typed, so that nothing typed is lost.
#pragma once

#include <map>

#include "core/locators.h"
#include "screens/browse/browse_list.h"
#include "screens/browse/browse_spec.h"

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

    // Load and unload step. Without a parent key the list is full at once. Closing twice is no
    // fault.
    void open();
    void close();

    // The parent was chosen, as often as he is; an empty one leaves no list. Nothing happens in
    // entry mode.
    void setParent(const std::vector<KeyField>& parent);
    // Other records in another order: those whose first fields along the index are the keys, all of
    // the table without keys; the highlight on the first. `parentKey` and `Entry::index` speak of
    // these from now on. Nothing happens in entry mode.
    void browseBy(const QString& index, const std::vector<KeyField>& keys);
    bool hasParent() const { return m_hasParent; }
    // What stands above the list is no parent now; the list stays that of the last good one, and
    // commands are refused.
    void setParentValid(bool valid) { m_isParentValid = valid; }
    // A key of the parent in hand; null without one.
    storage::Value parentKey(schema::FieldName field) const;
    // A table of the spec's `besides`, open as long as the list. Move it freely.
    storage::Recordset& beside(const QString& table) const;
    // The tag of the record under the highlight, by the detail's tag field, else by that of new
    // records; 0 on no record.
    qint32 currentTag();
    // The record with that tag to row 0, under the highlight; false when the list has none. The
    // index by tag is the detail's, else the one that bears the field's name.
    bool showTag(qint32 tag);

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
    // Opens the detail screen in a mode; it is about the record under the highlight unless the mode
    // is "A", and on no record it is refused. The list's row in the registry names the record
    // first; the lock of the spec is taken for the modes that it names. False when nothing was
    // opened.
    bool openDetail(const QString& mode);
    QString captionOf(const BrowseCommand& command) const;
    QString caption() const
    {
        return m_spec.captionFor ? m_spec.captionFor(*this) : m_spec.caption;
    }
    // This screen's number in the window registry; 0 without a detail screen.
    qint16 winTag() const { return m_winTag; }
    // The screen is in front again: shows what a detail screen that it opened has left.
    void comeToFront();
    // In entry mode. True when the screen is browsing again.
    bool update();
    void cancel();
    // The way out while browsing: says what is to be remembered.
    void leave();

    // ---- the entry
    Entry& entry() { return m_entry; }
    const Entry& entry() const { return m_entry; }
    int entryRow() const { return m_entryRow; }
    // The page has another number of rows.
    void keepEntryInView();
    // True where errors are told when a field is left.
    bool tellsErrorsAtOnce() const { return m_spec.refusals == BrowseSpec::Refusals::ErrorBox; }

private:
    bool mayChange() const;
    bool activeRecordTest(bool needsRecord);
    bool allowsUpdates() const;
    bool mayBegin(bool allowed, bool needsRecord);
    bool opensDetail() const { return !m_spec.detail.tagField.isEmpty(); }
    bool takeLock(qint32 tag) const;
    bool beginEntry(const QString& mode);
    void leaveEntry();
    bool refuseFirst();
    bool refuseAll();
    bool write();
    bool goToEdited();
    bool agreesToDelete();
    void followDetail();
    QStringList cellsOf(storage::Recordset& rows) const;

    BrowseSpec m_spec;
    Session m_session;
    std::map<QString, OpenTable> m_besides;
    BrowseList m_list;
    Entry m_entry;
    bool m_hasParent = false;
    bool m_isParentValid = true;
    bool m_editedExisting = false;
    qint16 m_winTag = 0;  // in the window registry, of a list with detail screens
    bool m_openedDetail = false;
    int m_entryRow = 0;
};
