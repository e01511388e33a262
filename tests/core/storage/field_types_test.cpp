// What fields of each type take, how they keep it, and with which number they refuse the rest.
#include <cmath>
#include <limits>

#include "store_fixture.h"

namespace storage {
namespace {

class FieldTypes : public StoreTest
{
protected:
    FieldTypes()
    {
        FieldDefinition required = CreateField("REQUIRED", FieldType::Text, 5);
        required.required = true;
        required.defaultValue = "start";
        FieldDefinition noBlank = CreateField("NOBLANK", FieldType::Text, 5);
        noBlank.allowZeroLength = false;
        database = makeDatabase(
            workspace, path, "T",
            {CreateField("BOOL", FieldType::Boolean), CreateField("BYTE", FieldType::Byte),
             CreateField("INTEGER", FieldType::Integer), CreateField("LONG", FieldType::Long),
             CreateField("CURRENCY", FieldType::Currency), CreateField("SINGLE", FieldType::Single),
             CreateField("DOUBLE", FieldType::Double), CreateField("DATE", FieldType::Date),
             CreateField("TEXT", FieldType::Text, 5), CreateField("MEMO", FieldType::Memo),
             CreateField("BINARY", FieldType::Binary, 4), CreateField("GUID", FieldType::Guid),
             required, noBlank},
            {CreateIndex("SINGLE", {"SINGLE"}), CreateIndex("CURRENCY", {"CURRENCY"}),
             CreateIndex("BOOL", {"BOOL"}), CreateIndex("DATE", {"DATE"})});
        rs = database.OpenRecordset("T");
    }

    // What the file gives back after `value` was put into the field.
    Value kept(const char* field, const Value& value)
    {
        rs.Bookmark(add(rs, {{field, value}}));
        return rs.fieldNamed(field).value();
    }
    // The number of the refusal; the buffer keeps what it had.
    int refusal(const char* field, const Value& value)
    {
        rs.AddNew();
        const Value before = rs.fieldNamed(field).value();
        const int error = errorOf([&] { rs.fieldNamed(field) = value; });
        EXPECT_EQ(before, rs.fieldNamed(field).value());
        rs.CancelUpdate();
        return error;
    }

