#include "core/keyed_access.h"

#include <gtest/gtest.h>

#include "core/stamps.h"
#include "core/storage/storage_error.h"
#include "core/tag_list.h"
#include "core/tags.h"
#include "core/zap.h"
#include "tests/support/fixed_system.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/test_installation.h"

namespace {

using storage::Value;

class KeyedAccess : public testing::Test
{
protected:
    void addJob(int company, const QString& number, const QString& name) const
    {
        site.addRow("MAIN.mdb", "JOBLIST",
                    {{"CONO", company}, {"JOBNO", number}, {"JOBNAME", name}});
    }
    QString nameAt(storage::Recordset& rs, const QString& bookmark) const
    {
        if (bookmark.trimmed().isEmpty())
            return bookmark;
        rs.Bookmark(bookmark);
        return textOf(rs["JOBNAME"]);
    }

    TestInstallation site;
    ScriptedMessages user;
};

TEST_F(KeyedAccess, FindsOnlyARecordThatIsEqualInFull)
{
    addJob(1, "    ABC", "first");
    addJob(1, "   ABCD", "second");
    addJob(2, "    ABC", "other company");
    OpenTable jobs = site.open("MAIN.mdb", "JOBLIST");
    const auto seek = [&](int company, const QString& number) {
        return nameAt(jobs.rows,
                      dnSeek(jobs.rows, "JOBLIST", {{"CONO", company}, {"JOBNO", number}}));
    };
    EXPECT_EQ(seek(1, "    ABC"), "first");
    EXPECT_EQ(seek(2, "    ABC"), "other company");
    EXPECT_EQ(seek(1, "    abc"), "") << "the index is case-blind, the lookup is not";
    EXPECT_EQ(seek(1, "    AB"), "") << "the same start is not enough";
    EXPECT_EQ(seek(1, "    ABCX"), "") << "at or after lands on the next company's record";
    EXPECT_EQ(seek(3, "    ABC"), "") << "past the last record";
    EXPECT_EQ(nameAt(jobs.rows, dnSeek(jobs.rows, "JOBLIST", {{"CONO", 2}})), "other company");
}

TEST_F(KeyedAccess, TellsOfAnIndexThatIsNotThere)
{
    OpenTable jobs = site.open("MAIN.mdb", "JOBLIST");
    user.expect("Error", "Error: dnSeek Function NOSUCH");
    EXPECT_EQ(dnSeek(jobs.rows, "NOSUCH", {{"CONO", 1}}), "");
}

TEST_F(KeyedAccess, ReadsNullsAsTheProgramTakesThem)
{
    site.addRow("MAIN.mdb", "JOBLIST", {{"CONO", 7}});
    OpenTable jobs = site.open("MAIN.mdb", "JOBLIST");
    jobs.rows.MoveFirst();
    EXPECT_EQ(dnNullCheck(jobs.rows["JOBNO"]), Value(QString(8, ' ')));
    EXPECT_EQ(dnNullCheck(jobs.rows["CCSIZEA"]), Value(0));
    EXPECT_EQ(dnNullCheck(jobs.rows["TAXCOST"]), Value(0.0));
    EXPECT_EQ(dnNullCheck(jobs.rows["VERIFYCC"]), Value(false));
    EXPECT_EQ(intOf(jobs.rows["CONO"]), 7);
}

TEST_F(KeyedAccess, SaysWhichFieldCouldNotBeRead)
{
    OpenTable jobs = site.open("MAIN.mdb", "JOBLIST");
    user.expect("dn NullCheck Error",
                "Error Encountered In Function: dnNullCheck() Field: CONO\n"
                "Error Number: 3021\nError: No current record.");
    EXPECT_TRUE(dnNullCheck(jobs.rows["CONO"]).isNull());
}

TEST_F(KeyedAccess, StandsWithinTheParentAfterADeletion)
{
    for (const char* name : {"a", "b", "c"})
        addJob(1, name, name);
    addJob(2, "d", "d");
    OpenTable jobs = site.open("MAIN.mdb", "JOBLIST");
    const std::vector<KeyField> company = {{"CONO", 1}};
    jobs.rows.Index("JOBLIST");
    const auto next = [&](const QString& number, int of) {
        const QString bookmark = dnSeek(jobs.rows, "JOBLIST", {{"CONO", of}, {"JOBNO", number}});
        return nameAt(jobs.rows, dnNextBookmark(jobs.rows, bookmark, {{"CONO", of}}));
    };
    EXPECT_EQ(next("a", 1), "b");
    EXPECT_EQ(next("c", 1), "b") << "the last one leaves the one before";
    EXPECT_EQ(next("d", 2), noBookmark) << "the only one leaves nothing";
    jobs.rows.MoveLast();
    jobs.rows.MoveNext();
    EXPECT_FALSE(dnInbounds(jobs.rows, company)) << "past the end is within nothing";

    // An index keeps texts that differ in case together, so that a walk must not end at one.
    const QString mixed = dnSeek(jobs.rows, "JOBLIST", {{"CONO", 1}, {"JOBNO", "b"}});
    EXPECT_NE(mixed, "");
    EXPECT_TRUE(dnInbounds(jobs.rows, {{"CONO", 1}, {"JOBNO", "B"}}));
    EXPECT_FALSE(dnInbounds(jobs.rows, {{"CONO", 1}, {"JOBNO", "BB"}}));
}

class Tags : public KeyedAccess
{
protected:
    qint32 draw(qint32 siteTag) const
    {
        return dnGetNewTag(site.siteFolder(), "REQTAG", "ZORVEX.mdb", "VEXTAGS", siteTag);
    }
    int counter() const { return site.first("ZORVEX.mdb", "VEXTAGS", "REQTAG").toInt(); }
};

TEST_F(Tags, StartAtOneAndAreNeverGivenTwice)
{
    EXPECT_EQ(draw(0), 1);
    EXPECT_EQ(counter(), 2);
    EXPECT_EQ(draw(3), 3'000'002);
    site.setFirst("ZORVEX.mdb", "VEXTAGS", "REQTAG", Value());
    EXPECT_EQ(draw(0), 1) << "a null counter was never used";
    EXPECT_EQ(counter(), 2);
    EXPECT_EQ(draw(2146), 2'146'000'002);
    EXPECT_EQ(dnGetNewTag(site.siteFolder(), "UDSTAG", {}, {}, 0), 1) << "SYSTAGS of MAIN.mdb";
    EXPECT_EQ(dnGetNewTag(" ", "DBTAG", "DBPATHS.mdb", "DBTAGS", 0), 2) << "beside the program";
}

TEST_F(Tags, FailWithABoxAndLeaveTheCounter)
{
    ASSERT_EQ(draw(0), 1);
    user.expect("Error: dnGetNewTag", "Attempt to Assign New Tag Number Failed.\nOverflow");
    EXPECT_EQ(draw(2148), 0);
    EXPECT_EQ(counter(), 2);
    site.removeFile("ZORVEX.mdb");
    user.expect("Error: dnGetNewTag",
                "Attempt to Assign New Tag Number Failed.\nCould not find file '" +
                    site.pathOf("ZORVEX.mdb") + "'.");
    EXPECT_EQ(draw(0), 0);
}

class Zap : public KeyedAccess
{
protected:
    // A work table with a unique index and three rows.
    void fill() const
    {
        for (int i = 1; i <= 3; ++i)
            site.addRow("ZORUSER.mdb", "DELJOBLIST", {{"CONO", i}, {"JOBNO", "A"}});
    }
    bool zap(OpenTable& work) const { return dnZap(site.userFolder(), "ZORUSER.mdb", work.rows); }
    bool refusesDoubles() const
    {
        site.addRow("ZORUSER.mdb", "DELJOBLIST", {{"CONO", 9}, {"JOBNO", "A"}});
        try {
            site.addRow("ZORUSER.mdb", "DELJOBLIST", {{"CONO", 9}, {"JOBNO", "A"}});
        } catch (const storage::StorageError& error) {
            return error.errorNumber() == storage::ErrorNumber::DuplicateKey;
        }
        return false;
    }
};

TEST_F(Zap, MakesTheTableAnewWithoutItsUniqueAttribute)
{
    fill();
    OpenTable work = site.open("ZORUSER.mdb", "DELJOBLIST");
    EXPECT_TRUE(zap(work));
    EXPECT_FALSE(work.rows.isOpen());
    EXPECT_EQ(site.rowCount("ZORUSER.mdb", "DELJOBLIST"), 0);
    const OpenTable again = site.open("ZORUSER.mdb", "DELJOBLIST");
    EXPECT_EQ(again.rows.definition().indexes.size(),
              storage::definitionOf(schema::DELJOBLIST).indexes.size());
    EXPECT_FALSE(refusesDoubles());
}

TEST_F(Zap, DeletesRowByRowWhereTheMarkerLies)
{
    fill();
    site.makeMarker(site.userFolder(), "NOZAP.txt");
    OpenTable work = site.open("ZORUSER.mdb", "DELJOBLIST");
    EXPECT_TRUE(zap(work));
    EXPECT_FALSE(work.rows.isOpen());
    EXPECT_EQ(site.rowCount("ZORUSER.mdb", "DELJOBLIST"), 0);
    EXPECT_TRUE(refusesDoubles());
}

TEST_F(Zap, LeavesAnEmptyTableOpen)
{
    OpenTable work = site.open("ZORUSER.mdb", "DELJOBLIST");
    EXPECT_TRUE(zap(work));
    EXPECT_TRUE(work.rows.isOpen());
}

TEST_F(Zap, GivesAWorkTableOpenAndEmptyWhateverWasInIt)
{
    const auto addTo = [&](OpenTable table) {
        EXPECT_EQ(table.rows.RecordCount(), 0);
        table.rows.AddNew();
        table.rows["CONO"] = 7;
        table.rows.Update();
    };
    const auto emptied = [&] {
        return emptiedTable(site.userFolder(), "ZORUSER.mdb", "DELJOBLIST");
    };
    addTo(emptied());
    addTo(emptied());
    site.makeMarker(site.userFolder(), "NOZAP.txt");
    addTo(emptied());
    EXPECT_EQ(site.rowCount("ZORUSER.mdb", "DELJOBLIST"), 1);
    EXPECT_THROW(emptiedTable(site.userFolder(), "ZORUSER.mdb", "NOSUCH"), storage::StorageError);
}

TEST_F(KeyedAccess, StampsWhoAddedAndWhoChanged)
{
    FixedSystem machine("pat", QDateTime(QDate(2026, 3, 7), QTime(9, 5, 42)));
    site.addRow("ZORVEX.mdb", "REQLIST", {{"REQTAG", 1}, {"REQNO", 5}});
    OpenTable requisitions = site.open("ZORVEX.mdb", "REQLIST");
    const QString bookmark = requisitions.rows.Bookmark();
    zorStampAdd(requisitions.rows, bookmark, " pat ");
    UpdateHistory history = updateHistoryOf(requisitions.rows, bookmark);
    EXPECT_EQ(history.created.userName, "pat");
    EXPECT_EQ(history.created.date, "03/07/2026");
    EXPECT_EQ(history.created.time, "9:05 AM");
    EXPECT_EQ(history.lastUpdated.userName, "<Empty>");

    machine.setNow(QDateTime(QDate(2026, 3, 8), QTime(12, 30, 1)));
    zorStampEdit(requisitions.rows, bookmark, "chris");
    history = updateHistoryOf(requisitions.rows, bookmark);
    EXPECT_EQ(history.created.userName, "pat");
    EXPECT_EQ(history.lastUpdated.userName, "chris");
    EXPECT_EQ(history.lastUpdated.time, "12:30 PM");
}

TEST_F(KeyedAccess, KnowsTheMarkedRowsOfADocument)
{
    site.addRow("ZORUSER.mdb", "TAGLIST",
                {{"DOCCODE", "PO "}, {"DOCTAG", 4}, {"ITEMCODE", "RQI"}, {"ITEMTAG", 17}});
    OpenTable marks = site.open("ZORUSER.mdb", "TAGLIST");
    EXPECT_TRUE(zorTagListCheck(marks.rows, "PO ", 4, "RQI", 17));
    EXPECT_FALSE(zorTagListCheck(marks.rows, "PO ", 4, "RQI", 18));
    EXPECT_FALSE(zorTagListCheck(marks.rows, "PO ", 4, "RQI", 0));
    QString bookmark;
    EXPECT_FALSE(zorTagListFind(marks.rows, "PO ", 4, "RQI", &bookmark)) << "one is marked";
    EXPECT_FALSE(bookmark.isEmpty());
    EXPECT_TRUE(zorTagListFind(marks.rows, "PO ", 5, "RQI", &bookmark)) << "none is marked";
    EXPECT_TRUE(bookmark.isEmpty());
}

TEST_F(KeyedAccess, MarksRowsOnceAndTakesTheMarksOfOneDocumentAway)
{
    OpenTable marks = site.open("ZORUSER.mdb", "TAGLIST");
    for (const int item : {9, 3, 9, 0})
        zorTagListSet(marks.rows, "PO ", 4, "RQI", item, "4-1");
    zorTagListSet(marks.rows, "PO ", 5, "RQI", 1);
    zorTagListSet(marks.rows, "PO ", 4, "PAY", 2);
    EXPECT_EQ(zorTagListItems(marks.rows, "PO ", 4, "RQI"), (std::vector<qint32>{3, 9}));
    zorTagListUnset(marks.rows, "PO ", 4, "RQI", 3);
    EXPECT_EQ(zorTagListItems(marks.rows, "PO ", 4, "RQI"), std::vector<qint32>{9});
    zorTagListSet(marks.rows, "PO ", 4, "RQI", 3);
    zorTagListClear(marks.rows, "PO ", 4, "RQI");
    EXPECT_EQ(site.rowCount("ZORUSER.mdb", "TAGLIST"), 2) << "other documents and kinds stay";
}

}  // namespace
