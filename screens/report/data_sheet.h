// Data sheets: a record's fields on paper, each with its label before it. A sheet begins a new
// page, or where several share one the next part of it that has the room.
#pragma once

#include "core/storage/workspace.h"
#include "screens/report/report_run.h"

struct SheetLine
{
    QString label;        // such as "Vendor Number:"; blank: the value alone, across
    QString value;        // a '\n' parts lines; what is too wide goes on below
    bool isHead = false;  // a grey band with the label alone
};

struct SheetHead
{
    QString reportName;  // of the foot, and the title of each page
    QString moduleName = "Vexley Module";
    QStringList headingLines = {};
    bool ownPages = true;  // each sheet begins a page
};

class DataSheets
{
public:
    // Begins the document. `isOpen` is false when none can be made, which a box has told.
    DataSheets(ReportRun& run, SheetHead head);
    // Ends it.
    ~DataSheets();
    DataSheets(const DataSheets&) = delete;
    DataSheets& operator=(const DataSheets&) = delete;

    bool isOpen() const { return m_isOpen; }
    // A record's sheet; a blank value is a blank line after its label. False when the run is to
    // stop.
    bool add(const std::vector<SheetLine>& lines);

private:
    void beginPage();
    int depthOf(const SheetLine& line) const;
    void draw(const SheetLine& line);
    int valueLeft() const;
    int valueWidth() const;
    int bottom() const;

    ReportRun& m_run;
    SheetHead m_head;
    int m_failuresBefore;
    bool m_isOpen;
    bool m_isPageBegun = false;
    int m_y = 0;
};

// City, state and zip code of an address record in one line, such as "Reno, NV 89501-0142".
QString placeLine(const storage::Recordset& rows);
