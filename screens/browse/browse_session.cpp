#include "screens/browse/browse_session.h"

#include <QScopeGuard>

#include "core/number_format.h"
#include "core/storage/storage_error.h"
#include "core/window_registry.h"
#include "multiuser/record_locks.h"
#include "multiuser/users.h"

using storage::ErrorNumber;
using storage::StorageError;

BrowseSession::BrowseSession(BrowseSpec spec, Session session)
    : m_spec(std::move(spec)),
      m_session(std::move(session)),
      m_list([this](storage::Recordset& rows) { return cellsOf(rows); }),
      m_entry(entryFieldsOf(m_spec.columns), m_session)
{
    Q_ASSERT(m_spec.deleteQuestion || opensDetail() || !m_spec.mayDelete);
    if (m_spec.tone)
        m_list.readTonesBy([this](storage::Recordset& rows) { return m_spec.tone(*this, rows); });
}

void BrowseSession::open()
{
    for (const BesideTable& beside : m_spec.besides) {
        OpenTable opened = openTable(m_session, beside.file, beside.table);
        opened.rows.Index(beside.index);
        m_besides[beside.table] = opened;
    }
    m_list.open({.folder = folderOf(m_session, m_spec.file),
                 .file = m_spec.file,
                 .table = m_spec.table,
                 .index = m_spec.index,
                 .parent = {},
                 .accepts = m_spec.accepts},
                "wksVEX");
    if (opensDetail())
        m_winTag = dnSetWINTAG(m_session.UserSettingsPath);
    m_hasParent = m_spec.parent.kind == BrowseParent::Kind::None;
    if (m_hasParent)
        m_list.fill({});
    if (m_spec.opened)
        m_spec.opened(*this);
}

void BrowseSession::close()
{
    if (m_list.isOpen() && m_spec.closing)
        m_spec.closing(*this);
    if (m_winTag != 0)
        dnDELWINTAG(m_session.UserSettingsPath, m_winTag);
    m_winTag = 0;
    m_list.close();
    m_besides.clear();
}

// Not the screen's `closing`, which may fail: that runs when the window closes.
BrowseSession::~BrowseSession()
{
    m_spec.closing = nullptr;
    close();
}

storage::Recordset& BrowseSession::beside(const QString& table) const
{
    const auto found = m_besides.find(table);
    Q_ASSERT(found != m_besides.end());
    return const_cast<storage::Recordset&>(found->second.rows);
}

qint32 BrowseSession::currentTag()
{
    const QString& field = opensDetail() ? m_spec.detail.tagField : m_spec.tag.field;
    if (field.isEmpty() || !m_list.isOnRecord() || !m_list.goToCurrent())
        return 0;
    return intOf(m_list.rows().fieldNamed(field));
}

storage::Value BrowseSession::parentKey(schema::FieldName field) const
{
    for (const KeyField& key : m_list.source().parent)
        if (key.field.number() == field.number())
            return key.key;
    return {};
}

void BrowseSession::setParent(const std::vector<KeyField>& parent)
{
    if (!isBrowsing())
        return;
    m_isParentValid = true;
    m_hasParent = false;
    if (parent.empty())
        return m_list.clear();
    m_list.fill(parent);
    m_hasParent = true;
    if (m_spec.parentChosen)
        m_spec.parentChosen(*this);
}

void BrowseSession::browseBy(const QString& index, const std::vector<KeyField>& keys)
{
    if (!isBrowsing())
        return;
    m_hasParent = m_isParentValid = true;
    m_list.browseBy(index, keys);
}

QStringList BrowseSession::cellsOf(storage::Recordset& rows) const
{
    QStringList cells;
    for (const BrowseColumn& column : m_spec.columns)
        if (column.shows)
            cells.append(column.shows(*this, rows));
        else if (!column.format.isEmpty())
            cells.append(dnFormat(numberOf(rows[column.field]), column.format));
        else
            cells.append(trimmedTextOf(rows[column.field]));
    return cells;
}

bool BrowseSession::activeRecordTest(bool needsRecord)
{
    if (!m_hasParent || !m_isParentValid) {
        showCritical("Error", m_spec.parent.missing);
        return false;
    }
    if (!needsRecord || m_list.isOnRecord())
        return true;
    if (m_spec.detail.tellsNoRecord)
        showCritical("No Active Record.",
                     "Highlighted Browse Bar Must be on a Current Record to Continue.");
    return false;
}

bool BrowseSession::mayChange() const
{
    return m_spec.editRight.isEmpty() || dnOK2Access(m_spec.editRight, m_session.UserName, true);
}

bool BrowseSession::allowsUpdates() const
{
    const QString refusal = m_spec.updatesTest ? m_spec.updatesTest(*this) : QString();
    if (!refusal.isEmpty())
        showCritical("Updates Not Allowed.", refusal);
    return refusal.isEmpty();
}

