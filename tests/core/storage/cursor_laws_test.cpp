// Table handles against the model, under random operations. Three handles stand on one table: two
// on one connection, the third on a connection of its own, as another process would have.
#include <random>

#include "cursor_model.h"
#include "store_fixture.h"

namespace storage {
namespace {

using Place = CursorModel::Place;

struct Handle
{
    Recordset rs;
    CursorModel model;
};

class CursorLaws : public StoreTest
{
protected:
    void startRound(unsigned seed, bool readAtRandom);
    void operate();
    void verify(Handle& handle);

    std::string trace;
    std::vector<Handle> handles;

private:
    int dice(int sides) { return int(m_random() % unsigned(sides)); }
    Value randomValue(const FieldDefinition& field);
    IndexDefinition randomIndex(int number);
    RecordId anyId();
    bool disturbs(const Handle& self) const;
    void verifyPosition(Handle& handle);
    static bool differ(const TableModel::Row& a, const TableModel::Row& b);

    void expectError(int expected, const std::function<void()>& action);
    void chooseIndex(Handle& handle);
    void seek(Handle& handle);
    void move(Handle& handle);
    void setBookmark(Handle& handle);
    void addRecord(Handle& handle);
    void editRecord(Handle& handle);
    void deleteRecord(Handle& handle);
    TableModel::Row fill(Handle& handle, TableModel::Row row);
    void finish(Handle& handle, const TableModel::Row& row, bool adding);

