// Counts what a reader keeps of a workbook, so that a small hostile file cannot fill the memory.
#pragma once

#include "screens/report/workbook/workbook_reader.h"

struct WorkbookTooLarge
{
};

// Each call throws WorkbookTooLarge when its limit is passed, before or soon after the memory is
// taken.
class WorkbookRoom
{
public:
    explicit WorkbookRoom(const WorkbookLimits& limits) : m_left(limits) {}

    void take(qint64 bytes) { takeFrom(m_left.keptBytes, bytes); }
    void takeCells(qint64 count)
    {
        takeFrom(m_left.cells, count);
        take(count * qint64(sizeof(storage::Value)));
    }
    void takeSheet() { takeFrom(m_left.sheets, 1); }
    void takeForm() { takeFrom(m_left.forms, 1); }
    // The text's characters beside the cell or the list that it stands in.
    const QString& takeText(const QString& text)
    {
        constexpr qint64 headOfText = 32;
        if (!text.isEmpty())
            take(headOfText + text.size() * qint64(sizeof(QChar)));
        return text;
    }

private:
    static void takeFrom(qint64& left, qint64 count)
    {
        left -= count;
        if (left < 0)
            throw WorkbookTooLarge();
    }

    WorkbookLimits m_left;
};
