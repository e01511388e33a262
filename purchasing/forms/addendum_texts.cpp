#include "purchasing/forms/addendum_texts.h"

#include "core/dates.h"
#include "core/system.h"
#include "core/text.h"
#include "purchasing/forms/addendum.h"
#include "purchasing/forms/addendum_drawing.h"
#include "screens/browse/browse_session.h"
#include "screens/data/data_window.h"
#include "screens/desktop.h"
#include "screens/report/report_window.h"

using Kind = EntryField::Kind;

namespace {

void openPrint(const Session& session, qint32 PONTAG)
{
    if (PONTAG != 0)
        openScreen(new ReportWindow(frmVEXPON03(PONTAG), session));
}

// ---- the screen of one text
QString checkDate(const Entry& entry)
{
    const QString date = entry["PONFDATE"];
    return dnIsBlank(dnFixDate(date)) ? "Invalid Date." : QString();
}

class AddendumRules : public EntryRules
{
public:
    bool begin(Entry& entry) override
    {
        if (entry.isAdding())
            entry.setText("PONFDATE", System::current().now().toString("MM/dd/yyyy"));
        return true;
    }
    void complete(const Entry&, storage::Recordset& rows) override
    {
        rows["PONLDATE"] = dnDateKey(textOf(rows["PONFDATE"]));
    }
};

void preview(DataSession& screen)
{
    if (screen.isForTyping() && (screen.entry().isChanged() || screen.mode() == "A")) {
        if (!askOkCancel("Confirm Save Changes.", "OK to Save Changes Before Print Preview?"))
            return;
        screen.update(true);
        if (screen.entry().isChanged() || screen.mode() == "A")
            return;
    }
    openPrint(screen.session(), intOf(screen.rows()["PONTAG"]));
}

bool openText(BrowseSession& list, const QString& mode, qint32 tag, qint16 winTag)
{
    return openDataScreen(
        frmVEXPON02(), list.session(),
        {.mode = mode, .index = "PONTAG", .keys = {{"PONTAG", tag}}, .winTag = winTag, .tag = tag});
}

void setDefault(BrowseSession& list)
{
    toggleDefaultAddendum(list.session(), list.currentTag());
    list.showTag(list.currentTag());
}

QString defaultMark(const BrowseSession&, storage::Recordset& rows)
{
    return dnNullCheck(rows["PONDEFAULT"]).toBool() ? "Yes" : "";
}

}  // namespace

BrowseSpec frmVEXPON01()
{
    return {
        .name = "frmVEXPON01",
        .caption = "PO Addendum Text",
        .table = "PONOTETEXT",
        .index = "PONTAG",
        .columns = {{.field = "PONTITLE", .length = 50, .heading = "Text Title", .width = 6000},
                    {.field = "PONFDATE", .length = 10, .heading = "Start Date", .width = 1400},
                    {.field = "PONDEFAULT",
                     .length = 3,
                     .heading = "Default",
                     .width = 900,
                     .shows = defaultMark}},
        .detail = {.tagField = "PONTAG", .tagIndex = "PONTAG", .open = openText, .hasView = true},
        .print = {.run = [](BrowseSession& list) { openPrint(list.session(), list.currentTag()); }},
        .commands = {{.name = "cmdSetDefault",
                      .caption = "Set De&fault",
                      .run = setDefault,
                      .needsRecord = true}},
    };
}

DataSpec frmVEXPON02()
{
    return {
        .name = "frmVEXPON02",
        .caption = "PO Addendum Text",
        .table = "PONOTETEXT",
        .index = "PONTAG",
        .sections = {{.fields = {{.name = "txtPONTITLE",
                                  .field = "PONTITLE",
                                  .caption = "Text &Title:",
                                  .check = required("PONTITLE", "Addendum Text Title is Empty.")},
                                 {.kind = Kind::Date,
                                  .name = "txtPONFDATE",
                                  .field = "PONFDATE",
                                  .caption = "Start &Date:",
                                  .check = checkDate},
                                 {.kind = Kind::Memo,
                                  .name = "txtPONTEXT",
                                  .field = "PONTEXT",
                                  .caption = "Te&xt:"}}}},
        .tag = {.field = "PONTAG"},
        .rules = std::make_shared<AddendumRules>(),
        .deleteQuestion =
            [](storage::Recordset&) { return confirmDelete("Confirm Delete.", "OK to Delete?"); },
        .commands = {{.name = "cmdPrintPreview",
                      .caption = "&Print Preview",
                      .run = preview,
                      .whileViewing = true}},
        .abandonQuestion = Message{.kind = MessageKind::Question,
                                   .title = "Confirm Cancel.",
                                   .text = "OK to Exit and Abandon Any Changes?",
                                   .buttons = Buttons::OkCancel},
        .updateCaption = "&Save and Exit",
        .updateName = "cmdSaveAndExit",
        .stayCaption = "&Update",
    };
}

ReportSpec frmVEXPON03(qint32 PONTAG)
{
    return {.name = "frmVEXPON03",
            .caption = "Purchase Order Addendum Text",
            .print =
                [PONTAG](ReportRun& run) {
                    const auto text = addendumText(run.session(), PONTAG);
                    if (!dnReportBegin(run, "P"))
                        return;
                    if (text)
                        drawAddendum(run, text->heading(), {}, text->text);
                    dnReportEnd(run);
                },
            .finishedText = "Report Ready to Print"};
}
