#include "purchasing/forms/form_bodies.h"

#include <QSet>

#include "core/line_amount.h"
#include "core/locators.h"
#include "core/number_format.h"
#include "purchasing/forms/cost_code_column.h"

namespace {

constexpr char amountMask[] = "###,###,###.00";

constexpr const char* notice[] = {
    "Notice:",
    "1 - Reimbursement shall be based on actual approved invoicing for goods or services",
    "    rendered, unless noted otherwise in the purchase order(PO)items.",
    "2 - All PO amounts are Not To Exceed (NTE) amounts without pre-approval. ",
    "3 - Notify Client when Vendor Billing is Within 10% of PO Limit."};
constexpr char inventoryNotice[] =
    "Notice: Notify Client when Vendor Billing is Within 10% of PO Limit.";

bool isText(const storage::Recordset& line)
{
    return numberOf(line["QTY"]) == 0;
}

// Goes through the lines of the document in their printed order.
void forEachLine(const FormSource& source, const DocumentKind& kind,
                 const std::function<void(storage::Recordset&)>& take)
{
    OpenTable open = openTable(source.session, "ZORVEX.mdb", "RQILIST");
    const char* index = kind.isOrder() ? kind.items : kind.lines;
    forEachWithin(open.rows, index, {{kind.tag, source.tag}}, [&] {
        take(open.rows);
        return source.proceed();
    });
}

QString assetText(const QString& ASSET)
{
    return ASSET == "Y" ? "Yes" : ASSET == "N" ? "No" : "";
}

// A line with all that forms print of it; of a text line nothing.
FormRow rowOf(const storage::Recordset& line, const DocumentKind& kind)
{
    if (isText(line))
        return {};
    return {.item = intOf(line[kind.itemNo]),
            .vendorInvoice = trimmedTextOf(line["VINVNO"]),
            .quantity = numberOf(line["QTY"]),
            .unit = trimmedTextOf(line["UNIT"]),
            .unitPrice = numberOf(line["UNITPRICE"]),
            .unitFactor = trimmedTextOf(line["UNITFACT"]),
            .amount = numberOf(line["AMOUNT"]),
            .adjustment = trimmedTextOf(line["ADJUSTMENT"]).isEmpty() ? "" : "*",
            .revision = intOf(line["REVNO"]),
            .asset = assetText(trimmedTextOf(line["ASSET"]).toUpper())};
}

void addNote(const FormSource& source, FormBody& body, const QString& text)
{
    body.buffer.addBlank();
    body.buffer.addDescribed({}, text, source.width);
    body.buffer.addBlank();
}

// ---- inventory items of the lines
class ItemTexts
{
public:
    explicit ItemTexts(const Session& session)
        : m_items(openTable(session, "ZORVEX.mdb", "INVENTORY")),
          m_bins(openTable(session, "ZORVEX.mdb", "BINLIST"))
    {
        m_items.rows.Index("INVISNTAG");
        m_bins.rows.Index("BINTAG");
    }

    // Part number, the manufacturer's, and the bin of the line's item; nothing without one.
    void fill(FormRow& row, const storage::Recordset& line)
    {
        const int ISNTAG = intOf(line["ISNTAG"]);
        row.further = {QString(), QString()};
        if (ISNTAG == 0 || !m_items.rows.Seek("=", ISNTAG))
            return;
        row.partNumber = trimmedTextOf(m_items.rows["PARTNO"]);
        row.further = {trimmedTextOf(m_items.rows["MFGPARTNO"]),
                       binOf(intOf(m_items.rows["BINTAG"]))};
    }

private:
    QString binOf(int BINTAG)
    {
        return m_bins.rows.Seek("=", BINTAG) ? trimmedTextOf(m_bins.rows["BINNO"])
                                             : QString(" ??????");
    }

