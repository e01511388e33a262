// What the screen of a document's head does around its entries: what a new one starts from, the
// numbers that follow what is typed, and what a change of the head does to the orders made from it.
#pragma once

#include "core/job_numbers.h"
#include "purchasing/document_numbers.h"
#include "purchasing/header_changes.h"
#include "screens/entry/entry.h"

namespace head {

// The box that lets the user type an order's number in spite of the format.
inline constexpr schema::FieldName overridden = "OVERRIDEPOAF";

NumberSource numberSourceOf(const Entry& entry);
// The number of the order, which follows other fields. A requisition's own is that of its first
// order; an order's keeps its suffix.
QString formattedNumber(const Entry& entry, const DocumentKind& kind, const JobNoFormat& format);

class Rules : public EntryRules
{
public:
    Rules(const DocumentKind& kind, const JobNoFormat& format) : m_kind(kind), m_format(format) {}

    bool begin(Entry& entry) override;
    Step beforeWrite(Entry& entry) override;
    void complete(const Entry& entry, storage::Recordset& rows) override;
    void written(Entry& entry, storage::Recordset& rows) override;
    bool beforeDelete(const Session& session, storage::Recordset& rows) override;

private:
    void beginNew(Entry& entry) const;
    void completeNew(storage::Recordset& rows) const;
    void saveCounter(const Entry& entry) const;

    const DocumentKind& m_kind;
    JobNoFormat m_format;
    std::optional<HeadChange> m_change;
    QString m_reference;  // the equipment's order as it was shown at first
};

}  // namespace head
