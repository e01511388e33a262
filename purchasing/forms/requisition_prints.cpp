#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "purchasing/document_marks.h"
#include "purchasing/forms/document_prints.h"
#include "purchasing/forms/form_bodies.h"
#include "purchasing/forms/form_drawing.h"
#include "purchasing/forms/reply_data.h"

namespace {

std::vector<qint32> tagsToPrint(const Session& session, qint32 REQTAG)
{
    const std::vector<qint32> marked = markedDocuments(session, requisitions);
    return marked.empty() ? std::vector<qint32>{REQTAG} : marked;
}

// The open table on the requisition; nothing, after a box, where there is none.
std::optional<OpenTable> findRequisition(const Session& session, qint32 REQTAG)
{
    OpenTable open = openTable(session, "ZORVEX.mdb", "REQLIST");
    if (!dnSeek(open.rows, "REQTAG", {{"REQTAG", REQTAG}}).isEmpty())
        return open;
    showCritical("Cannot Find Requisition Tag",
                 "Warning: Cannot Find Req. Tag Number: " + QString::number(REQTAG) +
                     "\nYou may need to Compact and Repair Database.");
    return {};
}

bool draw(ReportRun& run, const Form& form, const FormSettings& settings,
          const FormDocument& document, qint32 REQTAG)
{
    const PageMargins& margins = run.pages.margins;
    const int room = run.pages.pageWidth() - margins.left - margins.right;
    const FormBody body = linesBody({.session = run.session(),
                                     .settings = settings,
                                     .document = document,
                                     .tag = REQTAG,
                                     .width = descriptionLength(form, room),
                                     .proceed = [&run] { return run.proceed(); }},
                                    requisitions);
    if (run.isCancelled())
        return false;
    body.buffer.store(run.session());
    return drawForm(run, form, document, body.buffer.rows());
}

void tellProgress(ReportRun& run, const FormDocument& document)
{
    run.showStatus("Now Printing Requisition Number: " + document.requisitionNumber);
    run.pages.addToName("Requisition " + document.requisitionNumber);
}

void printRequisitions(ReportRun& run, qint32 REQTAG)
{
    const FormSettings settings = formSettings(run.session());
    if (!dnReportBegin(run, "P"))
        return;
    for (const qint32 tag : tagsToPrint(run.session(), REQTAG)) {
        const auto open = findRequisition(run.session(), tag);
        if (!open)
            continue;
        const FormDocument document = requisitionDocument(run.session(), open->rows);
        tellProgress(run, document);
        if (!draw(run, requisitionForm(settings, document), settings, document, tag))
            break;
    }
    dnReportEnd(run);
}

// ---- requests for quotation
struct Quotation
{
    qint32 REQTAG;
    FormDocument document;
};

// The reply data is asked once for each pair, before anything is printed. Nothing when the user has
// cancelled.
std::vector<Quotation> quotations(const Session& session, qint32 REQTAG)
{
    std::vector<Quotation> found;
    std::map<std::pair<int, QString>, ReplyData> replies;
    for (const qint32 tag : tagsToPrint(session, REQTAG)) {
        const auto open = findRequisition(session, tag);
        if (!open)
            continue;
        FormDocument document = requisitionDocument(session, open->rows);
        const std::pair pair(document.CONO, document.JOBNO);
        if (!replies.contains(pair)) {
            const auto asked = askReplyData(session, document.CONO, document.JOBNO);
            if (!asked)
                return {};
            replies[pair] = *asked;
        }
        const ReplyData& reply = replies[pair];
        document.replyTo = reply.to;
        document.replyBy = reply.by;
        document.replyPhone = printedPhone(reply.phone);
        document.replyFax = printedPhone(reply.fax);
        document.total.clear();
        found.push_back({tag, document});
    }
    return found;
}

void printQuotations(ReportRun& run, qint32 REQTAG)
{
    const std::vector<Quotation> wanted = quotations(run.session(), REQTAG);
    const FormSettings settings = formSettings(run.session());
    if (wanted.empty() || !dnReportBegin(run, "P"))
        return;
    for (const Quotation& one : wanted) {
        tellProgress(run, one.document);
        if (!draw(run, quotationForm(settings, one.document), settings, one.document, one.REQTAG))
            break;
        setRequisitionStatus(run.session(), one.REQTAG, "RFQ Sent");
    }
    dnReportEnd(run);
}

// The letterhead is that of the requisition's company.
void printBlank(ReportRun& run, qint32 REQTAG)
{
    OpenTable open = openTable(run.session(), "ZORVEX.mdb", "REQLIST");
    const bool hasCompany = !dnSeek(open.rows, "REQTAG", {{"REQTAG", REQTAG}}).isEmpty();
    const FormDocument document =
        blankDocument(run.session(), hasCompany ? intOf(open.rows["CONO"]) : 0);
    if (!dnReportBegin(run, "P"))
        return;
    drawForm(run, requisitionForm(formSettings(run.session()), document), document, {});
    dnReportEnd(run);
}

}  // namespace

ReportSpec frmVEXREQ04(qint32 REQTAG)
{
    const auto begin = [REQTAG](const char* name, const char* caption, auto print) {
        return ReportBegin{.name = name,
                           .caption = caption,
                           .print = [REQTAG, print](ReportRun& run) { print(run, REQTAG); }};
    };
    return {
        .name = "frmVEXREQ04",
        .caption = "Report Viewer - Requisitions",
        .begins = {begin("cmdPrintREQ", "Print &Requisition", printRequisitions),
                   begin("cmdPrintRFQ", "Print Request for &Quotation", printQuotations),
                   begin("cmdBlankREQ", "Print &Blank Requisition", printBlank)},
        .finishedText = "Report Ready to Print",
    };
}
