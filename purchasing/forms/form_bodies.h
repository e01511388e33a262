// The lines of documents, as each form prints them.
#pragma once

#include <functional>

#include "purchasing/document_kind.h"
#include "purchasing/forms/form.h"

struct FormBody
{
    PrintBuffer buffer = {};
    QStringList totals = {};  // cells of the form's totals
    double amount = 0;        // of its receipts or issues
};

// What the bodies of one document are filled from. `proceed` is asked after each line and stops
// the filling where it says no.
struct FormSource
{
    const Session& session;
    const FormSettings& settings;
    const FormDocument& document;
    qint32 tag = 0;
    int width = 1;  // characters of a line of the description
    std::function<bool()> proceed = [] { return true; };
};

// All of them fail as the store does. A requisition's lines, with the rows of an order's foot where
// the kind is one: notice and subtotals.
FormBody linesBody(const FormSource& source, const DocumentKind& kind);
FormBody inventoryBody(const FormSource& source);
// Receipts of the dates that are marked in the user's VEXRECPRTBUF; `isPayment` adds the subtotals.
FormBody receiptsBody(const FormSource& source, bool isPayment);
FormBody issuesBody(const FormSource& source);
FormBody statusBody(const FormSource& source);
// What was billed with a client's invoice and before it.
FormBody billingBody(const FormSource& source, const QString& INVNO);

// The client invoices that are marked in the user's VEXBSRPRTBUF.
QStringList markedInvoices(const Session& session);
// The vendors' invoice numbers of an order's payments up to a client's invoice, each once.
QString vendorInvoicesUpTo(const Session& session, qint32 POTAG, const QString& INVNO);
