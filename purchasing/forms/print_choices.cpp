#include "purchasing/forms/print_choices.h"

#include <QCheckBox>
#include <QListWidget>
#include <QPushButton>

#include "core/keyed_access.h"
#include "core/zap.h"
#include "screens/small_dialog.h"

const PrintChoice receiptChoice = {
    .name = "frmVEXREC03",
    .caption = "Print Material Receiving Report(s)",
    .buffer = "VEXRECPRTBUF",
    .instruction = "",
    .none = "No Receiving Detail to Print",
    .hasSelectAll = true,
    .table = "RECEIVED",
    .byOrder = "RECPO",
    .fields = {"DATEREC", "LDATEREC", "REFTEXT"},
    .shown = {"DATEREC", "REFTEXT"},
    .takesBlank = true,
};

const PrintChoice invoiceChoice = {
    .name = "frmVEXPAY04",
    .caption = "Print Billing Status Report",
    .buffer = "VEXBSRPRTBUF",
    .instruction =
        "Click on a check box to select the Target Invoice Number.  Note: Payment items with an "
        "invoice number that has a value LOWER than the Target Invoice Number will show up in the "
        "'Prior' column. Payment items with an invoice number that has a value HIGHER than the "
        "Target Invoice Number will NOT be included in the report.",
    .none = "No Invoices Found",
    .hasSelectAll = false,
    .table = "PAYMENTS",
    .byOrder = "PAYPO",
    .fields = {"INVNO"},
    .shown = {"INVNO"},
    .takesBlank = false,
};

namespace {

QString shownRow(const storage::Recordset& row, const PrintChoice& choice)
{
    QStringList texts;
    for (const char* field : choice.shown)
        texts.append(trimmedTextOf(row.fieldNamed(field)));
    return texts.join("   ").trimmed();
}

}  // namespace

QStringList fillPrintChoice(const Session& session, const PrintChoice& choice, qint32 POTAG)
{
    OpenTable buffer = emptiedTable(session.UserSettingsPath, "ZORUSER.mdb", choice.buffer);
    OpenTable source = openTable(session, "ZORVEX.mdb", choice.table);
    QStringList texts;
    std::optional<QString> last;
    forEachWithin(source.rows, choice.byOrder, {{"POTAG", POTAG}}, [&] {
        const QString key = trimmedTextOf(source.rows.fieldNamed(choice.fields.front()));
        if (key == last || (key.isEmpty() && !choice.takesBlank))
            return true;
        last = key;
        buffer.rows.AddNew();
        for (const char* field : choice.fields)
            buffer.rows.fieldNamed(field) = source.rows.fieldNamed(field).value();
        buffer.rows["PRINTME"] = false;
        buffer.rows.Update();
        texts.append(shownRow(source.rows, choice));
        return true;
    });
    return texts;
}

void markPrintChoice(const Session& session, const PrintChoice& choice, const QList<int>& rows)
{
    OpenTable buffer = openTable(session, "ZORUSER.mdb", choice.buffer);
    int at = 0;
    forEachWithin(buffer.rows, {}, {}, [&] {
        buffer.rows.Edit();
        buffer.rows["PRINTME"] = rows.contains(at++);
        buffer.rows.Update();
        return true;
    });
}

bool choosePrint(const Session& session, const PrintChoice& choice, qint32 POTAG,
                 const QString& PONO)
{
    const QStringList texts = fillPrintChoice(session, choice, POTAG);
    SmallDialog dialog(choice.name, choice.caption);
    dialog.addValue("Purchase Order Number:", "lblPONO", PONO);
    if (*choice.instruction)
        dialog.addText("lblInstruction", choice.instruction);
    if (texts.isEmpty())
        dialog.addText("lblNone", choice.none);
    auto* list = new QListWidget;
    list->setObjectName("lstChoices");
    for (const QString& text : texts) {
        auto* item = new QListWidgetItem(text, list);
        item->setCheckState(Qt::Unchecked);
    }
    list->setVisible(!texts.isEmpty());
    if (!texts.isEmpty()) {
        list->setCurrentRow(0);
        dialog.addAcross(list);
    }
    if (choice.hasSelectAll && !texts.isEmpty())
        dialog.addButton("cmdSelectAll", "Select &All", [list] {
            for (int i = 0; i < list->count(); ++i)
                list->item(i)->setCheckState(Qt::Checked);
        });
    if (!texts.isEmpty())
        dialog.enterTakes(dialog.addClosingButton("cmdPrint", "&Print", QDialog::Accepted));
    dialog.escTakes(dialog.addClosingButton("cmdCancel", "&Cancel"));
    if (!texts.isEmpty())
        list->setFocus();
    if (dialog.exec() != QDialog::Accepted)
        return false;
    QList<int> chosen;
    for (int i = 0; i < list->count(); ++i)
        if (list->item(i)->checkState() == Qt::Checked)
            chosen.append(i);
    markPrintChoice(session, choice, chosen);
    return true;
}
