#include <QRandomGenerator>

#include "screens/report/workbook/workbook_writer.h"
#include "tests/screens/report/workbook/workbook_files.h"

namespace {

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

TEST_F(WorkbookReading, CountsTextsAndNamesAsWellAsCells)
{
    const QString tooLarge = "The workbook is too large";
    // As if what is read over and over did not pack so well.
    const WorkbookLimits limits{.ratio = 1 << 20, .keptBytes = 16 << 20};
    const auto list = [&](const QByteArray& sheets) {
        return package({{"xl/workbook.xml",
                         "<workbook xmlns:r='r'><sheets>" + sheets + "</sheets></workbook>"},
                        {"xl/worksheets/one.xml", "<worksheet/>"}});
    };
    const QByteArray entry = "<sheet name='One' r:id='a'/>";
    EXPECT_EQ(refusal(list(entry.repeated(1000)), limits), "read");
    EXPECT_EQ(refusal(list(entry.repeated(1001)), limits), tooLarge);
    EXPECT_EQ(
        refusal(list(("<sheet name='" + QByteArray(900'000, 'n') + "'/>").repeated(20)), limits),
        tooLarge);
    const auto texts = [&](const QByteArray& entries) {
        return package({{"xl/texts.xml", "<sst>" + entries + "</sst>"},
                        {"xl/worksheets/one.xml", "<worksheet/>"}});
    };
    EXPECT_EQ(refusal(texts(QByteArray("<si/>").repeated(600'000)), limits), "read");
    EXPECT_EQ(refusal(texts(QByteArray("<si/>").repeated(1'000'000)), limits), tooLarge);
    EXPECT_EQ(
        refusal(texts("<si>" + QByteArray("<t>much</t>").repeated(100'000) + "</si>"), limits),
        tooLarge)
        << "a text in many parts";
    EXPECT_EQ(refusal(texts("<si><t>" + QByteArray(4'000'000, 'x') + "</t></si>"), limits),
              tooLarge);
    const QByteArray longCell = "<c t='str'><v>" + QByteArray(32767, 'x') + "</v></c>";
    EXPECT_EQ(refusal(sheet("<row>" + longCell.repeated(200) + "</row>"), limits), "read");
    EXPECT_EQ(refusal(sheet("<row>" + longCell.repeated(300) + "</row>"), limits), tooLarge);
    EXPECT_EQ(refusal(sheet("<row><c>" + QByteArray("<a>").repeated(100'000)), limits), tooLarge)
        << "deep inside a cell";
    EXPECT_EQ(refusal(package({{"xl/styles.xml", "<styleSheet><cellXfs>" +
                                                     QByteArray("<xf/>").repeated(70'000) +
                                                     "</cellXfs></styleSheet>"}}),
                      limits),
              tooLarge);
    const QByteArray relation = "<Relationship Id='a' Type='b' Target='c'/>";
    EXPECT_EQ(
        refusal(package({{"xl/_rels/workbook.xml.rels",
                          "<Relationships>" + relation.repeated(150'000) + "</Relationships>"}}),
                limits),
        tooLarge);
}

TEST_F(WorkbookReading, ReadsNoPlaceOfAnOldWorkbookTwice)
{
    const auto book = [&](size_t sheets, int labels) {
        BiffStream stream;
        const auto places = beginBook(stream, std::vector<QByteArray>(sheets, "Again"));
        for (const qsizetype place : places)
            stream.patch32(place, static_cast<quint32>(stream.size()));
        beginSheet(stream);
        for (int row = 0; row < labels; ++row) {
            stream.record(0x0204, 8 + 1 + 8000);
            stream.put16(static_cast<quint16>(row)).put16(0).put16(0).put16(8000).put8(0);
            stream.append(QByteArray(8000, 'x'));
        }
        stream.record(0x000a, 0);
        return container("Workbook", stream.bytes());
    };
    EXPECT_EQ(refusal(book(1, 1000)), "read");
    EXPECT_EQ(refusal(book(1000, 1000)), "The workbook is damaged");
    EXPECT_EQ(refusal(book(1001, 0)), "The workbook is too large");
    EXPECT_EQ(refusal(book(1, 1000), {.keptBytes = 15 << 20}), "The workbook is too large");

    BiffStream texts;
    beginBook(texts, {}, [](BiffStream& stream) {
        constexpr int count = 2700;
        stream.record(0x00fc, 8 + 3 * count);
        stream.put32(count).put32(count).putZeros(3 * count);
    });
    EXPECT_EQ(refusal(container("Workbook", texts.bytes())), "read");
    EXPECT_EQ(refusal(container("Workbook", texts.bytes()), {.keptBytes = 60'000}),
              "The workbook is too large")
        << "empty texts take their places too";
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
