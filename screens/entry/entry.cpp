#include "screens/entry/entry.h"

#include "core/dates.h"
#include "core/messages.h"
#include "core/number_format.h"
#include "core/storage/storage_error.h"
#include "core/tags.h"
#include "core/text.h"

using storage::ErrorNumber;
using storage::FieldType;
using storage::StorageError;
using Kind = EntryField::Kind;

namespace {

QString withoutCommas(const QString& text)
{
    QString number = text.trimmed();
    number.remove(',');
    return number;
}

bool isTextType(FieldType type)
{
    return type == FieldType::Text || type == FieldType::Memo || type == FieldType::Date;
}

bool isNumberLike(const QString& text)
{
    const QString number = withoutCommas(text);
    bool isNumber = true;
    if (!number.isEmpty())
        number.toDouble(&isNumber);
    return isNumber;
}

const storage::FieldDefinition& definitionOf(const storage::Recordset& rows,
                                             schema::FieldName field)
{
    const storage::TableDefinition& table = rows.definition();
    return table.fields[static_cast<size_t>(table.fieldPosition(field))];
}

// The caption without its key, for a refusal.
QString bareCaption(const QString& caption)
{
    QString bare = caption;
    bare.remove('&');
    while (bare.endsWith(':'))
        bare.chop(1);
    return bare;
}

}  // namespace

Entry::Entry(std::vector<EntryField> fields, Session session)
    : m_fields(std::move(fields)),
      m_session(std::move(session)),
      m_texts(static_cast<qsizetype>(m_fields.size())),
      m_textsBefore(m_texts)
{
}

void Entry::begin(const QString& mode, storage::Recordset& rows, const EntryPlace& place)
{
    m_mode = mode;
    m_rows = &rows;
    m_place = place;
    m_bookmark = isAdding() ? noBookmark : rows.Bookmark();
    m_given.clear();
    m_isGivenAnew = m_isTagDrawn = false;
    m_tag = 0;
    m_errors.ClearAll();
    m_focus = 0;
    for (int i = 0; i < count(); ++i)
        m_texts[i] = isAdding() ? field(i).initial : shownText(i);
    m_textsBefore = m_texts;
}

// How the record's field stands in the entry.
QString Entry::shownText(int at) const
{
    const EntryField& shown = field(at);
    if (shown.field.isNone() || shown.kind == Kind::Shown || shown.kind == Kind::Picture)
        return shown.initial;
    const storage::Field stored = (*m_rows)[shown.field];
    if (shown.kind == Kind::Box)
        return dnNullCheck(stored).toInt() != 0 ? "-1" : "0";
    if (!shown.format.isEmpty())
        return dnFormat(numberOf(stored), shown.format).trimmed();
    return shown.kind == Kind::Choice ? textOf(stored) : trimmedTextOf(stored);
}

int Entry::indexOf(schema::FieldName wanted) const
{
    for (int i = 0; i < count() && !wanted.isNone(); ++i)
        if (field(i).field == wanted && field(i).kind != Kind::Shown)
            return i;
    return -1;
}

int Entry::indexOf(const QString& control) const
{
    for (int i = 0; i < count(); ++i)
        if (field(i).name == control)
            return i;
    return -1;
}

QString Entry::operator[](schema::FieldName wanted) const
{
    const int at = indexOf(wanted);
    return at < 0 ? QString() : m_texts[at];
}

QString Entry::named(const QString& control) const
{
    const int at = indexOf(control);
    return at < 0 ? QString() : m_texts[at];
}

bool Entry::isBlank(schema::FieldName wanted) const
{
    return dnIsBlank((*this)[wanted]);
}

double Entry::number(schema::FieldName wanted) const
{
    return withoutCommas((*this)[wanted]).toDouble();
}

void Entry::give(schema::FieldName wanted, const storage::Value& value)
{
    m_given.insert(wanted.number(), {wanted, value});
    m_isGivenAnew = true;
}

storage::Value Entry::given(schema::FieldName wanted) const
{
    return m_given.value(wanted.number()).key;
}

