#include "screens/browse/browse_spec.h"

#include "core/text.h"
#include "screens/browse/browse_session.h"

QString Entry::operator[](schema::FieldName field) const
{
    return m_session.entryText(field);
}

bool Entry::isBlank(schema::FieldName field) const
{
    return dnIsBlank((*this)[field]);
}
bool Entry::isAdding() const
{
    return m_session.EditMode == "A";
}
const std::vector<KeyField>& Entry::parent() const
{
    return m_session.list().source().parent;
}
QString Entry::index() const
{
    return m_session.list().source().index;
}
const Session& Entry::session() const
{
    return m_session.session();
}

bool Entry::isTaken(const QString& index, KeyFields keys) const
{
    storage::Recordset& rows = m_session.list().rows();
    std::vector<storage::Value> values;
    for (const KeyField& key : keys)
        values.push_back(key.key);
    rows.Index(index);
    const bool found = rows.seekKeys("=", values);
    const QString bookmark = found ? rows.Bookmark() : QString();
    rows.Index(m_session.list().source().index);
    return found && (isAdding() || bookmark != m_session.m_edited);
}

bool Entry::isTakenInParent(const QString& index, KeyFields keys) const
{
    std::vector<KeyField> all = parent();
    all.insert(all.end(), keys.begin(), keys.end());
    return isTaken(index, all);
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

std::function<QString(storage::Recordset&)> askToDelete(const QString& what,
                                                        std::vector<schema::FieldName> fields,
                                                        const QString& separator,
                                                        const QString& end)
{
    return [=](storage::Recordset& rows) {
        QStringList values;
        for (const schema::FieldName field : fields)
            values.append(trimmedTextOf(rows[field]));
        return "OK to Delete " + what + ' ' + values.join(separator) + end;
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

BrowseParent companyParent()
{
    return {BrowseParent::Kind::Company, {"CONO"}, "Invalid Company Number Detected."};
}

BrowseParent companyAndJobParent()
{
    return {BrowseParent::Kind::CompanyAndJob,
            {"CONO", "JOBNO"},
            "Invalid Company/Job Number Pair Detected."};
}

BrowseParent branchParent()
{
    return {BrowseParent::Kind::Branch, {"ILCTAG"}, "Select a Valid Branch Code"};
}
