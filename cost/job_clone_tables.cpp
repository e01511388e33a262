#include "cost/job_clone_tables.h"

#include <QHash>
#include <algorithm>

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/storage/file_paths.h"
#include "core/whole_numbers.h"
#include "core/write_batch.h"
#include "core/zap.h"

namespace {

using storage::Recordset;
using storage::Value;

constexpr char userFile[] = "ZORUSER.mdb";

constexpr ClonedTable groupA[] = {{"CCALIST", "JCBUFCCALIST", "CCALIST"}};
constexpr ClonedTable groupB[] = {{"CCBLIST", "JCBUFCCBLIST", "CCBLIST"}};
constexpr ClonedTable groupC[] = {{"CCCLIST", "JCBUFCCCLIST", "CCCLIST"}};
constexpr ClonedTable classDetail[] = {
    {"CCRATES", "JCBUFCCRATES", "CCRATES", {}, "CCTAG"},
    {"CCUNION", "JCBUFCCUNION", "CCUNION", {}, "CCTAG"},
};
constexpr ClonedTable classes[] = {
    {"CCLIST", "JCBUFCCLIST", "CCLIST", "CCTAG", "PCTAG", classDetail}};
constexpr ClonedTable positions[] = {{"PCLIST", "JCBUFPCLIST", "PCLIST", "PCTAG", {}, classes}};
constexpr ClonedTable externalRates[] = {
    {"EXTCOSTRATES", "JCBUFEXTCOSTRATES", "EXTCOSTRATES", "ECRTAG", "ECCTAG"}};
constexpr ClonedTable externalCosts[] = {
    {"EXTCOSTCATS", "JCBUFEXTCOSTCATS", "EXTCOSTCATS", "ECCTAG", {}, externalRates}};
constexpr ClonedTable agreements[] = {{"UALIST", "JCBUFUALIST", "UALIST"}};
constexpr ClonedTable rateDetail[] = {{"SCRDETAIL", "JCBUFSCRDETAIL", "SCRDETAIL", {}, "SCDTAG"}};
constexpr ClonedTable subcategoryRates[] = {
    {"SCRATES", "JCBUFSCRATES", "SCRATES", "SCDTAG", "SCTAG", rateDetail}};
constexpr ClonedTable subcategories[] = {
    {"SUBCATS", "JCBUFSUBCATS", "SUBCATS", "SCTAG", "CATTAG", subcategoryRates}};
constexpr ClonedTable categories[] = {
    {"CATCODES", "JCBUFCATCODES", "CATCODES", "CATTAG", {}, subcategories}};
constexpr ClonedTable fuels[] = {
    {"FUELTYPES", "JCBUFFUELTYPES", "FUELTYPES", "FTTAG"},
    {"ROLBRATES", "JCBUFROLBRATES", "ROLBRATES"},
};

constexpr ClonedFamily families[] = {
    {CloneStep::CostCodesA, "MAIN.mdb", "SYSTAGS", groupA},
    {CloneStep::CostCodesB, "MAIN.mdb", "SYSTAGS", groupB},
    {CloneStep::CostCodesC, "MAIN.mdb", "SYSTAGS", groupC},
    {CloneStep::PositionCodes, "MAIN.mdb", "SYSTAGS", positions},
    {CloneStep::ExternalCosts, "MAIN.mdb", "SYSTAGS", externalCosts},
    {CloneStep::AgreementCodes, "MAIN.mdb", "SYSTAGS", agreements},
    {CloneStep::EquipmentCategories, "ZORBRQ.mdb", "BRQTAGS", categories},
    {CloneStep::FuelTypes, "ZORBRQ.mdb", "BRQTAGS", fuels},
};

// The counters of a family's tags, counted upward in memory.
class TagCounters
{
public:
    explicit TagCounters(Recordset rows) : m_rows(std::move(rows)) {}

    qint32 next(schema::FieldName field)
    {
        if (!m_next.contains(field.number())) {
            const int stored = m_rows.RecordCount() == 0 ? 0 : intOf(m_rows[field]);
            m_next.insert(field.number(), {field, stored == 0 ? 1 : stored});
        }
        qint64& counter = m_next[field.number()].second;
        return asLong(counter++);
    }

    // Never sets a counter back that others have moved on meanwhile.
    void write()
    {
        if (m_next.isEmpty())
            return;
        if (m_rows.RecordCount() == 0) {
            m_rows.AddNew();
            m_rows.Update();
        }
        m_rows.MoveFirst();
        m_rows.Edit();
        for (const auto& [field, next] : m_next)
            m_rows[field] = asLong(std::max<qint64>(next, intOf(m_rows[field])));
        m_rows.Update();
    }

private:
    Recordset m_rows;
    QHash<quint16, std::pair<schema::FieldName, qint64>> m_next;
};

// Fields of `from` that `to` has too, as pairs of positions: real tables may have grown further
// fields than their buffers.
std::vector<std::pair<int, int>> commonFields(const Recordset& from, const Recordset& to)
{
    std::vector<std::pair<int, int>> common;
    const auto& fields = from.definition().fields;
    for (size_t i = 0; i < fields.size(); ++i) {
        const int position = to.definition().fieldPosition(fields[i].name);
        if (position >= 0)
            common.emplace_back(static_cast<int>(i), position);
    }
    return common;
}

// Copies the row on which `from` stands; `last` writes over what is to differ.
template <class Last>
void copyRow(const Recordset& from, Recordset& to, const std::vector<std::pair<int, int>>& fields,
             WriteBatch& batch, Last last)
{
    batch.begin();
    to.AddNew();
    for (const auto& [source, target] : fields)
        to.Fields(target) = from.Fields(source).value();
    last(to);
    to.Update();
    batch.added();
}

bool hasField(const Recordset& rows, schema::FieldName field)
{
    return rows.definition().fieldPosition(field) >= 0;
}

// First stage: rows of the source job into the buffers.
class Gathering
{
public:
    Gathering(const ClonedFamily& family, const JobClone& clone)
        : m_clone(clone),
          m_source(openTable(clone.jobSitePath, family.file, family.counters)),
          m_workspace(storage::CreateWorkspace("wksZORUSER")),
          m_user(m_workspace.OpenDatabase(storage::joinPath(clone.userSettingsPath, userFile))),
          m_counters(m_source.rows),
          m_batch(m_workspace)
    {
    }

