#include <gtest/gtest.h>

#include "core/schema/files.h"
#include "tests/tools/demo_site.h"
#include "tests/tools/vexsite_run.h"
#include "tools/demo/random.h"
#include "tools/installation.h"

namespace {

using storage::Recordset;

// The first place where the tables differ, blank for none.
QString differenceIn(Recordset one, Recordset two)
{
    if (one.RecordCount() != two.RecordCount())
        return QString("%1: %2 and %3 rows")
            .arg(one.Name())
            .arg(one.RecordCount())
            .arg(two.RecordCount());
    if (one.RecordCount() == 0)
        return {};
    const auto fields = static_cast<int>(one.definition().fields.size());
    one.MoveFirst();
    two.MoveFirst();
    for (int row = 0; !one.EOF(); ++row, one.MoveNext(), two.MoveNext())
        for (int field = 0; field < fields; ++field)
            if (!(one.Fields(field).value() == two.Fields(field).value()))
                return QString("%1.%2 in row %3")
                    .arg(one.Name(), one.Fields(field).Name())
                    .arg(row);
    return {};
}

QString differenceOf(const DemoSite& one, const DemoSite& two)
{
    for (const schema::File& file : schema::files)
        if (file.place == schema::Place::JobSite)
            for (const schema::Table* table : file.tables) {
                const QString name = toText(table->name);
                const QString difference = differenceIn(one.open(toText(file.name), name),
                                                        two.open(toText(file.name), name));
                if (!difference.isEmpty())
                    return difference;
            }
    return {};
}

TEST(Demo, IsTheSameForTheSameSeedAndAnotherForAnother)
{
    const DemoSite one(7);
    const DemoSite same(7);
    EXPECT_EQ(differenceOf(one, same).toStdString(), "");
    const DemoSite another(8);
    EXPECT_NE(differenceOf(one, another), QString());
    EXPECT_NE(differenceIn(one.open("RQILIST"), another.open("RQILIST")), QString());
    EXPECT_NE(differenceIn(one.open("VENDORS"), another.open("VENDORS")), QString());
}

// The generator's numbers are the data: another library, compiler or machine must give the same.
TEST(Demo, DrawsTheNumbersItAlwaysDrew)
{
    demo::Random random(1, "test");
    EXPECT_EQ(random.next(), 13269936418901539353ULL);
    EXPECT_EQ(random.below(1000), 35);
    EXPECT_EQ(random.price(1.5, 99.99), 84.23);
}

TEST(Demo, HasWhatItsPlanAsksFor)
{
    const DemoSite site(3);
    const auto count = [&](const char* table) { return site.open(table).RecordCount(); };
    EXPECT_EQ(count("RQILIST"), site.plan().lines);
    EXPECT_EQ(count("INVENTORY"), site.plan().items);
    EXPECT_EQ(count("VENDORS"), site.plan().vendors);
    EXPECT_EQ(site.open("MAIN.mdb", "COLIST").RecordCount(), 2);
    EXPECT_EQ(site.open("MAIN.mdb", "JOBLIST").RecordCount(), site.plan().jobs);
    for (const char* table :
         {"GLCODES",         "MCLIST",        "TERMSCODES",    "INVCODES",      "REQTYPES",
          "SHIPTOITEMS",     "SHIPVIAITEMS",  "WHODIDITITEMS", "PONOTETEXT",    "RSTLIST",
          "JOB_NO_DEFAULTS", "MANUFACTURERS", "RECEIVED",      "PAYMENTS",      "APINVOICES",
          "APIITEMS",        "PROSTATUS",     "PSCOMMENTS",    "INVCATALOG",    "INVPNMASTER",
          "ILCLIST",         "BINLIST",       "SERIESCODES",   "SUBCATEGORIES", "MIRITEMS",
          "MRRITEMS",        "MTRITEMS",      "PIITEMS",       "INVADJLIST"})
        EXPECT_GT(count(table), 0) << table;
    EXPECT_EQ(vexsite({"check", site.folder()}).exitCode, 0);
}

TEST(Demo, IsMadeByTheCommandWithItsUsers)
{
    const QTemporaryDir folder;
    const VexsiteRun made = vexsite({"demo", folder.filePath("demo"), "--user", "pat"});
    ASSERT_EQ(made.exitCode, 0) << qPrintable(made.errors);
    EXPECT_EQ(vexsite({"check", folder.filePath("demo")}).exitCode, 0);
    EXPECT_EQ(vexsite({"demo", folder.filePath("demo")}).exitCode, 1);
}

}  // namespace