    OpenTable m_items;
    OpenTable m_bins;
};

// What the lines of standard and inventory forms have in common.
FormBody orderedLines(const FormSource& source, const DocumentKind& kind)
{
    FormBody body;
    ItemTexts items(source.session);
    const CostCodeColumn costCodes(source.session, source.document.CONO, source.document.JOBNO);
    forEachLine(source, kind, [&](storage::Recordset& line) {
        FormRow row = rowOf(line, kind);
        if (!isText(line)) {
            items.fill(row, line);
            row.costCodes = costCodes.of(line);
            if (source.settings.hasSubtotals)
                body.buffer.addToSubtotal(row.costCodes, numberOf(line["AMOUNT"]));
        }
        body.buffer.addDescribed(row, textOf(line["Desc"]), source.width);
    });
    if (body.buffer.isEmpty())
        addNote(source, body, "No Line Items Found.");
    return body;
}

bool hasNotice(const FormSource& source)
{
    // An amount is a sum, and may lie a hair off what is printed.
    return source.settings.hasNotice &&
           roundedToCents(source.document.amount) >= roundedToCents(source.settings.noticeLimit);
}

void addNotice(FormBody& body, std::span<const char* const> lines)
{
    body.buffer.addBlank();
    for (const char* line : lines)
        body.buffer.add({.isSmall = true, .text = line});
}

void addSubtotals(const FormSource& source, FormBody& body)
{
    if (source.settings.hasSubtotals)
        body.buffer.addSubtotalRows(source.width);
}

// ---- receipts and issues, which print alike
struct Movement
{
    const char* table;
    const char* byLine;
    schema::FieldName quantity;
    schema::FieldName date;
    schema::FieldName reference;
    bool hasJob;  // each its own; else that of the order
};
constexpr Movement receipts = {"RECEIVED", "RECRQI", "QTYREC", "DATEREC", "REFTEXT", false};
constexpr Movement issues = {"ISSUED", "ISSUEDRQI", "QTY", "FDATE", "ISSUEDTO", true};

FormBody movementBody(const FormSource& source, const Movement& movement,
                      const std::function<bool(const storage::Recordset&)>& isWanted,
                      bool hasSubtotals)
{
    FormBody body;
    OpenTable moved = openTable(source.session, "ZORVEX.mdb", movement.table);
    std::optional<CostCodeColumn> costCodes;
    if (hasSubtotals)
        costCodes.emplace(source.session, source.document.CONO, source.document.JOBNO);
    forEachLine(source, purchaseOrders, [&](storage::Recordset& line) {
        const QString VINVNO = trimmedTextOf(line["VINVNO"]);
        const QString description =
            textOf(line["Desc"]) + (VINVNO.isEmpty() ? QString() : "\nINV: " + VINVNO);
        forEachWithin(moved.rows, movement.byLine, {{"RQITAG", intOf(line["RQITAG"])}}, [&] {
            if (!isWanted(moved.rows))
                return source.proceed();
            FormRow row = rowOf(line, purchaseOrders);
            if (!isText(line)) {
                row.quantity = numberOf(moved.rows[movement.quantity]);
                row.amount = lineAmount(*row.quantity, numberOf(line["UNITPRICE"]), row.unitFactor);
                body.amount = roundedToCents(body.amount + row.amount.value_or(0));
                row.further = {trimmedTextOf(moved.rows[movement.date]),
                               trimmedTextOf(moved.rows[movement.reference]),
                               movement.hasJob ? trimmedTextOf(moved.rows["JOBNO"])
                                               : source.document.jobNumber};
                if (costCodes)
                    body.buffer.addToSubtotal(costCodes->of(line), row.amount.value_or(0));
            }
            body.buffer.addDescribed(row, description, source.width);
            return source.proceed();
        });
    });
    if (body.buffer.isEmpty())
        addNote(source, body, "Cannot Find any Related Line Items.");
    else if (hasSubtotals)
        addSubtotals(source, body);
    return body;
}

QSet<QString> markedDates(const Session& session)
{
    QSet<QString> dates;
    OpenTable open = openTable(session, "ZORUSER.mdb", "VEXRECPRTBUF");
    forEachWithin(open.rows, {}, {}, [&] {
        if (dnNullCheck(open.rows["PRINTME"]).toBool())
            dates.insert(trimmedTextOf(open.rows["DATEREC"]));
        return true;
    });
    return dates;
}

}  // namespace

FormBody linesBody(const FormSource& source, const DocumentKind& kind)
{
    FormBody body = orderedLines(source, kind);
    if (!kind.isOrder())
        return body;
    if (hasNotice(source))
        addNotice(body, notice);
    addSubtotals(source, body);
    return body;
}

FormBody inventoryBody(const FormSource& source)
{
    FormBody body = orderedLines(source, purchaseOrders);
    if (hasNotice(source))
        addNotice(body, std::array{inventoryNotice});
    addSubtotals(source, body);
    return body;
}

