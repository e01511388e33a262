#include "screens/report/workbook/workbook_reader.h"

#include <QProcess>

#include "screens/report/workbook/number_form.h"
#include "screens/report/workbook/workbook_writer.h"
#include "tests/screens/report/workbook/workbook_files.h"
#include "tests/support/printing.h"

namespace {

TEST_F(WorkbookReading, GivesWhatWasWrittenInBothForms)
{
    for (const char* name : {"own.xls", "own.xlsx"}) {
        auto writer = createWorkbook(path(name));
        writer->beginSheet("Größe");
        writer->writeRow({"00123", 1.5, storage::Value(), "_x0041_"});
        writer->writeRow({});
        writer->writeRow({storage::Value(), "配管\n<é>", QString(32767, 'x')});
        writer->beginSheet("Second");
        writer->finish();
        const std::vector<WorkbookSheet> sheets = readWorkbook(path(name));
        ASSERT_EQ(sheets.size(), 2U) << name;
        const WorkbookSheet& sheet = sheets[0];
        EXPECT_EQ(sheet.name(), "Größe");
        EXPECT_EQ(sheet.rowCount(), 3);
        EXPECT_EQ(sheet.columnCount(), 4);
        EXPECT_EQ(sheet.cell(1, 1), storage::Value("00123"));
        EXPECT_TRUE(sheet.cell(1, 1).as<QString>());
        EXPECT_EQ(sheet.cell(1, 2), storage::Value(1.5));
        EXPECT_TRUE(sheet.cell(1, 3).isNull());
        EXPECT_EQ(sheet.cell(1, 4).toString(), "_x0041_") << name;
        EXPECT_EQ(sheet.cell(3, 2).toString(), "配管\n<é>");
        EXPECT_EQ(sheet.cell(3, 3).toString(), QString(32767, 'x'));
        for (const auto& [row, column] : {std::pair{0, 1}, {1, 0}, {2, 1}, {4, 1}, {1, 5}})
            EXPECT_TRUE(sheet.cell(row, column).isNull());
        EXPECT_EQ(sheets[1].rowCount(), 0);
    }
}

TEST_F(WorkbookReading, TakesWhatOtherProgramsWrite)
{
    for (const char* name : {"others.xls", "others.xlsx"}) {
        QProcess writer;
        writer.start("/usr/bin/python3", {WRITE_WORKBOOK, path(name)});
        ASSERT_TRUE(writer.waitForFinished(100000));
        ASSERT_EQ(writer.exitCode(), 0) << writer.readAllStandardError().toStdString();
        const std::vector<WorkbookSheet> sheets = readWorkbook(path(name));
        ASSERT_EQ(sheets.size(), 2U);
        EXPECT_EQ(sheets[0].name(), "One");
        const WorkbookSheet& two = sheets[1];
        EXPECT_EQ(two.cell(1, 1).toString(), "00123");
        const double numbers[] = {12, 1.25, -7, 1e300, 1234567890};
        for (int at = 0; at < 5; ++at)
            EXPECT_EQ(two.cell(1, at + 2), storage::Value(numbers[at])) << name;
        EXPECT_EQ(two.cell(1, 7), storage::Value(true));
        EXPECT_EQ(two.cell(1, 8), storage::Value(false));
        EXPECT_TRUE(two.cell(2, 1).isNull());
        EXPECT_EQ(two.cell(2, 2).toString(), "Größe 配管");
        EXPECT_EQ(two.cell(2, 3).toDateTime(), QDate(2026, 3, 7).startOfDay());
        EXPECT_EQ(two.cell(2, 4).toDateTime(), QDateTime(QDate(2026, 3, 7), QTime(18, 30, 15)));
        EXPECT_EQ(two.cell(2, 5).toString(), "06:45:00");
        EXPECT_EQ(two.cell(2, 8).toString(), "last");
        EXPECT_EQ(two.cell(4, 4), storage::Value(4.5));
        EXPECT_EQ(two.cell(5, 1).toString(), "rich text");
        EXPECT_EQ(two.cell(6, 1).toString(), QString("long").repeated(8000));
        EXPECT_EQ(two.rowCount(), 6);
    }
}

TEST_F(WorkbookReading, TakesEveryKindOfRecord)
{
    const auto cell = [](BiffStream& stream, quint16 number, quint16 length, quint16 column) {
        stream.record(number, length);
        return &stream.put16(0).put16(column).put16(0);
    };
    BiffStream stream;
    stream.record(0x0809, 4);  // the old version, with texts of bytes
    stream.put16(0x0500).put16(5);
    stream.record(0x0085, 11);
    const qsizetype place = stream.size();
    stream.put32(0).put16(0).put8(4);
    stream.append("Main");
    stream.record(0x000a, 0);
    stream.patch32(place, static_cast<quint32>(stream.size()));
    stream.record(0x0809, 4);
    stream.put16(0x0500).put16(16);
    cell(stream, 0x0204, 11, 0)->put16(3).append("Lab");
    cell(stream, 0x027e, 10, 1)->put32((1234U << 2) | 3);  // 12.34
    cell(stream, 0x027e, 10, 2)->put32(static_cast<quint32>(-5 * 4) | 2);
    stream.record(0x00bd, 18);
    stream.put16(0).put16(3).put16(0).put32(7 << 2 | 2).put16(0).put32(0x3ff80000).put16(4);
    cell(stream, 0x0205, 8, 5)->put8(0x07).put8(1);
    cell(stream, 0x0006, 22, 6)->putDouble(2.5).putZeros(8);
    cell(stream, 0x0006, 22, 7)->put32(0).put32(0xffff0000).putZeros(8);
    stream.record(0x0207, 5);
    stream.put16(3).append("sum");
    cell(stream, 0x0006, 22, 8)->put32(1 | 1 << 16).put32(0xffff0000).putZeros(8);
    stream.record(0x0809, 4);  // a chart in the sheet
    stream.put16(0x0500).put16(0x20);
    cell(stream, 0x0204, 11, 0)->put16(3).append("cht");
    stream.record(0x000a, 0);
    stream.record(0x000a, 0);
    const auto sheets = readWorkbook(container("Book", stream.bytes()));
    ASSERT_EQ(sheets.size(), 1U);
    const WorkbookSheet& main = sheets[0];
    EXPECT_EQ(main.name(), "Main");
    EXPECT_EQ(main.cell(1, 1).toString(), "Lab");
    EXPECT_EQ(main.cell(1, 2), storage::Value(12.34));
    EXPECT_EQ(main.cell(1, 3), storage::Value(-5));
    EXPECT_EQ(main.cell(1, 4), storage::Value(7));
    EXPECT_EQ(main.cell(1, 5), storage::Value(1.5));
    EXPECT_EQ(main.cell(1, 6).toString(), "#DIV/0!");
    EXPECT_EQ(main.cell(1, 7), storage::Value(2.5));
    EXPECT_EQ(main.cell(1, 8).toString(), "sum");
    EXPECT_EQ(main.cell(1, 9), storage::Value(true));
}

TEST_F(WorkbookReading, TakesTheLongTextOfAFormula)
{
    BiffStream stream;
    const std::vector<qsizetype> places = beginBook(stream, {"One", "Two"});
    stream.patch32(places[0], static_cast<quint32>(stream.size()));
    beginSheet(stream);
    putTextFormula(stream, 2, 1);
    stream.record(0x0207, 8224);
    stream.put16(9000).put8(0).append(QByteArray(8221, 'a'));
    stream.record(0x003c, 1 + 2 * 779);
    stream.put8(1);
    for (int at = 0; at < 779; ++at)
        stream.put16(0x03a9);
    putTextFormula(stream, 2, 2);
    stream.record(0x000a, 0);
    stream.patch32(places[1], static_cast<quint32>(stream.size()));
    beginSheet(stream);
    const qsizetype start = stream.size();
    stream.record(0x000a, 0);
    const QString text = QString(8221, 'a') + QString(779, QChar(0x03a9));
    EXPECT_EQ(readWorkbook(container("Workbook", stream.bytes()))[0].cell(3, 2).toString(), text);

    // The text of a formula that the other sheet ended with.
    BiffStream damaged;
    damaged.append(stream.bytes().left(start));
    damaged.record(0x0207, 4);
    damaged.put16(1).put8(0).put8('x');
    damaged.record(0x000a, 0);
    EXPECT_EQ(refusal(container("Workbook", damaged.bytes())), "The workbook is damaged");
}

TEST_F(WorkbookReading, TakesEveryKindOfCell)
{
    const auto sheets = readWorkbook(
        sheet("<row><c t='s'><v>1</v></c><c t='inlineStr'><is><t>in</t></is></c></row>"
              "<row r='5'><c r='AB5' t='b'><v>1</v></c><c t='e'><v>#N/A</v></c>"
              "<c t='str'><f>A1</f><v>sum</v></c><c s='1'/></row>"
              "<row><c s='1'><v>46088</v></c><c s='2'><v>46088.5</v></c><c s='3'><v>0.75</v></c>"
              "<c s='0'><v>46088</v></c><c s='1'><v>59</v></c><c s='1'><v>1e99</v></c>"
              "<c t='s'><v>2</v></c></row>"
              "<row><c t='d'><v>2026-03-07T18:30:15</v></c><c t='d'><v>06:45:00</v></c>"
              "<c t='d'><v>2026-02-30</v></c></row>"));
    const WorkbookSheet& one = sheets[0];
    EXPECT_EQ(one.cell(1, 1).toString(), "second ");
    EXPECT_EQ(one.cell(1, 2).toString(), "in");
    EXPECT_EQ(one.cell(5, 28), storage::Value(true));
    EXPECT_EQ(one.cell(5, 29).toString(), "#N/A");
    EXPECT_EQ(one.cell(5, 30).toString(), "sum");
    EXPECT_TRUE(one.cell(5, 31).isNull());
    EXPECT_EQ(one.cell(6, 1).toDateTime().date(), QDate(2026, 3, 7));
    EXPECT_EQ(one.cell(6, 2).toDateTime(), QDateTime(QDate(2026, 3, 7), QTime(12, 0)));
    EXPECT_EQ(one.cell(6, 3).toString(), "18:00:00");
    EXPECT_EQ(one.cell(6, 4), storage::Value(46088.0));
    EXPECT_EQ(one.cell(6, 5).toDateTime().date(), QDate(1900, 2, 28));
    EXPECT_EQ(one.cell(6, 6), storage::Value(1e99));
    EXPECT_EQ(one.cell(6, 7).toString(),
              "a\x07"
              "b");
    EXPECT_EQ(one.cell(7, 1).toDateTime(), QDateTime(QDate(2026, 3, 7), QTime(18, 30, 15)));
    EXPECT_EQ(one.cell(7, 2).toString(), "06:45:00");
    EXPECT_EQ(one.cell(7, 3).toString(), "2026-02-30") << "no date";
}

TEST(NumberForms, AreKnownByTheirMasks)
{
    for (const char* mask :
         {"dd/mm/yyyy", "mmm", "[$-409]d\\-mmm;@", "yyyy\"hours\"", "m/d/yy h:mm"})
        EXPECT_EQ(formOfMask(mask), NumberForm::Date) << mask;
    for (const char* mask : {"hh:mm", "[h]:mm:ss", "mm:ss.0", "h AM/PM"})
        EXPECT_EQ(formOfMask(mask), NumberForm::Time) << mask;
    for (const char* mask : {"#,##0.00", "General", "0.00\" days\"", "[Red]0", "0_d", "\\m0", "@"})
        EXPECT_EQ(formOfMask(mask), NumberForm::Number) << mask;
    EXPECT_EQ(shownAs(NumberForm::Date, 0, true).toDateTime().date(), QDate(1904, 1, 1));
    EXPECT_EQ(shownAs(NumberForm::Date, 1, false).toDateTime().date(), QDate(1900, 1, 1));
}

}  // namespace
