// A site with a company, a job with cost codes, a vendor and an inventory item, for tests of
// requisitions and purchase orders.
#pragma once

#include "core/tag_list.h"
#include "core/user_settings.h"
#include "purchasing/document_kind.h"
#include "tests/support/fixed_system.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/table_rows.h"

inline const QString job = "    4711";
inline const QString otherJob = "    4712";

struct PurchasingSite
{
    PurchasingSite()
    {
        session.JobSitePath = site.siteFolder();
        session.UserSettingsPath = site.userFolder();
        session.UserName = TestInstallation::userName;
        session.SiteTag = 1;
        session.UserTag = 1;
        for (const char* table :
             {"REQLIST", "POLIST", "RQILIST", "INVENTORY", "INVTRANS", "VENDORS", "PAYMENTS",
              "RECEIVED", "ISSUED", "JOB_NO_DEFAULTS", "VEXCOUNTERS", "ILCLIST"})
            site.emptyTable("ZORVEX.mdb", table);
        site.addRow("MAIN.mdb", "COLIST", {{"CONO", 1}, {"CONAME", "Alder"}});
        for (const QString& number : {job, otherJob})
            site.addRow("MAIN.mdb", "JOBLIST",
                        {{"CONO", 1},
                         {"JOBNO", number},
                         {"JOBNAME", "Plant"},
                         {"CCNAMEA", "Phase"},
                         {"CCTYPEA", "C"},
                         {"CCSIZEA", 4}});
        site.addRow("MAIN.mdb", "CCALIST",
                    {{"CONO", 1}, {"JOBNO", job}, {"COSTCODEA", " 100"}, {"GLCODE", "5120"}});
        add("GLCODES", {{"CONO", 1}, {"GLCODE", "5120"}});
        add("GLCODES", {{"CONO", 2}, {"GLCODE", "1"}});
        add("VENDORS", {{"VENTAG", 40}, {"VENNO", "V1"}, {"Name", "Harbor"}});
        add("JOB_NO_DEFAULTS", {{"CONO", 1}, {"JOBNO", job}, {"REQTYPE", "M"}, {"FOB", "Site"}});
        add("VEXCOUNTERS", {{"REQNO", 23}, {"PONO", 7}});
        add("ILCLIST", {{"ILCTAG", 1}, {"ILCCODE", "01"}, {"ILCNAME", "Yard"}});
        add("INVENTORY", {{"ISNTAG", 5},
                          {"ILCTAG", 1},
                          {"PARTNO", "P-1"},
                          {"UOM", "EA"},
                          {"Desc", "Gate valve"},
                          {"RETAIL", 12.5}});
        switchOn("VEXFORMATPONO");
        setUser("CONOPAIR", 1);
        setUser("JOBNOPAIR", job);
    }
    void add(const char* table, TestInstallation::NewRow values) const
    {
        site.addRow("ZORVEX.mdb", table, values);
    }
    void switchOn(const char* setting, bool on = true) const
    {
        site.setFirst("ZORSYS.mdb", "SYSSETTINGS", setting, on);
    }
    void setUser(const char* field, const storage::Value& value) const
    {
        OpenTable settings = site.open("ZORUSER.mdb", "VEXSETTINGS");
        zorSaveUserSetting(settings.rows, 1, field, value);
    }
    QStringList rows(const char* table, const QStringList& fields) const
    {
        return rowsOf(site, "ZORVEX.mdb", table, fields);
    }
    // Requisition 23 of the job, tag 10, with lines of these tags from 100 on: 2 x 10.00 each, the
    // second a text line where there is one, the third of the inventory item.
    void addRequisition(int lines) const
    {
        add("REQLIST", {{"REQTAG", 10},
                        {"REQNO", 23},
                        {"REQTYPE", "M"},
                        {"CONO", 1},
                        {"JOBNO", job},
                        {"VENTAG", 40},
                        {"PONO", "4711M0002301"},
                        {"FDATE", "03/07/2026"},
                        {"LDATE", "20260307"},
                        {"INTEND", "Pump house"}});
        for (int line = 1; line <= lines; ++line)
            add("RQILIST", {{"RQITAG", 99 + line},
                            {"REQTAG", 10},
                            {"POTAG", 0},
                            {"REQLINENO", line},
                            {"REQITEMNO", line},
                            {"POLINENO", 0},
                            {"POITEMNO", 0},
                            {"ILCTAG", line == 3 ? 1 : 0},
                            {"ISNTAG", line == 3 ? 5 : 0},
                            {"QTY", line == 2 ? 0 : 2},
                            {"UNITPRICE", line == 2 ? 0 : 10},
                            {"AMOUNT", line == 2 ? 0 : 20},
                            {"COSTCODEA", " 100"},
                            {"Desc", QString("Line %1").arg(line)}});
    }
    void markLine(const DocumentKind& kind, int docTag, int RQITAG) const
    {
        OpenTable marks = site.open("ZORUSER.mdb", "TAGLIST");
        zorTagListSet(marks.rows, kind.code, docTag, lineMarks, RQITAG);
    }

    FixedSystem system;
    TestInstallation site;
    ScriptedMessages user;
    Session session;
};
