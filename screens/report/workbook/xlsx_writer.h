// A workbook as `.xlsx`.
#pragma once

#include <xlsxwriter.h>

#include "screens/report/workbook/workbook_writer.h"

class XlsxWriter : public WorkbookWriter
{
public:
    explicit XlsxWriter(const QString& file);
    ~XlsxWriter() override;

    void finish() override;

protected:
    void addSheet(const QString& name, const std::vector<double>& widths) override;
    void addRow(int row, const WorkbookRow& cells, bool bold) override;

private:
    void addEscapedText(const QString& text, lxw_row_t row, lxw_col_t column, lxw_format* format);
    void addText(const QString& text, lxw_row_t row, lxw_col_t column, bool bold);
    lxw_format* makeFormat(bool bold, bool isText);
    void check(lxw_error error) const;
    void checkWhole() const;

    QString m_file;
    QString m_temporary;  // beside the file, until it is whole
    lxw_workbook* m_workbook;
    lxw_worksheet* m_sheet = nullptr;
    int m_sheetCount = 0;
    qint64 m_cellCount = 0;
    lxw_format* m_plain;
    lxw_format* m_text;
    lxw_format* m_bold;
    lxw_format* m_boldText;
};
