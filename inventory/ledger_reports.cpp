#include "inventory/ledger_reports.h"

#include "core/line_amount.h"
#include "core/write_batch.h"
#include "inventory/ledger_history.h"

namespace {

// The handles that both reports read of a job site's file.
class StockFile
{
public:
    explicit StockFile(const QString& jobSitePath)
        : m_ledger(openTable(jobSitePath, "ZORVEX.mdb", "INVTRANS")),
          transactions(m_ledger.rows),
          items(open("INVENTORY")),
          series(open("SERIESCODES"), "SERIESTAG", "SERIESCODE"),
          subcategories(open("SUBCATEGORIES"), "SUBCATTAG", "SUBCATCODE"),
          bins(open("BINLIST"), "BINTAG", "BINNO"),
          vendors(open("VENDORS"), "VENTAG", "VENNO")
    {
    }

    // The branch's items by part number from `beginPARTNO` on, while `take` gives true. False when
    // it was stopped by `proceed`.
    bool forEachItem(qint32 ILCTAG, const QString& beginPARTNO, const std::function<bool()>& take,
                     const std::function<bool()>& proceed)
    {
        items.Index("INVPARTNO");
        for (bool more = items.Seek(">=", ILCTAG, beginPARTNO); more; more = items.MoveNext()) {
            if (tag("ILCTAG") != ILCTAG || !take())
                break;
            if (!proceed())
                return false;
        }
        return true;
    }
    qint32 tag(schema::FieldName field) const { return items[field].value().toInt(); }
    QString seriesCode() { return series.of(tag("SERIESTAG")).value_or(""); }
    // Blank where none was chosen, question marks where it is gone.
    static QString numberOf(FieldByTag& numbers, qint32 tag)
    {
        return tag == 0 ? QString() : numbers.of(tag).value_or("??????");
    }
    // The item's fields that both buffers have.
    void copyItem(storage::Recordset& buffer)
    {
        buffer["PARTNO"] = items["PARTNO"].value();
        buffer["SERIESCODE"] = series.of(tag("SERIESTAG")).value_or("???");
        buffer["SUBCATCODE"] = subcategories.of(tag("SUBCATTAG")).value_or("????");
        buffer["SHORTDESC"] = items["SHORTDESC"].value();
    }

private:
    storage::Recordset open(const QString& table) const
    {
        return m_ledger.database.OpenRecordset(table);
    }

    OpenTable m_ledger;

public:
    storage::Recordset transactions;
    storage::Recordset items;
    FieldByTag series;
    FieldByTag subcategories;
    FieldByTag bins;
    FieldByTag vendors;
};

QString sortable(QDate date)
{
    return date.toString("yyyyMMdd");
}

// What was issued within a period.
struct IssueSum
{
    explicit IssueSum(const IssuePeriod& period)
        : begin(sortable(period.begin)), end(sortable(period.end))
    {
    }
    void take(const QString& LDATE, float quantity)
    {
        if (LDATE >= begin && LDATE <= end)
            sum += quantity;
    }
    QString begin;
    QString end;
    float sum = 0;
};

class IssueSummary
{
public:
    IssueSummary(const IssueSummaryRequest& request, OpenTable& buffer)
        : m_request(request),
          m_buffer(buffer),
          m_periods(issuePeriods(request.end)),
          m_stock(request.jobSitePath),
          m_batch(buffer.workspace)
    {
    }

    bool run(const std::function<bool()>& proceed)
    {
        const bool isWhole = m_stock.forEachItem(
            m_request.ILCTAG, "",
            [this] {
                const QString code = m_stock.seriesCode();
                if (code.compare(m_request.beginSERIESCODE, Qt::CaseInsensitive) >= 0 &&
                    code.compare(m_request.endSERIESCODE, Qt::CaseInsensitive) <= 0)
                    takeItem();
                return true;
            },
            proceed);
        m_batch.commit();
        return isWhole;
    }

private:
    void takeItem();

