// Rows of printed descriptions and subtotals.
#include "purchasing/forms/print_buffer.h"

#include <gtest/gtest.h>

#include "tests/support/printing.h"
#include "tests/support/table_rows.h"

namespace {

TEST(DescriptionRows, ADescriptionIsPartedAtItsLineEndsAndCutToTheColumn)
{
    const QString word(45, 'x');
    const struct
    {
        const char* what;
        QString description;
        int width;
        QStringList rows;
    } cases[] = {
        {"nothing", "", 20, {""}},
        {"three lines", "one\r\n  two\r\nthree", 20, {"one", "two", "three"}},
        {"a blank line within stays, those at the end go",
         "a\r\n\r\nb\r\n\r\n",
         20,
         {"a", "", "b"}},
        {"a tab is a blank", "\ta\tb", 20, {"a b"}},
        {"exactly the width", "1234567890", 10, {"1234567890"}},
        {"a blank behind the width", "1234567890 abc", 10, {"1234567890", "abc"}},
        {"at the last blank", "bolt and nut", 10, {"bolt and", "nut"}},
        {"without a blank in the last thirty", "a " + word, 40, {"a " + word.left(38), "xxxxxxx"}},
        {"more than once", "aa bb cc dd ee", 5, {"aa bb", "cc dd", "ee"}},
        {"no longer than the table's column",
         QString(130, 'y'),
         400,
         {QString(100, 'y'), QString(30, 'y')}},
    };
    for (const auto& one : cases)
        EXPECT_EQ(descriptionRows(one.description, one.width), one.rows) << one.what;
}

TEST(PrintBuffer, TheSumsOfTheCostCodesAreTheSumOfTheLinesAndStandInOrder)
{
    PrintBuffer buffer;
    double all = 0;
    for (int i = 0; i < 300; ++i) {
        const double amount = (i % 7) * 0.1 + 0.01;
        buffer.addToSubtotal(QString("%1-%2").arg(i % 2 ? "ab" : "AB").arg(i % 3), amount);
        all += amount;
    }
    buffer.addToSubtotal("", 1000);
    buffer.addSubtotalRows(30);
    QStringList texts;
    double sum = 0;
    for (const FormRow& row : buffer.rows()) {
        texts.append(row.text);
        if (row.text != "Total")
            sum += row.amount.value_or(0);
    }
    EXPECT_EQ(texts, (QStringList{"", "", "AB-0", "ab-1", "AB-2", "Total"}));
    EXPECT_NEAR(sum, all + 1000, 1e-9);
    EXPECT_NEAR(*buffer.rows().back().amount, sum, 1e-9);
}

TEST(PrintBuffer, ASumStandsBesideTheBeginningOfALongStringAndNothingStandsWithoutSums)
{
    PrintBuffer buffer;
    buffer.addSubtotalRows(30);
    EXPECT_TRUE(buffer.isEmpty());
    buffer.addToSubtotal("4711-100-2000-10", 12.5);
    buffer.addSubtotalRows(10);
    QStringList rows;
    for (const FormRow& row : buffer.rows())
        rows.append(row.text + '=' + QString::number(row.amount.value_or(0)));
    EXPECT_EQ(rows, (QStringList{"=0", "4711-100-2=12.5", "000-10=0", "Total=12.5"}));
}

TEST(PrintBuffer, TheUsersTablesHoldTheLastDocumentAlone)
{
    const TestInstallation site;
    Session session;
    session.UserSettingsPath = site.userFolder();
    PrintBuffer before;
    before.add({.text = "of another document"});
    before.addToSubtotal("old", 1);
    before.store(session);

    PrintBuffer buffer;
    buffer.addDescribed({.item = 4, .quantity = 2, .unitPrice = 1.5, .amount = 3, .costCodes = "A"},
                        "first\r\nsecond", 20);
    buffer.add({.isSmall = true, .text = "Notice:"});
    buffer.addToSubtotal("A", 3);
    buffer.store(session);
    EXPECT_EQ(rowsOf(site, "ZORUSER.mdb", "VEXPRINTBUFFER",
                     {"ITEMNO", "QTY", "TOPTEXT", "TEXTOUT", "AMOUNT", "CCSTRING"}),
              (QStringList{"4|2||first|3|A", "~|~||second|~|", "~|~|SF|Notice:|~|"}));
    EXPECT_EQ(rowsOf(site, "ZORUSER.mdb", "VEXCCSTLBUF", {"CCSTRING", "AMOUNT"}),
              QStringList("A|3"));
}

}  // namespace
