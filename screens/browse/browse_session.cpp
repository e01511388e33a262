#include "screens/browse/browse_session.h"

#include "core/keys.h"
#include "core/number_format.h"
#include "core/storage/storage_error.h"
#include "core/tags.h"
#include "core/text.h"
#include "core/window_registry.h"
#include "multiuser/users.h"

using storage::ErrorNumber;
using storage::StorageError;

namespace {

bool isNumberLike(storage::FieldType type, const QString& text)
{
    using storage::FieldType;
    if (type == FieldType::Text || type == FieldType::Memo || type == FieldType::Date)
        return true;
    QString number = text.trimmed();
    number.remove(',');
    bool isNumber = true;
    if (!number.isEmpty())
        number.toDouble(&isNumber);
    return isNumber;
}

}  // namespace

BrowseSession::BrowseSession(BrowseSpec spec, Session session)
    : m_spec(std::move(spec)),
      m_session(std::move(session)),
      m_list([this](storage::Recordset& rows) { return cellsOf(rows); })
{
    for (size_t i = 0; i < m_spec.columns.size(); ++i)
        if (m_spec.columns[i].entry[0] != '\0')
            m_entryColumns.push_back(i);
}

QString BrowseSession::folder() const
{
    if (m_spec.besideProgram)
        return {};
    return m_spec.inUserFolder ? m_session.UserSettingsPath : m_session.JobSitePath;
}

