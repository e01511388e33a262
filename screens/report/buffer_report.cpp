#include "screens/report/buffer_report.h"

#include "core/zap.h"

ReportWalk bufferWalk(ReportBuffer buffer)
{
    return [buffer = std::move(buffer)](ReportRun& run, ReportLines& lines) {
        OpenTable open =
            emptiedTable(folderOf(run.session(), buffer.file), buffer.file, buffer.table);
        run.showStatus(buffer.status);
        run.expectRows(0);
        if (!buffer.fill(run, open))
            return;
        run.showStatus({});
        open = openTable(run.session(), buffer.file, buffer.table);
        storage::Recordset& rows = open.rows;
        rows.Index(buffer.index);
        run.expectRows(rows.RecordCount());
        for (bool more = rows.RecordCount() > 0 && rows.MoveFirst(); more; more = rows.MoveNext())
            if (!lines.add({.cells = buffer.cells(run, rows)}))
                return;
    };
}
