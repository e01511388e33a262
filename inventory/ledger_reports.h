// The work tables behind the reports that read the ledger. Each fills an empty buffer; `proceed` is
// called after each item and false stops the run, with what was filled until then. False when
// stopped. Failures of the store are the caller's.
#pragma once

#include <QDate>
#include <functional>

#include "core/locators.h"

// The transaction history: all rows of the ledger that are dated in the range, of the branch's
// items in the range of part numbers, in their order. Balances begin with an item's first row,
// whatever its date. Dates in their sortable form.
struct TransactionHistoryRequest
{
    QString jobSitePath;
    qint32 ILCTAG = 0;
    QString beginPARTNO;
    QString endPARTNO;
    QString beginLDATE;
    QString endLDATE;
};
bool fillTransactionHistory(const TransactionHistoryRequest& request, OpenTable& buffer,
                            const std::function<bool()>& proceed);

// The issue summary: what repair orders took of each item of the branch's series.
enum class IssueActivity { All, OnlyWith, OnlyWithout };
struct IssueSummaryRequest
{
    QString jobSitePath;
    qint32 ILCTAG = 0;
    QString beginSERIESCODE;
    QString endSERIESCODE;
    QDate begin;
    QDate end;
    IssueActivity activity = IssueActivity::All;  // in the period
};
bool fillIssueSummary(const IssueSummaryRequest& request, OpenTable& buffer,
                      const std::function<bool()>& proceed);

// The periods that it looks at, for its head too: the month of the ending date up to that date, the
// calendar month before, and the twelve before the month of the ending date.
struct IssuePeriod
{
    QDate begin;
    QDate end;
};
struct IssuePeriods
{
    IssuePeriod monthToDate;
    IssuePeriod lastMonth;
    IssuePeriod last12Months;
};
IssuePeriods issuePeriods(QDate end);
