// A job site with two branches, a series with a subcategory, a bin and a vendor, its user at work
// and allowed to change items: the ground on which items and their catalog are tested.
#pragma once

#include "screens/browse/browse_session.h"
#include "screens/data/data_session.h"
#include "tests/support/fixed_system.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/table_rows.h"

class ItemSite : public testing::Test
{
protected:
    ItemSite()
    {
        session.JobSitePath = site.siteFolder();
        session.UserSettingsPath = site.userFolder();
        session.UserName = TestInstallation::userName;
        session.SiteTag = 1;
        session.UserTag = 1;
        int right = 0;
        for (const char* code : {"INV02", "INC02"})
            site.addRow("ZORNET.mdb", "USERACCESSITEMS",
                        {{"UAITAG", ++right}, {"UAICODE", code}, {"Desc", "Edit"}});
        for (const char* table : {"INVENTORY", "INVCATALOG", "INVPNMASTER", "ILCLIST",
                                  "SERIESCODES", "SUBCATEGORIES", "BINLIST", "VENDORS", "RQILIST"})
            site.emptyTable("ZORVEX.mdb", table);
        site.emptyTable("ZORUSER.mdb", "VEXINVLASTUPDATE");
        for (const int branch : {1, 2})
            add("ILCLIST",
                {{"ILCTAG", branch}, {"ILCCODE", QString::number(branch)}, {"ILCNAME", "Yard"}});
        addGroup(1, 10, 20);
        add("BINLIST", {{"ILCTAG", 1}, {"BINTAG", 30}, {"BINNO", "A1"}, {"BINNAME", "Row A"}});
        add("VENDORS", {{"VENTAG", 40}, {"VENNO", "V1"}, {"Name", "Harbor"}});
    }
    void add(const char* table, TestInstallation::NewRow values) const
    {
        site.addRow("ZORVEX.mdb", table, values);
    }
    // Series "100" with subcategory "STL"; branch 0 is the catalog.
    void addGroup(int ILCTAG, int SERIESTAG, int SUBCATTAG) const
    {
        add("SERIESCODES", {{"ILCTAG", ILCTAG},
                            {"SERIESTAG", SERIESTAG},
                            {"SERIESCODE", "100"},
                            {"SERIESNAME", "Pipe"}});
        add("SUBCATEGORIES", {{"SERIESTAG", SERIESTAG},
                              {"SUBCATTAG", SUBCATTAG},
                              {"SUBCATCODE", "STL"},
                              {"SUBCATNAME", "Steel"}});
    }
    QStringList rows(const char* table, const QStringList& fields) const
    {
        return rowsOf(site, "ZORVEX.mdb", table, fields);
    }

    // What a new item needs.
    static void fill(Entry& entry, const QString& PARTNO)
    {
        entry.setNamed("txtSERIESCODE", "100");
        entry.setNamed("txtSERIESNAME", "Pipe");
        entry.setNamed("txtSUBCATCODE", "stl");
        entry.setNamed("txtSUBCATNAME", "Steel");
        entry.setNamed("txtPARTNO", PARTNO);
    }
    static void type(Entry& entry, const QString& control, const QString& text)
    {
        const int at = entry.indexOf(control);
        entry.setText(at, text);
        entry.leave(at);
    }
    void refuse(DataSession& in, const QString& text)
    {
        user.expect("Cannot Update", "Errors Detected: \n\n" + text);
        EXPECT_FALSE(in.update());
        EXPECT_TRUE(user.allCame()) << text.toStdString();
    }
    template <class Screen>
    static void run(Screen& screen, const QString& name)
    {
        for (const auto& command : screen.spec().commands)
            if (command.name == name)
                return screen.run(command);
        ADD_FAILURE() << name.toStdString();
    }
    void cloneCurrent(BrowseSession& list)
    {
        user.expect("Confirm Clone",
                    "Clone This Item?\n\nNote: Only the Quantities Maximum and Minimum Will be "
                    "Cloned.\nEdit the On Order and Available Quantities as Needed for New Item.",
                    Answer::Yes);
        run(list, "cmdClone");
    }

    FixedSystem system;
    TestInstallation site;
    ScriptedMessages user;
    Session session;
};
