#include "purchasing/document_dialogs.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/text.h"
#include "inventory/item_codes.h"
#include "inventory/item_vendor.h"
#include "screens/field_keys.h"
#include "screens/search/order_searches.h"
#include "screens/search/search_window.h"
#include "screens/search_field.h"
#include "screens/selectors/job_selector.h"
#include "screens/selectors/look_up_field.h"
#include "screens/small_dialog.h"

namespace {

QLineEdit* textEdit(const char* name, int length, bool digitsOnly)
{
    auto* edit = new QLineEdit;
    edit->setObjectName(name);
    edit->setMaxLength(length);
    FieldKeys keys{.upperCase = !digitsOnly, .keepEnter = true};
    if (digitsOnly)
        keys.numbers = NumberKeys::Digits;
    setFieldKeys(*edit, keys);
    return edit;
}

// The keys that no field of the dialog has taken.
class OptionKeys : public QObject
{
public:
    explicit OptionKeys(QButtonGroup* options) : QObject(options), m_options(options) {}
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        QAbstractButton* option = m_options->button(key->key() - Qt::Key_1);
        if (!option || key->modifiers() & ~Qt::KeypadModifier)
            return false;
        option->setChecked(true);
        option->setFocus(Qt::ShortcutFocusReason);
        return true;
    }

private:
    QButtonGroup* m_options;
};

// The options one below the other, the one of `present` chosen; the arrow keys move, and each has
// its number, which is in its caption, for a key.
QButtonGroup* addOptions(SmallDialog& dialog, const QStringList& captions, int present)
{
    auto* group = new QButtonGroup(&dialog);
    for (int i = 0; i < captions.size(); ++i) {
        auto* option = new QRadioButton(captions[i]);
        option->setObjectName("optOption" + QString::number(i + 1));
        group->addButton(option, i);
        dialog.addAcross(option);
        if (i == present)
            option->setChecked(true);
    }
    dialog.installEventFilter(new OptionKeys(group));
    group->button(std::max(present, 0))->setFocus();
    return group;
}

}  // namespace

std::optional<QString> askText(const TextQuestion& question)
{
    SmallDialog dialog(question.screen, question.caption);
    if (!question.notice.isEmpty())
        dialog.addText("lblNotice", question.notice);
    QLineEdit* edit = textEdit(question.control, question.length, question.digitsOnly);
    edit->setText(question.initial);
    if (question.search)
        dialog.addField(question.label, new SearchField(edit, question.search));
    else
        dialog.addField(question.label, edit);
    dialog.enterTakes(dialog.addButton("cmdOK", "&OK", [&] {
        if (!question.accepts || question.accepts(edit->text().trimmed().toUpper()))
            return dialog.accept();
        edit->setFocus();
        edit->selectAll();
    }));
    dialog.escTakes(dialog.addClosingButton("cmdCancel", "&Cancel"));
    edit->setFocus();
    edit->selectAll();
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return edit->text().trimmed().toUpper();
}

qint32 searchRequisitions(const Session& session, int CONO, const QString& JOBNO)
{
    const QString found =
        dnSearch({.DBPath = session.JobSitePath,
                  .TableName = "REQLIST",
                  .IndexList = "REQLIST",
                  .WindowTitle = "Search Material Requisitions",
                  .SearchTitle = "Requisitions for Co.: " + QString::number(CONO) +
                                 " and Job: " + JOBNO.trimmed(),
                  .FieldList = "REQNO|LDATE|INTEND",
                  .TypeList = "N00000|C|C",
                  .LengthList = "5|8|70",
                  .HeadingList = "Req. #|Date|Intended Use",
                  .WidthList = "900|1200|6000",
                  .AlignList = "0|0|0",
                  .keys = {{"CONO", CONO}, {"JOBNO", JOBNO}},
                  .ScreenName = "frmVEXREQ05",
                  .EndOfList = "  End of List",
                  .ListIsEmpty = "  List is Empty",
                  .hasLongNumbers = true});
    OpenTable documents = openTable(session, "ZORVEX.mdb", "REQLIST");
    return goToFound(documents.rows, found) ? intOf(documents.rows["REQTAG"]) : 0;
}

