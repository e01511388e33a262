#include "cost/job_site_settings.h"

#include <QApplication>
#include <QFile>
#include <QSaveFile>

#include "core/sounds.h"
#include "core/storage/file_paths.h"
#include "core/text.h"
#include "cost/job_number_refresh.h"
#include "screens/data/data_session.h"
#include "screens/data/data_window.h"
#include "screens/progress.h"

using Kind = EntryField::Kind;

namespace {

constexpr char mediaFolder[] = "ZORMedia";
constexpr char errorSound[] = "ErrorSound.wav";

// ---- the form of job numbers
JobNoFormat formatIn(const Entry& entry)
{
    return {.type = entry["JOBNOTYPE"].trimmed(),
            .size = static_cast<int>(entry.number("JOBNOSIZE"))};
}

// False for a form that cannot be, and for a smaller size that the user does not want after all.
bool mayUseFormat(Entry& entry)
{
    const JobNoFormat format = formatIn(entry);
    if (const std::optional<Refusal> refusal = refuseJobNoFormat(format)) {
        showCritical(refusal->title, refusal->text);
        entry.setFocus(refuseJobNoFormat({.type = format.type}) ? schema::FieldName("JOBNOTYPE")
                                                                : schema::FieldName("JOBNOSIZE"));
        return false;
    }
    if (!entry.goToRecord() || format.size >= intOf(entry.rows()["JOBNOSIZE"]))
        return true;
    const Refusal loss = dataMayBeLost(format.size);
    if (askYesNo(loss.title, loss.text, Answer::No))
        return true;
    entry.setFocus("JOBNOSIZE");
    return false;
}

void tellIncomplete()
{
    showCritical("Process CANCELLED",
                 "Job Number Refresh is INCOMPLETE.\n"
                 "You MUST COMPLETE this process to \n"
                 "insure proper database operation.");
}

void refreshWithProgress(const QString& jobSitePath, const JobNoFormat& format)
{
    RefreshResult result;
    {
        Progress progress(QApplication::activeWindow(), "Refresh Job Numbers");
        result = refreshJobNumbers(jobSitePath, format, [&](const RefreshProgress& now) {
            QString text = "Database: " + now.database + "\nTable: " + now.table;
            if (now.rows > 0)
                text += "\nRows: " + QString::number(now.rows);
            return progress.tell(text);
        });
    }
    if (result.isComplete)
        showInformation("Process Finished.", "Job Numbers have been Refreshed.");
    else
        tellIncomplete();
}

// ---- the sound of errors
QString mediaPath(const QString& file)
{
    return storage::joinPath(mediaFolder, file);
}

bool copySound(const QString& file)
{
    QFile chosen(storage::nativePath(mediaPath(file)));
    if (!chosen.open(QIODevice::ReadOnly))
        return false;
    const QByteArray sound = chosen.readAll();
    QSaveFile played(storage::nativePath(mediaPath(errorSound)));
    return played.open(QIODevice::WriteOnly) && played.write(sound) == sound.size() &&
           played.commit();
}

void playChoice(DataSession& screen)
{
    const QString file = screen.entry()["ERRORSOUND"].trimmed();
    if (!file.isEmpty())
        dnPlaySound(mediaPath(file));
}

class SettingsRules : public EntryRules
{
public:
    bool begin(Entry& entry) override
    {
        m_sound = entry["ERRORSOUND"].trimmed();
        // What was never chosen is none.
        for (int i = 0; i < entry.count(); ++i)
            if (entry.field(i).kind == Kind::Choice)
                entry.setText(i, entry.text(i).trimmed());
        return true;
    }

    Step beforeWrite(Entry& entry) override
    {
        return mayUseFormat(entry) ? Step::Write : Step::Stay;
    }

