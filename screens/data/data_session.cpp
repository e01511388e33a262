#include "screens/data/data_session.h"

#include "core/storage/storage_error.h"
#include "core/window_registry.h"
#include "multiuser/record_locks.h"

using storage::ErrorNumber;
using storage::StorageError;

namespace {

std::vector<EntryField> fieldsOf(const std::vector<DataSection>& sections)
{
    std::vector<EntryField> fields;
    for (const DataSection& section : sections)
        fields.insert(fields.end(), section.fields.begin(), section.fields.end());
    return fields;
}

}  // namespace

Message confirmDelete(const QString& title, const QString& text)
{
    return {.kind = MessageKind::Question,
            .title = title,
            .text = text,
            .buttons = Buttons::OkCancel,
            .enterTakes = Answer::Cancel};
}

DataSession::DataSession(DataSpec spec, Session session, DataRecord record)
    : m_spec(std::move(spec)),
      m_session(std::move(session)),
      m_record(std::move(record)),
      m_mode(m_record.mode),
      m_entry(fieldsOf(m_spec.sections), m_session),
      m_hotTag(m_mode == "A" ? hotTagKeepPage : m_record.tag),
      m_isOpen(true)
{
}

// Of a window that is taken down without having been closed.
DataSession::~DataSession()
{
    try {
        close();
    } catch (const StorageError&) {
        // Nobody is left to tell; the lock shows that the record was not given up.
    }
}

bool DataSession::open()
{
    m_table = openTable(m_session, m_spec.file, m_spec.table);
    storage::Recordset& rows = m_table.rows;
    const bool isNew = m_mode == "A";
    if (!isNew && !m_record.keys.empty()) {
        std::vector<storage::Value> keys;
        for (const KeyField& key : m_record.keys)
            keys.push_back(key.key);
        rows.Index(m_record.index);
        rows.seekKeys("=", keys);
    }
    if (!isNew && (m_record.keys.empty() ? rows.RecordCount() == 0 : rows.NoMatch())) {
        showCritical("No Active Record.", "Another user has deleted this record.");
        return false;
    }
    EntryPlace place{isNew ? m_record.parent : std::vector<KeyField>(), m_spec.index};
    if (!isNew)
        for (const schema::FieldName field : m_spec.parent)
            place.parent.push_back({field, rows[field].value()});
    m_entry.begin(m_mode, rows, place);
    m_isLoaded = !m_spec.rules || m_spec.rules->begin(m_entry);
    m_entry.takeAsUnchanged();
    return m_isLoaded;
}

void DataSession::close()
{
    if (!m_isOpen)
        return;
    m_isOpen = false;
    m_table.workspace.Close();
    if (!m_spec.lock.isEmpty() && (m_record.mode == "E" || m_record.mode == "D"))
        dnRecordUnlock(m_record.tag, m_spec.lock);
    if (m_record.winTag != 0)
        dnUnloadWindow(m_session.UserSettingsPath, m_record.winTag, m_hotTag);
}

QString DataSession::caption() const
{
    if (!m_spec.namesMode)
        return m_spec.caption;
    const QString name = m_mode == "A"   ? "Add"
                         : m_mode == "E" ? "Edit"
                         : m_mode == "D" ? "Delete"
                                         : "View";
    return m_spec.caption + " - " + name;
}

QString DataSession::updateCaption() const
{
    return m_mode == "D" ? QString("&Delete") : m_spec.updateCaption;
}

QString DataSession::cancelCaption() const
{
    return m_mode == "V" || m_spec.staysOpen ? "E&xit" : "&Cancel";
}

bool DataSession::refuse()
{
    if (m_entry.checkAll())
        return false;
    showCritical("Cannot Update", "Errors Detected: \n\n" + m_entry.errors().text());
    return true;
}