    void run(std::span<const ClonedTable> roots)
    {
        for (const ClonedTable& table : roots)
            prepare(table);
        for (const ClonedTable& table : roots)
            gather(table, {m_clone.sourceCONO, m_clone.sourceJOBNO}, 0);
        m_batch.commit();
        m_counters.write();
    }

private:
    struct Handles
    {
        Recordset source;
        Recordset buffer;
        std::vector<std::pair<int, int>> fields;
    };

    void prepare(const ClonedTable& table);
    void gather(const ClonedTable& table, const std::vector<Value>& keys, qint32 newParent);
    bool isWithin(const ClonedTable& table, const Recordset& row,
                  const std::vector<Value>& keys) const;
    void writeOver(Recordset& row, const ClonedTable& table, qint32 newParent, qint32 newTag) const;

    const JobClone& m_clone;
    OpenTable m_source;
    storage::Workspace m_workspace;
    storage::Database m_user;
    TagCounters m_counters;
    WriteBatch m_batch;
    QHash<const ClonedTable*, std::shared_ptr<Handles>> m_handles;
};

void Gathering::prepare(const ClonedTable& table)
{
    Recordset buffer = m_user.OpenRecordset(table.buffer);
    dnZap(m_clone.userSettingsPath, userFile, buffer);
    auto handles = std::make_shared<Handles>();
    handles->source = m_source.database.OpenRecordset(table.table);
    handles->source.Index(table.index);
    handles->buffer = m_user.OpenRecordset(table.buffer);
    handles->fields = commonFields(handles->source, handles->buffer);
    m_handles.insert(&table, handles);
    for (const ClonedTable& child : table.children)
        prepare(child);
}

bool Gathering::isWithin(const ClonedTable& table, const Recordset& row,
                         const std::vector<Value>& keys) const
{
    if (!table.parentTag.isNone())
        return row[table.parentTag].value() == keys[0];
    return row["CONO"].value() == keys[0] && row["JOBNO"].value() == keys[1];
}

void Gathering::writeOver(Recordset& row, const ClonedTable& table, qint32 newParent,
                          qint32 newTag) const
{
    if (table.parentTag.isNone()) {
        row["CONO"] = m_clone.targetCONO;
        row["JOBNO"] = m_clone.targetJOBNO;
    } else {
        row[table.parentTag] = newParent;
    }
    if (!table.tag.isNone())
        row[table.tag] = newTag;
    if (hasField(row, "DLTAG"))
        row["DLTAG"] = 0;  // the new codes were never downloaded
}

void Gathering::gather(const ClonedTable& table, const std::vector<Value>& keys, qint32 newParent)
{
    Handles& handles = *m_handles.value(&table);
    Recordset& rows = handles.source;
    for (bool more = rows.seekKeys("=", keys); more && isWithin(table, rows, keys);
         more = rows.MoveNext()) {
        const qint32 newTag = table.tag.isNone() ? 0 : m_counters.next(table.tag);
        copyRow(rows, handles.buffer, handles.fields, m_batch,
                [&](Recordset& row) { writeOver(row, table, newParent, newTag); });
        // A record that was stored without a tag owns nothing; rows of tag 0 are others'.
        const int oldTag = table.tag.isNone() ? 0 : intOf(rows[table.tag]);
        if (oldTag == 0)
            continue;
        for (const ClonedTable& child : table.children)
            gather(child, {oldTag}, newTag);
    }
}

// Second stage: from the buffer into the table.
void store(const ClonedTable& table, const ClonedFamily& family, const JobClone& clone)
{
    OpenTable buffer = openTable(clone.userSettingsPath, userFile, table.buffer);
    OpenTable target = openTable(clone.jobSitePath, family.file, table.table);
    const auto fields = commonFields(buffer.rows, target.rows);
    if (buffer.rows.RecordCount() > 0) {
        WriteBatch batch(target.workspace);
        for (bool more = buffer.rows.MoveFirst(); more; more = buffer.rows.MoveNext())
            copyRow(buffer.rows, target.rows, fields, batch, [](Recordset&) {});
        batch.commit();
    }
    for (const ClonedTable& child : table.children)
        store(child, family, clone);
}

}  // namespace

const ClonedFamily* clonedFamily(CloneStep step)
{
    for (const ClonedFamily& family : families)
        if (family.step == step)
            return &family;
    return nullptr;
}

void cloneFamily(const ClonedFamily& family, const JobClone& clone)
{
    Gathering(family, clone).run(family.roots);
    for (const ClonedTable& table : family.roots)
        store(table, family, clone);
}
