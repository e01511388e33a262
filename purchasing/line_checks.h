// What the fields of a line item are checked for, what they do to each other, and their look-ups.
#pragma once

#include <optional>

#include "purchasing/line_screen.h"
#include "screens/entry/entry.h"

namespace line {

// Controls that no field of the table stands behind, and how numbers are shown.
inline constexpr char branch[] = "txtILCCODE";
inline constexpr char part[] = "txtPARTNO";
inline constexpr char quantityMask[] = "";  // as many decimals as it has
inline constexpr char priceMask[] = "#########.000";

struct Item
{
    qint32 ISNTAG = 0;
    qint32 ILCTAG = 0;
    QString PARTNO;
    QString UOM;
    QString Desc;
    double RETAIL = 0;
};
std::optional<Item> itemAt(const Session& session, qint32 ISNTAG);
// The item of the branch and part that are typed.
std::optional<Item> itemOf(const Entry& entry);
qint32 branchOf(const Entry& entry);  // 0 for none
// Writes its unit, description and price into the fields.
void takeItem(Entry& entry);

double quantityOf(const Entry& entry);
// Nothing for an invalid factor.
std::optional<double> amountOf(const Entry& entry);
QString storedCode(const Entry& entry, const LineOwner& owner, const CostCodeGroup& group);

QString branchName(const Entry& entry);
QString checkBranch(const Entry& entry);
QString searchBranch(const Entry& entry);
QString checkPart(const Entry& entry);
bool choosePart(Entry& entry);
void partLeft(Entry& entry);
QString checkQuantity(const Entry& entry);
// Whole numbers only, where the site has no decimals.
void quantityLeft(Entry& entry);
// Warns of a number that another order's payment has.
std::function<void(Entry&)> vendorInvoiceLeft(const LineOwner& owner);
QString checkFactor(const Entry& entry);

EntryCheck checkCostCode(const LineOwner& owner, const CostCodeGroup& group);
std::function<QString(const Entry&)> searchCostCode(const LineOwner& owner,
                                                    const CostCodeGroup& group);
std::function<QString(const Entry&)> costCodeName(const LineOwner& owner,
                                                  const CostCodeGroup& group);
// Takes over the G/L code and the material code that the cost code has.
std::function<void(Entry&)> costCodeLeft(const LineOwner& owner, const CostCodeGroup& group);

QString checkMaterialCode(const Entry& entry);
QString searchMaterialCode(const Entry& entry);
EntryCheck checkGlCode(const LineOwner& owner);
std::function<QString(const Entry&)> searchGlCode(const LineOwner& owner);
EntryCheck yesNo(schema::FieldName field, const QString& refusal);
QString checkMarkup(const Entry& entry);
void markupLeft(Entry& entry);
QString checkRetail(const Entry& entry);

}  // namespace line
