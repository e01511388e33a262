#include "cost/target_lists.h"

#include <vector>

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/write_batch.h"
#include "core/write_where.h"

namespace {

OpenTable openTargets(const QString& jobSitePath)
{
    OpenTable targets = openTable(jobSitePath, "MAIN.mdb", "ZORTLCC");
    targets.rows.Index("ZORTLCC");
    return targets;
}

bool isOfJob(const storage::Recordset& rows, int CONO, const QString& JOBNO)
{
    return intOf(rows["CONO"]) == CONO && textOf(rows["JOBNO"]) == JOBNO;
}

// Writes a field of each tagged row of the job.
int writeTagged(const QString& jobSitePath, int CONO, const QString& JOBNO, schema::FieldName field,
                bool value)
{
    OpenTable targets = openTargets(jobSitePath);
    return writeWhere(
        targets, "ZORTLCC", {{"CONO", CONO}, {"JOBNO", JOBNO}}, field, value,
        [](const storage::Recordset& rows) { return rows["TAGGED"].value().toBool(); });
}

}  // namespace

int fillTargetList(const QString& jobSitePath, int CONO, const QString& JOBNO,
                   const CostCodeGroup& group)
{
    OpenTable targets = openTargets(jobSitePath);
    WriteBatch batch(targets.workspace);
    const QString letter = group.letterText();
    while (targets.rows.Seek("=", CONO, JOBNO, letter)) {
        batch.begin();
        targets.rows.Delete();
        batch.added();
    }
    storage::Recordset codes = targets.database.OpenRecordset(group.table);
    codes.Index(group.table);
    std::vector<std::pair<storage::Value, storage::Value>> found;
    for (bool more = codes.Seek("=", CONO, JOBNO); more && isOfJob(codes, CONO, JOBNO);
         more = codes.MoveNext())
        found.emplace_back(codes[group.code].value(), codes[group.description].value());
    for (const auto& [code, description] : found) {
        batch.begin();
        targets.rows.AddNew();
        targets.rows["CONO"] = CONO;
        targets.rows["JOBNO"] = JOBNO;
        targets.rows["GROUPID"] = letter;
        targets.rows["COSTCODE"] = code;
        targets.rows["Desc"] = description;
        targets.rows["PRINTME"] = true;
        targets.rows["ARCHIVED"] = false;
        targets.rows["TAGGED"] = false;
        targets.rows.Update();
        batch.added();
    }
    batch.commit();
    return static_cast<int>(found.size());
}

int markTaggedTargets(const QString& jobSitePath, int CONO, const QString& JOBNO, TargetMark mark,
                      bool on)
{
    return mark == TargetMark::Print ? writeTagged(jobSitePath, CONO, JOBNO, "PRINTME", on)
                                     : writeTagged(jobSitePath, CONO, JOBNO, "ARCHIVED", on);
}

int clearTargetTags(const QString& jobSitePath, int CONO, const QString& JOBNO)
{
    return writeTagged(jobSitePath, CONO, JOBNO, "TAGGED", false);
}
