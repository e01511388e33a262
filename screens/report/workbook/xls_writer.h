// A workbook as `.xls`: BIFF8 records in the stream "Workbook" of a compound file.
#pragma once

#include "screens/report/workbook/biff_records.h"
#include "screens/report/workbook/workbook_writer.h"

class XlsWriter : public WorkbookWriter
{
public:
    explicit XlsWriter(const QString& file);

    void finish() override;

protected:
    void addSheet(const QString& name, const std::vector<double>& widths) override;
    void addRow(int row, const WorkbookRow& cells, bool bold) override;

private:
    // Kept until the end, because the texts of all sheets stand before the first.
    struct Sheet
    {
        QString name;
        std::vector<double> widths;
        BiffStream cells;
        int rowCount = 0;
        int columnCount = 0;
    };

    void addText(const QString& text, quint16 row, quint16 column, bool bold);
    BiffStream globals() const;
    BiffStream sheetHead(const Sheet& sheet) const;
    BiffStream sheetTail(bool isFirst) const;
    QByteArray workbookStream() const;

    QString m_file;
    std::vector<Sheet> m_sheets;
    SharedTexts m_texts;
    qsizetype m_cellBytes = 0;
};
