// Requisitions and purchase orders are alike in most: they share line items (RQILIST), screens and
// rules. What differs between the two is told here, as data.
#pragma once

#include <QString>

#include "core/schema/field_name.h"

struct DocumentKind
{
    char letter;        // by which screens are told which of the two they serve
    const char* table;  // in ZORVEX.mdb
    schema::FieldName tag;
    const char* byTag;
    schema::FieldName number;
    const char* byNumber;
    // Of its line items: owner, position and printed number, and the indexes along them.
    schema::FieldName lineNo;
    schema::FieldName itemNo;
    const char* lines;
    const char* items;
    // In TAGLIST: the marks of documents have DOCCODE "VEX" and this code of rows; those of line
    // items have it for their DOCCODE.
    const char* code;
    const char* lock;  // record lock
    const char* noun;

    bool isOrder() const { return letter == 'P'; }
    QString tagName() const { return QString::fromLatin1(tag.text()); }
};

inline constexpr DocumentKind requisitions{.letter = 'R',
                                           .table = "REQLIST",
                                           .tag = "REQTAG",
                                           .byTag = "REQTAG",
                                           .number = "REQNO",
                                           .byNumber = "REQNO",
                                           .lineNo = "REQLINENO",
                                           .itemNo = "REQITEMNO",
                                           .lines = "RQIREQLINENO",
                                           .items = "RQIREQITEMNO",
                                           .code = "REQ",
                                           .lock = "REQUISITIONS",
                                           .noun = "Requisition"};
inline constexpr DocumentKind purchaseOrders{.letter = 'P',
                                             .table = "POLIST",
                                             .tag = "POTAG",
                                             .byTag = "POTAG",
                                             .number = "PONO",
                                             .byNumber = "PONO",
                                             .lineNo = "POLINENO",
                                             .itemNo = "POITEMNO",
                                             .lines = "RQIPOLINENO",
                                             .items = "RQIPOITEMNO",
                                             .code = "PO ",
                                             .lock = "PURCHASE ORDERS",
                                             .noun = "Purchase Order"};

inline constexpr char documentMarks[] = "VEX";  // DOCCODE of marked documents, under DOCTAG 0
inline constexpr char lineMarks[] = "RQI";      // ITEMCODE of marked line items

inline const DocumentKind& documentKind(char letter)
{
    return letter == 'P' ? purchaseOrders : requisitions;
}