storage::Value Entry::parentKey(schema::FieldName wanted) const
{
    for (const KeyField& key : m_place.parent)
        if (key.field == wanted)
            return key.key;
    return {};
}

bool Entry::isTaken(const QString& index, KeyFields keys) const
{
    std::vector<storage::Value> values;
    for (const KeyField& key : keys)
        values.push_back(key.key);
    const QString before = m_rows->Index();
    m_rows->Index(index);
    const bool found = m_rows->seekKeys("=", values);
    const QString bookmark = found ? m_rows->Bookmark() : QString();
    m_rows->Index(before);
    return found && (isAdding() || bookmark != m_bookmark);
}

bool Entry::isTakenInParent(const QString& index, KeyFields keys) const
{
    std::vector<KeyField> all = parent();
    all.insert(all.end(), keys.begin(), keys.end());
    return isTaken(index, all);
}

void Entry::setText(int at, const QString& text)
{
    m_texts[at] = field(at).keys.upperCase ? withTypedCapitals(text) : text;
}

void Entry::setText(schema::FieldName wanted, const QString& text)
{
    if (const int at = indexOf(wanted); at >= 0) {
        setText(at, text);
        m_errors.ClearField(at + 1);
    }
}

void Entry::takeAsUnchanged(schema::FieldName wanted)
{
    if (const int at = indexOf(wanted); at >= 0)
        m_textsBefore[at] = m_texts[at];
}

void Entry::setNamed(const QString& control, const QString& text)
{
    if (const int at = indexOf(control); at >= 0) {
        setText(at, text);
        m_errors.ClearField(at + 1);
    }
}

void Entry::setFocus(schema::FieldName wanted)
{
    m_focus = std::max(indexOf(wanted), 0);
}

int Entry::tableField(int at) const
{
    const EntryField& wanted = field(at);
    const bool isWritten = wanted.kind != Kind::Shown && wanted.kind != Kind::Heading;
    return m_rows && isWritten && !wanted.field.isNone()
               ? m_rows->definition().fieldPosition(wanted.field)
               : -1;
}

FieldType Entry::typeOf(int at) const
{
    return tableField(at) < 0 ? FieldType::Text : definitionOf(*m_rows, field(at).field).type;
}

int Entry::lengthOf(int at) const
{
    if (field(at).lengthFor && m_mode != " ")
        return field(at).lengthFor(*this);
    if (field(at).length > 0)
        return field(at).length;
    constexpr int anyLength = 32767;
    if (tableField(at) < 0 || typeOf(at) == FieldType::Memo)
        return anyLength;
    constexpr int numberLength = 20;
    return typeOf(at) == FieldType::Text ? definitionOf(*m_rows, field(at).field).size
                                         : numberLength;
}

// What the screen does not want, then what the column cannot hold.
QString Entry::refusalOf(int at)
{
    const EntryField& checked = field(at);
    // What is stored and was not touched stays as it is.
    if (isAdding() || m_texts[at] != m_textsBefore[at]) {
        if (checked.tidy)
            m_texts[at] = checked.tidy(m_texts[at]);
        if (checked.kind == Kind::Date && !checked.keepsTyped && !dnIsBlank(dnFixDate(m_texts[at])))
            m_texts[at] = dnFixDate(m_texts[at]);
    }
    const QString refusal = checked.check ? checked.check(*this) : QString();
    if (!refusal.isEmpty() || tableField(at) < 0)
        return refusal;
    if (!isTextType(typeOf(at)) && !isNumberLike(m_texts[at]))
        return bareCaption(checked.caption) + " is not a Number.";
    if (!checked.format.isEmpty())
        m_texts[at] = dnFormat(withoutCommas(m_texts[at]).toDouble(), checked.format).trimmed();
    try {
        storage::fitted(definitionOf(*m_rows, checked.field), valueOf(at));
        return {};
    } catch (const StorageError& error) {
        return error.description();
    }
}

