// The lines of a document as they are printed, and the sums of their cost codes. They are kept in
// the user's VEXPRINTBUFFER and VEXCCSTLBUF, too, where they stay until the next document.
#pragma once

#include <map>
#include <optional>
#include <vector>

#include "core/session.h"

// One printed line. What is blank is not printed.
struct FormRow
{
    bool isSmall = false;         // in the small font, its text across all columns
    bool isContinuation = false;  // goes on with the description of the row before
    int item = 0;
    QString partNumber = {};
    QString vendorInvoice = {};
    std::optional<double> quantity = {};
    QString unit = {};
    QString text = {};
    std::optional<double> unitPrice = {};
    QString unitFactor = {};
    std::optional<double> amount = {};
    QString costCodes = {};
    QString adjustment = {};
    int revision = 0;
    QString asset = {};
    // Of forms with columns of their own; the user's table has none for them.
    QStringList further = {};
};

// The pieces of a description between its line ends, each without the blanks before it and cut to
// `width` characters: at the last blank where one lies in the last 30 of them. Blank lines at the
// end are left out; at least one row.
QStringList descriptionRows(const QString& description, int width);

class PrintBuffer
{
public:
    void add(const FormRow& row) { m_rows.push_back(row); }
    // Adds the row, and the further rows that its description takes.
    void addDescribed(FormRow row, const QString& description, int width);
    void addBlank() { m_rows.emplace_back(); }
    void addToSubtotal(const QString& costCodes, double amount);
    // A blank row, a row for each cost code string in order with its sum as the amount, and their
    // total; nothing without sums. The strings are cut as descriptions are.
    void addSubtotalRows(int width);

    const std::vector<FormRow>& rows() const { return m_rows; }
    bool isEmpty() const { return m_rows.empty(); }

    // In place of what the user's tables hold. Fails as the store does.
    void store(const Session& session) const;

private:
    struct CaseBlind
    {
        bool operator()(const QString& a, const QString& b) const
        {
            return QString::compare(a, b, Qt::CaseInsensitive) < 0;
        }
    };
    std::vector<FormRow> m_rows;
    std::map<QString, double, CaseBlind> m_subtotals;  // as the index of VEXCCSTLBUF has them
};
