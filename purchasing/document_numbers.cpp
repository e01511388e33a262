#include "purchasing/document_numbers.h"

#include <algorithm>

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/site_settings.h"
#include "core/text.h"

namespace {

constexpr int shownDigits = 5;
constexpr int suffixDigits = 2;
constexpr qint32 lastRequisitionNumber = 99'999;

OpenTable openCounters(const QString& jobSitePath)
{
    return openTable(jobSitePath, "ZORVEX.mdb", "VEXCOUNTERS");
}

// 0 where the table is empty; a counter never used counts as 1.
qint32 counterOf(const QString& jobSitePath, schema::FieldName field)
{
    OpenTable counters = openCounters(jobSitePath);
    if (counters.rows.RecordCount() == 0)
        return 0;
    return std::max(1, intOf(counters.rows[field]));
}

bool saveCounter(const QString& jobSitePath, schema::FieldName field, qint32 used)
{
    OpenTable counters = openCounters(jobSitePath);
    if (counters.rows.RecordCount() == 0)
        return false;
    counters.rows.MoveFirst();
    counters.rows.Edit();
    counters.rows[field] = used + 1;
    counters.rows.Update();
    return true;
}

}  // namespace

NumberSource orderNumberSource(const QString& jobSitePath, bool isOverridden)
{
    if (siteSwitch(jobSitePath, "VEXFORMATPONO"))
        return isOverridden ? NumberSource::Typed : NumberSource::AutoFormat;
    return siteSwitch(jobSitePath, "VEXUSEPONOCOUNTER") ? NumberSource::Counter
                                                        : NumberSource::Typed;
}

QString autoFormattedNumber(const QString& JOBNO, const QString& REQTYPE, qint32 REQNO,
                            int POSUFFIX)
{
    if (REQNO == 0)
        return {};
    return JOBNO.trimmed() + REQTYPE.trimmed() + shownRequisitionNumber(REQNO) +
           dnPadLeftZero(QString::number(POSUFFIX), suffixDigits);
}

QString shownRequisitionNumber(qint32 REQNO)
{
    return dnPadLeftZero(QString::number(REQNO), shownDigits);
}

QString shownNumberOf(const DocumentKind& kind, const storage::Recordset& rows)
{
    return kind.isOrder() ? trimmedTextOf(rows["PONO"])
                          : shownRequisitionNumber(intOf(rows["REQNO"]));
}

qint32 nextRequisitionNumber(const QString& jobSitePath)
{
    const qint32 number = counterOf(jobSitePath, "REQNO");
    if (number == 0)
        showCritical("Empty Table",
                     "Cannot Obtain Next Valid Requisition Number.\nCounter has Not Been Setup.\n"
                     "Requisition Number Counter Table is Empty.");
    return number > lastRequisitionNumber ? 0 : number;
}

QString nextOrderNumber(const QString& jobSitePath)
{
    const qint32 number = counterOf(jobSitePath, "PONO");
    if (number != 0)
        return dnPadLeftZero(QString::number(number), shownDigits);
    showCritical("Empty Table",
                 "Cannot Obtain Next Valid PO Number.\nCounter has Not Been Setup.\n"
                 "Purchase Order Number Counter Table is Empty.");
    return {};
}

bool saveRequisitionCounter(const QString& jobSitePath, qint32 used)
{
    return saveCounter(jobSitePath, "REQNO", used);
}

bool saveOrderCounter(const QString& jobSitePath, const QString& used)
{
    bool isNumber = false;
    const qint32 number = used.trimmed().toInt(&isNumber);
    // A number of another make, typed over the one offered, has none after it.
    return isNumber ? saveCounter(jobSitePath, "PONO", number)
                    : counterOf(jobSitePath, "PONO") != 0;
}

int nextOrderSuffix(const QString& jobSitePath, qint32 REQTAG)
{
    int largest = 0;
    OpenTable orders = openTable(jobSitePath, "ZORVEX.mdb", "POLIST");
    forEachWithin(orders.rows, "POREQ", {{"REQTAG", REQTAG}}, [&] {
        largest = std::max(largest, intOf(orders.rows["POSUFFIX"]));
        return true;
    });
    return largest + 1;
}

bool isOrderNumberTaken(const QString& jobSitePath, const QString& PONO, qint32 POTAG)
{
    OpenTable orders = openTable(jobSitePath, "ZORVEX.mdb", "POLIST");
    orders.rows.Index("PONO");
    return orders.rows.Seek("=", PONO.trimmed()) && intOf(orders.rows["POTAG"]) != POTAG;
}
