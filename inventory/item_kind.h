// Items of a branch and items of the catalog have the same screens and rules over two tables. What
// differs between them is told here.
#pragma once

#include <QString>

#include "core/schema/field_name.h"
#include "core/storage/recordset.h"

struct ItemKind
{
    const char* table;  // in ZORVEX.mdb
    schema::FieldName tag;
    const char* byTag;
    const char* prefix;      // of its other indexes: what follows is the same
    const char* remembered;  // in ZORUSER.mdb: the user's last item, one row
    const char* lastOnScreen;
    const char* noun;  // in captions
    const char* editRight;
    const char* numbersByNumber;  // indexes of INVPNMASTER, behind the item's keys
    const char* numbersByDate;
    bool isOfBranch;  // with a bin and quantities; its indexes begin with the branch

    QString index(const char* rest) const { return QString(prefix) + rest; }
};

inline constexpr ItemKind branchItems{.table = "INVENTORY",
                                      .tag = "ISNTAG",
                                      .byTag = "INVISNTAG",
                                      .prefix = "INV",
                                      .remembered = "VEXINVLASTUPDATE",
                                      .lastOnScreen = "LASTACTIVEISNTAG",
                                      .noun = "Inventory Item",
                                      .editRight = "INV02",
                                      .numbersByNumber = "INVPNMASTERISNTAG",
                                      .numbersByDate = "INVPNMASTERLDATE",
                                      .isOfBranch = true};
inline constexpr ItemKind catalogItems{.table = "INVCATALOG",
                                       .tag = "ICNTAG",
                                       .byTag = "ICNTAG",
                                       .prefix = "ICN",
                                       .remembered = "VEXINVCATLASTUPDATE",
                                       .lastOnScreen = "LASTACTIVEICNTAG",
                                       .noun = "Inventory Catalog Item",
                                       .editRight = "INC02",
                                       .numbersByNumber = "ICNPNMASTERICNTAG",
                                       .numbersByDate = "ICNPNMASTERLDATE",
                                       .isOfBranch = false};

// What names one item: a catalog item has neither branch nor ISNTAG, and of a branch's item the
// catalog tag plays no part.
struct ItemKey
{
    qint32 ILCTAG = 0;
    qint32 ISNTAG = 0;
    qint32 ICNTAG = 0;

    const ItemKind& kind() const { return ISNTAG != 0 ? branchItems : catalogItems; }
    qint32 tag() const { return ISNTAG != 0 ? ISNTAG : ICNTAG; }
};
// Of the item on which the handle stands.
ItemKey itemKeyOf(const ItemKind& kind, const storage::Recordset& item);
