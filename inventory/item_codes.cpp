#include "inventory/item_codes.h"

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/tags.h"
#include "core/text.h"

namespace {

OpenTable openCodes(const QString& jobSitePath, const CodeTable& codes)
{
    return openTable(jobSitePath, "ZORVEX.mdb", codes.table);
}

bool seekCode(storage::Recordset& rows, const CodeTable& codes, qint32 owner, const QString& code)
{
    rows.Index(codes.byCode);
    if (dnIsBlank(code))
        return false;
    return codes.owner.isNone() ? rows.Seek("=", code.trimmed())
                                : rows.Seek("=", owner, code.trimmed());
}

CodeRow rowOf(const storage::Recordset& rows, const CodeTable& codes)
{
    return {.tag = intOf(rows[codes.tag]),
            .owner = codes.owner.isNone() ? 0 : intOf(rows[codes.owner]),
            .code = trimmedTextOf(rows[codes.code]),
            .name = trimmedTextOf(rows[codes.name])};
}

}  // namespace

std::optional<CodeRow> codeRow(const QString& jobSitePath, const CodeTable& codes, qint32 owner,
                               const QString& code)
{
    OpenTable open = openCodes(jobSitePath, codes);
    if (!seekCode(open.rows, codes, owner, code))
        return {};
    return rowOf(open.rows, codes);
}

std::optional<CodeRow> codeRowAt(const QString& jobSitePath, const CodeTable& codes, qint32 tag)
{
    OpenTable open = openCodes(jobSitePath, codes);
    open.rows.Index(codes.byTag);
    if (tag == 0 || !open.rows.Seek("=", tag))
        return {};
    return rowOf(open.rows, codes);
}

qint32 addCode(const QString& jobSitePath, const CodeTable& codes, qint32 owner,
               const QString& code, const QString& name)
{
    const QString field = QString::fromLatin1(codes.tag.text());
    const qint32 tag = dnGetNewTag(jobSitePath, field, "ZORVEX.mdb", "VEXTAGS", 0);
    if (tag == 0)
        return 0;
    OpenTable open = openCodes(jobSitePath, codes);
    open.rows.AddNew();
    open.rows[codes.tag] = tag;
    if (!codes.owner.isNone())
        open.rows[codes.owner] = owner;
    open.rows[codes.code] = code.trimmed();
    open.rows[codes.name] = name.trimmed();
    open.rows.Update();
    return tag;
}

qint32 renameCode(const QString& jobSitePath, const CodeTable& codes, qint32 owner,
                  const QString& code, const QString& name)
{
    OpenTable open = openCodes(jobSitePath, codes);
    if (!seekCode(open.rows, codes, owner, code))
        return 0;
    open.rows.Edit();
    open.rows[codes.name] = name.trimmed();
    open.rows.Update();
    return intOf(open.rows[codes.tag]);
}
