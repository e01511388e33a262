// What must hold in a believable job site, whatever the seed: documents, ledger and counters agree.
#include <gtest/gtest.h>

#include <QMap>
#include <QSet>

#include "core/fit_column.h"
#include "core/keyed_access.h"
#include "core/line_amount.h"
#include "inventory/ledger_rebuild.h"
#include "inventory/ledger_replay.h"
#include "tests/tools/demo_site.h"

namespace {

using storage::Recordset;

class DemoLaws : public ::testing::Test
{
protected:
    // A field of every row.
    template <class Convert>
    auto column(const char* table, schema::FieldName field, Convert convert)
    {
        QSet<decltype(convert(std::declval<storage::Value>()))> values;
        m_site.walk(table, [&](Recordset& row) { values.insert(convert(row[field].value())); });
        return values;
    }
    QSet<int> tags(const char* table, schema::FieldName field)
    {
        return column(table, field, [](const storage::Value& value) { return value.toInt(); });
    }
    QSet<QString> texts(const char* table, schema::FieldName field)
    {
        return column(table, field, [](const storage::Value& value) { return value.toString(); });
    }

    const DemoSite m_site{11};
};

struct DocumentKind
{
    const char* table;
    schema::FieldName tag;
};
constexpr DocumentKind documentKinds[] = {{"REQLIST", "REQTAG"}, {"POLIST", "POTAG"}};

int tagOf(Recordset& row, schema::FieldName field)
{
    return row[field].value().toInt();
}
double numberOf(Recordset& row, schema::FieldName field)
{
    return row[field].value().toDouble();
}

TEST_F(DemoLaws, AmountsFollowTheRule)
{
    for (const char* table : {"RQILIST", "PAYMENTS", "APIITEMS"})
        m_site.walk(table, [&](Recordset& row) {
            EXPECT_EQ(lineAmount(numberOf(row, "QTY"), numberOf(row, "UNITPRICE"),
                                 row["UNITFACT"].value().toString()),
                      numberOf(row, "AMOUNT"))
                << table;
        });
}

TEST_F(DemoLaws, TotalsAreTheSumsOfTheLines)
{
    for (const DocumentKind& kind : documentKinds) {
        QMap<int, double> sums;
        m_site.walk("RQILIST",
                    [&](Recordset& row) { sums[tagOf(row, kind.tag)] += numberOf(row, "AMOUNT"); });
        m_site.walk(kind.table, [&](Recordset& row) {
            EXPECT_NEAR(sums.value(tagOf(row, kind.tag)), numberOf(row, "AMOUNT"), 0.005);
        });
    }
}

TEST_F(DemoLaws, LinesReferToWhatThereIs)
{
    const QSet<int> requisitions = tags("REQLIST", "REQTAG");
    const QSet<int> orders = tags("POLIST", "POTAG");
    const QSet<int> items = tags("INVENTORY", "ISNTAG");
    const QSet<QString> glCodes = texts("GLCODES", "GLCODE");
    const QSet<QString> materialCodes = texts("MCLIST", "MCODE");
    QSet<int> lines;
    m_site.walk("RQILIST", [&](Recordset& row) {
        const int requisition = tagOf(row, "REQTAG");
        const int order = tagOf(row, "POTAG");
        const int item = tagOf(row, "ISNTAG");
        EXPECT_TRUE(requisition == 0 || requisitions.contains(requisition));
        EXPECT_TRUE(order == 0 || orders.contains(order));
        EXPECT_TRUE(requisition != 0 || order != 0);
        EXPECT_TRUE(item == 0 || items.contains(item));
        const QString glCode = row["GLCODE"].value().toString();
        const QString materialCode = row["MCODE"].value().toString();
        EXPECT_TRUE(glCode.isEmpty() || glCodes.contains(glCode));
        EXPECT_TRUE(materialCode.isEmpty() || materialCodes.contains(materialCode));
        EXPECT_FALSE(lines.contains(tagOf(row, "RQITAG")));
        lines.insert(tagOf(row, "RQITAG"));
    });
    for (const char* table : {"RECEIVED", "PAYMENTS", "PROSTATUS"})
        m_site.walk(table, [&](Recordset& row) {
            EXPECT_TRUE(lines.contains(tagOf(row, "RQITAG"))) << table;
            EXPECT_TRUE(orders.contains(tagOf(row, "POTAG"))) << table;
        });
    const QSet<int> vendors = tags("VENDORS", "VENTAG");
    for (const char* table : {"REQLIST", "POLIST", "APINVOICES"})
        m_site.walk(table, [&](Recordset& row) {
            EXPECT_TRUE(vendors.contains(tagOf(row, "VENTAG"))) << table;
        });
}

// Codes are sought in the stored form, for the document's own job.
TEST_F(DemoLaws, CostCodesAreThoseOfTheJobInTheirStoredForm)
{
    QMap<int, std::pair<int, QString>> jobs;  // by document
    for (const DocumentKind& kind : documentKinds)
        m_site.walk(kind.table, [&](Recordset& row) {
            jobs[tagOf(row, kind.tag) * 2 + (&kind == &documentKinds[1] ? 1 : 0)] = {
                tagOf(row, "CONO"), row["JOBNO"].value().toString()};
        });
    Recordset jobList = m_site.open("MAIN.mdb", "JOBLIST");
    const struct
    {
        const char* table;
        schema::FieldName code;
        schema::FieldName type;
        schema::FieldName size;
    } groups[] = {{"CCALIST", "COSTCODEA", "CCTYPEA", "CCSIZEA"},
                  {"CCBLIST", "COSTCODEB", "CCTYPEB", "CCSIZEB"},
                  {"CCCLIST", "COSTCODEC", "CCTYPEC", "CCSIZEC"}};
    for (const auto& group : groups) {
        Recordset codes = m_site.open("MAIN.mdb", group.table);
        int used = 0;
        m_site.walk("RQILIST", [&](Recordset& row) {
            const QString code = row[group.code].value().toString();
            if (code.isEmpty())
                return;
            const int requisition = tagOf(row, "REQTAG");
            const auto job = requisition != 0 ? jobs.value(requisition * 2)
                                              : jobs.value(tagOf(row, "POTAG") * 2 + 1);
            EXPECT_EQ(job.second, dnFitColumn(job.second, "C", 8));
            ASSERT_FALSE(
                dnSeek(jobList, "JOBLIST", {{"CONO", job.first}, {"JOBNO", job.second}}).isEmpty());
            EXPECT_EQ(code,
                      dnFitColumn(code, textOf(jobList[group.type]), intOf(jobList[group.size])));
            EXPECT_FALSE(dnSeek(codes, group.table,
                                {{"CONO", job.first}, {"JOBNO", job.second}, {group.code, code}})
                             .isEmpty())
                << code.toStdString();
            ++used;
        });
        EXPECT_GT(used, 100) << group.table;
    }
}

TEST_F(DemoLaws, LinesStandInEveryState)
{
    QMap<int, double> received;
    QMap<int, double> billed;
    QMap<int, double> paid;
    m_site.walk("RECEIVED",
                [&](Recordset& row) { received[tagOf(row, "RQITAG")] += numberOf(row, "QTYREC"); });
    m_site.walk("PAYMENTS", [&](Recordset& row) {
        auto& sums = row["CHECKDATE"].value().toString().isEmpty() ? billed : paid;
        sums[tagOf(row, "RQITAG")] += numberOf(row, "QTY");
    });
    QMap<QString, int> states;
    m_site.walk("RQILIST", [&](Recordset& row) {
        const int tag = tagOf(row, "RQITAG");
        const double ordered = numberOf(row, "QTY");
        EXPECT_LE(received.value(tag), ordered);
        EXPECT_LE(billed.value(tag) + paid.value(tag), received.value(tag));
        if (tagOf(row, "POTAG") == 0) {
            EXPECT_FALSE(received.contains(tag));
            ++states["requisitioned"];
        } else if (ordered == 0) {
            ++states["text"];
        } else if (received.value(tag) == 0) {
            ++states["ordered"];
        } else if (received.value(tag) < ordered) {
            ++states["partly received"];
        } else if (paid.value(tag) == ordered) {
            ++states["paid"];
        } else if (billed.value(tag) == ordered) {
            ++states["billed"];
        } else {
            ++states["received"];
        }
    });
    for (const char* state :
         {"requisitioned", "text", "ordered", "partly received", "received", "billed", "paid"})
        EXPECT_GT(states.value(state), 0) << state;
}

// The ledger has a row for each line that names an item and each of its receipts, and no other.
TEST_F(DemoLaws, TheLedgerHasARowForEachMovement)
{
    Recordset ledger = m_site.open("INVTRANS");
    int expected = 0;
    const auto expectRow = [&](const char* docType, int docTag, const char* itemType, int itemTag,
                               int item, double quantity, const QString& date) {
        ASSERT_FALSE(dnSeek(ledger, "INVTRANSACTION",
                            {{"DOCTYPE", docType},
                             {"DOCTAG", docTag},
                             {"ITEMTYPE", itemType},
                             {"ITEMTAG", itemTag},
                             {"ISNTAG", item}})
                         .isEmpty())
            << itemType << ' ' << itemTag;
        EXPECT_EQ(numberOf(ledger, "QUANTITY"), quantity);
        EXPECT_EQ(textOf(ledger["LDATE"]), date);
        ++expected;
    };
    QMap<int, QString> orderDates;
    m_site.walk("POLIST", [&](Recordset& row) {
        orderDates[tagOf(row, "POTAG")] = row["LDATE"].value().toString();
    });
    QMap<int, int> itemOfLine;
    m_site.walk("RQILIST", [&](Recordset& row) {
        if (tagOf(row, "ISNTAG") == 0 || tagOf(row, "POTAG") == 0)
            return;
        itemOfLine[tagOf(row, "RQITAG")] = tagOf(row, "ISNTAG");
        expectRow("PO", tagOf(row, "POTAG"), "RQI", tagOf(row, "RQITAG"), tagOf(row, "ISNTAG"),
                  numberOf(row, "QTY"), orderDates.value(tagOf(row, "POTAG")));
    });
    m_site.walk("RECEIVED", [&](Recordset& row) {
        if (const int item = itemOfLine.value(tagOf(row, "RQITAG")))
            expectRow("PO", tagOf(row, "POTAG"), "REC", tagOf(row, "RECTAG"), item,
                      numberOf(row, "QTYREC"), row["LDATEREC"].value().toString());
    });
    for (const char* table : {"PIITEMS", "INVADJLIST", "MIRITEMS", "MRRITEMS"})
        expected += m_site.open(table).RecordCount();
    expected += m_site.open("MTRITEMS").RecordCount() * 2;
    EXPECT_EQ(ledger.RecordCount(), expected);
}

// Summed here by document instead of replayed by date; nothing was counted after the opening.
TEST_F(DemoLaws, QuantitiesOfItemsAgreeWithTheDocuments)
{
    QMap<int, double> onHand;
    QMap<int, double> onOrder;
    QMap<int, double> adjusted;
    const auto add = [&](QMap<int, double>& sums, const char* table, schema::FieldName item,
                         schema::FieldName quantity, int sign) {
        m_site.walk(table, [&](Recordset& row) {
            sums[tagOf(row, item)] += sign * numberOf(row, quantity);
        });
    };
    add(onHand, "PIITEMS", "ISNTAG", "PICOUNT", 1);
    add(onHand, "INVADJLIST", "ISNTAG", "QUANTITY", 1);
    add(adjusted, "INVADJLIST", "ISNTAG", "QUANTITY", 1);
    add(onHand, "MIRITEMS", "ISNTAG", "QTY", -1);
    add(onHand, "MRRITEMS", "ISNTAG", "QTY", -1);
    add(onHand, "MTRITEMS", "FROMISNTAG", "QTY", -1);
    add(onHand, "MTRITEMS", "TOISNTAG", "QTY", 1);
    QMap<int, int> itemOfLine;
    m_site.walk("RQILIST", [&](Recordset& row) {
        if (tagOf(row, "POTAG") == 0)
            return;
        itemOfLine[tagOf(row, "RQITAG")] = tagOf(row, "ISNTAG");
        onOrder[tagOf(row, "ISNTAG")] += numberOf(row, "QTY");
    });
    m_site.walk("RECEIVED", [&](Recordset& row) {
        const int item = itemOfLine.value(tagOf(row, "RQITAG"));
        onHand[item] += numberOf(row, "QTYREC");
        onOrder[item] -= numberOf(row, "QTYREC");
    });
    m_site.walk("INVENTORY", [&](Recordset& row) {
        const int item = tagOf(row, "ISNTAG");
        EXPECT_EQ(numberOf(row, "AVAILABLE"), onHand.value(item)) << item;
        EXPECT_EQ(numberOf(row, "ONORDER"), onOrder.value(item)) << item;
        EXPECT_EQ(numberOf(row, "INVADJUSTMENTS"), adjusted.value(item)) << item;
        EXPECT_EQ(numberOf(row, "ISSUED"), 0) << item;
    });
}

TEST_F(DemoLaws, NoItemEverFallsBelowZero)
{
    Recordset ledger = m_site.open("INVTRANS");
    ledger.Index("INVTRANSISNTAG");
    int item = 0;
    std::optional<LedgerReplay> replay;
    for (ledger.MoveFirst(); !ledger.EOF(); ledger.MoveNext()) {
        if (tagOf(ledger, "ISNTAG") != item)
            replay.emplace(postingReading);
        item = tagOf(ledger, "ISNTAG");
        ASSERT_TRUE(replay->take(ledger)) << qPrintable(replay->refusal());
        EXPECT_GE(replay->quantities().available, 0) << item;
        EXPECT_GE(replay->quantities().onOrder, 0) << item;
    }
}

// Issues apart, which a rebuild forgets.
TEST_F(DemoLaws, TheLedgerIsWhatARebuildMakesOfTheDocuments)
{
    const auto rows = [this] {
        QStringList found;
        m_site.walk("INVTRANS", [&](Recordset& row) {
            QStringList texts;
            for (int i = 0; i < int(row.definition().fields.size()); ++i)
                texts.append(row.Fields(i).value().toString());
            found.append(texts.join(' '));
        });
        found.sort();
        return found;
    };
    Recordset ledger = m_site.open("INVTRANS");
    ledger.Index("INVTRANSACTION");
    while (ledger.Seek("=", "MI"))
        ledger.Delete();
    const QStringList before = rows();
    QSet<int> branches;
    m_site.walk("ILCLIST", [&](Recordset& row) { branches.insert(tagOf(row, "ILCTAG")); });
    for (const int branch : branches)
        EXPECT_TRUE(rebuildLedger(m_site.path(), branch, [] { return true; }));
    EXPECT_GT(before.size(), 100);
    EXPECT_EQ(rows(), before);
}

TEST_F(DemoLaws, CountersStandAboveEveryTagGiven)
{
    const struct
    {
        const char* table;
        schema::FieldName tag;
        bool ofSite;
    } kinds[] = {
        {"REQLIST", "REQTAG", true},
        {"POLIST", "POTAG", true},
        {"RQILIST", "RQITAG", true},
        {"RECEIVED", "RECTAG", true},
        {"VENDORS", "VENTAG", true},
        {"MANUFACTURERS", "MFGTAG", true},
        {"PILIST", "PITAG", true},
        {"APINVOICES", "APINVTAG", false},
        {"APIITEMS", "APINVITEMTAG", false},
        {"PAYMENTS", "PAYTAG", false},
        {"PROSTATUS", "PSTAG", false},
        {"INVENTORY", "ISNTAG", false},
        {"INVCATALOG", "ICNTAG", false},
        {"ILCLIST", "ILCTAG", false},
        {"BINLIST", "BINTAG", false},
        {"SERIESCODES", "SERIESTAG", false},
        {"SUBCATEGORIES", "SUBCATTAG", false},
        {"INVADJLIST", "INVADJTAG", false},
        {"MIRLIST", "MIRTAG", false},
        {"MIRITEMS", "MIRITAG", false},
        {"MRRLIST", "MRRTAG", false},
        {"MRRITEMS", "MRRITAG", false},
        {"MTRLIST", "MTRTAG", false},
        {"MTRITEMS", "MTRITAG", false},
        {"MCLIST", "MCTAG", false},
        {"TERMSCODES", "TERMSCODETAG", false},
        {"JOB_NO_DEFAULTS", "JNDTAG", false},
        {"PONOTETEXT", "PONTAG", false},
        {"RSTLIST", "RSTTAG", false},
    };
    Recordset counters = m_site.open("VEXTAGS");
    ASSERT_EQ(counters.RecordCount(), 1);
    counters.MoveFirst();
    for (const auto& kind : kinds) {
        const int base = kind.ofSite ? m_site.tag() * 1'000'000 : 0;
        const int next = base + tagOf(counters, kind.tag);
        QSet<int> given = tags(kind.table, kind.tag);
        EXPECT_EQ(given.size(), m_site.open(kind.table).RecordCount()) << kind.table;
        EXPECT_EQ(*std::max_element(given.begin(), given.end()) + 1, next) << kind.table;
        EXPECT_GT(*std::min_element(given.begin(), given.end()), base) << kind.table;
    }
    Recordset numbers = m_site.open("VEXCOUNTERS");
    numbers.MoveFirst();
    const QSet<int> used = tags("REQLIST", "REQNO");
    EXPECT_EQ(tagOf(numbers, "REQNO"), *std::max_element(used.begin(), used.end()) + 1);
    Recordset downloads = m_site.open("ZORDLU.mdb", "VEXDLTAG");
    downloads.MoveFirst();
    m_site.walk("ZORDLU.mdb", "VEXDLTL", [&](Recordset& row) {
        EXPECT_LT(tagOf(row, "VEXDLTAG"), tagOf(downloads, "VEXDLTAG"));
    });
}

TEST_F(DemoLaws, CatalogNumbersRunOn)
{
    QSet<QString> numbers = texts("INVCATALOG", "ICNUMBER");
    EXPECT_EQ(numbers.size(), m_site.open("INVCATALOG").RecordCount());
    EXPECT_TRUE(numbers.contains("000-000-001"));
    Recordset counters = m_site.open("VEXTAGS");
    counters.MoveFirst();
    const QString next = QString("%1-%2-%3")
                             .arg(tagOf(counters, "ICNCOUNTER3"), 3, 10, QChar('0'))
                             .arg(tagOf(counters, "ICNCOUNTER2"), 3, 10, QChar('0'))
                             .arg(tagOf(counters, "ICNCOUNTER1"), 3, 10, QChar('0'));
    EXPECT_FALSE(numbers.contains(next));
    EXPECT_LT(*std::max_element(numbers.begin(), numbers.end()), next);
}

}  // namespace
