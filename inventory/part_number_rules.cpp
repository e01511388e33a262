#include "inventory/part_number_rules.h"

#include "core/dates.h"
#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/system.h"

namespace {

constexpr char currentNumber[] = " <Current>";

QString today()
{
    return System::current().now().toString("MM/dd/yyyy");
}

std::vector<KeyField> listKeys(const ItemKey& item)
{
    if (!item.kind().isOfBranch)
        return {{"ICNTAG", item.ICNTAG}};
    return {{"ILCTAG", item.ILCTAG}, {"ISNTAG", item.ISNTAG}};
}

class PartNumbers
{
public:
    PartNumbers(const QString& jobSitePath, const ItemKey& item)
        : m_open(openTable(jobSitePath, "ZORVEX.mdb", "INVPNMASTER")),
          m_rows(m_open.rows),
          m_item(item)
    {
        m_rows.Index(item.kind().numbersByNumber);
    }

    bool seek(const QString& PARTNO)
    {
        return m_item.kind().isOfBranch ? m_rows.Seek("=", m_item.ILCTAG, m_item.ISNTAG, PARTNO)
                                        : m_rows.Seek("=", m_item.ICNTAG, PARTNO);
    }

    void addCurrent(const QString& PARTNO) { add(PARTNO, currentNumber, QString(10, ' ')); }
    void addSuperseded(const QString& PARTNO) { add(PARTNO, today(), dnDateKey(today())); }
    void add(const QString& PARTNO, const QString& FDATE, const QString& LDATE)
    {
        m_rows.AddNew();
        m_rows["ILCTAG"] = m_item.ILCTAG;
        m_rows["ISNTAG"] = m_item.ISNTAG;
        m_rows["ICNTAG"] = m_item.ICNTAG;
        m_rows["PARTNO"] = PARTNO;
        m_rows["FDATE"] = FDATE;
        m_rows["LDATE"] = LDATE;
        m_rows.Update();
    }
    // The row that `seek` has found.
    void stamp()
    {
        m_rows.Edit();
        m_rows["FDATE"] = today();
        m_rows["LDATE"] = dnDateKey(today());
        m_rows.Update();
    }
    void rename(const QString& PARTNO)
    {
        m_rows.Edit();
        m_rows["PARTNO"] = PARTNO;
        m_rows.Update();
    }

private:
    OpenTable m_open;
    storage::Recordset& m_rows;
    ItemKey m_item;
};

bool agreesToAdd(const QString& PARTNO)
{
    return askYesNo("Confirm Add.",
                    "OK to Add Old Part Number: " + PARTNO +
                        "\nto Master Part Number Table as a Superseded Part Number?\n\n"
                        "If Change was a Minor Edit Change Then Do Not Add, Click NO.");
}

bool agreesToStamp(const QString& PARTNO)
{
    return askYesNo("Confirm Update.",
                    "OK to Update Old Part Number: " + PARTNO +
                        "\nin Master Part Number Table as a Superseded Part Number\n"
                        "with Today's Date as the Date this Part Number was Superseded?\n\n"
                        "If Minor Edit Change and not a New Part Number then Click NO.\n"
                        "You will be Given the Option of Updating the Master Part List with "
                        "Revised Part Number Next.");
}

bool agreesToRename(const QString& oldPARTNO, const QString& PARTNO)
{
    return askYesNo("Confirm Update.",
                    "OK to Update Old Part Number: " + oldPARTNO +
                        "\nin Master Part Number Table with Revised Part Number: " + PARTNO);
}

// The list may have changed while a question stood.
bool supersede(PartNumbers& numbers, const QString& PARTNO)
{
    if (!numbers.seek(PARTNO)) {
        if (!agreesToAdd(PARTNO))
            return false;
        numbers.addSuperseded(PARTNO);
        return true;
    }
    if (!agreesToStamp(PARTNO))
        return false;
    if (numbers.seek(PARTNO))
        numbers.stamp();
    return true;
}

}  // namespace

ItemKey itemKeyOf(const ItemKind& kind, const storage::Recordset& item)
{
    if (!kind.isOfBranch)
        return {.ICNTAG = intOf(item["ICNTAG"])};
    return {.ILCTAG = intOf(item["ILCTAG"]), .ISNTAG = intOf(item["ISNTAG"])};
}

void keepPartNumber(const QString& jobSitePath, const ItemKey& item, const QString& oldPARTNO,
                    const QString& PARTNO)
{
    PartNumbers numbers(jobSitePath, item);
    const bool isNew = oldPARTNO.trimmed().isEmpty();
    if (!isNew && oldPARTNO == PARTNO)
        return;
    if (!isNew) {
        const bool wasListed = numbers.seek(oldPARTNO);
        if (!supersede(numbers, oldPARTNO) && wasListed && agreesToRename(oldPARTNO, PARTNO) &&
            numbers.seek(oldPARTNO))
            numbers.rename(PARTNO);
    }
    if (!numbers.seek(PARTNO))
        numbers.addCurrent(PARTNO);
}

bool supersedeNow(const QString& jobSitePath, const ItemKey& item, const QString& PARTNO)
{
    PartNumbers numbers(jobSitePath, item);
    return supersede(numbers, PARTNO);
}

int copyPartNumbers(const QString& jobSitePath, const ItemKey& from, const ItemKey& to)
{
    struct Row
    {
        QString PARTNO;
        QString FDATE;
        QString LDATE;
    };
    std::vector<Row> list;
    OpenTable open = openTable(jobSitePath, "ZORVEX.mdb", "INVPNMASTER");
    const storage::Recordset& rows = open.rows;
    forEachWithin(open.rows, from.kind().numbersByDate, listKeys(from), [&] {
        list.push_back(
            {trimmedTextOf(rows["PARTNO"]), textOf(rows["FDATE"]), textOf(rows["LDATE"])});
        return true;
    });
    PartNumbers numbers(jobSitePath, to);
    int count = 0;
    for (const Row& row : list) {
        if (numbers.seek(row.PARTNO))
            continue;
        numbers.add(row.PARTNO, row.FDATE, row.LDATE);
        ++count;
    }
    return count;
}

std::vector<BornNumber> bornNumbers(const QString& jobSitePath, const ItemKey& item, int most)
{
    std::vector<BornNumber> list;
    OpenTable open = openTable(jobSitePath, "ZORVEX.mdb", "INVPNMASTER");
    const storage::Recordset& rows = open.rows;
    forEachWithin(open.rows, item.kind().numbersByDate, listKeys(item), [&] {
        list.push_back({trimmedTextOf(rows["PARTNO"]), trimmedTextOf(rows["FDATE"])});
        return static_cast<int>(list.size()) < most;
    });
    return list;
}
