#include "inventory/item_search.h"

#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <array>

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/text.h"
#include "inventory/item_codes.h"
#include "screens/search/inventory_searches.h"
#include "screens/search/search_window.h"
#include "screens/selectors/look_up_field.h"
#include "screens/small_dialog.h"

namespace {

const std::array<ItemSearch, 8>& ways()
{
    static const std::array<ItemSearch, 8> all = {{
        {"&1 - Search by Description", "SHORTDESC|PARTNO|UPCCODE", "SHORTDESC|PARTNO|UPCCODE", 0},
        {"&2 - Search by Part Number", "", "PARTNO|FDATE", 0},
        {"&3 - Search by MFG Part Number", "MFGPARTNO|SHORTDESC|PARTNO",
         "MFGPARTNO|SHORTDESC|PARTNO", 0},
        {"&4 - Search by UPC Code", "UPCCODE|SHORTDESC|PARTNO", "UPCCODE|SHORTDESC|PARTNO", 0},
        {"&5 - Search by Series Code + Description", "SERIESDESC|SERIESPARTNO|SERIESUPCCODE",
         "SHORTDESC|PARTNO|UPCCODE", 1},
        {"&6 - Search by Series Code + Part Number", "SERIESPARTNO|SERIESDESC|SERIESUPCCODE",
         "PARTNO|SHORTDESC|UPCCODE", 1},
        {"&7 - Search by Series Code + Subcategory + Description", "SUBDESC|SUBPARTNO|SUBUPCCODE",
         "SHORTDESC|PARTNO|UPCCODE", 2},
        {"&8 - Search by Series Code + Subcategory + Part Number", "SUBPARTNO|SUBDESC|SUBUPCCODE",
         "PARTNO|SHORTDESC|UPCCODE", 2},
    }};
    return all;
}

struct ItemColumn
{
    QString field;
    QString heading;
    int length;
    int width;
};
const ItemColumn itemColumns[] = {
    {"SHORTDESC", "Description", 50, 6000}, {"PARTNO", "Part #", 18, 2000},
    {"MFGPARTNO", "MFG Part #", 18, 2000},  {"UPCCODE", "UPC Code", 14, 1400},
    {"FDATE", "Superseded Date", 10, 2000},
};

// The way that the user chooses, 0 for none.
int chooseWay(const ItemKind& kind)
{
    SmallDialog dialog(kind.isOfBranch ? "frmVEXINVSEARCH1" : "frmVEXINVCATSEARCH1",
                       "Select an Inventory Search Option");
    int chosen = 0;
    for (int way = 1; way <= static_cast<int>(ways().size()); ++way) {
        auto* button = new QPushButton(itemSearch(way).caption);
        button->setObjectName("cmdOption" + QString::number(way));
        button->setAutoDefault(true);  // the arrow keys and Enter choose, too
        QObject::connect(new QShortcut(QKeySequence(Qt::Key_0 + way), &dialog),
                         &QShortcut::activated, button, &QPushButton::click);
        QObject::connect(button, &QPushButton::clicked, &dialog, [&dialog, &chosen, way] {
            chosen = way;
            dialog.accept();
        });
        dialog.addAcross(button);
    }
    dialog.escTakes(dialog.addClosingButton("cmdCancel", "&Cancel"));
    dialog.exec();
    return chosen;
}

// frmVEXINVSEARCH2: asks for the series, and the subcategory where it is needed.
class GroupChoice
{
public:
    GroupChoice(const Session& session, ItemFilter& filter, int groups)
        : m_site(session.JobSitePath), m_filter(filter), m_groups(groups)
    {
    }

