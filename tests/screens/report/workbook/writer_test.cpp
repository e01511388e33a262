#include "screens/report/workbook/workbook_writer.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <cmath>
#include <csignal>

#include "screens/report/workbook/workbook_reader.h"
#include "tests/support/printing.h"

namespace {

QJsonArray readByOthers(const QString& file)
{
    QProcess reader;
    reader.start("/usr/bin/python3", {READ_WORKBOOK, file});
    EXPECT_TRUE(reader.waitForFinished(100000));
    EXPECT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().toStdString();
    return QJsonDocument::fromJson(reader.readAllStandardOutput()).array();
}

QJsonArray cell(const QJsonObject& sheet, int row, int column)
{
    return sheet["rows"].toArray()[row].toArray()[column].toArray();
}

QString textOf(const QJsonObject& sheet, int row, int column)
{
    EXPECT_EQ(cell(sheet, row, column)[0].toString(), "text") << row << ' ' << column;
    return cell(sheet, row, column)[1].toString();
}

class WorkbookForms : public ::testing::TestWithParam<const char*>
{
protected:
    QString path(const QString& name = "book") const { return folder.filePath(name) + GetParam(); }

    QTemporaryDir folder;
};

TEST_P(WorkbookForms, KeepTextsAsTextsAndNumbersAsNumbers)
{
    const QString longText = QString(32767, 'x');
    const QStringList texts = {"00123",          "=1+2",   "'quoted",         "03/07/2026",
                               "1,234.50",       "Größe",  "配管 \U0001F529", "a\tb\nc",
                               " blanks ",       longText, "<&\">",           "TRUE",
                               QString(256, 'y')};
    auto writer = createWorkbook(path());
    writer->beginSheet("Log", {12, 0, 300}, {{"PO Number", "Amount"}});
    for (const QString& text : texts)
        writer->writeRow({text, -1234.5});
    writer->writeRow({storage::Value(), std::nan(""), storage::Currency{12345}, true, 7, "end"});
    writer->writeRow({QString("a\x01\x1f") + QChar(0) + "b\r\nc" + QChar(0xd800) + QChar(0xffff),
                      longText + "cut", QDate(2026, 3, 7)});
    writer->writeRow({"Total", 5}, true);
    writer->finish();

    const QJsonObject sheet = readByOthers(path())[0].toObject();
    EXPECT_EQ(sheet["name"].toString(), "Log");
    EXPECT_NEAR(sheet["widths"]["0"].toDouble(), 12, 0.8);
    EXPECT_EQ(textOf(sheet, 0, 0), "PO Number");
    EXPECT_TRUE(cell(sheet, 0, 1)[2].toBool()) << "heads are bold";
    for (int row = 1; row <= texts.size(); ++row) {
        EXPECT_EQ(textOf(sheet, row, 0), texts[row - 1]);
        EXPECT_EQ(cell(sheet, row, 1)[1].toDouble(), -1234.5);
        EXPECT_FALSE(cell(sheet, row, 0)[2].toBool());
    }
    const int next = static_cast<int>(texts.size()) + 1;
    EXPECT_EQ(cell(sheet, next, 0)[0].toString(), "blank");
    EXPECT_EQ(cell(sheet, next, 1)[0].toString(), "blank");
    EXPECT_EQ(cell(sheet, next, 2)[1].toDouble(), 1.2345);
    EXPECT_EQ(cell(sheet, next, 3)[1].toDouble(), -1);
    EXPECT_EQ(cell(sheet, next, 4)[1].toDouble(), 7);
    EXPECT_EQ(textOf(sheet, next, 5), "end");
    EXPECT_EQ(textOf(sheet, next + 1, 0), QString("ab\nc") + QChar::ReplacementCharacter);
    EXPECT_EQ(textOf(sheet, next + 1, 1), longText);
    EXPECT_EQ(textOf(sheet, next + 1, 2), "03/07/2026");
    EXPECT_TRUE(cell(sheet, next + 2, 0)[2].toBool() && cell(sheet, next + 2, 1)[2].toBool());
}

TEST_P(WorkbookForms, HoldTextsOfAllLengthsBesideEachOther)
{
    // Enough of them that the parts of the text table end at every place of a text.
    QRandomGenerator random(7);
    std::vector<WorkbookRow> rows(6000);
    for (WorkbookRow& row : rows)
        for (int column = 0; column < 3; ++column) {
            const bool isWide = random.bounded(3) == 0;
            QString text(random.bounded(random.bounded(20) == 0 ? 9000 : 40), isWide ? u'Ω' : u'q');
            row.push_back(text + QString::number(random.bounded(100000)));
        }
    auto writer = createWorkbook(path());
    for (const WorkbookRow& row : rows)
        writer->writeRow(row);
    writer->finish();
    const QJsonObject sheet = readByOthers(path())[0].toObject();
    ASSERT_EQ(sheet["rows"].toArray().size(), 6000);
    for (int row = 0; row < 6000; ++row)
        for (int column = 0; column < 3; ++column)
            ASSERT_EQ(textOf(sheet, row, column), rows[row][column].toString());
}

TEST_P(WorkbookForms, GiveTextsBackThatLookLikeEscapes)
{
    const QStringList texts = {"_x0041_", "a_x000D_x0041_b", "_x41_", "\U0001F529_xFFFF_ ",
                               QString("_x0041_").repeated(4681)};
    ASSERT_EQ(texts.last().size(), 32767);
    auto writer = createWorkbook(path());
    for (const QString& text : texts)
        writer->writeRow({text, "beside", text}, text.startsWith('a'));
    writer->beginSheet("Second");
    writer->writeRow({texts.last()});
    writer->finish();
    const QJsonArray sheets = readByOthers(path());
    for (int row = 0; row < texts.size(); ++row) {
        EXPECT_EQ(textOf(sheets[0].toObject(), row, 0), texts[row]);
        EXPECT_EQ(textOf(sheets[0].toObject(), row, 1), "beside");
        EXPECT_EQ(textOf(sheets[0].toObject(), row, 2), texts[row]);
        EXPECT_EQ(cell(sheets[0].toObject(), row, 2)[2].toBool(), row == 1);
    }
    EXPECT_EQ(textOf(sheets[1].toObject(), 0, 0), texts.last());
    EXPECT_EQ(readWorkbook(path())[0].cell(5, 3).toString(), texts.last());
}

TEST_P(WorkbookForms, CutNoCharacterOfASheetNameInHalves)
{
    const QString bolt = "\U0001F529";
    auto writer = createWorkbook(path());
    for (int sheet = 0; sheet < 3; ++sheet)
        writer->beginSheet("x" + bolt.repeated(20));
    for (int sheet = 0; sheet < 2; ++sheet)
        writer->beginSheet(bolt.repeated(20));
    writer->finish();
    QStringList names;
    for (const QJsonValue& sheet : readByOthers(path()))
        names.append(sheet["name"].toString());
    EXPECT_EQ(names, (QStringList{"x" + bolt.repeated(15), "x" + bolt.repeated(13) + " (2)",
                                  "x" + bolt.repeated(13) + " (3)", bolt.repeated(15),
                                  bolt.repeated(13) + " (2)"}));
}

TEST_P(WorkbookForms, GiveSheetsNamesThatTheyMayHave)
{
    auto writer = createWorkbook(path());
    for (const char* name :
         {"a/b:c*[d]?", "A B C D", "", "'q'", "", "More than thirty-one characters long",
          "More than thirty-one characters"}) {
        writer->beginSheet(name);
        writer->writeRow({name});
    }
    writer->finish();
    QStringList names;
    for (const QJsonValue& sheet : readByOthers(path()))
        names.append(sheet["name"].toString());
    EXPECT_EQ(names,
              (QStringList{"a b c d", "A B C D (2)", "Sheet", "q", "Sheet (2)",
                           "More than thirty-one characters", "More than thirty-one charac (2)"}));
}

TEST_P(WorkbookForms, TakeThePlaceOfAFileOnlyWhenTheyAreWhole)
{
    QFile before(path());
    ASSERT_TRUE(before.open(QIODevice::WriteOnly));
    before.write("before");
    before.close();
    {
        auto unfinished = createWorkbook(path());
        unfinished->writeRow({"lost"});
    }
    ASSERT_TRUE(before.open(QIODevice::ReadOnly));
    EXPECT_EQ(before.readAll(), "before");
    before.close();
    auto writer = createWorkbook(path());
    writer->writeRow({"new"});
    writer->finish();
    EXPECT_EQ(textOf(readByOthers(path())[0].toObject(), 0, 0), "new");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1)
        << "nothing is left beside it";
}

