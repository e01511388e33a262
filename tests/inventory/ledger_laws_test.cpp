// The ledger against a model that keeps lines of documents, and adds them up anew each time.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "tests/inventory/ledger_site.h"

namespace {

struct ModelLine
{
    const char* docType;
    const char* itemType;
    int docTag;
    int itemTag;
    int item;
    int day;
    float quantity;

    auto key() const
    {
        return std::tuple(day, QString(docType), docTag, QString(itemType), itemTag);
    }
};

constexpr const char* lineKinds[][2] = {{"PI", "PII"}, {"PO", "RQI"}, {"PO", "REC"},
                                        {"IA", "IAI"}, {"MT", "MTD"}, {"MT", "MTC"},
                                        {"MR", "MRI"}, {"MI", "MII"}, {"RO", "ROI"}};

// Written apart from the program's own table, by the words of the users' guide.
StockQuantities modelQuantities(std::vector<ModelLine> lines, int item)
{
    std::erase_if(lines, [item](const ModelLine& line) { return line.item != item; });
    std::sort(lines.begin(), lines.end(),
              [](const ModelLine& a, const ModelLine& b) { return a.key() < b.key(); });
    StockQuantities sum;
    for (const ModelLine& line : lines) {
        const QString kind = line.itemType;
        const float q = line.quantity;
        if (kind == "PII")
            sum = {q, 0, 0, 0};
        if (kind == "RQI")
            sum.onOrder += q;
        if (kind == "REC") {
            sum.onOrder -= q;
            sum.available += q;
        }
        if (kind == "IAI")
            sum.adjustments += q;
        if (kind == "IAI" || kind == "MTC")
            sum.available += q;
        if (kind == "MTD" || kind == "MRI" || kind == "MII" || kind == "ROI")
            sum.available -= q;
        if (kind == "ROI")
            sum.issued += q;
    }
    return sum;
}

class LedgerLaws : public LedgerSite, public testing::WithParamInterface<unsigned>
{
protected:
    int below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }

    void postLine(const ModelLine& line, int newItem, int oldItem)
    {
        EXPECT_TRUE(post(line.docType, line.docTag, line.itemType, line.itemTag, newItem, oldItem,
                         double(line.quantity), QString::number(20260301 + line.day)));
    }
    void addLine()
    {
        const auto& kind = lineKinds[below(std::size(lineKinds))];
        lines.push_back({kind[0], kind[1], below(5), ++m_tag, 1 + below(itemCount), below(20), 0});
        changeQuantity(lines.back());
        postLine(lines.back(), lines.back().item, below(2) * lines.back().item);
    }
    // Thirds, so that the order in which they are added up is seen.
    void changeQuantity(ModelLine& line) { line.quantity = float(below(600) - 200) / 3; }
    void editLine(ModelLine& line)
    {
        line.day = below(20);
        changeQuantity(line);
        const int before = line.item;
        line.item = 1 + below(itemCount);
        postLine(line, line.item, before);
    }
    void deleteLine(size_t at)
    {
        const ModelLine line = lines[at];
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(at));
        if (below(2) == 0)
            postLine(line, 0, line.item);
        else
            EXPECT_TRUE(remove(line.docType, line.docTag, line.itemType, line.itemTag, line.item));
    }

    static constexpr int itemCount = 3;
    std::vector<ModelLine> lines;

private:
    std::mt19937 m_random{GetParam()};
    int m_tag = 0;
};

TEST_P(LedgerLaws, QuantitiesAreTheReplayWhateverTheOrderOfEdits)
{
    for (int item = 1; item <= itemCount; ++item)
        addItem(item);
    for (int step = 0; step < 120; ++step) {
        const int choice = below(10);
        if (lines.empty() || choice < 5)
            addLine();
        else if (choice < 8)
            editLine(lines[static_cast<size_t>(below(static_cast<int>(lines.size())))]);
        else
            deleteLine(static_cast<size_t>(below(static_cast<int>(lines.size()))));
        ASSERT_EQ(ledgerRows().size(), qsizetype(lines.size()));
        for (int item = 1; item <= itemCount; ++item)
            ASSERT_EQ(quantities(item), modelQuantities(lines, item)) << "step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, LedgerLaws, testing::Range(1U, 5U));

}  // namespace
