// ZORUSER.mdb: one user's open lists, remembered choices, marks and logs. The buffers of reports
// and screens are in the *_buffer_tables.h files.
#pragma once

#include "core/schema/schema.h"

namespace schema {

inline constexpr Field WINTAG_fields[] = {
    integer("WINTAG", "the next window number; starts again at 1 above 3000"),
};
inline constexpr Table WINTAG = {"WINTAG", "Counter of window numbers, one row", WINTAG_fields, {}};

inline constexpr Field WINLIST_fields[] = {
    integer("WINTAG", "number of an open list screen"),
    integer("WINACTION", "0 nothing to do, 1 the list must refresh"),
    longInteger("HOTTAG", "tag of the record to show; 0 none, -1 keeps the page"),
};
inline constexpr Index WINLIST_indexes[] = {
    {"WINLIST", {"WINTAG"}},
};
inline constexpr Table WINLIST = {"WINLIST", "Open list screens and what their details left",
                                  WINLIST_fields, WINLIST_indexes};

inline constexpr Field VEXSETTINGS_fields[] = {
    longInteger("DBTAG", "site number"),

    // Selections that all screens share.
    integer("CONO", "last company"),
    integer("CONOPAIR", "last company of a company and job pair"),
    text("JOBNOPAIR", 8, "last job of that pair"),
    text("BDATE", 10, "beginning date of reports"),
    text("EDATE", 10, "ending date of reports"),
    longInteger("ILCTAG", "last branch"),

    // Rows where lists were left.
    longInteger("REQTAG", "last requisition"),
    longInteger("POTAG", "last purchase order"),
    text("LASTACTIVEAPITAG", 11, "last A/P invoice, its tag as text"),
    longInteger("LASTACTIVEISNTAG", "last inventory item"),
    longInteger("LASTACTIVEICNTAG", "last catalog item"),
    longInteger("MIRTAG", "last material issue report"),
    longInteger("MRRTAG", "last material return report"),
    longInteger("MTRTAG", "last material transfer report"),
    longInteger("RQIISNTAG", "item just added for a line item; 0 when none was saved"),
    longInteger("ROIISNTAG", "item just added for a repair order line; 0 when none was saved"),

    // Lists of requisitions and purchase orders.
    boolean("USESTATUSCOLORS", "statuses are shown in colours"),
    integer("VEXREQFILTEROPT", "requisitions: 1 all, 2 of a job, 3 of a vendor"),
    integer("VEXREQFILTERCONO", "company of that filter"),
    text("VEXREQFILTERJOBNO", 8, "job of that filter"),
    longInteger("VEXREQFILTERVENTAG", "vendor of that filter"),
    integer("VEXPOFILTEROPT", "purchase orders: 1 all, 2 of a job, 3 of a vendor"),
    integer("VEXPOFILTERCONO", "company of that filter"),
    text("VEXPOFILTERJOBNO", 8, "job of that filter"),
    longInteger("VEXPOFILTERVENTAG", "vendor of that filter"),
    integer("DOCSEARCHOPT", "document reference search: work orders or repair orders"),
    text("VEXREQRQISEARCHTEXT", 100, "last text sought in requisition lines"),
    text("VEXRQISEARCHTEXT", 100, "last text sought in purchase order lines"),

    // Upload of requisition lines.
    text("SSNAME", 255, "workbook"),
    text("RSTCODE", 10, "template"),
    longInteger("BROW", "first row"),
    longInteger("EROW", "last row"),
    boolean("SKIPALLZEROQTY", "rows with quantity 0 are skipped"),

    // Saved values for posting to payment detail, as typed.
    text("RELNO", 5, "release number"),
    text("CHECKNO", 15, "check number"),
    text("CHECKDATE", 10, "check date"),
    text("INVNO", 15, "client invoice number"),
    text("INVCODE", 10, "invoice code"),

    // Saved values for posting to procurement status.
    text("SHIPFDATE", 10, "ship date"),
    text("ETAFDATE", 10, "expected arrival"),
    text("CARRIER", 30, "carrier"),
    text("TRACKINGNO", 30, "tracking number"),
    text("DOAFDATE", 10, "date of arrival"),
    text("RECEIVEDBY", 30, "who took the goods in"),
    text("PSCOMMENT", 255, "comment"),

    // Options of reports.
    boolean("VEXPSR01OPT1", "procurement status report: all items"),
    boolean("VEXPSR01OPT2", "procurement status report: only archived items"),
    boolean("VEXPSR01OPT3", "procurement status report: make a workbook"),
    boolean("VEXPSR01OPT4", "procurement status report: short descriptions"),
    boolean("VEXPAROPT", "payment activity: only activity of the period"),
    text("VEXCCGROUP", 1, "payment activity: letter of the cost code group"),
    boolean("MAKEEXCELVEXPAR01", "workbook with payment activity 1, payment history, blank dates"),
    boolean("MAKEEXCELVEXPAR02", "workbook with payment activity 2"),
    boolean("MAKEEXCELVEXPAR03", "workbook with payment activity 3"),
    boolean("MAKEEXCELVEXPAR04", "workbook with payment activity 4"),
    boolean("MAKEEXCELVEXPAR05", "workbook with payment activity 5"),
    boolean("MAKEEXCELVEXPAR06", "workbook with payment activity 6"),
    boolean("MAKEEXCELVEXPAR07", "workbook with payment activity 7"),
    boolean("MAKEEXCELVEXPAR08", "workbook with payment activity 8"),
    boolean("MAKEEXCELVEXPAR09", "workbook with payment activity 9"),
    boolean("MAKEEXCELVEXPAR10", "workbook with payment activity 10"),
    boolean("MAKEEXCELVEXVIR01", "workbook with the vendor invoice report"),
    text("PH01OPTION", 1, "purchase history: letter of the cost code group"),
    text("MPHFNAME", 100, "purchase history by jobs: last file name"),
    boolean("VEXPHVMAKEEXCEL", "workbook with the purchase history of a vendor"),
    text("RBDATE", 10, "material history: beginning of the report range"),
    text("REDATE", 10, "material history: end of the report range"),
    text("ISSINVNO", 15, "last client invoice number asked for"),
};
inline constexpr Index VEXSETTINGS_indexes[] = {
    {"VEXSETTINGS", {"DBTAG"}},
};
inline constexpr Table VEXSETTINGS = {"VEXSETTINGS",
                                      "The user's remembered choices, one row per job site",
                                      VEXSETTINGS_fields, VEXSETTINGS_indexes};

// Of the sibling modules' choices only those that all modules have.
inline constexpr Field SIBLINGSETTINGS_fields[] = {
    longInteger("DBTAG", "site number"),
    integer("CONO", "last company"),
    integer("CONOPAIR", "last company of a company and job pair"),
    text("JOBNOPAIR", 8, "last job of that pair"),
};
inline constexpr Index PLGSETTINGS_indexes[] = {
    {"PLGSETTINGS", {"DBTAG"}},
};
inline constexpr Table PLGSETTINGS = {"PLGSETTINGS", "Remembered choices in the labour module",
                                      SIBLINGSETTINGS_fields, PLGSETTINGS_indexes};
inline constexpr Index BRQSETTINGS_indexes[] = {
    {"BRQSETTINGS", {"DBTAG"}},
};
inline constexpr Table BRQSETTINGS = {"BRQSETTINGS", "Remembered choices in the equipment module",
                                      SIBLINGSETTINGS_fields, BRQSETTINGS_indexes};

inline constexpr Field TAGLIST_fields[] = {
    text("DOCCODE", 3, "kind of document or list: VEX, REQ or PO and a blank"),
    longInteger("DOCTAG", "the document"),
    text("ITEMCODE", 3, "kind of row: REQ, PO and a blank, RQI, PAY, PSI"),
    longInteger("ITEMTAG", "the row's own tag"),
    text("DOCNO", 16, "number of a marked document, the order in which documents print"),
};
inline constexpr Index TAGLIST_indexes[] = {
    {"TAGLIST", {"DOCCODE", "DOCTAG", "ITEMCODE", "ITEMTAG"}},
    {"TAGLISTDOCNO", {"DOCCODE", "ITEMCODE", "DOCNO"}},
};
inline constexpr Table TAGLIST = {"TAGLIST", "Rows that the user has marked for a command",
                                  TAGLIST_fields, TAGLIST_indexes};

inline constexpr Field LOG_fields[] = {
    text("REMARK", 255, "one line of the log"),
};
inline constexpr Table ERRORS = {
    "ERRORS", "Errors of the last upload, in order of entry", LOG_fields, {}};
inline constexpr Table ACTIVITYLOG = {
    "ACTIVITYLOG", "Log of the last utility, in order of entry", LOG_fields, {}};

inline constexpr Field DATABASES_fields[] = {
    text("PATHNAME", 255, "name of the job site"),
    text("PathText", 255, "its folder"),
};
inline constexpr Index DATABASES_indexes[] = {
    {"DATABASES", {"PATHNAME"}},
};
inline constexpr Table DATABASES = {"DATABASES", "The user's job sites for reports over sites",
                                    DATABASES_fields, DATABASES_indexes};

inline constexpr Field DELJOBLIST_fields[] = {
    integer("CONO", "company"),
    text("JOBNO", 8, "job number in its stored form"),
};
inline constexpr Index DELJOBLIST_indexes[] = {
    {"DELJOBLIST", {"CONO", "JOBNO"}, true},
};
inline constexpr Table DELJOBLIST = {"DELJOBLIST", "Jobs that are to be deleted", DELJOBLIST_fields,
                                     DELJOBLIST_indexes};

}  // namespace schema
