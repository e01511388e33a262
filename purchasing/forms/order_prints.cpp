#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/number_format.h"
#include "core/system.h"
#include "purchasing/document_marks.h"
#include "purchasing/forms/addendum.h"
#include "purchasing/forms/addendum_drawing.h"
#include "purchasing/forms/document_prints.h"
#include "purchasing/forms/form_bodies.h"
#include "purchasing/forms/form_drawing.h"
#include "purchasing/forms/order_print.h"
#include "purchasing/forms/print_choices.h"
#include "screens/command_runner.h"
#include "screens/search/order_searches.h"

namespace {

constexpr char noTextFound[] = "<No Text Found>";

int pageRoom(const ReportRun& run)
{
    return run.pages.pageWidth() - run.pages.margins.left - run.pages.margins.right;
}

// Of the first line of the order.
QString firstCostCodeA(const Session& session, qint32 POTAG)
{
    QString code;
    OpenTable lines = openTable(session, "ZORVEX.mdb", "RQILIST");
    forEachWithin(lines.rows, purchaseOrders.items, {{"POTAG", POTAG}}, [&] {
        code = trimmedTextOf(lines.rows["COSTCODEA"]);
        return false;
    });
    return code;
}

bool hasAddendum(OrderForm form)
{
    return form == OrderForm::Standard || form == OrderForm::Inventory;
}

bool printAddendum(ReportRun& run, OrderForm form, qint32 POTAG, const FormDocument& document)
{
    const auto addendum = addendumOf(run.session(), POTAG);
    if (addendum)
        return drawAddendum(run, addendum->heading(), "Purchase Order " + document.number,
                            addendum->text);
    if (form == OrderForm::Inventory && !hasAddenda(run.session()))
        showCritical("NO NOTE TEXT FOUND",
                     "Purchase Order Note Text has NOT Been Entered Yet. Table is Empty.");
    else
        showCritical("Cannot Find PO Addendum Text",
                     "PO Addendum Text has NOT Been Entered or the Default Selection has NOT Been "
                     "Set.");
    return true;
}

FormBody bodyOf(const FormSource& source, OrderForm form)
{
    switch (form) {
        case OrderForm::Inventory:
            return inventoryBody(source);
        case OrderForm::Payment:
        case OrderForm::Receiving:
            return receiptsBody(source, form == OrderForm::Payment);
        case OrderForm::Issues:
            return issuesBody(source);
        case OrderForm::Status:
            return statusBody(source);
        case OrderForm::Billing:
            return billingBody(source, source.document.invoiceNumber);
        case OrderForm::Standard:
            break;
    }
    return linesBody(source, purchaseOrders);
}

bool totalsItsBody(OrderForm form)
{
    return form == OrderForm::Payment || form == OrderForm::Receiving || form == OrderForm::Issues;
}

bool printDocument(ReportRun& run, OrderForm form, const FormSettings& settings,
                   FormDocument& document, qint32 POTAG)
{
    const Form layout = orderForm(form, settings, document);
    const FormBody body = bodyOf({.session = run.session(),
                                  .settings = settings,
                                  .document = document,
                                  .tag = POTAG,
                                  .width = descriptionLength(layout, pageRoom(run)),
                                  .proceed = [&run] { return run.proceed(); }},
                                 form);
    if (run.isCancelled())
        return false;
    body.buffer.store(run.session());
    if (totalsItsBody(form))
        document.total = dnFormat(body.amount, "###,###,###.00");
    return drawForm(run, layout, document, body.buffer.rows(), body.totals);
}

bool printBillings(ReportRun& run, const FormSettings& settings, FormDocument& document,
                   qint32 POTAG)
{
    for (const QString& INVNO : markedInvoices(run.session())) {
        document.invoiceNumber = INVNO;
        document.vendorInvoices = vendorInvoicesUpTo(run.session(), POTAG, INVNO);
        if (!printDocument(run, OrderForm::Billing, settings, document, POTAG))
            return false;
    }
    return true;
}

}  // namespace