    // The chosen sound becomes the one that is played; none leaves the errors silent.
    void written(Entry& entry, storage::Recordset&) override
    {
        const QString sound = entry["ERRORSOUND"].trimmed();
        if (sound.isEmpty() && !m_sound.isEmpty())
            QFile::remove(storage::nativePath(mediaPath(errorSound)));
        else if (!sound.isEmpty() && !copySound(sound))
            showCritical("Error Alert Sound", "Cannot Copy the Sound File: " + mediaPath(sound));
    }

private:
    QString m_sound;  // as stored
};

// ---- the fields
EntryField box(const char* name, schema::FieldName field, const QString& caption)
{
    return {.kind = Kind::Box, .name = name, .field = field, .caption = caption};
}

EntryField text(const char* name, schema::FieldName field, const QString& caption)
{
    return {.name = name, .field = field, .caption = caption};
}

EntryField heading(const QString& caption)
{
    return {.kind = Kind::Heading, .caption = caption};
}

EntryField group(const char* name, schema::FieldName field, const QString& caption)
{
    return {.kind = Kind::Choice,
            .name = name,
            .field = field,
            .caption = caption,
            .choices = {{"", "(none)"}, {"A", "A"}, {"B", "B"}, {"C", "C"}}};
}

DataSection jobNumberSection()
{
    return {.caption = "&1 Job Numbers",
            .fields = {heading("Job Number Type"),
                       {.name = "txtJOBNOTYPE",
                        .field = "JOBNOTYPE",
                        .caption = "(C - Characters  or N - Numbers Only)",
                        .length = 1,
                        .keys = {.upperCase = true}},
                       heading("Job Number Size"),
                       {.name = "txtJOBNOSIZE",
                        .field = "JOBNOSIZE",
                        .caption = "(Length can be 1 to 8 characters/digits)",
                        .length = 1,
                        .keys = {.numbers = NumberKeys::Digits}},
                       heading("Refresh Job Numbers: Reformats Job Numbers to Settings")}};
}

DataSection documentSection()
{
    return {.caption = "&2 Documents",
            .fields = {
                box("ckbVEXNODECIMAL", "VEXNODECIMAL", "Integer Quantities Only (No Decimals)."),
                box("ckbVEXUSECOL2", "VEXUSECOL2", "Activate Column 2 in Requisition/PO Detail."),
                text("txtVEXCOL2TXT", "VEXCOL2TXT", "Column 2 Heading:"),
                text("txtVEXCOL10TXT", "VEXCOL10TXT", "Payment Detail Column 10 Heading:"),
                text("txtVEXCOL11TXT", "VEXCOL11TXT", "Payment Detail Column 11 Heading:"),
                {.name = "txtMCODEDEFAULT",
                 .field = "MCODEDEFAULT",
                 .caption = "Material Code Default:",
                 .keys = {.upperCase = true}},
                box("ckbVEXCCSTL", "VEXCCSTL", "Print Cost Code Subtotals on PO and AFP Forms."),
                box("ckbVEXFORMATPONO", "VEXFORMATPONO",
                    "Format PO Numbers from Job No./Req. No Pair."),
                box("ckbVEXUSEPONOCOUNTER", "VEXUSEPONOCOUNTER",
                    "Format PO Numbers from PO Number Counter."),
                box("ckbVEXUCASEONLY", "VEXUCASEONLY", "Force Upper Case in all VEX Fields."),
                box("ckbVEXQTYNOEDIT", "VEXQTYNOEDIT",
                    "Do Not Allow Edit of Inventory Qty. Available and Qty. on Order.")}};
}

DataSection formSection()
{
    return {.caption = "&3 PO Forms",
            .fields = {box("ckbVEXPRTQCSIGBLK", "VEXPRTQCSIGBLK",
                           "Priint Receiver and Q/C Signature Blocks on PO."),
                       box("ckbVEXPRINTPOTERMS", "VEXPRINTPOTERMS",
                           "Print Terms and Conditions Form After Printing a Purchase Order."),
                       box("ckbVEXPRINTPONOTICE", "VEXPRINTPONOTICE",
                           "Print PO Notice: \"Notify Client when Vendor Billing is Within 10% of "
                           "PO Limit.\""),
                       {.name = "txtPOLIMIT",
                        .field = "POLIMIT",
                        .caption = "PO Limit for Printing of Above Notice",
                        .format = "###,###.00",
                        .alignment = Qt::AlignRight},
                       box("ckbVEXJOBNOPRINTOPT", "VEXJOBNOPRINTOPT",
                           "Print Group A Costcode instead of Job Number on PO Forms."),
                       box("ckbVEXCOMBINEJNPONO", "VEXCOMBINEJNPONO",
                           "Print  Job Number and PO # as One Number on PO Forms."),
                       box("ckbVEXPRINTASSETCOL", "VEXPRINTASSETCOL",
                           "Print Asset Column on Purchase Order Forms.")}};
}

DataSection costCodeSection()
{
    return {.caption = "&4 Cost Codes",
            .fields = {box("ckbPLGCOSTCODEOPT1", "PLGCOSTCODEOPT1",
                           "Turn Off Extended Cost Code Columns?"),
                       box("ckbCCERRORCK", "CCERRORCK", "Enable \"Add New Cost Code?\"  Option?"),
                       heading("Select which Cost Code Groups will be used in the Client Codes "
                               "Cross Reference Table"),
                       group("cboL1CCGVEX", "XILL1OPTIONVEX", "Level 1:"),
                       group("cboL2CCGVEX", "XILL2OPTIONVEX", "Level 2:"),
                       group("cboL3CCGVEX", "XILL3OPTIONVEX", "Level 3:")}};
}

DataSection menuSection()
{
    return {.caption = "&5 EcoSys and Menu",
            .fields = {heading("EcoSys Option "),
                       box("ckbECOSYSXREF", "ECOSYSXREF", "This Job Site is Tied to EcoSys."),
                       text("txtPROJTAG", "PROJTAG", "Project Tag:"),
                       text("txtPROJCODE", "PROJCODE", "Project Code:"),
                       text("txtPROJNAME", "PROJNAME", "Project Name:"),
                       text("txtSITETYPE", "SITETYPE", "Site Type:"), heading("Main Menu Options "),
                       box("ckbMENUOPTMAS200DL", "MENUOPTMAS200DL", "MAS 200 Downloads"),
                       box("ckbMENUOPTORACLEDL", "MENUOPTORACLEDL", "MENUOPTORACLEDL"),
                       box("ckbMENUOPTGPDL", "MENUOPTGPDL", "MENUOPTGPDL"),
                       box("ckbMENUOPTECMSDL", "MENUOPTECMSDL", "MENUOPTECMSDL"),
                       box("ckbMENUOPTSPRDL", "MENUOPTSPRDL", "MENUOPTSPRDL"),
                       box("ckbMENUOPTPTDL", "MENUOPTPTDL", "MENUOPTPTDL"),
                       box("ckbMENUOPTWORKORDERS", "MENUOPTWORKORDERS", "MENUOPTWORKORDERS")}};
}

DataSection soundSection()
{
    return {.caption = "&6 Error Sound",
            .fields = {{.kind = Kind::Choice,
                        .name = "cboSelectErrorSound",
                        .field = "ERRORSOUND",
                        .caption = "Error Alert Sound:",
                        .choices = {{"", "(none)       "},
                                    {"ding.wav", "Windows Ding"},
                                    {"Error.wav", "Error Voice  "},
                                    {"Iyiyi.wav", "Iyiyi       "},
                                    {"UhOh.wav", "UhOh         "},
                                    {"Umakimistaki.wav", "Umakimistaki"}}}}};
}

// Nothing here reads these, and their meaning is their modules' own: they stand under their names.
DataSection siblingSection()
{
    DataSection section{.caption = "&7 Other Modules", .fields = {}, .columns = 2};
    const auto add = [&section](Kind kind, const char* prefix, schema::FieldName field,
                                const char* name) {
        section.fields.push_back(
            {.kind = kind, .name = QString(prefix) + name, .field = field, .caption = name});
    };
#define VEX_BOX(name) add(Kind::Box, "ckb", #name, #name)
#define VEX_TEXT(name) add(Kind::Text, "txt", #name, #name)
    VEX_BOX(PLGUSEPRIDNO);
    VEX_BOX(PLGNOSSNO);
    VEX_BOX(PLGNOTAXSTAT);
    VEX_BOX(PLGNOECNO);
    VEX_BOX(PLGNONCNO);
    VEX_BOX(USESTATECODE);
    VEX_BOX(PLGALLOWACTIVATION);
    VEX_BOX(PLGALLOWEMPHISTORY);
    VEX_BOX(PLGUSEBILLINGCODES);
    VEX_TEXT(PLGDTSSTYLE);
    VEX_TEXT(BRQRAMETHOD);
    VEX_BOX(USERTF);
    VEX_BOX(BRQETRATESENABLE);
    VEX_TEXT(BRQETUOM);
#undef VEX_BOX
#undef VEX_TEXT
    for (EntryField& field : std::vector{group("cboL1CCGPLG", "XILL1OPTIONPLG", "XILL1OPTIONPLG"),
                                         group("cboL2CCGPLG", "XILL2OPTIONPLG", "XILL2OPTIONPLG"),
                                         group("cboL3CCGPLG", "XILL3OPTIONPLG", "XILL3OPTIONPLG"),
                                         group("cboL1CCGBRQ", "XILL1OPTIONBRQ", "XILL1OPTIONBRQ"),
                                         group("cboL2CCGBRQ", "XILL2OPTIONBRQ", "XILL2OPTIONBRQ"),
                                         group("cboL3CCGBRQ", "XILL3OPTIONBRQ", "XILL3OPTIONBRQ")})
        section.fields.push_back(std::move(field));
    return section;
}

void useDefaults(DataSession& screen)
{
    screen.entry().setText("VEXCOL10TXT", "Check #");
    screen.entry().setText("VEXCOL11TXT", "Check Date");
}

}  // namespace