    bool exec()
    {
        SmallDialog dialog("frmVEXINVSEARCH2", "Select Series/Subcategory Codes");
        LookUpField* series = field("txtSERIESCODE", "lblSERIESNAME", seriesCodes,
                                    [this] { return zorSearchSeries(m_site, m_filter.ILCTAG); });
        dialog.addField("&Series Code:", series);
        LookUpField* subcategory = nullptr;
        if (m_groups > 1) {
            subcategory = field("txtSUBCATCODE", "lblSUBCATNAME", subcategoryCodes, [this, series] {
                takeSeries(series->code());
                return m_filter.SERIESTAG == 0
                           ? QString()
                           : zorSearchSubcategory(m_site, m_filter.SERIESTAG, series->code());
            });
            dialog.addField("S&ubcategory Code:", subcategory);
            QObject::connect(series, &LookUpField::codeChanged, subcategory,
                             [this, series] { takeSeries(series->code()); });
        }
        dialog.enterTakes(dialog.addButton("cmdOK", "&OK", [&] {
            if (takes(series, subcategory))
                dialog.accept();
        }));
        dialog.escTakes(dialog.addClosingButton("cmdCancel", "&Cancel"));
        series->edit().setFocus();
        return dialog.exec() == QDialog::Accepted;
    }

private:
    qint32 ownerOf(const CodeTable& codes) const
    {
        return &codes == &seriesCodes ? m_filter.ILCTAG : m_filter.SERIESTAG;
    }
    LookUpField* field(const QString& name, const QString& label, const CodeTable& codes,
                       std::function<QString()> search)
    {
        return new LookUpField(
            name, label,
            {.nameOf = [this, &codes](const QString& code) -> std::optional<QString> {
                 const auto row = codeRow(m_site, codes, ownerOf(codes), code);
                 return row ? std::optional<QString>(row->name) : std::nullopt;
             },
             .choices = [] { return std::vector<CodeChoice>(); },
             .search =
                 [this, &codes, search] {
                     OpenTable open = openTable(m_site, "ZORVEX.mdb", codes.table);
                     return goToFound(open.rows, search()) ? trimmedTextOf(open.rows[codes.code])
                                                           : QString();
                 },
             .notFound = "?"});
    }
    void takeSeries(const QString& code)
    {
        const auto row = codeRow(m_site, seriesCodes, m_filter.ILCTAG, code);
        m_filter.SERIESTAG = row ? row->tag : 0;
    }
    bool refuse(LookUpField* wrong, const QString& text) const
    {
        showCritical("Cannot Update", text);
        wrong->edit().setFocus();
        return false;
    }
    bool takes(LookUpField* series, LookUpField* subcategory)
    {
        takeSeries(series->code());
        if (dnIsBlank(series->code()))
            return refuse(series, "Series Code is Empty.");
        if (m_filter.SERIESTAG == 0)
            return refuse(series, "Cannot Find Series Code: " + series->code());
        if (!subcategory)
            return true;
        if (dnIsBlank(subcategory->code()))
            return refuse(subcategory, "Subcategory Code is Blank");
        const auto row = codeRow(m_site, subcategoryCodes, m_filter.SERIESTAG, subcategory->code());
        m_filter.SUBCATTAG = row ? row->tag : 0;
        return row || refuse(subcategory, "Cannot Find Subcategory for Above Series Code.");
    }