bool printOrder(ReportRun& run, OrderForm form, const FormSettings& settings, qint32 POTAG)
{
    OpenTable orders = openTable(run.session(), "ZORVEX.mdb", "POLIST");
    if (dnSeek(orders.rows, "POTAG", {{"POTAG", POTAG}}).isEmpty()) {
        showCritical("Cannot Find PO",
                     "Cannot Find Target Purchase Order Tag: " + QString::number(POTAG));
        return true;
    }
    FormDocument document = orderDocument(run.session(), orders.rows);
    run.showStatus("Now Printing PO Number: " + document.number);
    run.pages.addToName("PO " + document.number);
    setNumbers(document, settings,
               settings.printsGroupA ? firstCostCodeA(run.session(), POTAG) : QString());
    if (form == OrderForm::Status || form == OrderForm::Billing)
        document.orderDate =
            std::exchange(document.date, System::current().now().toString("MM/dd/yyyy"));
    if (form == OrderForm::Billing)
        return printBillings(run, settings, document, POTAG);
    if (!printDocument(run, form, settings, document, POTAG))
        return false;
    return !settings.hasAddendum || !hasAddendum(form) || printAddendum(run, form, POTAG, document);
}

namespace {

// False when the user wants nothing of this order.
bool chooseParts(const Session& session, OrderForm form, qint32 POTAG)
{
    const bool isBilling = form == OrderForm::Billing;
    if (!isBilling && form != OrderForm::Payment && form != OrderForm::Receiving)
        return true;
    OpenTable orders = openTable(session, "ZORVEX.mdb", "POLIST");
    if (dnSeek(orders.rows, "POTAG", {{"POTAG", POTAG}}).isEmpty())
        return true;
    return choosePrint(session, isBilling ? invoiceChoice : receiptChoice, POTAG,
                       trimmedTextOf(orders.rows["PONO"])) &&
           (!isBilling || !markedInvoices(session).isEmpty());
}

void printOrders(ReportRun& run, OrderForm form, qint32 POTAG)
{
    std::vector<qint32> tags = markedDocuments(run.session(), purchaseOrders);
    if (tags.empty())
        tags = {POTAG};
    const FormSettings settings = formSettings(run.session());
    // The user's tables hold the choice for one order; what was printed stays until there is one.
    bool isBegun = false;
    for (const qint32 tag : tags) {
        if (!chooseParts(run.session(), form, tag))
            continue;
        if (!isBegun && !dnReportBegin(run, "P"))
            return;
        isBegun = true;
        if (!printOrder(run, form, settings, tag))
            break;
    }
    dnReportEnd(run);
}

// ---- the addendum's title above the forms, with the command that chooses another text
QWidget* addendumControl(const Session& session, qint32 POTAG, const std::function<void()>& changed)
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* title = new QLabel;
    title->setObjectName("lblPONTITLE");
    title->setTextFormat(Qt::PlainText);
    auto* change = new QPushButton("&Change Text");
    change->setObjectName("cmdChangeText");
    change->setAutoDefault(true);
    layout->addWidget(title, 1);
    layout->addWidget(change);
    const auto show = [session, POTAG, title] {
        runCommand([&] {
            const auto addendum = addendumOf(session, POTAG);
            title->setText(addendum ? addendum->heading() : QString(noTextFound));
        });
    };
    show();
    onPressed(change, [session, POTAG, show, changed] {
        setAddendum(session, POTAG, zorSearchAddendum(session.JobSitePath));
        show();
        changed();
    });
    return row;
}

}  // namespace

ReportSpec frmVEXPO04(qint32 POTAG)
{
    const auto option = [POTAG](OrderForm form, Qt::Key key, const char* caption) {
        return ReportBegin{
            .name = "cmdPOPRINTOPT",
            .caption = caption,
            .print = [form, POTAG](ReportRun& run) { printOrders(run, form, POTAG); },
            .key = key};
    };
    return {
        .name = "frmVEXPO04",
        .caption = "Report Viewer - Purchase Orders",
        .fields = {{.kind = ReportField::Kind::Own,
                    .name = "fraAddendum",
                    .caption = "PO Addendum Text:",
                    .make =
                        [POTAG](ReportSelection&, const Session& session,
                                const std::function<void()>& changed) {
                            return addendumControl(session, POTAG, changed);
                        }}},
        .begins = {option(OrderForm::Standard, Qt::Key_1, "&1 - PO Form - Standard"),
                   option(OrderForm::Inventory, Qt::Key_2, "&2 - PO Form - Inventory"),
                   option(OrderForm::Payment, Qt::Key_3, "&3 - Authorization for Payment"),
                   option(OrderForm::Receiving, Qt::Key_4, "&4 - Material Receiving Report"),
                   option(OrderForm::Status, Qt::Key_5, "&5 - Purchase Order Status"),
                   option(OrderForm::Billing, Qt::Key_6, "&6 - Billing Status")},
        .finishedText = "Report Ready to Print",
    };
}
