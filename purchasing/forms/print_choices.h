// What the user chooses to print of one purchase order: deliveries of the material receiving
// report, client invoices of the billing status. The choices are rows of the user's tables, marked
// in PRINTME.
#pragma once

#include "core/session.h"

struct PrintChoice
{
    const char* name;  // the dialog's system name
    const char* caption;
    const char* buffer;  // in ZORUSER.mdb
    const char* instruction;
    const char* none;  // in place of the rows
    bool hasSelectAll;
    // Of the rows to choose from: table and index in ZORVEX.mdb, and the fields that are copied; a
    // row is a choice where the first differs from that of the one before.
    const char* table;
    const char* byOrder;
    std::vector<const char*> fields;
    std::vector<const char*> shown;
    bool takesBlank;
};
extern const PrintChoice receiptChoice;  // frmVEXREC03
extern const PrintChoice invoiceChoice;  // frmVEXPAY04

// Empties the choice's table and fills it for the order; the rows' texts. Fails as the store does.
QStringList fillPrintChoice(const Session& session, const PrintChoice& choice, qint32 POTAG);
// Marks those of the rows and unmarks the others.
void markPrintChoice(const Session& session, const PrintChoice& choice, const QList<int>& rows);

// Both around a dialog. False when the user has cancelled.
bool choosePrint(const Session& session, const PrintChoice& choice, qint32 POTAG,
                 const QString& PONO);
