// What the fields of an item's screen are checked for, what they do to each other, and their
// look-ups; the entry is one of a branch's items or of the catalog.
#pragma once

#include <optional>

#include "inventory/item_codes.h"
#include "inventory/item_kind.h"
#include "screens/entry/entry.h"

namespace item {

inline constexpr char priceMask[] = "#########.00";
inline constexpr char markupMask[] = "###.00";

// Controls that hold codes.
inline constexpr char seriesCode[] = "txtSERIESCODE";
inline constexpr char seriesName[] = "txtSERIESNAME";
inline constexpr char subcatCode[] = "txtSUBCATCODE";
inline constexpr char subcatName[] = "txtSUBCATNAME";
inline constexpr char vendor[] = "txtVENNO";
inline constexpr char bin[] = "txtBINNO";

// 0 in the catalog, whose series have no branch.
qint32 branchOf(const Entry& entry);
const QString& siteOf(const Entry& entry);
// The rows of the codes that are typed.
std::optional<CodeRow> seriesIn(const Entry& entry);
std::optional<CodeRow> subcategoryIn(const Entry& entry);
std::optional<CodeRow> vendorIn(const Entry& entry);
std::optional<CodeRow> binIn(const Entry& entry);

QString checkSeries(const Entry& entry);
// `blank` is the text for a blank one.
EntryCheck checkSubcategory(const QString& blank);
EntryCheck notBlank(const char* control, const QString& refusal);
EntryCheck checkPartNumber(const ItemKind& kind);
EntryCheck checkUpcCode(const ItemKind& kind);
QString checkMarkup(const Entry& entry);
QString checkRetail(const Entry& entry);
QString checkVendor(const Entry& entry);
QString checkBin(const Entry& entry);

void seriesLeft(Entry& entry);
void subcategoryLeft(Entry& entry);
// Wholesale price and markup give the retail price.
void pricesLeft(Entry& entry);
void retailLeft(Entry& entry);

QString searchSeries(const Entry& entry);
QString searchSubcategory(const Entry& entry);
QString searchVendor(const Entry& entry);
QString searchBin(const Entry& entry);

}  // namespace item