// What stands before every Add, Edit and Delete.
bool BrowseSession::mayBegin(bool allowed, bool needsRecord)
{
    return isBrowsing() && allowed && activeRecordTest(needsRecord) && mayChange() &&
           allowsUpdates() && (!needsRecord || m_list.goToCurrent());
}

void BrowseSession::act()
{
    m_list.isOnRecord() ? edit() : add();
}

bool BrowseSession::beginEntry(const QString& mode)
{
    m_entry.begin(mode, m_list.rows(), {m_list.source().parent, m_list.source().index});
    if (m_spec.rules && !m_spec.rules->begin(m_entry))
        return false;
    EditMode = mode;
    return true;
}

void BrowseSession::add()
{
    if (!mayBegin(m_spec.mayAdd, false))
        return;
    if (opensDetail()) {
        openDetail("A");
        return;
    }
    if (beginEntry("A"))
        m_entryRow = m_list.makeEntryRow();
}

void BrowseSession::edit()
{
    if (!mayBegin(m_spec.mayEdit, true))
        return;
    if (opensDetail())
        openDetail("E");
    else if (beginEntry("E"))
        m_entryRow = m_list.BrowseRow;
}

void BrowseSession::leaveEntry()
{
    EditMode = " ";
    m_entry.clearErrors();
    m_entry.setFocus(0);
}

void BrowseSession::cancel()
{
    leaveEntry();
    m_list.repaint();
}

void BrowseSession::leave()
{
    if (m_editedExisting && m_spec.reminderAfterEdit)
        Messages::current().show(*m_spec.reminderAfterEdit);
    m_editedExisting = false;
}

void BrowseSession::keepEntryInView()
{
    m_entryRow = EditMode == "E" ? m_list.BrowseRow : std::min(m_entryRow, m_list.BrowseMaxRow);
}

// The newer screens: all the errors at once.
bool BrowseSession::refuseAll()
{
    if (m_entry.checkAll())
        return false;
    showCritical("Cannot Update",
                 "Errors Detected: " + QString::number(m_entry.errors().ErrorCount()) + '\n' +
                     m_entry.errors().text());
    return true;
}

// The older screens: the first error, and Cancel in its box leaves the entry.
bool BrowseSession::refuseFirst()
{
    for (int i = 0; i < m_entry.count(); ++i) {
        const QString refusal = m_entry.refusalOf(i);
        if (refusal.isEmpty())
            continue;
        m_entry.setFocus(m_spec.refusals == BrowseSpec::Refusals::BoxToFirstField ? 0 : i);
        const Answer answer = Messages::current().show({.kind = MessageKind::Critical,
                                                        .title = "Cannot Update Record",
                                                        .text = refusal,
                                                        .buttons = Buttons::OkCancel});
        if (answer == Answer::Cancel)
            cancel();
        return true;
    }
    return false;
}

bool BrowseSession::update()
{
    if (tellsErrorsAtOnce() ? refuseAll() : refuseFirst())
        return isBrowsing();
    m_entry.drawTag(m_spec.tag);
    using Step = EntryRules::Step;
    const Step step = m_spec.rules ? m_spec.rules->beforeWrite(m_entry) : Step::Write;
    if (step == Step::Leave)
        cancel();
    if (step != Step::Write || !write())
        return isBrowsing();
    m_list.BrowseCurrent = m_list.rows().LastModified();
    if (EditMode == "A")
        m_list.BrowseRow = m_entryRow;
    else
        m_editedExisting = true;
    leaveEntry();
    m_list.rebuild();
    return true;
}

// Goes to the record that is edited. When another user deleted it, what was typed stays and the
// next Update adds it as a new record.
bool BrowseSession::goToEdited()
{
    if (m_entry.goToRecord())
        return true;
    showCritical("Cannot Update",
                 "Another user has deleted this record.\n"
                 "Update again to add it anew, or Cancel.");
    EditMode = "A";
    m_entry.becomeNew();
    return false;
}

bool BrowseSession::write()
{
    if (EditMode == "E" && !goToEdited())
        return false;
    if (!m_entry.write(m_spec.tag, [this](storage::Recordset& rows) {
            if (m_spec.rules)
                m_spec.rules->complete(m_entry, rows);
        }))
        return false;
    if (m_spec.rules) {
        storage::Recordset& rows = m_list.rows();
        const QString bookmark = rows.LastModified();
        rows.Bookmark(bookmark);
        m_spec.rules->written(m_entry, rows);
    }
    return true;
}

