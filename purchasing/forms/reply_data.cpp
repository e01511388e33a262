#include "purchasing/forms/reply_data.h"

#include <QLineEdit>
#include <QPushButton>

#include "core/keyed_access.h"
#include "core/locators.h"
#include "screens/entry/entry_field.h"
#include "screens/small_dialog.h"

namespace {

// The defaults of the pair; no record where it has none.
std::optional<OpenTable> openDefaults(const Session& session, int CONO, const QString& JOBNO)
{
    OpenTable open = openTable(session, "ZORVEX.mdb", "JOB_NO_DEFAULTS");
    if (dnSeek(open.rows, "JOB_NO_DEFAULTS", {{"CONO", CONO}, {"JOBNO", JOBNO}}).isEmpty())
        return {};
    return open;
}

QLineEdit* addLine(SmallDialog& dialog, const QString& caption, const char* name, int length,
                   const QString& text)
{
    auto* line = new QLineEdit(text);
    line->setObjectName(name);
    line->setMaxLength(length);
    dialog.addField(caption, line);
    return line;
}

}  // namespace

ReplyData replyData(const Session& session, int CONO, const QString& JOBNO)
{
    const auto open = openDefaults(session, CONO, JOBNO);
    if (!open)
        return {};
    const storage::Recordset& rows = open->rows;
    return {.to = trimmedTextOf(rows["REPLYTO"]),
            .by = trimmedTextOf(rows["REPLYBY"]),
            .phone = trimmedTextOf(rows["REPLYPHONE"]),
            .fax = trimmedTextOf(rows["REPLYFAX"])};
}

void saveReplyData(const Session& session, int CONO, const QString& JOBNO, const ReplyData& data)
{
    auto open = openDefaults(session, CONO, JOBNO);
    if (!open)
        return;
    storage::Recordset& rows = open->rows;
    rows.Edit();
    rows["REPLYTO"] = data.to;
    rows["REPLYBY"] = data.by;
    rows["REPLYPHONE"] = data.phone;
    rows["REPLYFAX"] = data.fax;
    rows.Update();
}

std::optional<ReplyData> askReplyData(const Session& session, int CONO, const QString& JOBNO)
{
    const ReplyData before = replyData(session, CONO, JOBNO);
    SmallDialog dialog("frmVEXREQ06", "RFQ - Reply To Information");
    dialog.addValue("Company/Job Number:", "lblPair",
                    QString::number(CONO) + '/' + JOBNO.trimmed());
    auto* to = addLine(dialog, "&Reply To:", "txtREPLYTO", 30, before.to);
    const auto* by = addLine(dialog, "Repl&y By:", "txtREPLYBY", 10, before.by);
    const auto* phone = addLine(dialog, "P&hone:", "mebREPLYPHONE", 14, maskedPhone(before.phone));
    const auto* fax = addLine(dialog, "&Fax:", "mebREPLYFAX", 14, maskedPhone(before.fax));
    dialog.enterTakes(dialog.addClosingButton("cmdPrint", "&Print", QDialog::Accepted));
    dialog.escTakes(dialog.addClosingButton("cmdCancel", "&Cancel"));
    to->setFocus();
    if (dialog.exec() != QDialog::Accepted)
        return {};
    const ReplyData data{.to = to->text().trimmed(),
                         .by = by->text().trimmed(),
                         .phone = maskedPhone(phone->text()),
                         .fax = maskedPhone(fax->text())};
    saveReplyData(session, CONO, JOBNO, data);
    return data;
}
