// Which rows of a form stand on which page.
#include "purchasing/forms/form_rows.h"

#include <gtest/gtest.h>

namespace {

const Form textForm{
    .title = {},
    .besideTitle = {},
    .head = {},
    .columns = {{"TEXT", 0, TextAlignment::Left, [](const FormRow& row) { return row.text; }},
                {"CODE", 600, TextAlignment::Left, [](const FormRow& row) { return row.costCodes; },
                 true}},
    .foot = {}};

// The pages of rows that are told by letters, 'a' the first of a line, '+' one that goes on with
// it, 's' one in the small font and '.' a blank one.
QStringList pages(const QString& told, size_t perPage)
{
    std::vector<FormRow> rows;
    for (const QChar c : told)
        rows.push_back({.isSmall = c == 's',
                        .isContinuation = c == '+',
                        .text = c == '.' ? QString() : QString(c)});
    const std::vector<PrintedRow> printed = printedRows(textForm, {2000, 600}, rows);
    QStringList found;
    for (const auto& page : pagesOf(printed, perPage)) {
        found.append(QString());
        for (const PrintedRow& row : page)
            found.last() += row.cells[0].isEmpty() ? QString('.') : row.cells[0];
    }
    return found;
}

TEST(FormRows, RowsThatBelongTogetherStandOnOnePageUnlessTheyAreMany)
{
    const struct
    {
        const char* what;
        QString rows;
        size_t perPage;
        QStringList pages;
    } cases[] = {
        {"no rows", "", 9, {""}},
        {"one page to the brim", "a++a++a++", 9, {"a++a++a++"}},
        {"a short line moves as a whole", "aaaaaaaa++a", 9, {"aaaaaaa", "a++a"}},
        {"a long line is parted", "aaaaa++++++a", 9, {"aaaaa++++", "++a"}},
        {"two of its rows at least end a page", "aaaaaaaaa+++++", 9, {"aaaaaaaa", "a+++++"}},
        {"and begin one", "aaaa++++++a", 9, {"aaaa++++", "++a"}},
        {"the notice moves as a whole", "aaaaaass.s", 7, {"aaaaaa", "ss.s"}},
        {"no page begins with a blank row", "aaaaa.s", 5, {"aaaaa", "s"}},
        {"blank rows make no page", "aaaaa..", 5, {"aaaaa"}},
        {"longer than two pages", "a+++++++++", 4, {"a+++", "++++", "++"}},
    };
    for (const auto& one : cases)
        EXPECT_EQ(pages(one.rows, one.perPage), one.pages) << one.what;
}

TEST(FormRows, ACellHoldsAsManyCharactersInItsFullSizeAsItSays)
{
    const PageFont font{FontFamily::CourierNew, false, 8};
    for (int width = 300; width < 9000; ++width) {
        const QString full(cellLength(width), 'x');
        EXPECT_EQ(fittingFont(full, font, width - 100, 6), font) << width;
        EXPECT_GT(textWidth(full + "xx", font), width - 100) << width;
    }
}

}  // namespace