    const IssueSummaryRequest& m_request;
    OpenTable& m_buffer;
    const IssuePeriods m_periods;
    StockFile m_stock;
    WriteBatch m_batch;
};

void IssueSummary::takeItem()
{
    IssueSum period({m_request.begin, m_request.end});
    IssueSum month(m_periods.monthToDate);
    IssueSum lastMonth(m_periods.lastMonth);
    IssueSum year(m_periods.last12Months);
    bool isActive = false;
    forEachOfItem(m_stock.transactions, m_stock.tag("ISNTAG"), [&] {
        const storage::Recordset& row = m_stock.transactions;
        if (row["DOCTYPE"].value().toString() != ledger::used.docType)
            return true;
        const QString date = row["LDATE"].value().toString();
        const auto quantity = static_cast<float>(row["QUANTITY"].value().toDouble());
        for (IssueSum* sum : {&period, &month, &lastMonth, &year})
            sum->take(date, quantity);
        isActive = isActive || (date >= period.begin && date <= period.end);
        return true;
    });
    if (m_request.activity != IssueActivity::All &&
        isActive != (m_request.activity == IssueActivity::OnlyWith))
        return;
    const double cost = m_stock.items["WHOLESALE"].value().toDouble();
    storage::Recordset& row = m_buffer.rows;
    m_batch.begin();
    row.AddNew();
    m_stock.copyItem(row);
    for (const schema::FieldName field :
         {schema::FieldName("MFGPARTNO"), schema::FieldName("MINIMUM"),
          schema::FieldName("Maximum"), schema::FieldName("AVAILABLE"),
          schema::FieldName("ONORDER"), schema::FieldName("WHOLESALE")})
        row[field] = m_stock.items[field].value();
    row["BINNO"] = StockFile::numberOf(m_stock.bins, m_stock.tag("BINTAG"));
    row["VENNO"] = StockFile::numberOf(m_stock.vendors, m_stock.tag("VENTAG"));
    row["ISSUED"] = double(period.sum);
    row["MONTHTODATE"] = double(month.sum);
    row["LASTMONTH"] = double(lastMonth.sum);
    row["LAST12MONTHS"] = double(year.sum);
    row["MONTHAVERAGE"] = roundedToCents(double(year.sum) / 12);
    row["EXTCOST"] = roundedToCents(cost * double(period.sum));
    row.Update();
    m_batch.added();
}

}  // namespace

IssuePeriods issuePeriods(QDate end)
{
    const QDate month(end.year(), end.month(), 1);
    return {.monthToDate = {month, end},
            .lastMonth = {month.addMonths(-1), month.addDays(-1)},
            .last12Months = {month.addMonths(-12), month.addDays(-1)}};
}

bool fillIssueSummary(const IssueSummaryRequest& request, OpenTable& buffer,
                      const std::function<bool()>& proceed)
{
    return IssueSummary(request, buffer).run(proceed);
}

bool fillTransactionHistory(const TransactionHistoryRequest& request, OpenTable& buffer,
                            const std::function<bool()>& proceed)
{
    StockFile stock(request.jobSitePath);
    LedgerHistory history(request.jobSitePath, historyReportReading);
    WriteBatch batch(buffer.workspace);
    int lines = 0;
    const auto takeRow = [&] {
        const HistoryLine line = history.take(stock.transactions);
        if (line.DOCLDATE < request.beginLDATE || line.DOCLDATE > request.endLDATE)
            return true;
        const double price = stock.items["RETAIL"].value().toDouble();
        batch.begin();
        buffer.rows.AddNew();
        buffer.rows["LINENO"] = ++lines;
        stock.copyItem(buffer.rows);
        buffer.rows["UPCCODE"] = stock.items["UPCCODE"].value();
        buffer.rows["Desc"] = stock.items["Desc"].value();
        buffer.rows["UNITPRICE"] = price;
        store(buffer.rows, line);
        buffer.rows["AMOUNT"] = price * double(line.quantity);
        buffer.rows.Update();
        batch.added();
        return true;
    };
    const auto takeItem = [&] {
        const QString part = stock.items["PARTNO"].value().toString();
        if (part.compare(request.endPARTNO, Qt::CaseInsensitive) > 0)
            return false;
        history.begin();
        forEachOfItem(stock.transactions, stock.tag("ISNTAG"), takeRow);
        return true;
    };
    const bool isWhole = stock.forEachItem(request.ILCTAG, request.beginPARTNO, takeItem, proceed);
    batch.commit();
    return isWhole;
}
