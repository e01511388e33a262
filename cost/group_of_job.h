// What a job has settled for a cost code group, where a screen has the job for its parent.
#pragma once

#include "core/cost_code_groups.h"

// Of the job of a list or of an entry in it; a group that is not defined where there is none.
// Failures of the store are the caller's.
template <class Place>
CostCodeSettings groupOfJob(const Place& place, const CostCodeGroup& group)
{
    const std::optional<JobCostCodeSettings> job =
        costCodeSettingsOf(place.session().JobSitePath, place.parentKey("CONO").toInt(),
                           place.parentKey("JOBNO").toString());
    return job ? (*job)[static_cast<size_t>(group.letter - 'A')] : CostCodeSettings{};
}
