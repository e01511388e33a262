#include "screens/report/workbook/workbook_reader.h"

#include <gtest/gtest.h>
#include <zip.h>

#include <QBuffer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include "screens/report/workbook/biff_records.h"
#include "screens/report/workbook/compound_file.h"
#include "screens/report/workbook/number_form.h"
#include "screens/report/workbook/workbook_writer.h"
#include "tests/support/printing.h"

namespace {

class WorkbookReading : public ::testing::Test
{
protected:
    QString path(const QString& name) const { return folder.filePath(name); }

    QString write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }

    static QByteArray bytesOf(const QString& file)
    {
        QFile bytes(file);
        EXPECT_TRUE(bytes.open(QIODevice::ReadOnly));
        return bytes.readAll();
    }

    // A workbook made of its parts; the usual ones stand where none are given.
    QString package(std::map<QString, QByteArray> parts, bool isProtected = false) const
    {
        parts.try_emplace(
            "xl/workbook.xml",
            "<workbook xmlns:r='r'><sheets><sheet name='One' r:id='a'/></sheets></workbook>");
        parts.try_emplace("xl/_rels/workbook.xml.rels",
                          "<Relationships>"
                          "<Relationship Id='a' Type='x/worksheet' Target='worksheets/one.xml'/>"
                          "<Relationship Id='b' Type='x/sharedStrings' Target='/xl/texts.xml'/>"
                          "<Relationship Id='c' Type='x/styles' Target='../xl/styles.xml'/>"
                          "</Relationships>");
        parts.try_emplace("xl/texts.xml",
                          "<sst><si><t>first</t></si><si><r><t>se</t></r><rPh><t>no</t></rPh>"
                          "<r><t xml:space='preserve'>cond </t></r></si><si><t>a_x0007_b</t></si>"
                          "</sst>");
        parts.try_emplace("xl/styles.xml",
                          "<styleSheet><numFmts><numFmt numFmtId='164' "
                          "formatCode='yyyy\\-mm'/></numFmts>"
                          "<cellStyleXfs><xf numFmtId='14'/></cellStyleXfs>"
                          "<cellXfs><xf numFmtId='0'/><xf numFmtId='14'/><xf numFmtId='164'/>"
                          "<xf numFmtId='20'/></cellXfs></styleSheet>");
        const QString file = path("package.xlsx");
        zip_t* archive =
            zip_open(QFile::encodeName(file).constData(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
        for (const auto& [name, bytes] : parts) {
            const auto place = zip_file_add(
                archive, name.toUtf8().constData(),
                zip_source_buffer(archive, bytes.constData(), static_cast<size_t>(bytes.size()), 0),
                0);
            if (isProtected)
                zip_file_set_encryption(archive, static_cast<zip_uint64_t>(place), ZIP_EM_AES_256,
                                        "secret");
        }
        EXPECT_EQ(zip_close(archive), 0);
        return file;
    }

    // An old workbook of one stream.
    QString container(const char* streamName, const QByteArray& stream) const
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        EXPECT_TRUE(writeCompoundFile(buffer, streamName, stream));
        return write("container.xls", buffer.data());
    }

    QString sheet(const QByteArray& rows) const
    {
        return package({{"xl/worksheets/one.xml",
                         "<worksheet><sheetData>" + rows + "</sheetData></worksheet>"}});
    }

    static QString refusal(const QString& file, const WorkbookLimits& limits = {})
    {
        try {
            readWorkbook(file, limits);
            return "read";
        } catch (const WorkbookError& error) {
            return error.text().section(": ", 0, 0);
        }
    }

    QTemporaryDir folder;
};

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

TEST_F(WorkbookReading, TakesEveryKindOfCell)
{
    const auto sheets = readWorkbook(
        sheet("<row><c t='s'><v>1</v></c><c t='inlineStr'><is><t>in</t></is></c></row>"
              "<row r='5'><c r='AB5' t='b'><v>1</v></c><c t='e'><v>#N/A</v></c>"
              "<c t='str'><f>A1</f><v>sum</v></c><c s='1'/></row>"
              "<row><c s='1'><v>46088</v></c><c s='2'><v>46088.5</v></c><c s='3'><v>0.75</v></c>"
              "<c s='0'><v>46088</v></c><c s='1'><v>59</v></c><c s='1'><v>1e99</v></c>"
              "<c t='s'><v>2</v></c></row>"));
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

TEST_F(WorkbookReading, RefusesWhatIsNoWorkbook)
{
    EXPECT_EQ(refusal(path("gone.xls")).section(' ', 0, 1), "Cannot find");
    EXPECT_EQ(refusal(folder.path()).section(' ', 0, 1), "Cannot find") << "a folder";
    EXPECT_EQ(refusal(write("empty.xls", "")), "The file is not a workbook");
    EXPECT_EQ(refusal(write("text.xls", "PO,Item\n1,2\n")), "The file is not a workbook");
    EXPECT_EQ(refusal(container("Letter", "Dear")), "The file is not a workbook, or it is damaged");
    EXPECT_EQ(refusal(container("Workbook", "PO,Item")), "The workbook is damaged");
    EXPECT_EQ(refusal(package({{"xl/workbook.xml", "<html><body>"}})), "The workbook is damaged");
    EXPECT_EQ(refusal(sheet("<row><c t='s'><v>3</v></c></row>")), "The workbook is damaged");
    EXPECT_EQ(refusal(sheet("<row><c t='s'><v>-1</v></c></row>")), "The workbook is damaged");
    EXPECT_EQ(refusal(sheet("<row><c r='ZZZZ1'><v>3</v></c></row>")), "The workbook is damaged");
    EXPECT_EQ(refusal(sheet("<row><c r='A99999999999'><v>3</v></c></row>")),
              "The workbook is damaged");
    EXPECT_EQ(refusal(sheet("<row><c><v>twelve</v></c></row>")), "The workbook is damaged");
}

TEST_F(WorkbookReading, RefusesWhatIsProtected)
{
    EXPECT_EQ(refusal(container("EncryptedPackage", "secret")),
              "The workbook is protected by a password");
    BiffStream stream;
    stream.record(0x0809, 4);
    stream.put16(0x0600).put16(5);
    stream.record(0x002f, 2);
    stream.put16(1);
    EXPECT_EQ(refusal(container("Workbook", stream.bytes())),
              "The workbook is protected by a password");
    EXPECT_EQ(refusal(package({}, true)), "The workbook is protected by a password");
}

TEST_F(WorkbookReading, RefusesWhatWouldFillTheMemory)
{
    const QString tooLarge = "The workbook is too large";
    EXPECT_EQ(refusal(write("big.xls", QByteArray(2000, 'x')), {.fileBytes = 1999}), tooLarge);
    // A few kilobytes that unpack to forty million.
    EXPECT_EQ(refusal(sheet("<row><c><v>1" + QByteArray(40'000'000, '0') + "</v></c></row>")),
              tooLarge);
    EXPECT_EQ(refusal(sheet("<row><c r='XFD1048576'><v>1</v></c></row>"), {.cells = 1'000'000}),
              tooLarge);
    QByteArray wideRows;
    for (int row = 1; row <= 300; ++row)
        wideRows += "<row><c r='XFD" + QByteArray::number(row) + "'><v>1</v></c></row>";
    EXPECT_EQ(refusal(sheet(wideRows)), tooLarge);
    // Entities that stand for more and more of each other, or for another file.
    for (const QByteArray declared :
         {"<!ENTITY a 'ha'><!ENTITY b '&a;&a;'>", "<!ENTITY b SYSTEM 'file:///etc/hostname'>"})
        EXPECT_EQ(refusal(package({{"xl/worksheets/one.xml",
                                    "<!DOCTYPE x [" + declared +
                                        "]><worksheet><row><c t='str'><v>&b;</v></c></row>"
                                        "</worksheet>"}})),
                  "The workbook is damaged");
    EXPECT_EQ(refusal(package({{"xl/worksheets/one.xml", QByteArray("<a>").repeated(100'000)}})),
              "The workbook is damaged");
}

TEST_F(WorkbookReading, SurvivesDamageAnywhere)
{
    for (const char* name : {"seed.xls", "seed.xlsx"}) {
        auto writer = createWorkbook(path(name));
        for (int row = 0; row < 40; ++row)
            writer->writeRow(
                {QString("text %1 Ω").arg(row), row * 1.5, "twice", QString(300, 'q')});
        writer->finish();
        const QByteArray whole = bytesOf(path(name));
        QRandomGenerator random(11);
        int refused = 0;
        for (int round = 0; round < FUZZ_ROUNDS; ++round) {
            QByteArray bytes = whole;
            if (round % 3 == 0)
                bytes.truncate(random.bounded(static_cast<int>(whole.size())));
            for (int flips = random.bounded(8); flips > 0 && !bytes.isEmpty(); --flips)
                bytes[random.bounded(static_cast<int>(bytes.size()))] =
                    static_cast<char>(random.bounded(256));
            refused += refusal(write(QString("damaged") + name, bytes)) != "read";
        }
        EXPECT_GT(refused, FUZZ_ROUNDS / 4) << name;
    }
}

}  // namespace
