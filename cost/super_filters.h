// Super cost code filters: a small tree of up to three levels of cost codes, each level tied to one
// cost code group, by which reports select lines. UDSLIST has the filters, UDSLEVEL1 to UDSLEVEL3
// the nodes; a node's owner is the filter at level 1 and its parent node below.
//
// What is deleted goes children first, so that an interrupted deletion leaves no node without its
// parent. Failures of the store are the caller's.
#pragma once

#include <array>

#include "core/storage/workspace.h"

// In UDSLIST: the letter of each level's cost code group.
inline constexpr std::array<schema::FieldName, 3> udsGroupFields = {"CCGL1", "CCGL2", "CCGL3"};

// The nodes of all levels, each along its index of owner and code.
struct UdsTables
{
    storage::Workspace workspace;
    storage::Database database;
    std::array<storage::Recordset, 3> levels;  // level 1 first

    storage::Recordset& level(int number) { return levels.at(static_cast<size_t>(number - 1)); }
};

UdsTables openUdsTables(const QString& jobSitePath);

// True if a line falls under the filter: the node of each level holds the line's cost code of the
// level's group. `groups` are the letters of levels 1 to 3; the tree ends before the first blank
// one, so that a filter without any level takes all lines. `costCodes` are the line's codes of
// groups A, B and C in their stored form.
bool zorUDSMatch(UdsTables& tables, qint32 UDSTAG, const std::array<QString, 3>& groups,
                 const std::array<QString, 3>& costCodes);

// Deletes the nodes of a level (1 to 3) under an owner, with all below them. Gives how many nodes
// went. An owner of 0 has none: no record has that tag.
int deleteUdsNodes(UdsTables& tables, int level, qint32 ownerTag);

// Deletes the node on which the handle of that level stands, with all below it.
void deleteUdsNode(UdsTables& tables, int level);

// Deletes a filter: its tree, then its row in UDSLIST.
void deleteUdsFilter(const QString& jobSitePath, qint32 UDSTAG);
