#include "screens/report/totals.h"

namespace {

storage::Value sumOf(const storage::Value& sum, const storage::Value& added)
{
    const auto* money = added.as<storage::Currency>();
    if (money && (sum.isNull() || sum.as<storage::Currency>()))
        return storage::Currency{sum.toCurrency().tenThousandths + money->tenThousandths};
    return sum.toDouble() + added.toDouble();
}

}  // namespace

void addTo(ReportCells& sums, const ReportCells& line, const ReportPlan& plan)
{
    sums.resize(plan.columns.size());
    for (size_t column = 0; column < plan.columns.size() && column < line.size(); ++column)
        if (plan.columns[column].isTotalled && !line[column].isNull())
            sums[column] = sumOf(sums[column], line[column]);
}