void Entry::leave(int at, bool collects, bool wasChanged)
{
    const QString refusal = refusalOf(at);
    if (refusal.isEmpty() || !collects)
        m_errors.ClearField(at + 1);
    else
        m_errors.AddError(refusal, at + 1);
    if (!wasChanged)
        return;
    if (!refusal.isEmpty() && !field(at).boxWhenLeft.isEmpty())
        showCritical(field(at).boxWhenLeft, refusal);
    else if (refusal.isEmpty() && field(at).left)
        field(at).left(*this);
}

bool Entry::checkAll()
{
    for (int i = 0; i < count(); ++i) {
        const QString refusal = field(i).isCheckedOnlyWhenLeft ? QString() : refusalOf(i);
        if (refusal.isEmpty())
            m_errors.ClearField(i + 1);
        else
            m_errors.AddError(refusal, i + 1);
    }
    if (m_errors.ErrorCount() > 0)
        m_focus = m_errors.FirstFieldInError() - 1;
    return m_errors.ErrorCount() == 0;
}

// A number field takes the number that was typed, a text field the text as it stands.
storage::Value Entry::valueOf(int at) const
{
    const FieldType type = typeOf(at);
    if (type == FieldType::Boolean)
        return m_texts[at] == "-1";
    if (type == FieldType::Text || type == FieldType::Memo)
        return m_texts[at];
    const QString number = withoutCommas(m_texts[at]);
    return number.isEmpty() ? storage::Value(0) : storage::Value(number);
}

bool Entry::goToRecord() const
{
    try {
        m_rows->Bookmark(m_bookmark);
        return true;
    } catch (const StorageError& error) {
        if (error.errorNumber() != ErrorNumber::RecordDeleted)
            throw;
        return false;
    }
}

void Entry::drawTag(const TagSource& source)
{
    if (isAdding() && !std::exchange(m_isTagDrawn, true))
        m_tag = newTag(source, m_session);
}

bool Entry::write(const TagSource& source, const std::function<void(storage::Recordset&)>& complete)
{
    storage::Recordset& rows = *m_rows;
    try {
        if (isAdding())
            rows.AddNew();
        else
            rows.Edit();
        for (const KeyField& key : parent())
            rows[key.field] = key.key;
        if (isAdding() && !source.field.isEmpty())
            rows.fieldNamed(source.field) = m_tag;  // 0, too, after a counter failed
        for (int i = 0; i < count(); ++i) {
            if (tableField(i) < 0)
                continue;
            m_focus = i;
            rows[field(i).field] = valueOf(i);
        }
        m_focus = 0;
        for (const KeyField& given : std::as_const(m_given))
            rows[given.field] = given.key;
        complete(rows);
        rows.Update();
        return true;
    } catch (const StorageError& error) {
        rows.CancelUpdate();
        showCritical("Cannot Update", error.description());
        return false;
    }
}

qint32 newTag(const TagSource& source, const Session& session)
{
    if (source.field.isEmpty())
        return 0;
    const QString folder = folderOf(session, source.file);
    return dnGetNewTag(folder.isEmpty() ? QString(" ") : folder, source.field, source.file,
                       source.table, source.hasSiteNumber ? session.SiteTag : 0);
}

EntryCheck required(schema::FieldName field, const QString& text)
{
    return [field, text](const Entry& entry) { return entry.isBlank(field) ? text : QString(); };
}

EntryCheck unusedCode(schema::FieldName field, const QString& text)
{
    return [field, text](const Entry& entry) {
        return entry.isTakenInParent(entry.index(), {{field, entry[field]}}) ? text : QString();
    };
}

EntryCheck inOrder(std::vector<EntryCheck> checks)
{
    return [checks = std::move(checks)](const Entry& entry) {
        for (const EntryCheck& check : checks)
            if (QString refusal = check(entry); !refusal.isEmpty())
                return refusal;
        return QString();
    };
}

QString maskedPhone(const QString& text)
{
    const QString phone = dnPhoneFormat(text);
    return phone.isEmpty() ? "(   )    -    " : phone;
}

EntryField phoneField(const QString& name, schema::FieldName field, const QString& caption)
{
    return {.name = name,
            .field = field,
            .caption = caption,
            .length = 14,
            .initial = maskedPhone({}),
            .tidy = maskedPhone};
}
