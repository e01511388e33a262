// What the screen of a line item does around its entries: what a new line starts from, its numbers,
// its place in the ledger, and what is carried to the next one.
#pragma once

#include "purchasing/line_screen.h"
#include "screens/entry/entry.h"

class LineRules : public EntryRules
{
public:
    LineRules(const LineOwner& owner, std::shared_ptr<bool> carries)
        : m_owner(owner), m_carries(std::move(carries))
    {
    }

    // The line's amount beside those of the document's other lines.
    double total(const Entry& entry) const;
    // A stored line's unit, description or price is not that of the inventory item it names; as it
    // stood when they were last compared.
    bool hasDrifted() const { return m_hasDrifted; }
    void compare(const Entry& entry);
    // An item is being added for this line on a screen of its own.
    void awaitItem() { m_awaitsItem = true; }

    bool begin(Entry& entry) override;
    void inFront(Entry& entry) override;
    Step beforeWrite(Entry& entry) override;
    void complete(const Entry& entry, storage::Recordset& rows) override;
    void written(Entry& entry, storage::Recordset& rows) override;
    bool beforeDelete(const Session& session, storage::Recordset& rows) override;

private:
    void beginNew(Entry& entry) const;
    bool postToLedger(const Entry& entry, qint32 ISNTAG) const;
    void giveNumbers(Entry& entry) const;

    LineOwner m_owner;
    std::shared_ptr<bool> m_carries;
    double m_others = 0;
    qint32 m_item = 0;  // that the stored line names
    bool m_hasDrifted = false;
    bool m_awaitsItem = false;
};