TEST_P(WorkbookForms, TellWhatFails)
{
    const auto write = [](const QString& file, int columns) {
        auto writer = createWorkbook(file);
        writer->writeRow(WorkbookRow(static_cast<size_t>(columns), 1));
        writer->finish();
    };
    EXPECT_THROW(write(path("no/such/folder"), 1), WorkbookError);
    EXPECT_THROW(write(path(), 16385), WorkbookError);
    EXPECT_FALSE(QFile::exists(path()));
    // A folder of that name stands in the way: known only at the end.
    ASSERT_TRUE(QDir(folder.path()).mkpath(path("taken") + "/inside"));
    EXPECT_THROW(write(path("taken"), 1), WorkbookError);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

TEST_P(WorkbookForms, NeverStandHalfOnAFullDisk)
{
    // Files stop growing in the middle of the rows.
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before;
    getrlimit(RLIMIT_FSIZE, &before);
    rlimit small = before;
    small.rlim_cur = 200'000;
    const auto write = [&] {
        auto writer = createWorkbook(path());
        for (int row = 0; row < 20000; ++row)
            writer->writeRow({row, "the same text", row * 1.5});
        setrlimit(RLIMIT_FSIZE, &small);
        for (int row = 0; row < 20000; ++row)
            writer->writeRow({row, "the same text", row * 1.5});
        writer->finish();
    };
    EXPECT_THROW(write(), WorkbookError);
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

INSTANTIATE_TEST_SUITE_P(Both, WorkbookForms, ::testing::Values(".xls", ".xlsx"),
                         [](const auto& form) { return std::string(form.param + 1); });

TEST(XlsWorkbook, GoesOnInFurtherSheetsUnderTheSameHeads)
{
    const QTemporaryDir folder;
    auto writer = createWorkbook(folder.filePath("long.xls"));
    writer->beginSheet("Lines", {}, {{"Number"}, {"of line"}});
    for (int line = 0; line < 65536; ++line)
        writer->writeRow({line});
    writer->finish();
    const QJsonArray sheets = readByOthers(folder.filePath("long.xls"));
    ASSERT_EQ(sheets.size(), 2);
    EXPECT_EQ(sheets[0]["rows"].toArray().size(), 65536);
    EXPECT_EQ(cell(sheets[0].toObject(), 65535, 0)[1].toInt(), 65533);
    EXPECT_EQ(sheets[1]["name"].toString(), "Lines (2)");
    EXPECT_EQ(textOf(sheets[1].toObject(), 1, 0), "of line");
    EXPECT_EQ(cell(sheets[1].toObject(), 2, 0)[1].toInt(), 65534);
    EXPECT_EQ(sheets[1]["rows"].toArray().size(), 4);
}

}  // namespace
