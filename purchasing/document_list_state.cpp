#include "purchasing/document_list_state.h"

#include "core/locators.h"
#include "core/messages.h"
#include "purchasing/document_marks.h"

using Option = DocumentFilter::Option;

namespace {

struct RememberedFilter
{
    const char* option;
    const char* CONO;
    const char* JOBNO;
    const char* VENTAG;
    const char* tag;  // the last document
};
const RememberedFilter& rememberedFilter(const DocumentKind& kind)
{
    static constexpr RememberedFilter ofRequisitions{
        "VEXREQFILTEROPT", "VEXREQFILTERCONO", "VEXREQFILTERJOBNO", "VEXREQFILTERVENTAG", "REQTAG"};
    static constexpr RememberedFilter ofOrders{"VEXPOFILTEROPT", "VEXPOFILTERCONO",
                                               "VEXPOFILTERJOBNO", "VEXPOFILTERVENTAG", "POTAG"};
    return kind.isOrder() ? ofOrders : ofRequisitions;
}

void browse(BrowseSession& list, const DocumentFilter& filter)
{
    const bool isOrder = kindOf(list).isOrder();
    switch (filter.option) {
        case Option::None:
            return list.browseBy(isOrder ? "PONO" : "REQNO", {});
        case Option::Job:
            return list.browseBy(isOrder ? "POLIST" : "REQLIST",
                                 {{"CONO", filter.CONO}, {"JOBNO", filter.JOBNO}});
        case Option::Vendor:
            return list.browseBy(isOrder ? "POVEN" : "REQVEN", {{"VENTAG", filter.VENTAG}});
    }
}

}  // namespace

const DocumentKind& kindOf(const BrowseSession& list)
{
    return list.spec().table == purchaseOrders.table ? purchaseOrders : requisitions;
}

UserSettings::UserSettings(const Session& session)
    : m_open(openTable(session, "ZORUSER.mdb", "VEXSETTINGS")), m_site(session.SiteTag)
{
}

storage::Value UserSettings::operator[](const char* field)
{
    return zorGetUserSetting(m_open.rows, m_site, field);
}

void UserSettings::save(const char* field, const storage::Value& value)
{
    zorSaveUserSetting(m_open.rows, m_site, field, value);
}

void readMarks(const BrowseSession& list, ListState& state)
{
    state.marked.clear();
    for (const qint32 tag : markedDocuments(list.session(), kindOf(list)))
        state.marked.insert(tag);
}

void applyFilter(BrowseSession& list, ListState& state)
{
    browse(list, state.filter);
    if (state.filter.option == Option::None || !list.list().isEmpty())
        return;
    showCritical("Filter Error",
                 QString(state.filter.option == Option::Job
                             ? "Cannot Find any Records Matching Co./Job No. Filter Selection."
                             : "Cannot Find any Records Matching Vendor Filter Selection.") +
                     "\nFilter Selection will be Turned Off.");
    state.filter.option = Option::None;
    browse(list, state.filter);
}

void showDocument(BrowseSession& list, ListState& state, qint32 tag)
{
    if (list.showTag(tag) || state.REQTAG != 0)
        return;
    // Another filter's: all are shown, so that it is among them.
    if (state.filter.option == Option::None)
        return;
    state.filter.option = Option::None;
    browse(list, state.filter);
    list.showTag(tag);
}

void openList(BrowseSession& list, ListState& state)
{
    UserSettings settings(list.session());
    const RememberedFilter& names = rememberedFilter(kindOf(list));
    state.usesColors = settings["USESTATUSCOLORS"].toBool();
    readMarks(list, state);
    if (state.REQTAG != 0)
        return list.browseBy("POREQ", {{"REQTAG", state.REQTAG}});
    const int option = settings[names.option].toInt();
    state.filter = {.option = option == 2   ? Option::Job
                              : option == 3 ? Option::Vendor
                                            : Option::None,
                    .CONO = settings[names.CONO].toInt(),
                    .JOBNO = settings[names.JOBNO].toString(),
                    .VENTAG = settings[names.VENTAG].toInt()};
    if (state.filter.option != Option::None)
        applyFilter(list, state);
    list.showTag(settings[names.tag].toInt());
}

void closeList(BrowseSession& list, const ListState& state)
{
    if (state.REQTAG != 0)
        return;
    const qint32 tag = list.currentTag();
    UserSettings settings(list.session());
    const RememberedFilter& names = rememberedFilter(kindOf(list));
    settings.save(names.option, static_cast<int>(state.filter.option));
    settings.save(names.CONO, state.filter.CONO);
    settings.save(names.JOBNO, state.filter.JOBNO);
    settings.save(names.VENTAG, state.filter.VENTAG);
    settings.save(names.tag, tag);
}

QString filterText(const ListState& state)
{
    if (state.REQTAG != 0)
        return "Filter: Requisition";
    switch (state.filter.option) {
        case Option::Job:
            return "Filter: Company/Job Number";
        case Option::Vendor:
            return "Filter: Vendor";
        case Option::None:
            break;
    }
    return "Filter: <none>";
}
