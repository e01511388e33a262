#include "core/cost_code_groups.h"

#include "core/fit_column.h"
#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/text.h"

const CostCodeGroup* findCostCodeGroup(const QString& letter)
{
    for (const CostCodeGroup& group : costCodeGroups)
        if (letter == group.letterText())
            return &group;
    return nullptr;
}

QString CostCodeSettings::stored(const QString& code) const
{
    return dnFitColumn(code, type, size);
}

CostCodeSettings costCodeSettingsOf(const storage::Recordset& job, const CostCodeGroup& group)
{
    return {.name = trimmedTextOf(job[group.jobName]),
            .type = trimmedTextOf(job[group.jobType]).toUpper(),
            .size = intOf(job[group.jobSize]),
            .clientName = trimmedTextOf(job[group.jobClientName])};
}

JobCostCodeSettings costCodeSettingsOf(const storage::Recordset& job)
{
    JobCostCodeSettings settings;
    for (size_t i = 0; i < settings.size(); ++i)
        settings[i] = costCodeSettingsOf(job, costCodeGroups[i]);
    return settings;
}

std::optional<JobCostCodeSettings> costCodeSettingsOf(const QString& jobSitePath, int CONO,
                                                      const QString& JOBNO)
{
    OpenTable jobs = openTable(jobSitePath, "MAIN.mdb", "JOBLIST");
    jobs.rows.Index("JOBLIST");
    if (!jobs.rows.Seek("=", CONO, JOBNO))
        return {};
    return costCodeSettingsOf(jobs.rows);
}

QString zorFindCCDESC(storage::Recordset& rs, const QString& letter, int CONO, const QString& JOBNO,
                      const QString& code)
{
    if (dnIsBlank(code))
        return {};
    const CostCodeGroup* group = findCostCodeGroup(letter);
    if (!group) {
        showCritical("Invalid Identifier", "Invalid Cost Code Group ID in Function zorFindCCDESC");
        return {};
    }
    constexpr int widthOfUnknown = 30;
    if (dnSeek(rs, group->table, {{"CONO", CONO}, {"JOBNO", JOBNO}, {group->code, code}}).isEmpty())
        return QString(widthOfUnknown, '?');
    return textOf(rs[group->description]);
}

QString zorCCGroupName(const QString& letter, const QString& captionA, const QString& captionB,
                       const QString& captionC)
{
    if (dnIsBlank(letter))
        return "(none)";
    if (letter == "A")
        return captionA;
    if (letter == "B")
        return captionB;
    return letter == "C" ? captionC : QString("?????????");
}

QString costCodeGroupPlural(const QString& groupName)
{
    const QString name = groupName.trimmed();
    const QString capitalised = name.left(1).toUpper() + name.mid(1).toLower();
    if (capitalised.endsWith('s', Qt::CaseInsensitive))
        return capitalised;
    if (capitalised.endsWith('y', Qt::CaseInsensitive))
        return capitalised.chopped(1) + "ies";
    return capitalised + 's';
}
