// What the fields of a document's head are checked for, and what they hold beside their texts.
#pragma once

#include <optional>

#include "core/job_numbers.h"
#include "purchasing/document_kind.h"
#include "screens/entry/entry.h"

namespace head {

// Controls that no field of the table stands behind.
inline constexpr char vendor[] = "txtVENNOA";
inline constexpr char docReference[] = "txtPODOCREF";

struct Vendor
{
    qint32 VENTAG = 0;
    QString VENNO;
    QString Name;
    QString address;  // in lines
};
// By number; nothing for a blank one and where there is none. By tag likewise.
std::optional<Vendor> vendorOf(const Session& session, const QString& VENNO);
std::optional<Vendor> vendorAt(const Session& session, qint32 VENTAG);

// The equipment order of a reference such as "W/O: 1234" or "R/O: 99"; both 0 for a blank one.
struct DocReference
{
    qint32 BRQWOTAG = 0;
    qint32 BRQROTAG = 0;
    QString refusal;
};
DocReference docReferenceOf(const Session& session, const QString& text);
QString docReferenceText(const Session& session, qint32 BRQWOTAG, qint32 BRQROTAG);
// frmVEXPO08 and the search that it leads to; blank for none.
QString searchDocReference(const Entry& entry);

QString checkRequisitionNumber(const Entry& entry);
QString checkRequisitionType(const Entry& entry);
EntryCheck checkOrderNumber(const DocumentKind& kind);
QString checkVendor(const Entry& entry);
EntryCheck checkDate(schema::FieldName field, bool mayBeBlank, const QString& refusal);
QString checkReimbursable(const Entry& entry);
QString checkDocReference(const Entry& entry);

QString searchVendor(const Entry& entry);

// Fills in what the job's defaults give; told where there are none, under a text of its own for a
// new document.
void takeJobDefaults(Entry& entry, const JobNoFormat& format, bool isNew);

}  // namespace head