    std::mt19937 m_random;
    TableModel m_model;
    RecordId m_lastId = 0;
    bool m_readAtRandom = false;
    int m_file = 0;
};

const std::vector<FieldDefinition> fields = {
    CreateField("TXT", FieldType::Text, 10), CreateField("NUM", FieldType::Integer),
    CreateField("SNG", FieldType::Single),   CreateField("CUR", FieldType::Currency),
    CreateField("DAY", FieldType::Date),     CreateField("YES", FieldType::Boolean),
    CreateField("MEM", FieldType::Memo),
};

Value CursorLaws::randomValue(const FieldDefinition& field)
{
    static const char* const texts[] = {"",    "a", "A", "a ", " a", "b",    "B ", "Abc", "aBC",
                                        "abd", "é", "É", "ä",  "z",  "日本", "😀",  "ﬃ"};
    static const double numbers[] = {-2, -0.1, 0, 0.1, 0.3, 1.0 / 3, 7.0001, 16'777'217, 1e9};
    if (dice(5) == 0)
        return {};
    const double number = numbers[dice(std::size(numbers))];
    switch (field.type) {
        case FieldType::Integer:
            return dice(6) - 2;
        case FieldType::Single:
            return double(float(number));
        case FieldType::Currency:
            return Currency{qint64(number * 10'000)};
        case FieldType::Date:
            return QDateTime(QDate(1899 + dice(3), 12, 31), QTime(0, 0, dice(2)), Qt::UTC);
        case FieldType::Boolean:
            return dice(2) == 0;
        default:
            return texts[dice(std::size(texts))];
    }
}

IndexDefinition CursorLaws::randomIndex(int number)
{
    QStringList keys;
    for (const FieldDefinition& field : fields)
        keys.append(field.name);
    std::shuffle(keys.begin(), keys.end(), m_random);
    const bool unique = number == 0;
    return CreateIndex(QString("IX%1").arg(number), keys.first(unique ? 2 : 1 + dice(3)), unique);
}

void CursorLaws::startRound(unsigned seed, bool readAtRandom)
{
    m_random.seed(seed);
    m_readAtRandom = readAtRandom;
    m_lastId = 0;
    std::vector<IndexDefinition> indexes;
    for (int i = 0; i < 5; ++i)
        indexes.push_back(randomIndex(i));
    handles.clear();
    workspace.Close();
    workspace = Workspace("wksTEST");
    elsewhere.Close();
    elsewhere = Workspace("wksELSEWHERE");
    path = pathOf(QString("STORE%1.mdb").arg(++m_file));
    makeDatabase(workspace, path, "T", fields, indexes);

    m_model = {};
    m_model.definition.fields = fields;
    m_model.definition.indexes = indexes;
    QFile::link(m_folder.path(), pathOf("other"));
    const QString elsewherePath = pathOf("other") + QString("/STORE%1.mdb").arg(m_file);
    handles.push_back({workspace.OpenDatabase(path).OpenRecordset("T"), CursorModel(m_model)});
    handles.push_back({elsewhere.OpenDatabase(path).OpenRecordset("T"), CursorModel(m_model)});
    handles.push_back(
        {elsewhere.OpenDatabase(elsewherePath).OpenRecordset("T"), CursorModel(m_model)});
    for (int i = 0; i < 40; ++i)
        addRecord(handles[0]);
    for (Handle& handle : handles) {
        expectError(handle.model.moveToEnd(1), [&] { handle.rs.MoveFirst(); });
        // A field that is read for the first time is fetched anew; to tell exactly what a handle
        // shows of records that others change under it, all are read at once.
        for (int i = 0; i < int(fields.size()) && !readAtRandom; ++i)
            handle.rs.Fields(i).value();
    }
}

RecordId CursorLaws::anyId()
{
    return m_lastId == 0 ? 1 : 1 + dice(int(m_lastId));
}

// Whether another handle stands on this one's record.
bool CursorLaws::disturbs(const Handle& self) const
{
    return std::any_of(handles.begin(), handles.end(), [&](const Handle& other) {
        return &other != &self && other.model.place == Place::OnRecord &&
               other.model.id == self.model.id;
    });
}

void CursorLaws::expectError(int expected, const std::function<void()>& action)
{
    EXPECT_EQ(expected, errorOf(action)) << trace;
}

void CursorLaws::chooseIndex(Handle& handle)
{
    const int index = dice(6) - 1;
    trace += QString("index %1").arg(index).toStdString();
    expectError(handle.model.setIndex(index), [&] {
        handle.rs.Index(index < 0 ? QString() : m_model.definition.indexes[size_t(index)].name);
    });
}

void CursorLaws::seek(Handle& handle)
{
    std::vector<Value> keys;
    if (handle.model.index >= 0) {
        const QStringList& names = m_model.definition.indexes[size_t(handle.model.index)].fields;
        const int count = 1 + dice(int(names.size()));
        for (int i = 0; i < count; ++i)
            keys.push_back(randomValue(fields[size_t(m_model.definition.fieldPosition(names[i]))]));
    } else {
        keys.push_back(1);
    }
    const bool last = dice(3) == 0;
    const bool onlyEqual = last || dice(2) == 0;
    trace += last ? "seek last" : onlyEqual ? "seek =" : "seek >=";
    for (const Value& key : keys)
        trace += " " + testing::PrintToString(key);
    expectError(handle.model.seek(onlyEqual, last ? -1 : 1, keys), [&] {
        last ? handle.rs.seekLast(keys) : handle.rs.seekKeys(onlyEqual ? "=" : ">=", keys);
    });
}

void CursorLaws::move(Handle& handle)
{
    const int step = dice(2) == 0 ? 1 : -1;
    if (dice(8) == 0) {
        trace += step > 0 ? "first" : "last";
        expectError(handle.model.moveToEnd(step),
                    [&] { step > 0 ? handle.rs.MoveFirst() : handle.rs.MoveLast(); });
        return;
    }
    // Walks of some length: the store reads ahead more and more.
    const int count = dice(4) == 0 ? 1 + dice(30) : 1;
    trace += QString("%1 moves of %2").arg(count).arg(step).toStdString();
    for (int i = 0; i < count && !HasFailure(); ++i) {
        expectError(handle.model.move(step),
                    [&] { step > 0 ? handle.rs.MoveNext() : handle.rs.MovePrevious(); });
        verify(handle);
    }
}

void CursorLaws::setBookmark(Handle& handle)
{
    const RecordId id = anyId();
    trace += QString("bookmark %1").arg(id).toStdString();
    expectError(handle.model.goTo(id), [&] { handle.rs.Bookmark(QString::number(id)); });
}

TableModel::Row CursorLaws::fill(Handle& handle, TableModel::Row row)
{
    for (size_t i = 0; i < fields.size(); ++i) {
        if (dice(3) == 0)
            continue;
        const Value value = randomValue(fields[i]);
        row[i] = value.isNull() && fields[i].type == FieldType::Boolean ? Value(false) : value;
        handle.rs.Fields(int(i)) = value;
        EXPECT_EQ(row[i], handle.rs.Fields(int(i)).value()) << trace;
    }
    return row;
}

void CursorLaws::finish(Handle& handle, const TableModel::Row& row, bool adding)
{
    const int how = dice(12);
    if (how == 0)
        return handle.rs.CancelUpdate();
    if (how == 1)
        return move(handle);  // abandons it
    const bool duplicate = m_model.violatesUnique(row, adding ? 0 : handle.model.id);
    expectError(duplicate ? 3022 : 0, [&] { handle.rs.Update(); });
    if (duplicate) {
        EXPECT_EQ(row[0], handle.rs.Fields(0).value()) << "the buffer is kept " << trace;
        return handle.rs.CancelUpdate();
    }
    if (adding)
        m_model.rows[++m_lastId] = row;
    else
        handle.model.update(row);
    EXPECT_EQ(QString::number(adding ? m_lastId : handle.model.id), handle.rs.LastModified());
}

void CursorLaws::addRecord(Handle& handle)
{
    trace += "add";
    handle.rs.AddNew();
    TableModel::Row row(fields.size());
    row[5] = Value(false);
    finish(handle, fill(handle, row), true);
}

void CursorLaws::editRecord(Handle& handle)
{
    trace += "edit";
    if (m_readAtRandom && disturbs(handle))
        return;
    const int expected = handle.model.beginEdit();
    expectError(expected, [&] { handle.rs.Edit(); });
    if (expected == 0)
        finish(handle, fill(handle, handle.model.seen), false);
}

void CursorLaws::deleteRecord(Handle& handle)
{
    trace += "delete";
    if (m_readAtRandom && disturbs(handle))
        return;
    expectError(handle.model.remove(), [&] { handle.rs.Delete(); });
}

void CursorLaws::verify(Handle& handle)
{
    const CursorModel& model = handle.model;
    ASSERT_EQ(model.isBof(), handle.rs.BOF()) << trace;
    ASSERT_EQ(model.isEof(), handle.rs.EOF()) << trace;
    ASSERT_EQ(model.noMatch, handle.rs.NoMatch()) << trace;
    QString bookmark;
    expectError(model.currentError(), [&] { bookmark = handle.rs.Bookmark(); });
    if (model.place != Place::OnRecord)
        return;
    ASSERT_EQ(QString::number(model.id), bookmark) << trace;
    const int field = dice(int(fields.size()));
    ASSERT_EQ(model.seen[size_t(field)], handle.rs.Fields(field).value()) << trace;
    if (dice(4) == 0)
        verifyPosition(handle);
}

// Where the record stands among those that share its first keys, and the way back to it.
void CursorLaws::verifyPosition(Handle& handle)
{
    const CursorModel& model = handle.model;
    if (model.place != Place::OnRecord || !m_model.rows.count(model.id))
        return;
    std::vector<Value> parent;
    TableModel prefix;
    prefix.definition.fields = m_model.definition.fields;
    prefix.definition.indexes.emplace_back();
    if (model.index >= 0)
        for (const QString& key : m_model.definition.indexes[size_t(model.index)].fields) {
            if (dice(2) == 0)
                break;
            parent.push_back(model.seen[size_t(m_model.definition.fieldPosition(key))]);
            prefix.definition.indexes[0].fields.push_back(key);
        }
    qint64 count = 0;
    qint64 before = 0;
    for (const auto& [id, row] : m_model.rows) {
        if (prefix.compare(0, row, 1, model.seen, 1) != 0)
            continue;
        ++count;
        before += m_model.compare(model.index, row, id, model.seen, model.id) < 0 ? 1 : 0;
    }
    ASSERT_EQ(handle.rs.countWithin(parent), count) << trace;
    ASSERT_EQ(handle.rs.countBefore(parent), before) << trace;
    if (differ(m_model.rows.at(model.id), model.seen))
        return;  // another handle has moved it along the index
    ASSERT_TRUE(handle.rs.moveTo(parent, before)) << trace;
    ASSERT_EQ(handle.rs.Bookmark(), QString::number(model.id)) << trace;
}

bool CursorLaws::differ(const TableModel::Row& a, const TableModel::Row& b)
{
    for (size_t field = 0; field < a.size(); ++field)
        if (compareValues(a[field], b[field]) != 0)
            return true;
    return false;
}

void CursorLaws::operate()
{
    const size_t which = size_t(dice(int(handles.size())));
    Handle& handle = handles[which];
    trace = "handle " + std::to_string(which) + ": ";
    const int what = dice(20);
    if (what < 9)
        move(handle);
    else if (what < 11)
        seek(handle);
    else if (what < 12)
        chooseIndex(handle);
    else if (what < 14)
        setBookmark(handle);
    else if (what < 16)
        addRecord(handle);
    else if (what < 18)
        editRecord(handle);
    else if (what < 19)
        deleteRecord(handle);
    else
        EXPECT_EQ(int(m_model.rows.size()), handle.rs.RecordCount()) << trace;
    verify(handle);
}

// Other rounds than these: --gtest_random_seed=N.
TEST_F(CursorLaws, HandlesDoAsTheModelDoesWhateverOthersDoMeanwhile)
{
    const auto firstRound = 24 * unsigned(GTEST_FLAG_GET(random_seed));
    for (unsigned round = firstRound; round < firstRound + 24; ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        startRound(round, round % 2 == 1);
        for (int operation = 0; operation < 400 && !HasFailure(); ++operation) {
            SCOPED_TRACE("operation " + std::to_string(operation));
            operate();
        }
        ASSERT_FALSE(HasFailure());
    }
}

}  // namespace
}  // namespace storage
