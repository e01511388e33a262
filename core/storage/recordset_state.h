// What stands behind the handles: the state of a workspace, of an open database, of a cursor.
// Nobody outside the store includes this.
#pragma once

#include <optional>

#include "core/storage/engine.h"
#include "core/storage/workspace.h"

namespace storage {

struct WorkspaceState
{
    explicit WorkspaceState(QString workspaceName) : name(std::move(workspaceName)) {}
    ~WorkspaceState();

    void rollback();
    void close();

    QString name;
    std::vector<std::weak_ptr<DatabaseState>> databases;
    bool inTransaction = false;
    std::vector<std::shared_ptr<Engine>> begun;  // files that the transaction has touched
};

struct DatabaseState
{
    // Joins the workspace's transaction, if there is one. A file on which another workspace of this
    // process has a transaction is Locked for writing.
    void touch(bool forWriting) const;

    std::shared_ptr<Engine> engine;  // null once closed
    // Closes this database before it goes, so it is there for as long as the file is open.
    WorkspaceState* workspace = nullptr;
    std::vector<std::weak_ptr<RecordsetState>> recordsets;
};

// Which columns the rows of a block have, and where a field stands among them.
struct ColumnLayout
{
    std::vector<int> columns;      // positions of fields, in order; -1: the field is gone
    std::vector<qint16> columnOf;  // by position of the field; -1: not fetched
};

// The columns of `old`, if any, and those of the fields at `more`.
std::shared_ptr<const ColumnLayout> layoutWith(const ColumnLayout* old, size_t fieldCount,
                                               std::span<const int> more);

// What a field is before anyone sets it in a new record; nothing: null.
std::optional<Value> startValue(const FieldDefinition& field);

struct RecordsetState
{
    enum class Place : quint8 {
        Unresolved,  // just opened: on the first record, as soon as anyone looks
        OnRecord,
        BeforeFirst,
        AfterLast,
        NoRecords,  // the table was empty: both BOF and EOF
        Nowhere,    // after a failed seek
        OnDeleted,  // the current record was deleted through this handle
    };
    enum class Mode : quint8 { Browsing, Adding, Editing };

    RecordsetState(std::shared_ptr<DatabaseState> owner, const QString& tableName);

    void touch(bool forWriting = false);
    void setIndex(const QString& name);
    bool seek(bool onlyEqual, Direction direction, std::span<const Value> keys);
    bool moveToEnd(Direction from);
    bool move(Direction direction);
    void goTo(RecordId wanted);
    RecordId currentId();
    qint64 countWithin(std::span<const Value> keys);
    qint64 countBefore(std::span<const Value> keys);
    bool moveTo(std::span<const Value> keys, qint64 before);
    Value fieldValue(FieldPlace field);
    void setFieldValue(FieldPlace field, const Value& value);
    void addNew();
    void edit();
    void update();
    void deleteRecord();
    void cancelUpdate();
    void resolve();
    void close();
    // What was read in a transaction that was rolled back is not shown any more.
    void forgetFields();

    // Takes up the definition anew if it was changed, by whoever updates definitions; true then.
    bool followDefinition() { return followDefinition(engine().version()); }
    FieldPlace placeOf(int position) const { return {position, m_earlier.size()}; }
    // Where the field stands in the present definition. NotInCollection when it is gone.
    int positionNow(FieldPlace field) const;

    std::shared_ptr<DatabaseState> database;  // null once closed
    std::shared_ptr<const TableDefinition> table;
    Place place = Place::Unresolved;
    Mode mode = Mode::Browsing;
    bool noMatch = false;
    RecordId lastModified = 0;
    int index = -1;

private:
    Engine& engine() const { return *database->engine; }
    template <class Start>
    bool fetch(Direction direction, Start start, int limit);
    bool fetchRecord(RecordId wanted);
    void settle(Direction direction);
    bool isFetched(int position) const;
    void wantField(int position);
    void wantIndexFields();
    void requireRecord();
    void keepKey();
    std::vector<Value> asKeys(std::span<const Value> keys) const;
    FetchPlan& plan();
    bool followDefinition(const Version& version);
    std::vector<std::optional<Value>> bufferFor(const TableDefinition& fresh) const;
    void insertBuffer();
    void updateFromBuffer();

    std::vector<int> m_keyFields;                  // positions of the index's fields
    std::shared_ptr<const ColumnLayout> m_wanted;  // for the next fetch
    std::shared_ptr<FetchPlan> m_plan;             // null: made when next needed
    quint64 m_definitions = 0;
    std::vector<std::shared_ptr<const TableDefinition>> m_earlier;  // those before `table`

    // The block in hand; the current record is its row `m_row`.
    RowBlock m_block;
    RowBlock m_spare;
    std::shared_ptr<const ColumnLayout> m_layout;
    int m_row = 0;
    Direction m_direction = Direction::Forward;
    int m_ahead = 1;        // rows asked for by the last fetch
    bool m_inOrder = true;  // the block's neighbours are neighbours along the present index
    int m_extraReads = 0;

    // Where a move goes on from when the block no longer tells.
    std::vector<Value> m_key;
    RecordId m_id = 0;

    std::vector<std::optional<Value>> m_buffer;
};

}  // namespace storage