void refreshJobNumbersFrom(DataSession& screen)
{
    Entry& entry = screen.entry();
    const QString& jobSitePath = screen.session().JobSitePath;
    if (!mayUseFormat(entry) ||
        !askOkCancel("Ready to Refresh",
                     "All Job Numbers will be reformatted for all \n"
                     "databases located in: " +
                         jobSitePath +
                         "\nThis process must not be interrupted. If the \n"
                         "process is interrupted for some reason you \n"
                         "will have to run the Job Number Refresh process \n"
                         "again to insure database integrity. \n"
                         "OK to Proceed?"))
        return;
    const JobNoFormat format = formatIn(entry);
    saveJobNoFormat(jobSitePath, format);
    for (const schema::FieldName field : {schema::FieldName("JOBNOTYPE"), {"JOBNOSIZE"}})
        entry.takeAsUnchanged(field);
    showInformation("Settings Saved", "Job Number Settings Have Been Saved. Ready to Refresh.");
    try {
        refreshWithProgress(jobSitePath, format);
    } catch (...) {
        tellIncomplete();
        throw;
    }
}

DataSpec frmZORSYS(const Session& session)
{
    return {
        .name = "frmZORSYS",
        .caption = "Settings for Job Site:  " + session.JobSitePath,
        .namesMode = false,
        .file = "ZORSYS.mdb",
        .table = "SYSSETTINGS",
        .sections = {jobNumberSection(), documentSection(), formSection(), costCodeSection(),
                     menuSection(), soundSection(), siblingSection()},
        .rules = std::make_shared<SettingsRules>(),
        .commands = {{"cmdUSEDEFAULTS", "Use &Defaults", useDefaults},
                     {"cmdPlaySound", "&Play Sound", playChoice},
                     {"cmdJNRefresh", "&Refresh Job Numbers", refreshJobNumbersFrom}},
        .abandonQuestion = Message{.kind = MessageKind::Question,
                                   .title = "Verify Exit",
                                   .text = "Abandon Changes?",
                                   .buttons = Buttons::YesNo},
        .savedMessage = Message{.kind = MessageKind::Information,
                                .title = "Changes Saved",
                                .text = "System Settings Have Been Updated."},
        .staysOpen = true,
        .hasFieldSearch = true,
    };
}

QWidget* newJobSiteSettings(const ScreenContext& context)
{
    if (zorGetJobNoFormat(context.session.JobSitePath).size < 1)
        return nullptr;
    return new DataWindow(frmZORSYS(context.session), context.session, {.mode = "E"});
}
