// What fills the heads and feet of printed documents, and the job site's settings for them.
#pragma once

#include <QStringList>
#include <optional>

#include "core/session.h"
#include "core/storage/recordset.h"

// The switches of SYSSETTINGS, read once for each print.
struct FormSettings
{
    bool wholeQuantities = false;
    bool hasSecondColumn = false;
    QString secondColumn = {};
    bool hasSubtotals = false;
    bool hasNotice = false;
    double noticeLimit = 0;
    bool hasQualityBlocks = false;
    bool hasAddendum = false;
    bool printsGroupA = false;  // in place of the job number
    bool joinsNumbers = false;  // job and order number are one
    bool hasAssetColumn = false;
};
// Fails as the store does.
FormSettings formSettings(const Session& session);

// The texts of one document, as they are printed.
struct FormDocument
{
    int CONO = 0;
    QString JOBNO = {};  // as it is stored
    double amount = 0;

    QString companyName = {};
    QStringList companyLines = {};
    QString logo = {};  // full name of a picture

    QString date = {};
    QString approvedBy = {};  // signed by hand
    QString shipTo = {};
    QString number = {};
    QString jobNumber = {};
    QString shipVia = {};
    QString fob = {};
    QString revision = {};
    QString promisedBy = {};
    QString terms = {};
    QString requisitionNumber = {};
    QString reimbursable = {};
    QString vendorContact = {};
    QString vendorNumber = {};
    QString vendor = {};
    QString address = {};  // up to two lines
    QString city = {};
    QString state = {};
    QString zip = {};
    QString phone = {};
    QString fax = {};
    QString qualityLevel = {};
    QString equipment = {};  // a line under the head
    QString intendedUse = {};
    QString requiredBy = {};
    QString requisitioner = {};
    QString approver = {};
    QString remarks = {};  // written by hand
    QString total = {};

    // Of a request for quotation.
    QString replyTo = {};
    QString replyPhone = {};
    QString replyFax = {};
    QString replyBy = {};
    // Of status reports, which have a date of their own.
    QString orderDate = {};
    QString invoiceNumber = {};
    QString vendorInvoices = {};
};

// Of the requisition or the order on whose record `rows` stands. Fails as the store does.
FormDocument requisitionDocument(const Session& session, const storage::Recordset& rows);
FormDocument orderDocument(const Session& session, const storage::Recordset& rows);
// A phone number; nothing where it was never typed and is kept as its mask alone.
QString printedPhone(const QString& text);
// The letterhead alone.
FormDocument blankDocument(const Session& session, int CONO);

// What stands in the box of the order's number, and in that of the job's; the first line's group A
// cost code may be asked for. With joined numbers the second is not printed.
void setNumbers(FormDocument& document, const FormSettings& settings, const QString& costCodeA);
