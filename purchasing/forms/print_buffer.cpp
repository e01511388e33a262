#include "purchasing/forms/print_buffer.h"

#include "core/line_amount.h"
#include "core/write_batch.h"
#include "core/zap.h"

namespace {

constexpr int longestText = 100;  // of TEXTOUT and CCSTRING
constexpr int cutRange = 30;      // a word that is longer is cut in itself

QString withoutBlanksBefore(const QString& text)
{
    qsizetype begin = 0;
    while (begin < text.size() && text[begin].isSpace())
        ++begin;
    return text.mid(begin);
}

QString withoutBlanksBehind(const QString& text)
{
    return ('|' + text).trimmed().mid(1);
}

qsizetype cutOf(const QString& piece, int width)
{
    // The blank may stand right behind the last character that fits.
    const qsizetype blank = piece.lastIndexOf(' ', width);
    return blank > 0 && blank >= width - cutRange ? blank : width;
}

template <class Number>
storage::Value valueOf(const std::optional<Number>& number)
{
    return number ? storage::Value(*number) : storage::Value();
}

void writeRow(storage::Recordset& rows, const FormRow& row)
{
    rows.AddNew();
    if (row.item != 0)
        rows["ITEMNO"] = row.item;
    rows["PARTNO"] = row.partNumber.left(25);
    rows["VINVNO"] = row.vendorInvoice.left(25);
    rows["QTY"] = valueOf(row.quantity);
    rows["UNIT"] = row.unit.left(5);
    rows["TOPTEXT"] = row.isSmall ? "SF" : "";
    rows["TEXTOUT"] = row.text.left(longestText);
    rows["UNITPRICE"] = valueOf(row.unitPrice);
    rows["UNITFACT"] = row.unitFactor.left(1);
    rows["AMOUNT"] = valueOf(row.amount);
    rows["CCSTRING"] = row.costCodes.left(longestText);
    rows["ADJUSTMENT"] = row.adjustment;
    if (row.revision != 0)
        rows["REVNO"] = row.revision;
    rows["ASSET"] = row.asset;
    rows.Update();
}

}  // namespace

QStringList descriptionRows(const QString& description, int width)
{
    width = std::clamp(width, 1, longestText);
    QString text = description;
    QStringList rows;
    for (const QString& line : text.remove('\r').replace('\t', ' ').split('\n')) {
        QString piece = withoutBlanksBehind(withoutBlanksBefore(line));
        while (piece.size() > width) {
            const qsizetype cut = cutOf(piece, width);
            rows.append(withoutBlanksBehind(piece.left(cut)));
            piece = withoutBlanksBefore(piece.mid(cut));
        }
        rows.append(piece);
    }
    while (rows.size() > 1 && rows.last().isEmpty())
        rows.removeLast();
    return rows;
}

void PrintBuffer::addDescribed(FormRow row, const QString& description, int width)
{
    for (const QString& text : descriptionRows(description, width)) {
        row.text = text;
        m_rows.push_back(std::exchange(row, FormRow{.isContinuation = true}));
    }
}

void PrintBuffer::addToSubtotal(const QString& costCodes, double amount)
{
    double& sum = m_subtotals[costCodes];
    sum = roundedToCents(sum + amount);
}

void PrintBuffer::addSubtotalRows(int width)
{
    if (m_subtotals.empty())
        return;
    addBlank();
    double total = 0;
    const auto addRow = [&](const QString& label, double sum) {
        const QStringList texts = descriptionRows(label, width);
        // They stay together on a page, with the blank row that they go on from.
        for (const QString& text : texts)
            m_rows.push_back({.isContinuation = true, .text = text});
        m_rows[m_rows.size() - static_cast<size_t>(texts.size())].amount = sum;
    };
    for (const auto& [costCodes, sum] : m_subtotals) {
        addRow(costCodes, sum);
        total = roundedToCents(total + sum);
    }
    addRow("Total", total);
}

void PrintBuffer::store(const Session& session) const
{
    const QString& folder = session.UserSettingsPath;
    // One after the other: each batch has the file to itself.
    {
        OpenTable sums = emptiedTable(folder, "ZORUSER.mdb", "VEXCCSTLBUF");
        WriteBatch batch(sums.workspace);
        for (const auto& [costCodes, sum] : m_subtotals) {
            batch.begin();
            sums.rows.AddNew();
            sums.rows["CCSTRING"] = costCodes.left(longestText);
            sums.rows["AMOUNT"] = sum;
            sums.rows.Update();
            batch.added();
        }
        batch.commit();
    }
    OpenTable open = emptiedTable(folder, "ZORUSER.mdb", "VEXPRINTBUFFER");
    WriteBatch batch(open.workspace);
    for (const FormRow& row : m_rows) {
        batch.begin();
        writeRow(open.rows, row);
        batch.added();
    }
    batch.commit();
}