void BrowseSession::open()
{
    m_list.open({.folder = folder(),
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
}

void BrowseSession::close()
{
    if (m_winTag != 0)
        dnDELWINTAG(m_session.UserSettingsPath, m_winTag);
    m_winTag = 0;
    m_list.close();
}

BrowseSession::~BrowseSession()
{
    close();
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
}

const BrowseColumn& BrowseSession::entryColumn(int entry) const
{
    return m_spec.columns[m_entryColumns[static_cast<size_t>(entry)]];
}

QStringList BrowseSession::cellsOf(storage::Recordset& rows) const
{
    QStringList cells;
    for (const BrowseColumn& column : m_spec.columns)
        if (column.shows)
            cells.append(column.shows(*this, rows));
        else if (column.format[0] != '\0')
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
    showCritical("No Active Record.",
                 "Highlighted Browse Bar Must be on a Current Record to Continue.");
    return false;
}

bool BrowseSession::mayChange() const
{
    return m_spec.editRight[0] == '\0' || dnOK2Access(m_spec.editRight, m_session.UserName, true);
}

void BrowseSession::act()
{
    m_list.isOnRecord() ? edit() : add();
}

void BrowseSession::beginEntry(const QString& mode, int row)
{
    EditMode = mode;
    m_edited = mode == "E" ? m_list.BrowseCurrent : noBookmark;
    m_entryRow = row;
    m_fieldToFocus = 0;
    m_errors.ClearAll();
}

void BrowseSession::add()
{
    if (!isBrowsing() || !activeRecordTest(false) || !mayChange())
        return;
    if (opensDetail())
        return openDetail("A");
    m_texts = QStringList(entryCount(), QString());
    beginEntry("A", m_list.makeEntryRow());
}

void BrowseSession::edit()
{
    if (!isBrowsing() || !activeRecordTest(true) || !mayChange() || !m_list.goToCurrent())
        return;
    if (opensDetail())
        return openDetail("E");
    m_texts.clear();
    for (int i = 0; i < entryCount(); ++i)
        m_texts.append(trimmedTextOf(m_list.rows()[entryColumn(i).field]));
    beginEntry("E", m_list.BrowseRow);
}

void BrowseSession::leaveEntry()
{
    EditMode = " ";
    m_errors.ClearAll();
    m_fieldToFocus = 0;
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

void BrowseSession::setText(int entry, const QString& text)
{
    m_texts[entry] = entryColumn(entry).upperCase ? withTypedCapitals(text) : text;
}

void BrowseSession::setText(schema::FieldName field, const QString& text)
{
    for (int i = 0; i < entryCount(); ++i)
        if (entryColumn(i).field.number() == field.number()) {
            setText(i, text);
            m_errors.ClearField(i + 1);
            m_fieldToFocus = i;
        }
}

QString BrowseSession::entryText(schema::FieldName field) const
{
    for (int i = 0; i < entryCount(); ++i)
        if (entryColumn(i).field.number() == field.number())
            return m_texts.value(i);
    return {};
}

void BrowseSession::keepEntryInView()
{
    m_entryRow = EditMode == "E" ? m_list.BrowseRow : std::min(m_entryRow, m_list.BrowseMaxRow);
}

// What the screen does not want, then what the column cannot hold.
QString BrowseSession::refusalOf(int entry)
{
    const BrowseColumn& column = entryColumn(entry);
    if (column.tidy)
        setText(entry, column.tidy(m_texts[entry]));
    const QString refusal = column.check ? column.check(Entry(*this)) : QString();
    if (!refusal.isEmpty())
        return refusal;
    const storage::TableDefinition& table = m_list.rows().definition();
    const auto position = static_cast<size_t>(table.fieldPosition(column.field));
    if (!isNumberLike(table.fields[position].type, m_texts[entry]))
        return QString(column.heading) + " is not a Number.";
    try {
        storage::fitted(table.fields[position], valueOf(column, m_texts[entry]));
        return {};
    } catch (const StorageError& error) {
        return error.description();
    }
}

void BrowseSession::validate(int entry)
{
    const QString refusal = refusalOf(entry);
    if (refusal.isEmpty() || m_spec.refusals != BrowseSpec::Refusals::ErrorBox)
        m_errors.ClearField(entry + 1);
    else
        m_errors.AddError(refusal, entry + 1);
}

// The newer screens: all the errors at once.
bool BrowseSession::refuseAll()
{
    for (int i = 0; i < entryCount(); ++i)
        validate(i);
    if (m_errors.ErrorCount() == 0)
        return false;
    m_fieldToFocus = m_errors.FirstFieldInError() - 1;
    showCritical("Cannot Update", "Errors Detected: " + QString::number(m_errors.ErrorCount()) +
                                      '\n' + m_errors.text());
    return true;
}

// The older screens: the first error, and Cancel in its box leaves the entry.
bool BrowseSession::refuseFirst()
{
    for (int i = 0; i < entryCount(); ++i) {
        const QString refusal = refusalOf(i);
        if (refusal.isEmpty())
            continue;
        m_fieldToFocus = m_spec.refusals == BrowseSpec::Refusals::BoxToFirstField ? 0 : i;
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
    const bool refused =
        m_spec.refusals == BrowseSpec::Refusals::ErrorBox ? refuseAll() : refuseFirst();
    if (refused)
        return isBrowsing();
    if (!write())
        return false;
    m_list.BrowseCurrent = m_list.rows().LastModified();
    if (EditMode == "A")
        m_list.BrowseRow = m_entryRow;
    else
        m_editedExisting = true;
    leaveEntry();
    m_list.rebuild();
    return true;
}

// A number field takes the number that was typed, a text field the text as it stands.
storage::Value BrowseSession::valueOf(const BrowseColumn& column, const QString& text) const
{
    const storage::FieldType type = m_list.typeOf(column.field);
    if (type == storage::FieldType::Text || type == storage::FieldType::Memo)
        return text;
    QString number = text.trimmed();
    number.remove(',');
    return number.isEmpty() ? storage::Value(0) : storage::Value(number);
}

// Goes to the record that is edited. When another user deleted it, what was typed stays and the
// next Update adds it as a new record.
bool BrowseSession::goToEdited()
{
    try {
        m_list.rows().Bookmark(m_edited);
        return true;
    } catch (const StorageError& error) {
        if (error.errorNumber() != ErrorNumber::RecordDeleted)
            throw;
    }
    showCritical("Cannot Update",
                 "Another user has deleted this record.\n"
                 "Update again to add it anew, or Cancel.");
    EditMode = "A";
    return false;
}

bool BrowseSession::write()
{
    storage::Recordset& rows = m_list.rows();
    if (EditMode == "E" && !goToEdited())
        return false;
    qint32 tag = 0;
    if (EditMode == "A" && m_spec.tag.field[0] != '\0')
        tag = dnGetNewTag(m_spec.tag.besideProgram ? QString(" ") : m_session.JobSitePath,
                          m_spec.tag.field, m_spec.tag.file, m_spec.tag.table, 0);
    try {
        if (EditMode == "E")
            rows.Edit();
        else
            rows.AddNew();
        for (const KeyField& key : m_list.source().parent)
            rows[key.field] = key.key;
        if (EditMode == "A" && m_spec.tag.field[0] != '\0')
            rows.fieldNamed(m_spec.tag.field) = tag;  // 0, too, after a counter failed
        for (int i = 0; i < entryCount(); ++i) {
            m_fieldToFocus = i;
            rows[entryColumn(i).field] = valueOf(entryColumn(i), m_texts[i]);
        }
        m_fieldToFocus = 0;
        if (m_spec.complete)
            m_spec.complete(Entry(*this), rows);
        rows.Update();
        return true;
    } catch (const StorageError& error) {
        rows.CancelUpdate();
        showCritical("Cannot Update", error.description());
        return false;
    }
}

void BrowseSession::remove()
{
    if (!isBrowsing() || !activeRecordTest(true) || !mayChange() || !m_list.goToCurrent())
        return;
    if (opensDetail())
        return openDetail("D");
    storage::Recordset& rows = m_list.rows();
    if (m_spec.deleteTest) {
        const QString refusal = m_spec.deleteTest(*this, rows);
        if (!refusal.isEmpty())
            return showCritical("Cannot Delete", refusal);
    }
    const QString next = m_list.neighbour();
    if (!m_list.goToCurrent())
        return;
    const Answer answer = Messages::current().show({.kind = MessageKind::Question,
                                                    .title = "Confirm Delete",
                                                    .text = m_spec.deleteQuestion(rows),
                                                    .buttons = Buttons::OkCancel,
                                                    .enterTakes = Answer::Cancel});
    if (answer != Answer::Ok)
        return;
    try {
        rows.Bookmark(m_list.BrowseCurrent);
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
    if (isBrowsing() && m_spec.search && activeRecordTest(false))
        m_list.show(m_spec.search(*this));
}

void BrowseSession::run(const BrowseCommand& command)
{
    if (isBrowsing() == command.inEntryMode)
        return;
    if (command.needsRecord && (!activeRecordTest(true) || !m_list.goToCurrent()))
        return;
    command.run(*this);
}

void BrowseSession::openDetail(const QString& mode)
{
    const qint32 tag = mode == "A" ? 0 : intOf(m_list.rows().fieldNamed(m_spec.detail.tagField));
    dnSetHOTTAG(m_session.UserSettingsPath, m_winTag, tag);
    m_openedDetail = true;
    m_spec.detail.open(*this, mode, tag, m_winTag);
}

void BrowseSession::comeToFront()
{
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
