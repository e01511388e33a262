// Making a new job of a present one, with its settings and, as far as they are wanted, its cost
// codes and other lists. There is no undo: what was copied stays when a step fails.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "cost/refusal.h"

// In the order in which they are cloned.
enum class CloneStep {
    CostCodesA,
    CostCodesB,
    CostCodesC,
    PositionCodes,
    ExternalCosts,
    AgreementCodes,
    EquipmentCategories,
    JobDefaults,
    FuelTypes,
};

struct CloneStepInfo
{
    CloneStep step;
    const char* name;
    const char* checkBox;
    bool needsEquipment;  // offered only on sites that have the equipment module's database
};

// All steps, in order.
std::span<const CloneStepInfo> cloneSteps();
bool siteHasEquipment(const QString& jobSitePath);

struct JobClone
{
    QString jobSitePath;
    QString userSettingsPath;  // where the buffers are
    int sourceCONO = 0;
    QString sourceJOBNO;  // both numbers in their stored form
    int targetCONO = 0;
    QString targetJOBNO;
    QString targetName;
    std::vector<CloneStep> steps;
};

// What stands in the way, in the order of the checks; nothing when the clone may begin.
std::optional<Refusal> refuseJobClone(const JobClone& clone);

// `text` is what the step's line shows: "Now Cloning Cost Code Group A..." at its beginning and,
// `done`, "Cost Code Group A Cloned." The job itself is told before all steps, without a step.
using CloneProgress =
    std::function<void(std::optional<CloneStep> step, bool done, const QString& text)>;

// Adds the target job and copies what the steps name, each table through its buffer in ZORUSER.mdb.
// Records with tags get new ones. The steps come in their own order, whatever that of the request.
// False, and nothing done, when the source job is not there. Failures of the store are the
// caller's; the step that failed stays half done.
bool cloneJob(const JobClone& clone, const CloneProgress& progress);
