// Writes a workbook row by row. The file appears, or takes the place of the one that was there, at
// `finish` and whole; a writer that goes before leaves everything as it was.
//
// A text is written as a cell of text, which stays text whatever it looks like: a purchase order
// number keeps its zeros. Numbers are cells of numbers. Null and numbers that are not finite leave
// a cell empty, dates are written as the text that the program shows. Texts are cut at 32,767
// characters and lose control characters other than line ends and tabs.
//
// What fails is thrown as a WorkbookError, with a text for the user.
#pragma once

#include <QString>
#include <memory>
#include <set>
#include <vector>

#include "core/storage/value.h"
#include "screens/report/workbook/workbook_error.h"

using WorkbookRow = std::vector<storage::Value>;

class WorkbookWriter
{
public:
    virtual ~WorkbookWriter() = default;

    // Before rows are written. `name` becomes one that sheets may have. `widths` are in characters;
    // 0 or none: the usual width. The head rows are bold, and stand again on each sheet on which
    // the rows go on when one is full.
    void beginSheet(const QString& name, const std::vector<double>& widths = {},
                    std::vector<WorkbookRow> headRows = {});
    void writeRow(const WorkbookRow& row, bool bold = false);
    // Nothing may be written after it.
    virtual void finish() = 0;

protected:
    WorkbookWriter(int maxRows, int maxColumns) : m_maxRows(maxRows), m_maxColumns(maxColumns) {}

    virtual void addSheet(const QString& name, const std::vector<double>& widths) = 0;
    // Rows come in order. The texts in it are as the sender gave them.
    virtual void addRow(int row, const WorkbookRow& cells, bool bold) = 0;

private:
    void startSheet();
    QString freeName();

    int m_maxRows;
    int m_maxColumns;
    QString m_name;
    std::vector<double> m_widths;
    std::vector<WorkbookRow> m_headRows;
    std::set<QString> m_usedNames;  // in small letters
    int m_nextRow = 0;
};

// A workbook in the form that the name ends in: ".xlsx", otherwise ".xls". `path` is a path as the
// files keep them.
std::unique_ptr<WorkbookWriter> createWorkbook(const QString& path);

// The text as cells hold it.
QString workbookText(const QString& text);