bool DataSession::update(bool stays)
{
    if (!m_isLoaded)
        return false;
    if (m_mode == "V") {
        showCritical("Changes Not Allowed", m_spec.viewRefusal);
        return false;
    }
    if (m_mode == "D")
        return remove();
    if (refuse())
        return false;
    stays = stays || m_spec.staysOpen;
    m_entry.drawTag(m_spec.tag);
    using Step = EntryRules::Step;
    const Step step = m_spec.rules ? m_spec.rules->beforeWrite(m_entry) : Step::Write;
    if (step == Step::Leave)
        m_entry.takeAsUnchanged();
    const bool addsOn = !stays && m_mode == "A" && !m_spec.addsOnAt.isEmpty();
    if (step != Step::Write || !write(stays))
        return step == Step::Leave;
    if (m_spec.savedMessage)
        Messages::current().show(*m_spec.savedMessage);
    if (addsOn)
        beginNext();
    return !stays && !addsOn;
}

qint32 DataSession::tagHere()
{
    if (m_spec.hotTag)
        return m_spec.hotTag(m_table.rows);
    return m_spec.tag.field.isEmpty() ? m_record.tag
                                      : intOf(m_table.rows.fieldNamed(m_spec.tag.field));
}

bool DataSession::write(bool stays)
{
    storage::Recordset& rows = m_table.rows;
    if (m_mode == "E" && !m_entry.goToRecord()) {
        showCritical("Cannot Update",
                     "Another user has deleted this record.\n"
                     "Update again to add it anew, or Cancel.");
        m_mode = "A";
        m_entry.becomeNew();
        return false;
    }
    if (!m_entry.write(m_spec.tag, [this](storage::Recordset& written) {
            if (m_spec.rules)
                m_spec.rules->complete(m_entry, written);
        }))
        return false;
    rows.Bookmark(QString(rows.LastModified()));
    if (m_spec.rules)
        m_spec.rules->written(m_entry, rows);
    m_hotTag = tagHere();
    m_entry.takeAsUnchanged();
    if (stays) {
        m_mode = "E";
        m_entry.begin(m_mode, rows, {m_entry.parent(), m_spec.index});
        if (m_spec.rules)
            m_spec.rules->begin(m_entry);
        m_entry.takeAsUnchanged();
    }
    return true;
}

void DataSession::beginNext()
{
    m_entry.begin("A", m_table.rows, {m_record.parent, m_spec.index});
    m_isLoaded = !m_spec.rules || m_spec.rules->begin(m_entry);
    m_entry.takeAsUnchanged();
    m_entry.setFocus(m_entry.indexOf(m_spec.addsOnAt));
}

bool DataSession::remove()
{
    storage::Recordset& rows = m_table.rows;
    if (!m_entry.goToRecord())
        return true;  // gone already, which the list shows
    if (m_spec.deleteTest) {
        const QString refusal = m_spec.deleteTest(m_session, rows);
        if (!refusal.isEmpty()) {
            showCritical(m_spec.deleteRefusalTitle, refusal);
            return false;
        }
    }
    if (!m_entry.goToRecord())
        return true;
    const Answer answer = Messages::current().show(m_spec.deleteQuestion(rows));
    if (answer != Answer::Ok && answer != Answer::Yes)
        return false;
    // The list follows to the record after it, else to the one before.
    rows.Index(m_spec.index);
    const QString next = dnNextBookmark(rows, m_entry.bookmark(), m_entry.parent());
    m_hotTag = hotTagNone;
    if (goToFound(rows, next))
        m_hotTag = tagHere();
    try {
        if (!m_entry.goToRecord())
            return true;
        if (m_spec.rules && !m_spec.rules->beforeDelete(m_session, rows))
            return false;
        rows.Delete();
    } catch (const StorageError& error) {
        if (error.errorNumber() != ErrorNumber::RecordDeleted)
            throw;
    }
    return true;
}

bool DataSession::mayLeave()
{
    if (!m_isLoaded || !m_spec.abandonQuestion || !isForTyping() || !m_entry.isChanged())
        return true;
    const Answer answer = Messages::current().show(*m_spec.abandonQuestion);
    return answer == Answer::Yes || answer == Answer::Ok;
}

void DataSession::run(const DataCommand& command)
{
    if (m_isLoaded && (command.whileViewing || isForTyping()))
        command.run(*this);
}