    Database database;
    Recordset rs;
};

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

TEST_F(FieldTypes, WholeNumbersRoundHalfToEvenAndKeepTheirRange)
{
    EXPECT_EQ(Value(255), kept("BYTE", 255));
    EXPECT_EQ(3349, refusal("BYTE", 256));
    EXPECT_EQ(3349, refusal("BYTE", -1));
    EXPECT_EQ(Value(-32'768), kept("INTEGER", -32'768));
    EXPECT_EQ(3349, refusal("INTEGER", 32'768));
    EXPECT_EQ(3349, refusal("INTEGER", 32'767.5));
    EXPECT_EQ(Value(2), kept("INTEGER", 2.5));
    EXPECT_EQ(Value(4), kept("INTEGER", 3.5));
    EXPECT_EQ(Value(7), kept("INTEGER", " 7 "));
    EXPECT_EQ(Value(2'147'483'647), kept("LONG", 2'147'483'647));
    EXPECT_EQ(3349, refusal("LONG", 2'147'483'648));
    EXPECT_EQ(3349, refusal("LONG", Value(std::numeric_limits<qint64>::min())));
}

TEST_F(FieldTypes, BooleansAreZeroOrMinusOneAndNeverNull)
{
    EXPECT_EQ(Value(-1), kept("BOOL", true));
    EXPECT_EQ(Value(-1), kept("BOOL", 5));
    EXPECT_EQ(Value(0), kept("BOOL", Value()));
    EXPECT_EQ(Value(0), kept("LONG", 0).isNull() ? Value() : rs.fieldNamed("BOOL").value());
    rs.Index("BOOL");
    EXPECT_TRUE(rs.Seek("=", true));
    EXPECT_TRUE(rs.Seek("=", 1)) << "any number but 0 is true";
}

TEST_F(FieldTypes, SingleIsRoundedToThirtyTwoBitsInKeysToo)
{
    EXPECT_EQ(Value(double(0.1F)), kept("SINGLE", 0.1));
    rs.Index("SINGLE");
    EXPECT_TRUE(rs.Seek("=", 0.1));
    EXPECT_TRUE(rs.Seek("=", "0.1"));
    EXPECT_EQ(Value(16'777'216), kept("SINGLE", 16'777'217));
    EXPECT_EQ(3349, refusal("SINGLE", 1e39));
}

TEST_F(FieldTypes, CurrencyCountsTenThousandths)
{
    EXPECT_EQ(Value(Currency{1}), kept("CURRENCY", 0.0001));
    EXPECT_EQ(Value(Currency{12'346}), kept("CURRENCY", 1.23456));
    EXPECT_EQ(Value(Currency{10'100}), kept("CURRENCY", "1.01"));
    rs.Index("CURRENCY");
    EXPECT_TRUE(rs.Seek("=", 1.01));
    EXPECT_EQ(101, std::lround(rs.fieldNamed("CURRENCY").value().toDouble() * 100));
    const qint64 most = 900'719'925'474'099;  // a fraction of doubled precision would not hold it
    EXPECT_EQ(Value(Currency{most * 10'000}), kept("CURRENCY", most));
    EXPECT_EQ(3349, refusal("CURRENCY", 1e15));
    EXPECT_EQ(3349, refusal("CURRENCY", Value(qint64(1e15))));
}

TEST_F(FieldTypes, NumbersThatAreNoneAreRefused)
{
    for (const char* field : {"BYTE", "INTEGER", "LONG", "CURRENCY", "SINGLE", "DOUBLE", "BOOL"}) {
        SCOPED_TRACE(field);
        for (const char* text : {"", " ", "1,2x", "twelve"})
            EXPECT_EQ(3421, refusal(field, text));
        EXPECT_NE(0, refusal(field, "nan"));
        EXPECT_NE(0, refusal(field, "inf"));
        EXPECT_EQ(3349, refusal(field, infinity));
        EXPECT_EQ(3349, refusal(field, notANumber));
        EXPECT_EQ(3421, refusal(field, QDate(2020, 1, 1)));
        EXPECT_EQ(3421, refusal(field, QByteArray("1")));
    }
}

TEST_F(FieldTypes, DatesAreWallClockSeconds)
{
    const QDateTime moment(QDate(1899, 12, 30), QTime(23, 59, 59), Qt::UTC);
    EXPECT_EQ(Value(moment), kept("DATE", moment));
    EXPECT_EQ(Value(QDate(2024, 2, 29)), kept("DATE", "02/29/2024"));
    EXPECT_EQ(Value(QDate(9999, 12, 31)), kept("DATE", QDate(9999, 12, 31)));
    EXPECT_EQ(3421, refusal("DATE", "02/30/2024"));
    EXPECT_EQ(3421, refusal("DATE", "  /  /  "));
    EXPECT_EQ(3421, refusal("DATE", QDate()));
    EXPECT_EQ(3421, refusal("DATE", 1));
    const QDateTime inZone(QDate(2024, 7, 1), QTime(12, 0, 0, 900), Qt::OffsetFromUTC, 7200);
    EXPECT_EQ(QTime(12, 0), kept("DATE", inZone).toDateTime().time());
    rs.Index("DATE");
    EXPECT_TRUE(rs.Seek("=", moment));
}

TEST_F(FieldTypes, TextsAreNeverCut)
{
    EXPECT_EQ(Value("äöü€ß"), kept("TEXT", "äöü€ß")) << "five characters, eleven bytes";
    EXPECT_EQ(3163, refusal("TEXT", "123456"));
    EXPECT_EQ(Value(" a   "), kept("TEXT", " a   "));
    const QString withNul = QString("a") + QChar(0) + "b";
    EXPECT_EQ(3421, refusal("TEXT", withNul));
    EXPECT_EQ(3421, refusal("MEMO", withNul));
    EXPECT_EQ(3421, refusal("TEXT", QString(QChar(0xD800)))) << "half a character";
    EXPECT_EQ(Value("12.5"), kept("TEXT", 12.5));
    const QString longText = QString("長い文 ").repeated(200'000);
    EXPECT_EQ(Value(longText), kept("MEMO", longText));
    EXPECT_FALSE(kept("TEXT", "").isNull());
    EXPECT_TRUE(kept("TEXT", Value()).isNull());
}

TEST_F(FieldTypes, ZeroLengthAndRequiredAreHeld)
{
    EXPECT_EQ(3315, refusal("NOBLANK", ""));
    EXPECT_EQ(0, refusal("NOBLANK", Value()));
    EXPECT_EQ(3314, refusal("REQUIRED", Value()));
    EXPECT_EQ(Value("start"), kept("REQUIRED", "start"));
    rs.AddNew();
    EXPECT_EQ(Value("start"), rs.fieldNamed("REQUIRED").value()) << "the default";
}

TEST_F(FieldTypes, BytesKeepEveryByteAndTheirSize)
{
    const QByteArray bytes("a\0b", 3);
    EXPECT_EQ(bytes, kept("BINARY", bytes).toBytes());
    EXPECT_EQ(3163, refusal("BINARY", QByteArray("12345")));
    EXPECT_EQ(3421, refusal("BINARY", "text"));
    EXPECT_EQ(QByteArray(16, 'g'), kept("GUID", QByteArray(16, 'g')).toBytes());
    EXPECT_EQ(3421, refusal("GUID", QByteArray(15, 'g')));
}

TEST_F(FieldTypes, KeysThatDoNotFitAreRefusedAndTooLongOnesJustMatchNothing)
{
    rs.Index("DATE");
    EXPECT_EQ(3421, errorOf([&] { rs.Seek("=", "not a day"); }));
    EXPECT_EQ(3265, errorOf([&] { rs.Seek("=", QDate(2020, 1, 1), 2); })) << "too many keys";
    EXPECT_EQ(3265, errorOf([&] { rs.seekKeys("=", {}); }));
    database.TableDefs()["T"].Indexes().Append(CreateIndex("TEXT", {"TEXT"}));
    rs.Index("TEXT");
    EXPECT_FALSE(rs.Seek("=", "longer than the field"));
}

}  // namespace
}  // namespace storage
