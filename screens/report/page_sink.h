// The lines of a list report on paper: title, column heads and foot on every page, rows of cells,
// totals. Between the run's dnReportBegin and dnReportEnd.
#pragma once

#include "screens/report/report_page.h"
#include "screens/report/report_sink.h"

class PageSink : public ReportSink
{
public:
    explicit PageSink(PageDocument& pages) : m_pages(pages) {}

    void begin(const ReportPlan& plan) override;
    void head(size_t level, const QString& text) override;
    void line(const ReportCells& cells) override;
    void total(size_t level, const QString& caption, const ReportCells& sums) override;
    void note(const QString& text) override;
    void end(bool isComplete) override;

private:
    void beginPage();
    void makeRoom(int depth);
    int bottom() const;
    QStringList textsOfCells(const ReportCells& cells) const;
    int depthOf(const QStringList& texts) const;
    void drawLine(QStringList texts);
    void drawPart(const QStringList& texts, int depth);
    void drawTotal(const QString& caption, const ReportCells& sums);

    PageDocument& m_pages;
    ReportPlan m_plan;
    std::vector<int> m_widths;
    int m_left = 0;
    int m_width = 0;
    int m_y = 0;
    QStringList m_heads;  // of the levels that are open
    ReportCells m_pageSums;
};

// What columns of these widths take: landscape where an upright page has no room for them.
QString orientationFor(const PageDocument& pages, int width);

// The widths as they are, or all narrowed alike where they need more than `room`.
std::vector<int> fittedWidths(std::vector<int> widths, int room);

// The masked text of a cell.
QString cellText(const storage::Value& value, const QString& mask);
