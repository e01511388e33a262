// What a report's walk gives its lines to, each once. The paper and the workbook of a report are
// two sinks on one walk, so that they cannot differ in what they hold.
#pragma once

#include <QList>
#include <QStringList>
#include <vector>

#include "core/storage/value.h"

// The cells of a line, one for each column of the plan. Text, or a number that the column's mask
// shows; null leaves a cell empty.
using ReportCells = std::vector<storage::Value>;

struct ReportColumn
{
    // On paper a '\n' begins a further row of the head. In a workbook, which has two head rows
    // always, what stands before the first '\n' is the upper cell and the rest the lower one; a
    // heading without it is the lower cell alone.
    QString heading;
    int width = 0;      // twips on paper; 0: in the workbook only
    QString mask = {};  // of a number; blank: text
    bool isCentred = false;
    bool wraps = false;            // a long text takes further lines; otherwise it is cut
    QString workbookHeading = {};  // blank: as on paper
    QString workbookMask = {};     // blank: as on paper
    bool isInWorkbook = true;
    bool isTotalled = false;  // numbers are added up for every level and for the report
};

// A long heading for a narrow column of paper: its last word stands below the others.
inline QString headingInTwoRows(QString heading)
{
    const qsizetype blank = heading.lastIndexOf(' ');
    return blank > 0 ? heading.replace(blank, 1, '\n') : heading;
}

// A level of total. A line whose key of this level or of one further out differs from the line
// before it closes the level with its total.
struct ReportLevel
{
    QString totalCaption;  // such as "G/L Number Subtotal:"; blank: no total line
    bool hasHead = false;  // the level begins with a head line
};

// What is fixed of a report when it begins.
struct ReportPlan
{
    QString moduleName = "Vexley Module";
    QString title;
    QStringList headingLines = {};
    QString pageCaption = {};  // "Printing Page: " writes the page's number below the title
    QString orientation = {};  // "P" or "L"; blank: landscape when the columns need it
    std::vector<ReportColumn> columns;
    std::vector<ReportLevel> levels = {};    // the outermost first
    QString reportTotalCaption = {};         // blank: no total
    QString pageTotalCaption = {};           // on paper only; blank: no totals of pages
    int captionColumn = 0;                   // of the captions of totals in the workbook
    QString emptyText = "No Items Found";    // when no line was shown
    int firstPage = 1;                       // the number of the first page
    std::vector<size_t> workbookOrder = {};  // columns in their order there; empty: as on paper
};

// A method for each kind of line. All calls come between begin and end; a new page of paper is the
// page sink's own affair. What a sink cannot do it throws as its own failure.
class ReportSink
{
public:
    virtual ~ReportSink() = default;

    virtual void begin(const ReportPlan& plan) = 0;
    // A level begins; it goes on until a head or total of the same level or one further out.
    virtual void head(size_t level, const QString& text) = 0;
    virtual void line(const ReportCells& cells) = 0;
    // The sums of a level, in the totalled columns; the others are null. `level` is the number of
    // levels for the total of the report.
    virtual void total(size_t level, const QString& caption, const ReportCells& sums) = 0;
    // A text across the line, such as "No Items Found".
    virtual void note(const QString& text) = 0;
    virtual void end(bool isComplete) = 0;
};
