// The three lists of cost codes of a job, its groups A, B and C. They are alike but for the group's
// letter in the names of their tables and fields, so one description serves whoever works on any
// of them. What a group means is the job's own: JOBLIST has its name, type, size and the client's
// name for it.
#pragma once

#include <QString>
#include <array>
#include <optional>

#include "core/storage/recordset.h"

struct CostCodeGroup
{
    char letter;
    // In MAIN.mdb; the index of codes bears the table's name.
    const char* table;
    const char* nameIndex;   // by description
    schema::FieldName code;  // the field of a document's line is named alike
    schema::FieldName description;
    schema::FieldName clientCode;
    // In JOBLIST and JOBDEFAULTS.
    schema::FieldName jobName;
    schema::FieldName jobType;
    schema::FieldName jobSize;
    schema::FieldName jobClientName;

    QString letterText() const { return QString(QLatin1Char(letter)); }
    QString title() const { return "Group " + letterText(); }
};

inline constexpr std::array<CostCodeGroup, 3> costCodeGroups = {{
    {'A', "CCALIST", "CCANAME", "COSTCODEA", "DESCA", "CUSTCODEA1", "CCNAMEA", "CCTYPEA", "CCSIZEA",
     "CLCNAMEA1"},
    {'B', "CCBLIST", "CCBNAME", "COSTCODEB", "DESCB", "CUSTCODEB1", "CCNAMEB", "CCTYPEB", "CCSIZEB",
     "CLCNAMEB1"},
    {'C', "CCCLIST", "CCCNAME", "COSTCODEC", "DESCC", "CUSTCODEC1", "CCNAMEC", "CCTYPEC", "CCSIZEC",
     "CLCNAMEC1"},
}};

// Null for anything but A, B and C.
const CostCodeGroup* findCostCodeGroup(const QString& letter);

// What a job has settled for a group.
struct CostCodeSettings
{
    QString name;  // trimmed; empty: the job does not use the group
    QString type;  // "C" characters, "N" number only
    int size = 0;
    QString clientName;  // trimmed; empty: the client's codes have their usual caption

    bool isDefined() const { return !name.isEmpty(); }
    // The stored form of a code of the group.
    QString stored(const QString& code) const;
};
using JobCostCodeSettings = std::array<CostCodeSettings, 3>;

// Of the job on which `job`, a handle on JOBLIST, stands.
CostCodeSettings costCodeSettingsOf(const storage::Recordset& job, const CostCodeGroup& group);
JobCostCodeSettings costCodeSettingsOf(const storage::Recordset& job);
// Of a job by its number, in the stored form; nothing when there is no such job. Failures of the
// store are the caller's.
std::optional<JobCostCodeSettings> costCodeSettingsOf(const QString& jobSitePath, int CONO,
                                                      const QString& JOBNO);

// The description of a cost code in its stored form; `rs` is the open table of the group. Blank for
// a blank code, 30 "?" for one that is not there. A letter other than A, B and C is told, and gives
// blank.
QString zorFindCCDESC(storage::Recordset& rs, const QString& letter, int CONO, const QString& JOBNO,
                      const QString& code);

// The caption of the group that a stored letter names: "(none)" for a blank one, "?????????" for
// anything but A, B and C.
QString zorCCGroupName(const QString& letter, const QString& captionA, const QString& captionB,
                       const QString& captionC);

// The group's name for many of its codes: Phase gives "Phases", ACTIVITY "Activities", Areas
// "Areas".
QString costCodeGroupPlural(const QString& groupName);