std::function<QString()> requisitionNumberSearch(const Session& session, int CONO,
                                                 const QString& JOBNO)
{
    return [session, CONO, JOBNO]() -> QString {
        const qint32 tag = searchRequisitions(session, CONO, JOBNO);
        OpenTable documents = openTable(session, "ZORVEX.mdb", "REQLIST");
        documents.rows.Index("REQTAG");
        return tag != 0 && documents.rows.Seek("=", tag)
                   ? shownRequisitionNumber(intOf(documents.rows["REQNO"]))
                   : QString();
    };
}

std::function<QString()> orderNumberSearch(const Session& session)
{
    return [session]() -> QString {
        OpenTable orders = openTable(session, "ZORVEX.mdb", "POLIST");
        return goToFound(orders.rows, zorSearchPO(session.JobSitePath))
                   ? trimmedTextOf(orders.rows["PONO"])
                   : QString();
    };
}

std::optional<StatusChoice> chooseStatus(const DocumentKind& kind, const StatusChoice& present)
{
    const QStringList statuses =
        kind.isOrder() ? QStringList{"Open", "Issued", "Closed", "Urgent", "Critical", "Voided"}
                       : QStringList{"Open", "Closed", "Voided", "Submitted", "RFQ Sent"};
    const QString status = present.status.trimmed();
    QStringList captions;
    for (int i = 0; i < statuses.size(); ++i)
        captions.append('&' + QString::number(i + 1) + " - " + statuses[i]);
    SmallDialog dialog(kind.isOrder() ? "frmVEXPO06" : "frmVEXREQ07",
                       kind.isOrder() ? "PO Status" : "Requisition Status");
    QButtonGroup* group = addOptions(
        dialog, captions, status.isEmpty() ? 0 : static_cast<int>(statuses.indexOf(status)));
    auto* colors = new QCheckBox("&Use Colors");
    colors->setObjectName("ckbUseColors");
    colors->setChecked(present.usesColors);
    dialog.addAcross(colors);
    QPushButton* ok = dialog.addClosingButton("cmdOK", "&OK", QDialog::Accepted);
    ok->setDefault(true);
    dialog.escTakes(dialog.addClosingButton("cmdCancel", "&Cancel"));
    if (dialog.exec() != QDialog::Accepted)
        return {};
    const int chosen = group->checkedId();
    return StatusChoice{chosen < 0 ? status : statuses[chosen], colors->isChecked()};
}

std::optional<DocumentFilter> chooseFilter(const Session& session, const DocumentKind& kind,
                                           const DocumentFilter& present)
{
    SmallDialog dialog("frmVEXREQ12",
                       kind.isOrder() ? "PO Filter Options" : "Requisition Filter Options");
    QButtonGroup* group = addOptions(
        dialog, {"&1 - No Filter", "&2 - Filter by Company/Job Number", "&3 - Filter by Vendor"},
        static_cast<int>(present.option) - 1);
    auto* job = new tqCoJobNumber;
    job->setDBPath(session.JobSitePath);
    job->setCoNumber(present.CONO);
    job->setJobNo(present.JOBNO.trimmed());
    QObject::connect(job, &Selector::entered, &dialog, [job] { job->setActive(true); });
    QObject::connect(job, &Selector::left, &dialog, [job] { job->setActive(false); });
    dialog.addAcross(job);
    LookUpField* vendor = vendorLookUp(session);
    if (const auto row = codeRowAt(session.JobSitePath, vendorCodes, present.VENTAG))
        vendor->setCode(row->code);
    dialog.addField("&Vendor Number:", vendor);
    const auto showFields = [group, job, vendor] {
        job->setEnabled(group->checkedId() == 1);
        vendor->setEnabled(group->checkedId() == 2);
    };
    QObject::connect(group, &QButtonGroup::idToggled, &dialog, showFields);
    showFields();
    DocumentFilter filter;
    QPushButton* ok = dialog.addButton("cmdOK", "&OK", [&] {
        filter = {.option = static_cast<DocumentFilter::Option>(group->checkedId() + 1),
                  .CONO = present.CONO,
                  .JOBNO = present.JOBNO,
                  .VENTAG = present.VENTAG};
        if (filter.option == DocumentFilter::Option::Job) {
            job->checkTyped();
            if (!job->IsValid()) {
                showCritical("Filter Error", "Select a Valid Company/Job Number Pair.");
                return job->setFocus();
            }
            filter.CONO = job->CoNumber();
            filter.JOBNO = job->JobNo();
        } else if (filter.option == DocumentFilter::Option::Vendor) {
            const auto row = codeRow(session.JobSitePath, vendorCodes, 0, vendor->code());
            if (!row) {
                showCritical("Filter Error", "Cannot Find Vendor Number: " + vendor->code());
                return vendor->edit().setFocus();
            }
            filter.VENTAG = row->tag;
        }
        dialog.accept();
    });
    ok->setDefault(true);
    dialog.escTakes(dialog.addClosingButton("cmdCancel", "&Cancel"));
    return dialog.exec() == QDialog::Accepted ? std::optional(filter) : std::nullopt;
}