bool BrowseSession::agreesToDelete()
{
    return Messages::current().show({.kind = MessageKind::Question,
                                     .title = "Confirm Delete",
                                     .text = m_spec.deleteQuestion(m_list.rows()),
                                     .buttons = Buttons::OkCancel,
                                     .enterTakes = Answer::Cancel}) == Answer::Ok;
}

void BrowseSession::remove()
{
    if (!mayBegin(m_spec.mayDelete, true))
        return;
    if (opensDetail()) {
        openDetail("D");
        return;
    }
    storage::Recordset& rows = m_list.rows();
    if (m_spec.deleteTest) {
        const QString refusal = m_spec.deleteTest(*this, rows);
        if (!refusal.isEmpty())
            return showCritical("Cannot Delete", refusal);
    }
    const QString next = m_list.neighbour();
    if (!m_list.goToCurrent() || !agreesToDelete())
        return;
    try {
        rows.Bookmark(m_list.BrowseCurrent);
        if (m_spec.rules && !m_spec.rules->beforeDelete(m_session, rows))
            return m_list.rebuild();
        rows.Delete();
    } catch (const StorageError& error) {
        // Someone was faster; the list shows it.
        if (error.errorNumber() != ErrorNumber::RecordDeleted)
            throw;
    }
    m_list.BrowseCurrent = next;
    m_list.rebuild();
}

void BrowseSession::search()
{
    if (isBrowsing() && m_spec.search && activeRecordTest(false) && allowsUpdates())
        m_list.show(m_spec.search(*this));
}

void BrowseSession::run(const BrowseCommand& command)
{
    if (isBrowsing() == command.inEntryMode)
        return;
    if (command.needsRecord && (!activeRecordTest(true) || !m_list.goToCurrent()))
        return;
    if (isBrowsing() && m_hasParent && command.asksUpdatesTest && !allowsUpdates())
        return;
    command.run(*this);
}

bool BrowseSession::showTag(qint32 tag)
{
    const bool ofDetail = opensDetail();
    storage::Recordset& rows = m_list.rows();
    rows.Index(ofDetail ? m_spec.detail.tagIndex : m_spec.tag.field);
    const QString place = rows.Seek("=", tag) ? rows.Bookmark() : QString();
    rows.Index(m_list.source().index);
    return m_list.show(place);
}

QString BrowseSession::captionOf(const BrowseCommand& command) const
{
    return command.captionFor ? command.captionFor(*this) : command.caption;
}

bool BrowseSession::takeLock(qint32 tag) const
{
    return m_spec.detail.lock.isEmpty() || !dnRecordLock(tag, m_spec.detail.lock, m_session.UserTag,
                                                         m_session.UserName, m_session.SessionTag);
}

bool BrowseSession::openDetail(const QString& mode)
{
    const bool isNew = mode == "A";
    if (!isBrowsing() || !activeRecordTest(!isNew) || (!isNew && !m_list.goToCurrent()))
        return false;
    const qint32 tag = isNew ? 0 : intOf(m_list.rows().fieldNamed(m_spec.detail.tagField));
    if (m_spec.detail.mayOpen && !m_spec.detail.mayOpen(*this, mode))
        return false;
    if (m_spec.detail.lockedModes.contains(mode) && !takeLock(tag))
        return false;
    // The screen gives the lock up; one that fails to come into being cannot.
    auto unlock = qScopeGuard([&] {
        if (!m_spec.detail.lock.isEmpty() && m_spec.detail.lockedModes.contains(mode))
            dnRecordUnlock(tag, m_spec.detail.lock);
    });
    dnSetHOTTAG(m_session.UserSettingsPath, m_winTag, tag);
    const bool opened = m_spec.detail.open(*this, mode, tag, m_winTag);
    unlock.dismiss();
    m_openedDetail = m_openedDetail || opened;
    return opened;
}

void BrowseSession::comeToFront()
{
    followDetail();
    if (m_spec.inFront && isBrowsing() && m_list.isOpen())
        m_spec.inFront(*this);
}

void BrowseSession::followDetail()
{
    if (m_spec.readsAnewInFront && m_hasParent && isBrowsing() && m_list.isOpen())
        m_list.rebuild();
    if (!m_openedDetail || !isBrowsing() ||
        dnGetWINACTION(m_session.UserSettingsPath, m_winTag) != 1)
        return;
    const qint32 tag = dnGetHOTTAG(m_session.UserSettingsPath, m_winTag);
    QString place = noBookmark;
    if (tag == hotTagKeepPage) {
        place = m_list.BrowseTop;
    } else if (tag != hotTagNone) {
        storage::Recordset& rows = m_list.rows();
        rows.Index(m_spec.detail.tagIndex);
        place = rows.Seek("=", tag) ? rows.Bookmark() : m_list.BrowseFirst;
    }
    m_list.BrowseCurrent = place;
    m_list.rebuild();
}
