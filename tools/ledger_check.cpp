#include "tools/ledger_check.h"

#include <optional>

#include "core/storage/workspace.h"
#include "inventory/ledger_history.h"
#include "inventory/lines_by_tag.h"

namespace {

QString figures(const StockQuantities& quantities)
{
    return QString("on hand %1, on order %2, issued %3, adjusted %4")
        .arg(double(quantities.available))
        .arg(double(quantities.onOrder))
        .arg(double(quantities.issued))
        .arg(double(quantities.adjustments));
}

QString named(const storage::Scan& row)
{
    return QString("%1 %2 %3 %4 of %5, quantity %6")
        .arg(row.string(1))
        .arg(row.tag(4))
        .arg(row.string(2))
        .arg(row.tag(5))
        .arg(row.string(6), storage::Value(row.number(3)).toString());
}

// The replay of one item, beside what is stored.
class Comparison
{
public:
    explicit Comparison(const StockQuantities& stored) : m_stored(stored)
    {
        m_agrees = stored == StockQuantities();
    }

    bool take(const LinesByTag& rows)
    {
        if (m_agrees || m_parting.isEmpty())
            m_parting = named(rows.line());
        const bool isKnown = m_replay.takeLine(rows);
        m_agrees = isKnown && m_replay.quantities() == m_stored;
        return isKnown;
    }

    // Blank when they agree.
    QString finding() const
    {
        const QString stored = "stored " + figures(m_stored);
        if (!m_replay.refusal().isEmpty())
            return stored + "; the replay ends with \"" + m_replay.refusal() + '"';
        if (m_agrees)
            return {};
        return stored + "; replayed " + figures(m_replay.quantities()) + "; " +
               (m_parting.isEmpty() ? "the ledger has no row of it" : "parts at " + m_parting);
    }

private:
    const StockQuantities m_stored;
    LedgerReplay m_replay{postingReading};
    bool m_agrees;
    QString m_parting;
};

}  // namespace

QStringList ledgerFindingsIn(const QString& path)
{
    storage::Workspace workspace = storage::CreateWorkspace("wksCHECK");
    const storage::Database zorvex = workspace.OpenDatabase(path);
    storage::Recordset items = zorvex.OpenRecordset("INVENTORY");
    QStringList findings;
    if (items.RecordCount() == 0)
        return findings;
    LinesByTag ledger(zorvex.OpenRecordset("INVTRANS"), "INVTRANSISNTAG",
                      {"ISNTAG", "DOCTYPE", "ITEMTYPE", "QUANTITY", "DOCTAG", "ITEMTAG", "FDATE"});
    FieldByTag branches(zorvex.OpenRecordset("ILCLIST"), "ILCTAG", "ILCCODE");
    items.Index("INVISNTAG");
    for (bool more = items.MoveFirst(); more; more = items.MoveNext()) {
        Comparison comparison(storedQuantities(items));
        const qint32 tag = items["ISNTAG"].value().toInt();
        ledger.forEach(tag, [&] { return comparison.take(ledger); });
        const QString finding = comparison.finding();
        if (!finding.isEmpty())
            findings.append(
                QString("branch %1, part %2, item %3: %4")
                    .arg(branches.of(items["ILCTAG"].value().toInt()).value_or("??").trimmed(),
                         items["PARTNO"].value().toString().trimmed())
                    .arg(tag)
                    .arg(finding));
    }
    workspace.Close();
    return findings;
}