std::optional<QString> confirmOrderNumber(const OrderProposal& proposal)
{
    SmallDialog dialog("frmVEXREQ09", "Confirm New Purchase Order Number");
    dialog.addValue("Job Number:", "lblJOBNO", proposal.JOBNO);
    dialog.addValue("Requisition Number:", "lblREQNO", shownRequisitionNumber(proposal.REQNO));
    dialog.addValue("Requisition Type:", "lblREQTYPE", proposal.REQTYPE);
    if (proposal.source == NumberSource::Counter)
        dialog.addValue("PO Base No.:", "lblPONO", proposal.PONO);
    QLineEdit* edit = textEdit("txtPONO", 16, false);
    edit->setText(proposal.PONO);
    dialog.addField("&PO Number:", edit);
    dialog.enterTakes(dialog.addButton("cmdOK", "&OK", [&] {
        if (!dnIsBlank(edit->text()))
            return dialog.accept();
        showCritical("Cannot Create PO", "PO Number is Blank.");
        edit->setFocus();
    }));
    dialog.escTakes(dialog.addClosingButton("cmdCancel", "&Cancel"));
    edit->setFocus();
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return edit->text().trimmed().toUpper();
}

QWidget* newFrmVEXCNTRS(const Session& session)
{
    auto* dialog = new SmallDialog("frmVEXCNTRS", "Requisition and PO Number Counters");
    struct Counter
    {
        const char* caption;
        const char* control;
        schema::FieldName field;
        int most;  // of a requisition five digits, of an order what a Long holds
    };
    static constexpr Counter counters[] = {
        {"Next &Requisition Number:", "txtREQNO", "REQNO", 99'999},
        {"Next &PO Number:", "txtPONO", "PONO", 999'999'999}};
    OpenTable open = openTable(session, "ZORVEX.mdb", "VEXCOUNTERS");
    const bool hasRow = open.rows.RecordCount() > 0;
    std::vector<QLineEdit*> edits;
    for (const Counter& counter : counters) {
        QLineEdit* edit = textEdit(counter.control, 9, true);
        edit->setText(QString::number(hasRow ? intOf(open.rows[counter.field]) : 1));
        dialog->addField(counter.caption, edit);
        edits.push_back(edit);
    }
    dialog->enterTakes(dialog->addButton("cmdUpdate", "&Update", [dialog, session, edits] {
        for (size_t i = 0; i < edits.size(); ++i) {
            const int typed = edits[i]->text().trimmed().toInt();
            if (typed < 1 || typed > counters[i].most) {
                showCritical("Cannot Update", "Invalid Number. Value Must Be Between 1 - " +
                                                  QString::number(counters[i].most));
                return edits[i]->setFocus();
            }
        }
        OpenTable table = openTable(session, "ZORVEX.mdb", "VEXCOUNTERS");
        if (table.rows.RecordCount() == 0) {
            table.rows.AddNew();
        } else {
            table.rows.MoveFirst();
            table.rows.Edit();
        }
        for (size_t i = 0; i < edits.size(); ++i)
            table.rows[counters[i].field] = edits[i]->text().trimmed().toInt();
        table.rows.Update();
        dialog->accept();
    }));
    dialog->escTakes(dialog->addClosingButton("cmdCancel", "&Cancel"));
    edits.front()->setFocus();
    return dialog;
}