    QString m_site;
    ItemFilter& m_filter;
    int m_groups;
};

QString headingOf(int way, const ItemKind& kind, const Session& session, const ItemFilter& filter)
{
    if (itemSearch(way).isOfNumbers())
        return "Master List of Part Numbers";
    const QString items = QString(kind.noun) + "s";
    constexpr const char* plain[] = {" by Description", "", " by MFG Part Number", " by UPC Code"};
    if (itemSearch(way).groups == 0)
        return items + plain[way - 1];
    const QString unknown = "?????";
    const auto series = codeRowAt(session.JobSitePath, seriesCodes, filter.SERIESTAG);
    const QString code = series ? series->code : unknown;
    if (itemSearch(way).groups == 1)
        return items + " for Series Code: " + code + " - " + (series ? series->name : unknown);
    const auto subcategory = codeRowAt(session.JobSitePath, subcategoryCodes, filter.SUBCATTAG);
    return items + " for Series Code/Subcategory: " + code + '/' +
           (subcategory ? subcategory->code : unknown) + " - " +
           (subcategory ? subcategory->name : unknown);
}

// The numbers of all branches are those of no catalog item: an index by branch would part them.
// Those of the catalog are the ones of no branch.
QString numbersIndex(const ItemKind& kind)
{
    return kind.isOfBranch ? "ICNPNMASTERICNTAG" : "INVPNMASTERPARTNO";
}

std::vector<KeyField> keysOf(const ItemSearch& search, const ItemKind& kind,
                             const ItemFilter& filter)
{
    std::vector<KeyField> keys;
    if (search.isOfNumbers())
        return {{kind.isOfBranch ? schema::FieldName("ICNTAG") : schema::FieldName("ILCTAG"), 0}};
    if (kind.isOfBranch)
        keys.push_back({"ILCTAG", filter.ILCTAG});
    if (search.groups >= 1)
        keys.push_back({"SERIESTAG", filter.SERIESTAG});
    if (search.groups >= 2)
        keys.push_back({"SUBCATTAG", filter.SUBCATTAG});
    return keys;
}

QString searchItems(const ItemKind& kind, const Session& session, const ItemFilter& filter)
{
    const int way = chooseWay(kind);
    if (way == 0)
        return noBookmark;
    ItemFilter within = filter;
    const ItemSearch& search = itemSearch(way);
    if (search.groups > filter.level && !GroupChoice(session, within, search.groups).exec())
        return noBookmark;
    const QString found = dnSearch(itemSearchRequest(way, kind, session, within));
    return search.isOfNumbers() && dnNotBlank(found) ? itemOfPartNumber(kind, session, found)
                                                     : found;
}

}  // namespace

const ItemSearch& itemSearch(int way)
{
    return ways().at(static_cast<size_t>(way - 1));
}

SearchRequest itemSearchRequest(int way, const ItemKind& kind, const Session& session,
                                const ItemFilter& filter)
{
    const ItemSearch& search = itemSearch(way);
    QStringList headings;
    QStringList lengths;
    QStringList widths;
    QStringList types;
    QStringList alignments;
    const QStringList fields = search.fields.split('|');
    for (const QString& field : fields)
        for (const ItemColumn& column : itemColumns)
            if (column.field == field) {
                headings.append(column.heading);
                lengths.append(QString::number(column.length));
                widths.append(QString::number(column.width));
                types.append("C");
                alignments.append("0");
            }
    QStringList indexes;
    for (const QString& index : search.indexes.split('|', Qt::SkipEmptyParts))
        indexes.append(kind.prefix + index);
    if (search.isOfNumbers())
        indexes.append(numbersIndex(kind));
    return {.DBPath = session.JobSitePath,
            .TableName = search.isOfNumbers() ? "INVPNMASTER" : kind.table,
            .IndexList = indexes.join('|'),
            .WindowTitle = QString("Search ") + kind.noun + "s",
            .SearchTitle = headingOf(way, kind, session, filter),
            .FieldList = search.fields,
            .TypeList = types.join('|'),
            .LengthList = lengths.join('|'),
            .HeadingList = headings.join('|'),
            .WidthList = widths.join('|'),
            .AlignList = alignments.join('|'),
            .keys = keysOf(search, kind, filter)};
}

QString itemOfPartNumber(const ItemKind& kind, const Session& session, const QString& bookmark)
{
    OpenTable numbers = openTable(session, "ZORVEX.mdb", "INVPNMASTER");
    if (!goToFound(numbers.rows, bookmark))
        return noBookmark;
    const int tag = intOf(numbers.rows[kind.tag]);
    OpenTable items = openTable(session, "ZORVEX.mdb", kind.table);
    items.rows.Index(kind.byTag);
    if (items.rows.Seek("=", tag))
        return items.rows.Bookmark();
    const QString what = kind.isOfBranch ? QString("Inventory") : QString(kind.noun);
    showCritical(kind.isOfBranch ? "Error: zorVEXINVSearch" : "Error: zorVEXINVCATSearch",
                 "Cannot Find the " + what + " Tag Number: " + QString::number(tag) +
                     "\nCannot Select Proper " + kind.noun + " Record.");
    return noBookmark;
}

QString zorVEXINVSearch(const Session& session, const ItemFilter& filter)
{
    return searchItems(branchItems, session, filter);
}

QString zorVEXINVCATSearch(const Session& session, const ItemFilter& filter)
{
    return searchItems(catalogItems, session, filter);
}
