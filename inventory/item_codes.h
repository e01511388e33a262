// The codes by which items are grouped and placed: each is typed, and its tag is kept. One
// description serves branches, series, subcategories, bins and vendors.
#pragma once

#include <optional>

#include "core/session.h"
#include "core/storage/recordset.h"

struct CodeTable
{
    const char* table;   // in ZORVEX.mdb
    const char* byCode;  // index: the owner's tag where there is one, then the code
    const char* byTag;
    schema::FieldName tag;
    schema::FieldName code;
    schema::FieldName name;
    schema::FieldName owner = {};  // none: the code stands alone
};

inline constexpr CodeTable branchCodes{"ILCLIST", "ILCCODE", "ILCTAG",
                                       "ILCTAG",  "ILCCODE", "ILCNAME"};
inline constexpr CodeTable seriesCodes{"SERIESCODES", "SERIESCODE", "SERIESTAG", "SERIESTAG",
                                       "SERIESCODE",  "SERIESNAME", "ILCTAG"};
inline constexpr CodeTable subcategoryCodes{"SUBCATEGORIES", "SUBCATCODE", "SUBCATTAG", "SUBCATTAG",
                                            "SUBCATCODE",    "SUBCATNAME", "SERIESTAG"};
inline constexpr CodeTable binCodes{"BINLIST", "BINNO",   "BINTAG", "BINTAG",
                                    "BINNO",   "BINNAME", "ILCTAG"};
inline constexpr CodeTable vendorCodes{"VENDORS", "VENNO", "VENTAG", "VENTAG", "VENNO", "Name"};

struct CodeRow
{
    qint32 tag = 0;
    qint32 owner = 0;
    QString code;  // trimmed, as is the name
    QString name;
};

// The row of a code under its owner, and the row of a tag; nothing for a blank code, for tag 0 and
// where there is none. Failures of the store are the caller's.
std::optional<CodeRow> codeRow(const QString& jobSitePath, const CodeTable& codes, qint32 owner,
                               const QString& code);
std::optional<CodeRow> codeRowAt(const QString& jobSitePath, const CodeTable& codes, qint32 tag);

// Adds a row with a new tag, or writes another name to that of the code; gives its tag, 0 for a
// counter that failed or a code that is not there.
qint32 addCode(const QString& jobSitePath, const CodeTable& codes, qint32 owner,
               const QString& code, const QString& name);
qint32 renameCode(const QString& jobSitePath, const CodeTable& codes, qint32 owner,
                  const QString& code, const QString& name);
