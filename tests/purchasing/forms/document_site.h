// A job site with one requisition and one purchase order, and what is on their printed pages.
#pragma once

#include <gtest/gtest.h>

#include "purchasing/forms/form_bodies.h"
#include "screens/report/report_run.h"
#include "tests/support/fixed_system.h"
#include "tests/support/page_text.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/table_rows.h"

inline constexpr int orderTag = 7;
inline constexpr int requisitionTag = 3;

class DocumentSite : public testing::Test
{
protected:
    DocumentSite()
    {
        session.JobSitePath = site.siteFolder();
        session.UserSettingsPath = site.userFolder();
        site.addRow("MAIN.mdb", "COLIST",
                    {{"CONO", 1},
                     {"CONAME", "Vexley Builders"},
                     {"CITY", "Reno"},
                     {"State", "NV"},
                     {"ZIP", "89501"},
                     {"PLUS4", "0142"},
                     {"VOICE", "(   )    -    "}});
        site.addRow("ZORVEX.mdb", "VENDORS",
                    {{"VENTAG", 5},
                     {"VENNO", "V100"},
                     {"Name", "Valley Pipe"},
                     {"PHONE", "(   )    -    "},
                     {"FAX", "(   )    -    "}});
        site.addRow("ZORVEX.mdb", "JOB_NO_DEFAULTS",
                    {{"JNDTAG", 1},
                     {"CONO", 1},
                     {"JOBNO", "4711"},
                     {"ITEM1", 2},
                     {"ITEM2", 1},
                     {"ITEM3", 3},
                     {"ITEM4", 6},
                     {"ITEM5", 7},
                     {"ITEM6", 4}});
        site.addRow("ZORVEX.mdb", "REQLIST",
                    {{"REQTAG", requisitionTag},
                     {"REQNO", 42},
                     {"CONO", 1},
                     {"JOBNO", "4711"},
                     {"VENTAG", 5},
                     {"AMOUNT", 30.0}});
        site.addRow("ZORVEX.mdb", "POLIST",
                    {{"POTAG", orderTag},
                     {"PONO", "PO-1"},
                     {"REQTAG", requisitionTag},
                     {"CONO", 1},
                     {"JOBNO", "4711"},
                     {"VENTAG", 5},
                     {"AMOUNT", 500.0},
                     {"FDATE", "03/01/2026"},
                     {"REIMB", "Y"},
                     {"WHODIDIT", "Pat Poe"}});
        if (site.rowCount("ZORSYS.mdb", "SYSSETTINGS") == 0)
            site.addRow("ZORSYS.mdb", "SYSSETTINGS", {{"JOBNOSIZE", 8}});
    }

    // A line of the order, item and line number alike.
    void addLine(int number, double quantity, const QString& description, double amount = 0,
                 const QString& costCodeA = "1000")
    {
        site.addRow("ZORVEX.mdb", "RQILIST",
                    {{"RQITAG", number},
                     {"POTAG", orderTag},
                     {"POITEMNO", number},
                     {"POLINENO", number},
                     {"QTY", quantity},
                     {"UNIT", "EA"},
                     {"Desc", description},
                     {"UNITPRICE", quantity == 0 ? 0 : amount / quantity},
                     {"AMOUNT", amount},
                     {"COSTCODEA", costCodeA},
                     {"GLCODE", "40-1"}});
    }
    void set(const QString& field, const storage::Value& value)
    {
        site.setFirst("ZORSYS.mdb", "SYSSETTINGS", field, value);
    }
    void setOrder(const QString& field, const storage::Value& value)
    {
        site.setFirst("ZORVEX.mdb", "POLIST", field, value);
    }
    // The texts of the user's buffer, "~" for a blank item.
    QStringList buffered(const QStringList& fields = {"ITEMNO", "TEXTOUT", "AMOUNT"})
    {
        return rowsOf(site, "ZORUSER.mdb", "VEXPRINTBUFFER", fields);
    }
    // All pages as lines.
    static QStringList linesOf(const PageDocument& pages)
    {
        QStringList lines;
        for (int page = 1; page <= pages.pageCount(); ++page)
            lines += linesOn(pages, page);
        return lines;
    }
    static bool has(const PageDocument& pages, int page, const QString& text)
    {
        for (const PlacedText& placed : textsOf(pages, page))
            if (placed.text == text)
                return true;
        return false;
    }

    FixedSystem machine;
    TestInstallation site;
    Session session;
    ScriptedMessages user;
};
