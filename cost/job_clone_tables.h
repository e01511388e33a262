// Which tables a step of the job clone copies, and the copying itself.
#pragma once

#include <span>

#include "core/schema/field_name.h"
#include "cost/job_clone.h"

struct ClonedTable
{
    const char* table;
    const char* buffer;  // in ZORUSER.mdb, of the same shape
    const char* index;   // whose first fields are the pair, or the parent's tag
    // By which the children know their parent; drawn anew from the counter of the same name.
    schema::FieldName tag = {};
    schema::FieldName parentTag = {};  // none: rows of the job itself
    std::span<const ClonedTable> children = {};
};

// Tables of one database that are cloned together.
struct ClonedFamily
{
    CloneStep step;
    const char* file;
    const char* counters;  // table of the tags' counters, one row
    std::span<const ClonedTable> roots;
};

// Null for the job defaults, which are one row and need no buffer.
const ClonedFamily* clonedFamily(CloneStep step);

// Copies the family's rows of the source job to the target job: first into the buffers, with the
// target pair and new tags, then from there into the tables. The counters are read once before and
// written once, between the two.
void cloneFamily(const ClonedFamily& family, const JobClone& clone);
