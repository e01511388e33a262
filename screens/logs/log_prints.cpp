#include "screens/logs/log_prints.h"

#include "core/keyed_access.h"
#include "core/number_format.h"
#include "multiuser/run_log.h"
#include "screens/report/report_page.h"
#include "screens/report/report_run.h"

namespace {

constexpr char fontOfLogs[] = "Arial";
constexpr double titleSize = 16;
constexpr double lineSize = 10;
constexpr int topOfTitle = 600;
constexpr int headingHeight = 250;
constexpr int belowHeading = 60;
constexpr int belowLine = 40;
constexpr int bottomReserve = 1200;  // the foot strip, and a little air above it

struct LogPrint
{
    QString title;
    QString heading;
    QString emptyText;
};

// The page of a log's print that is being filled.
class LogPage
{
public:
    LogPage(PageDocument& pages, const LogPrint& print) : m_pages(pages), m_print(print) {}

    void begin()
    {
        PageDocument& pages = m_pages;
        beginPlain();
        pages.setFont(fontOfLogs, titleSize);
        pages.style.alignment = TextAlignment::Centre;
        pages.writeWrapping(m_print.title);
        pages.setFont(fontOfLogs, lineSize);
        pages.style.alignment = TextAlignment::Right;
        pages.setPosition(pages.margins.left, pages.y());
        pages.writeWrapping("Printing Page: " + dnFormat(pages.currentPage(), "####"));
        pages.style.alignment = TextAlignment::Left;
        const int top = pages.y() + belowLine;
        dnReportColumnHead(pages, {pages.margins.left, top, width(), headingHeight},
                           m_print.heading, TextAlignment::Left);
        pages.setPosition(pages.margins.left, top + headingHeight + belowHeading);
    }

    // A line whole, in as many as it takes; on the next page where this one has no room for it.
    void add(const QString& line)
    {
        PageDocument& pages = m_pages;
        const auto lines = wrappedLines(line, pages.style.font, width()).size();
        const int depth = static_cast<int>(lines) * pages.heightOfLine();
        if (pages.y() + depth > pages.pageHeight() - bottomReserve) {
            pages.newPage();
            begin();
        }
        pages.writeWrapping(line);
        pages.setPosition(pages.margins.left, pages.y() + belowLine);
    }

    void sayEmpty()
    {
        beginPlain();
        m_pages.writeText(m_print.emptyText);
    }

private:
    int width() const { return m_pages.pageWidth() - m_pages.margins.left - m_pages.margins.right; }

    void beginPlain()
    {
        dnReportPageFoot(m_pages, {.reportName = m_print.title});
        m_pages.setFont(fontOfLogs, lineSize);
        m_pages.setPosition(m_pages.margins.left, topOfTitle);
    }

    PageDocument& m_pages;
    const LogPrint& m_print;
};

void printLog(ReportRun& run, RunLog& log, const LogPrint& print)
{
    if (!dnReportBegin(run, "P"))
        return;
    run.showStatus("Now Printing...");
    LogPage page(run.pages, print);
    if (log.isEmpty()) {
        page.sayEmpty();
    } else {
        storage::Recordset& rows = log.rows();
        run.expectRows(rows.RecordCount());
        page.begin();
        for (rows.MoveFirst(); !rows.EOF(); rows.MoveNext()) {
            page.add(dnNullCheck(rows["REMARK"]).toString());
            if (!run.proceed())
                break;
        }
    }
    dnReportEnd(run);
}

template <class Log>
ReportSpec logPrint(const QString& name, const QString& caption, const LogPrint& print)
{
    return {.name = name, .caption = caption, .print = [print](ReportRun& run) {
                Log log(run.session().UserSettingsPath);
                printLog(run, log, print);
            }};
}

}  // namespace

ReportSpec frmZORERRLOG02(const QString& word)
{
    return logPrint<ErrorLog>("frmZORERRLOG02", "Print " + word + " Error Log",
                              {.title = word + " Error Log",
                               .heading = "Error Message",
                               .emptyText = "Error Log is Empty."});
}

ReportSpec frmZORPRINTACT()
{
    return logPrint<ActivityLog>(
        "frmZORPRINTACT", "Print Activity Log",
        {.title = "Activity", .heading = "Activity", .emptyText = "Activity Log is Empty."});
}
