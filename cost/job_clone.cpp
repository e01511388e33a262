#include "cost/job_clone.h"

#include <algorithm>

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/storage/file_paths.h"
#include "core/tags.h"
#include "core/text.h"
#include "cost/job_checks.h"
#include "cost/job_clone_tables.h"

namespace {

constexpr CloneStepInfo steps[] = {
    {CloneStep::CostCodesA, "Cost Code Group A", "ckbCCA", false},
    {CloneStep::CostCodesB, "Cost Code Group B", "ckbCCB", false},
    {CloneStep::CostCodesC, "Cost Code Group C", "ckbCCC", false},
    {CloneStep::PositionCodes, "Position/Class Codes", "ckbPC", false},
    {CloneStep::ExternalCosts, "External Cost Categories", "ckbEXTCOSTCATS", false},
    {CloneStep::AgreementCodes, "Agreement Codes", "ckbUA", false},
    {CloneStep::EquipmentCategories, "Equipment Categories", "ckbBRQCAT", true},
    {CloneStep::JobDefaults, "Job Number Defaults", "ckbVEXJND", false},
    {CloneStep::FuelTypes, "Fuel Types", "ckbBRQFUELTYPES", true},
};

// What a new job takes over. Its remarks, limits and the rest begin anew.
constexpr schema::FieldName jobFields[] = {
    "TAXCOST",  "CCNAMEA",  "CCNAMEB",  "CCNAMEC",   "CCSIZEA",   "CCSIZEB",   "CCSIZEC",
    "CCTYPEA",  "CCTYPEB",  "CCTYPEC",  "CLCNAMEA1", "CLCNAMEB1", "CLCNAMEC1", "COCSTEXT",
    "CLCSTEXT", "ENABLECW", "ENABLEUA", "ENABLEPC",  "ENABLETC",  "UPDEMPCC",  "ENABLEPR",
    "ENABLEDT", "CKBURDEN", "VERIFYCC", "UPDEMPPC",  "CLONEDOW",
};

constexpr schema::FieldName defaultsFields[] = {
    "SHIPTO", "SHIPVIA", "FOB",   "TERMS", "WHODIDIT", "ITEM1",
    "ITEM2",  "ITEM3",   "ITEM4", "ITEM5", "ITEM6",
};

// Adds a row for the target pair with those fields of the source pair's. False without such a row.
template <class Last>
bool cloneOneRow(const JobClone& clone, const char* file, const char* table,
                 std::span<const schema::FieldName> fields, Last last)
{
    OpenTable open = openTable(clone.jobSitePath, file, table);
    storage::Recordset& rows = open.rows;
    rows.Index(table);
    if (!rows.Seek("=", clone.sourceCONO, clone.sourceJOBNO))
        return false;
    std::vector<storage::Value> values;
    for (const schema::FieldName field : fields)
        values.push_back(rows[field].value());
    rows.AddNew();
    for (size_t i = 0; i < fields.size(); ++i)
        rows[fields[i]] = values[i];
    rows["CONO"] = clone.targetCONO;
    rows["JOBNO"] = clone.targetJOBNO;
    last(rows);
    rows.Update();
    return true;
}

void cloneDefaults(const JobClone& clone)
{
    if (!jobHasDefaults(clone.jobSitePath, clone.sourceCONO, clone.sourceJOBNO))
        return;
    const qint32 tag = dnGetNewTag(clone.jobSitePath, "JNDTAG", "ZORVEX.mdb", "VEXTAGS", 0);
    cloneOneRow(clone, "ZORVEX.mdb", "JOB_NO_DEFAULTS", defaultsFields,
                [tag](storage::Recordset& row) {
                    row["JNDTAG"] = tag;
                    row["REQNO"] = 1;
                });
}

void cloneStep(const JobClone& clone, CloneStep step)
{
    if (const ClonedFamily* family = clonedFamily(step))
        cloneFamily(*family, clone);
    else
        cloneDefaults(clone);
}

}  // namespace

std::span<const CloneStepInfo> cloneSteps()
{
    return steps;
}

bool siteHasEquipment(const QString& jobSitePath)
{
    return storage::pathExists(storage::joinPath(jobSitePath, "ZORBRQ.mdb"));
}

std::optional<Refusal> refuseJobClone(const JobClone& clone)
{
    if (clone.targetCONO == 0)
        return Refusal{"Invalid Company No.", "Target Company Number is Zero"};
    if (!companyExists(clone.jobSitePath, clone.targetCONO))
        return Refusal{"Cannot Find Company No.",
                       "Cannot Find Target Company Number: " + QString::number(clone.targetCONO)};
    if (dnIsBlank(clone.targetJOBNO))
        return Refusal{"Blank Job Number", "Cannot Clone. Job Number is Empty."};
    if (dnIsBlank(clone.targetName))
        return Refusal{"Blank Job Name", "Cannot Clone. Job Name is Empty."};
    if (jobExists(clone.jobSitePath, clone.targetCONO, clone.targetJOBNO))
        return Refusal{"Job Number Already Exists.",
                       "Cannot Clone. Job Number Already in Job Number Table."};
    return {};
}

bool cloneJob(const JobClone& clone, const CloneProgress& progress)
{
    if (!jobExists(clone.jobSitePath, clone.sourceCONO, clone.sourceJOBNO))
        return false;
    progress({}, false, "Adding New Record to Job Table");
    cloneOneRow(clone, "MAIN.mdb", "JOBLIST", jobFields,
                [&clone](storage::Recordset& row) { row["JOBNAME"] = clone.targetName; });
    for (const CloneStepInfo& info : steps) {
        if (std::find(clone.steps.begin(), clone.steps.end(), info.step) == clone.steps.end())
            continue;
        progress(info.step, false, QString("Now Cloning ") + info.name + "...");
        cloneStep(clone, info.step);
        progress(info.step, true, QString(info.name) + " Cloned.");
    }
    return true;
}