FormBody receiptsBody(const FormSource& source, bool isPayment)
{
    const QSet<QString> dates = markedDates(source.session);
    return movementBody(
        source, receipts,
        [&dates](const storage::Recordset& row) {
            return dates.contains(trimmedTextOf(row["DATEREC"]));
        },
        isPayment && source.settings.hasSubtotals);
}

FormBody issuesBody(const FormSource& source)
{
    return movementBody(
        source, issues, [](const storage::Recordset&) { return true; }, false);
}

FormBody statusBody(const FormSource& source)
{
    FormBody body;
    OpenTable received = openTable(source.session, "ZORVEX.mdb", "RECEIVED");
    const char* mask = source.settings.wholeQuantities ? "###,###" : "###,###.0";
    forEachLine(source, purchaseOrders, [&](storage::Recordset& line) {
        FormRow row = rowOf(line, purchaseOrders);
        if (!isText(line)) {
            double got = 0, returned = 0, backOrdered = 0;
            forEachWithin(received.rows, "RECRQI", {{"RQITAG", intOf(line["RQITAG"])}}, [&] {
                got += numberOf(received.rows["QTYREC"]);
                returned += numberOf(received.rows["QTYRTN"]);
                backOrdered += numberOf(received.rows["QTYBKO"]);
                return true;
            });
            for (const double number :
                 {*row.quantity, got, returned, backOrdered, *row.quantity - got})
                row.further.append(dnFormat(number, mask));
        }
        body.buffer.addDescribed(row, textOf(line["Desc"]), source.width);
    });
    if (body.buffer.isEmpty())
        addNote(source, body, "No Line Items Found.");
    return body;
}

FormBody billingBody(const FormSource& source, const QString& INVNO)
{
    FormBody body;
    OpenTable payments = openTable(source.session, "ZORVEX.mdb", "PAYMENTS");
    std::array<double, 4> sums = {};
    forEachLine(source, purchaseOrders, [&](storage::Recordset& line) {
        FormRow row = rowOf(line, purchaseOrders);
        if (!isText(line)) {
            double prior = 0, current = 0;
            forEachWithin(payments.rows, "PAYRQI", {{"RQITAG", intOf(line["RQITAG"])}}, [&] {
                const int order = trimmedTextOf(payments.rows["INVNO"]).compare(INVNO);
                if (order < 0)
                    prior += numberOf(payments.rows["AMOUNT"]);
                else if (order == 0)
                    current += numberOf(payments.rows["AMOUNT"]);
                return true;
            });
            const double amount = roundedToCents(*row.amount);
            prior = roundedToCents(prior);
            current = roundedToCents(current);
            const std::array<double, 4> shown = {amount, prior, current,
                                                 roundedToCents(amount - (prior + current))};
            for (size_t i = 0; i < shown.size(); ++i) {
                row.further.append(dnFormat(shown[i], amountMask));
                sums[i] = roundedToCents(sums[i] + shown[i]);
            }
        }
        body.buffer.addDescribed(row, textOf(line["Desc"]), source.width);
    });
    for (const double sum : sums)
        body.totals.append(dnFormat(sum, amountMask));
    if (body.buffer.isEmpty())
        addNote(source, body, "No Items Found. ");
    return body;
}

QStringList markedInvoices(const Session& session)
{
    QStringList invoices;
    OpenTable open = openTable(session, "ZORUSER.mdb", "VEXBSRPRTBUF");
    forEachWithin(open.rows, {}, {}, [&] {
        if (dnNullCheck(open.rows["PRINTME"]).toBool())
            invoices.append(trimmedTextOf(open.rows["INVNO"]));
        return true;
    });
    return invoices;
}

QString vendorInvoicesUpTo(const Session& session, qint32 POTAG, const QString& INVNO)
{
    QStringList numbers;
    OpenTable payments = openTable(session, "ZORVEX.mdb", "PAYMENTS");
    forEachWithin(payments.rows, "PAYPO", {{"POTAG", POTAG}}, [&] {
        const QString VENINV = trimmedTextOf(payments.rows["VENINV"]);
        if (trimmedTextOf(payments.rows["INVNO"]).compare(INVNO) <= 0 && !VENINV.isEmpty() &&
            !numbers.contains(VENINV))
            numbers.append(VENINV);
        return true;
    });
    return numbers.join(", ");
}
