// A program that is killed in the middle of changing a document loses none of its lines.
#include <gtest/gtest.h>

#include <QProcess>
#include <QThread>

#include "core/locators.h"
#include "purchasing/document_lines.h"
#include "tests/purchasing/purchasing_site.h"

namespace {

constexpr int lineCount = 60;
constexpr int kills = 12;

class KilledChanges : public testing::Test, protected PurchasingSite
{
protected:
    // Lets the program change documents, and kills it a while after it was done with the first one;
    // the tags that it told.
    QList<int> changeAndKill(const QString& what, int milliseconds) const
    {
        QProcess changer;
        changer.start(DOCUMENT_CHANGER_PROGRAM, {site.siteFolder(), site.userFolder(), what});
        EXPECT_TRUE(changer.waitForReadyRead(60'000));
        QThread::msleep(static_cast<unsigned long>(milliseconds));
        changer.kill();
        EXPECT_TRUE(changer.waitForFinished(60'000));
        EXPECT_EQ(changer.exitStatus(), QProcess::CrashExit);
        EXPECT_EQ(changer.readAllStandardError().constData(), std::string());
        QList<int> tags;
        for (const QByteArray& line : changer.readAllStandardOutput().split('\n'))
            if (!line.isEmpty())
                tags.append(line.toInt());
        return tags;
    }
    struct Line
    {
        int tag;
        int lineNo;
        QString Desc;
    };
    QList<Line> linesOf(const DocumentKind& kind, int docTag) const
    {
        QList<Line> lines;
        OpenTable open = site.open("ZORVEX.mdb", "RQILIST");
        forEachLine(open.rows, kind, docTag, [&] {
            lines.append({intOf(open.rows["RQITAG"]), intOf(open.rows[kind.lineNo]),
                          trimmedTextOf(open.rows["Desc"])});
            return true;
        });
        return lines;
    }
};

TEST_F(KilledChanges, OfAnInsertionLeaveTheDocumentAsItWasOrAsItBecame)
{
    addRequisition(lineCount);
    QList<int> told;
    int before = lineCount;
    for (int kill = 0; kill < kills; ++kill) {
        told += changeAndKill("insert", kill);
        const QList<Line> lines = linesOf(requisitions, 10);
        QList<int> blank;
        int next = 1;
        int original = 1;
        for (const Line& line : lines) {
            EXPECT_EQ(line.lineNo, next++);
            if (line.tag >= 100 && line.tag < 100 + lineCount)
                EXPECT_EQ(line.Desc, QString("Line %1").arg(original++)) << "in their order";
            else
                blank.append(line.tag);
        }
        ASSERT_EQ(original, lineCount + 1) << "kill " << kill;
        for (const int tag : told)
            EXPECT_EQ(blank.count(tag), 1) << tag;
        EXPECT_GE(lines.size(), before);
        before = static_cast<int>(lines.size());
    }
}

TEST_F(KilledChanges, OfACloneLeaveItsSourceAndWholeLinesUnderAHead)
{
    add("POLIST", {{"POTAG", 70}, {"REQTAG", 0}, {"PONO", "X-1"}, {"AMOUNT", 5}});
    for (int line = 1; line <= lineCount; ++line)
        add("RQILIST", {{"RQITAG", 99 + line},
                        {"REQTAG", 0},
                        {"POTAG", 70},
                        {"POLINENO", line},
                        {"POITEMNO", line},
                        {"Desc", QString("Line %1").arg(line)}});
    for (int kill = 0; kill < kills; ++kill) {
        const QList<int> told = changeAndKill("clone", 3 * kill);
        for (const int tag : told)
            EXPECT_EQ(linesOf(purchaseOrders, tag).size(), lineCount) << tag;
        QSet<int> heads;
        for (const QString& POTAG : rows("POLIST", {"POTAG"}))
            heads.insert(POTAG.toInt());
        EXPECT_GE(heads.size(), told.size() + 1);
        QSet<int> tags;
        const QStringList all = rows("RQILIST", {"RQITAG", "POTAG", "POLINENO", "Desc"});
        for (const QString& row : all) {
            const QStringList cells = row.split('|');
            tags.insert(cells[0].toInt());
            EXPECT_TRUE(heads.contains(cells[1].toInt())) << row.toStdString();
            EXPECT_EQ(cells[3], "Line " + cells[2]);
        }
        EXPECT_EQ(tags.size(), all.size()) << "no tag twice";
        ASSERT_EQ(linesOf(purchaseOrders, 70).size(), lineCount);
        // The next one begins with the numbers of the first anew.
        OpenTable orders = site.open("ZORVEX.mdb", "POLIST");
        orders.rows.Index("POTAG");
        for (const int POTAG : heads)
            if (POTAG != 70 && orders.rows.Seek("=", POTAG))
                orders.rows.Delete();
        OpenTable lines = site.open("ZORVEX.mdb", "RQILIST");
        lines.workspace.BeginTrans();
        for (bool more = lines.rows.MoveFirst(); more; more = lines.rows.MoveNext())
            if (intOf(lines.rows["POTAG"]) != 70)
                lines.rows.Delete();
        lines.workspace.CommitTrans();
    }
}

}  // namespace
