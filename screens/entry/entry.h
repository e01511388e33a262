// A record while it is added, edited or looked at: what stands in its fields, what is wrong with
// it, and how it is written. It has no widgets; a list lays its fields over a row, a data screen
// stands them in a form.
#pragma once

#include <QHash>
#include <memory>

#include "core/keyed_access.h"
#include "screens/entry/entry_field.h"
#include "screens/entry/error_collector.h"

// Where a new record's tag comes from; no field: the table has none.
struct TagSource
{
    QString field = {};
    QString file = "ZORVEX.mdb";
    QString table = "VEXTAGS";
    bool hasSiteNumber = false;  // the site's number stands before the counter's
};

// Where an entry's record belongs: the keys that are not typed, and the index of the list.
struct EntryPlace
{
    std::vector<KeyField> parent = {};
    QString index = {};
};

class Entry
{
public:
    Entry(std::vector<EntryField> fields, Session session);

    // The table, for the types and lengths of the fields, before there is an entry.
    void attach(storage::Recordset& rows) { m_rows = &rows; }
    // Begins with the record on which `rows` stands, in any mode but "A". `rows` stays the caller's
    // and is moved by whoever checks.
    void begin(const QString& mode, storage::Recordset& rows, const EntryPlace& place);

    // ---- what stands in the fields
    QString operator[](schema::FieldName field) const;  // as typed; empty for one that is not
    QString named(const QString& control) const;        // by the control's system name
    bool isBlank(schema::FieldName field) const;
    bool isTicked(schema::FieldName field) const { return (*this)[field] == "-1"; }
    // The number that is typed, with or without commas; 0 for none, which is what is written then.
    double number(schema::FieldName field) const;
    // A value that is not typed but belongs to the entry; Update writes it, in place of what is
    // typed where a field has both. Null where none was given.
    void give(schema::FieldName field, const storage::Value& value);
    storage::Value given(schema::FieldName field) const;

    // The tag of the new record, drawn before EntryRules::beforeWrite, once for each entry; 0 where
    // the table has none, the counter failed, or a record is edited.
    qint32 tag() const { return m_tag; }
    void drawTag(const TagSource& source);

    const QString& mode() const { return m_mode; }
    bool isAdding() const { return m_mode == "A"; }
    const std::vector<KeyField>& parent() const { return m_place.parent; }
    storage::Value parentKey(schema::FieldName field) const;  // null without one
    const QString& index() const { return m_place.index; }
    const Session& session() const { return m_session; }
    // The record as it is stored, for what is not typed. Stands where a check has left it unless
    // `goToRecord` was called.
    storage::Recordset& rows() const { return *m_rows; }

    // True if another record than the one in hand has these keys along the index.
    bool isTaken(const QString& index, KeyFields keys) const;
    // The same, with the parent's keys before those given.
    bool isTakenInParent(const QString& index, KeyFields keys) const;

    // ---- the fields, from 0
    int count() const { return static_cast<int>(m_fields.size()); }
    const EntryField& field(int at) const { return m_fields[static_cast<size_t>(at)]; }
    int indexOf(schema::FieldName field) const;  // -1 for none
    int indexOf(const QString& control) const;
    const QString& text(int at) const { return m_texts[at]; }
    // As typed; the field's rule of capitals holds.
    void setText(int at, const QString& text);
    // The same for code; the field's error is taken out.
    void setText(schema::FieldName field, const QString& text);
    void setNamed(const QString& control, const QString& text);
    storage::FieldType typeOf(int at) const;  // Text for a field that is not of the table
    // How many characters the field takes.
    int lengthOf(int at) const;
    // True if something else stands in the fields than at the beginning.
    bool isChanged() const { return m_texts != m_textsBefore || m_isGivenAnew; }
    // What stands there now is the beginning.
    void takeAsUnchanged()
    {
        m_textsBefore = m_texts;
        m_isGivenAnew = false;
    }
    // The same of one field, which was saved by itself.
    void takeAsUnchanged(schema::FieldName field);

    // ---- checks
    // Tidies a field that is left, checks it, and where the user has changed it lets it change
    // others; its error, or the lack of one, stands in `errors` unless `collects` is off.
    void leave(int at, bool collects = true, bool wasChanged = true);
    // What is wrong with the field; empty when it is fine.
    QString refusalOf(int at);
    // Checks all. The first wrong one has the focus; false if there is any.
    bool checkAll();
    const ErrorCollector& errors() const { return m_errors; }
    void clearErrors() { m_errors.ClearAll(); }
    // The field to focus.
    int focus() const { return m_focus; }
    void setFocus(int at) { m_focus = at; }
    void setFocus(schema::FieldName field);

    // ---- the record
    // Goes to the record in hand. False when another user has deleted it.
    bool goToRecord() const;
    const QString& bookmark() const { return m_bookmark; }
    // The record in hand is gone: the entry goes on as that of a new one.
    void becomeNew() { m_mode = "A"; }
    // Writes the fields, the parent's keys and what was given, between AddNew or Edit and Update;
    // `complete` writes the rest before Update. The handle stands on the record in hand when it is
    // edited. False after the box "Cannot Update" with the store's text; nothing is written then
    // and the field at fault has the focus.
    bool write(const TagSource& source, const std::function<void(storage::Recordset&)>& complete);

private:
    storage::Value valueOf(int at) const;
    QString shownText(int at) const;
    int tableField(int at) const;

    std::vector<EntryField> m_fields;
    Session m_session;
    QString m_mode = " ";
    storage::Recordset* m_rows = nullptr;
    EntryPlace m_place;
    QString m_bookmark = noBookmark;
    QStringList m_texts;
    QStringList m_textsBefore;
    QHash<quint16, KeyField> m_given;
    bool m_isGivenAnew = false;
    bool m_isTagDrawn = false;
    qint32 m_tag = 0;
    ErrorCollector m_errors;
    int m_focus = 0;
};

// What a screen does around its entries, with what it has to remember between the steps; the
// entry's session and keys tell it where it is. A screen that needs none of it has no rules.
class EntryRules
{
public:
    virtual ~EntryRules() = default;
    // Before an entry, its fields filled: false leaves it again (the user was told). May set texts
    // and give values.
    virtual bool begin(Entry&) { return true; }
    // The checks have passed, the tag is drawn. Stay and Leave write nothing (the user was told);
    // Leave ends the entry.
    enum class Step { Write, Stay, Leave };
    virtual Step beforeWrite(Entry&) { return Step::Write; }
    // Between AddNew or Edit and Update, after the keys, the tag, the typed fields and the given
    // ones were written to `rows`.
    virtual void complete(const Entry&, storage::Recordset& /*rows*/) {}
    // The screen is in front again: another one may have left something for the entry in hand.
    virtual void inFront(Entry&) {}
    // The record is written; `rows` stands on it.
    virtual void written(Entry&, storage::Recordset& /*rows*/) {}
    // The user has agreed: false keeps the record (the user was told). Takes along what hangs on
    // it. `rows` stands on the record and must stand there again.
    virtual bool beforeDelete(const Session&, storage::Recordset& /*rows*/) { return true; }
};

// The tag of a new record, 0 where the table has none or the counter failed, which a box has told.
qint32 newTag(const TagSource& source, const Session& session);
