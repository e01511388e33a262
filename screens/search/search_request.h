// What is searched, and how it is shown: the texts with which a look-up describes itself to the
// search window.
//
// A list holds one entry a column, up to seven, parted by '|', such as "VENNAME|VENNO". Entries
// that are not given are blank or 0. Numbers end at the first character that is no digit.
#pragma once

#include <QString>
#include <vector>

#include "core/keyed_access.h"

struct SearchRequest
{
    QString DBPath = {};  // folder; blank: the current directory
    QString DBName = "ZORVEX";
    QString TableName = {};
    QString IndexList = {};  // by which a column is searched; blank: not by this one
    QString WindowTitle = {};
    QString SearchTitle = {};  // above the rows
    QString FieldList = {};
    QString TypeList = {};    // "C" text; "N" number, with its mask behind: "N###,###.00"
    QString LengthList = {};  // the most characters to type
    QString HeadingList = {};
    QString WidthList = {};  // twips; 0: the column is not used
    QString AlignList = {};  // 0 left, 1 right, 2 centred
    // Up to four, the first fields of every index named: the search stays inside this parent.
    std::vector<KeyField> keys = {};
    QString Instruction = {};  // in place of the first instruction; blank: the usual one
    // Of a window that is a screen with a name and texts of its own.
    QString ScreenName = "frmDNSearch";
    QString EndOfList = " End of List";
    QString ListIsEmpty = " No Items Found";
    bool hasLongNumbers = false;  // else what is typed as a number is sought in 16 bits
};

struct SearchColumn
{
    QString index = " ";
    QString field = " ";
    QChar type = ' ';  // 'C' text, 'N' number
    QString format = " ";
    int length = 0;
    QString heading = " ";
    int width = 0;
    int alignment = 0;

    bool isNumeric() const { return type == 'N'; }
    bool isUsed() const { return width > 0; }
    // What stands in the column for the record on which the handle is: a blank beside the value
    // keeps it off the column's edge, and a formatted zero is blank.
    QString cellOf(const storage::Recordset& rows) const;
};

inline constexpr int searchColumnCount = 7;
inline constexpr size_t mostSearchKeys = 4;

// The request's lists as columns, always seven; the first is the one searched at the start.
std::vector<SearchColumn> searchColumns(const SearchRequest& request);
