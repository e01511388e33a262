// The user's private work tables of purchasing and receiving: the line item clipboard, buffers of
// renumbering and upload, text search results, and what the printed documents are drawn from.
#pragma once

#include "core/schema/purchasing_tables.h"
#include "core/schema/schema.h"

namespace schema {

// The stamps come along, since renumbering deletes a document's lines and writes them back.
inline constexpr Table VEXRQITEMP = {
    "VEXRQITEMP",
    "Line items on their way through renumbering or spreadsheet upload",
    RQILIST_fields,
    {}};

template <std::size_t N>
consteval std::array<Field, N + 1> withClipboardState(const Field (&line)[N])
{
    std::array<Field, N + 1> all{};
    for (std::size_t i = 0; i < N; ++i)
        all[i] = line[i];
    all[N] = text("CUTCOPY", 1, "X when RQITAG names a line that was cut, C when it was copied");
    return all;
}

inline constexpr auto VEXRQICLIP_fields = withClipboardState(lineItemFields);
inline constexpr Table VEXRQICLIP = {
    "VEXRQICLIP", "The line item clipboard, one row at most", VEXRQICLIP_fields, {}};

inline constexpr Field VEXRQIAUTO_fields[] = {
    longInteger("ISNTAG", "inventory item; 0 when none"),
    doubleFloat("QTY", "quantity"),
    text("UNIT", 5, "unit of measure"),
    memo("Desc", "full description"),
    text("UNITFACT", 1, "unit factor"),
    doubleFloat("UNITPRICE", "unit price"),
    doubleFloat("AMOUNT", "extended amount"),
    text("COSTCODEA", 15, "cost code of group A"),
    text("COSTCODEB", 15, "cost code of group B"),
    text("COSTCODEC", 15, "cost code of group C"),
    text("MCODE", 1, "material code"),
    text("GLCODE", 10, "G/L code"),
    text("ASSET", 1, "an asset: Y, N or blank"),
};
inline constexpr Table VEXRQIAUTO = {"VEXRQIAUTO",
                                     "What the next added line item starts from, one row at most",
                                     VEXRQIAUTO_fields,
                                     {}};

inline constexpr Field VEXREQRQISEARCH_fields[] = {
    longInteger("REQTAG", "requisition"),
    longInteger("REQNO", "requisition number"),
    longInteger("VENTAG", "vendor; 0 when none"),
    text("VENNO", 10, "vendor number"),
    text("VENNAME", 40, "vendor name"),
    text("FDATE", 10, "requisition date"),
    memo("Desc", "description of the line in which the text was found"),
};
inline constexpr Index VEXREQRQISEARCH_indexes[] = {
    {"VEXREQRQISEARCH", {"REQTAG", "REQNO"}},
};
inline constexpr Table VEXREQRQISEARCH = {"VEXREQRQISEARCH",
                                          "Hits of the last text search in requisition line items",
                                          VEXREQRQISEARCH_fields, VEXREQRQISEARCH_indexes};

inline constexpr Field VEXRQISEARCH_fields[] = {
    longInteger("POTAG", "purchase order"),
    text("PONO", 16, "purchase order number"),
    longInteger("VENTAG", "vendor; 0 when none"),
    text("VENNO", 10, "vendor number"),
    text("VENNAME", 40, "vendor name"),
    text("FDATE", 10, "order date"),
    memo("Desc", "description of the line in which the text was found"),
};
inline constexpr Index VEXRQISEARCH_indexes[] = {
    {"VEXRQISEARCH", {"POTAG", "PONO"}},
};
inline constexpr Table VEXRQISEARCH = {"VEXRQISEARCH",
                                       "Hits of the last text search in purchase order line items",
                                       VEXRQISEARCH_fields, VEXRQISEARCH_indexes};

inline constexpr Field VEXPRINTBUFFER_fields[] = {
    integer("ITEMNO", "item number; blank on continuation lines"),
    text("PARTNO", 25, "part number of the inventory item"),
    text("VINVNO", 25, "vendor's invoice number"),
    doubleFloat("QTY", "quantity"),
    text("UNIT", 5, "unit of measure"),
    text("TOPTEXT", 2, "control word: SF prints the row in the small font"),
    text("TEXTOUT", 100, "one line of description or text"),
    doubleFloat("UNITPRICE", "unit price"),
    text("UNITFACT", 1, "unit factor"),
    doubleFloat("AMOUNT", "extended amount"),
    text("CCSTRING", 100, "contents of the cost code column"),
    text("ADJUSTMENT", 1, "* for an adjustment line"),
    integer("REVNO", "revision of the line"),
    text("ASSET", 3, "Yes, No or blank"),
};
inline constexpr Table VEXPRINTBUFFER = {"VEXPRINTBUFFER",
                                         "Body of the document being printed, one row per line",
                                         VEXPRINTBUFFER_fields,
                                         {}};

inline constexpr Field VEXCCSTLBUF_fields[] = {
    text("CCSTRING", 100, "contents of the cost code column"),
    doubleFloat("AMOUNT", "sum of the lines that bear it"),
};
inline constexpr Index VEXCCSTLBUF_indexes[] = {
    {"VEXCCSTLBUF", {"CCSTRING"}},
};
inline constexpr Table VEXCCSTLBUF = {"VEXCCSTLBUF",
                                      "Cost code subtotals of the document being printed",
                                      VEXCCSTLBUF_fields, VEXCCSTLBUF_indexes};

inline constexpr Field VEXRECPRTBUF_fields[] = {
    text("DATEREC", 10, "date received, MM/DD/YYYY"),
    text("LDATEREC", 8, "date received, YYYYMMDD"),
    text("REFTEXT", 30, "reference of the first receipt of that date"),
    boolean("PRINTME", "chosen for printing"),
};
inline constexpr Table VEXRECPRTBUF = {
    "VEXRECPRTBUF",
    "Delivery dates of one purchase order to choose from for printing",
    VEXRECPRTBUF_fields,
    {}};

inline constexpr Field VEXBSRPRTBUF_fields[] = {
    text("INVNO", 15, "client invoice number"),
    boolean("PRINTME", "chosen as the target invoice"),
};
inline constexpr Table VEXBSRPRTBUF = {
    "VEXBSRPRTBUF",
    "Client invoices of one purchase order to choose from for its billing status",
    VEXBSRPRTBUF_fields,
    {}};

inline constexpr Field VEXPSPRINTBUFFER_fields[] = {
    longInteger("POTAG", "purchase order"),
    longInteger("REQNO", "requisition number"),
    text("PONO", 16, "purchase order number"),
    text("PODATE", 10, "order date"),
    text("VENNAME", 40, "vendor name"),
    longInteger("RQITAG", "purchase order line"),
    integer("ITEMNO", "item number"),
    doubleFloat("QTY", "quantity"),
    text("PARTNO", 25, "part number of the inventory item"),
    text("UNIT", 5, "unit of measure"),
    text("TEXTOUT", 255, "one line of description"),
    longInteger("PSTAG", "procurement status line"),
    text("SHIPFDATE", 10, "ship date"),
    text("ETAFDATE", 10, "expected arrival"),
    text("PROSTATUS", 10, "status word"),
    text("CARRIER", 30, "carrier"),
    text("TRACKINGNO", 30, "tracking number"),
    text("DOAFDATE", 10, "date of arrival"),
    text("RECEIVEDBY", 30, "who took the goods in"),
    text("PSCFDATE", 10, "comment date"),
    text("PSCFTIME", 8, "comment time"),
    text("PSCOMMENT", 255, "one line of comment"),
};
inline constexpr Table VEXPSPRINTBUFFER = {
    "VEXPSPRINTBUFFER",
    "Rows of the procurement status sheet or report being printed",
    VEXPSPRINTBUFFER_fields,
    {}};

}  // namespace schema
