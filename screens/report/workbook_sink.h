// The lines of a list report as rows of a workbook, in the plan's order of columns. Texts are cells
// of text, so that a purchase order number keeps its zeros; what a mask shows as a number is a cell
// of a number, rounded as the mask rounds, so that users can add it up. Heads and totals are rows
// like others, with their caption in the plan's caption column.
//
// The file takes its place when the report has ended whole; a run that was stopped leaves what was
// there. A failure is told once, and the paper goes on without the workbook.
#pragma once

#include <functional>
#include <memory>

#include "screens/report/report_sink.h"

class WorkbookWriter;

class WorkbookSink : public ReportSink
{
public:
    explicit WorkbookSink(const QString& path);
    ~WorkbookSink() override;

    void begin(const ReportPlan& plan) override;
    void head(size_t level, const QString& text) override;
    void line(const ReportCells& cells) override;
    void total(size_t level, const QString& caption, const ReportCells& sums) override;
    void note(const QString& text) override;
    void end(bool isComplete) override;

private:
    void attempt(const std::function<void()>& write);
    void writeRow(const ReportCells& cells, bool bold, const QString& caption = {});

    QString m_path;
    ReportPlan m_plan;
    std::vector<size_t> m_order;
    std::unique_ptr<WorkbookWriter> m_writer;
};
