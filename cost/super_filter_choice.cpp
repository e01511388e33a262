// The dialog in which a report asks for a super cost code filter.
#include <QLineEdit>

#include "core/locators.h"
#include "core/messages.h"
#include "core/text.h"
#include "cost/super_filter_screens.h"
#include "screens/command_runner.h"
#include "screens/search/job_searches.h"
#include "screens/selectors/look_up_field.h"
#include "screens/small_dialog.h"

namespace {

struct Filters
{
    Session session;
    int CONO;
    QString JOBNO;

    OpenTable open() const { return openTable(session, "MAIN.mdb", "UDSLIST"); }

    // A field of the filter with that code; null when there is none.
    storage::Value find(const QString& code, schema::FieldName field) const
    {
        OpenTable filters = open();
        filters.rows.Index("UDSLIST");
        return dnNotBlank(code) && filters.rows.Seek("=", CONO, JOBNO, code.trimmed())
                   ? filters.rows[field].value()
                   : storage::Value();
    }
    std::optional<QString> nameOf(const QString& code) const
    {
        const storage::Value name = find(code, "UDSNAME");
        return name.isNull() ? std::optional<QString>() : name.toString().trimmed();
    }
    std::vector<CodeChoice> all() const
    {
        std::vector<CodeChoice> choices;
        OpenTable filters = open();
        forEachWithin(filters.rows, "UDSLIST", {{"CONO", CONO}, {"JOBNO", JOBNO}}, [&] {
            choices.push_back(
                {trimmedTextOf(filters.rows["UDSCODE"]), trimmedTextOf(filters.rows["UDSNAME"])});
            return true;
        });
        return choices;
    }
    QString search() const
    {
        const QString bookmark =
            zorSearchUDS(session.JobSitePath, static_cast<qint16>(CONO), JOBNO);
        OpenTable filters = open();
        return dnNotBlank(bookmark) && goToFound(filters.rows, bookmark)
                   ? trimmedTextOf(filters.rows["UDSCODE"])
                   : QString();
    }
};

}  // namespace

qint32 takeSuperFilter(const Session& session, int CONO, const QString& JOBNO, const QString& code)
{
    if (dnIsBlank(code)) {
        showCritical("No Selection", "Super Costcode Filter Code has not been Selected.");
        return 0;
    }
    const qint32 tag = Filters{session, CONO, JOBNO}.find(code, "UDSTAG").toInt();
    if (tag == 0)
        showCritical("Invalid SCF Code", "Cannot Find SCF Code: " + code.trimmed());
    return tag;
}

qint32 frmZORSELUDS(const Session& session, int CONO, const QString& JOBNO)
{
    const Filters filters{session, CONO, JOBNO};
    SmallDialog dialog("frmZORSELUDS", "Select Super Costcode Filter Code");
    dialog.addText("lblJob", "For Company Number: " + QString::number(CONO) +
                                 " and Job Number: " + JOBNO.trimmed());
    auto* code =
        new LookUpField("txtUDSCODE", "lblUDSNAME",
                        {.nameOf = [&](const QString& text) { return filters.nameOf(text); },
                         .choices = [&] { return filters.all(); },
                         .search = [&] { return filters.search(); },
                         .notFound = "Cannot Find SCF Code"});
    dialog.addField("&SCF Code:", code);
    qint32 tag = 0;
    dialog.enterTakes(dialog.addButton("cmdOK", "&OK", [&] {
        tag = takeSuperFilter(session, CONO, JOBNO, code->code());
        if (tag != 0)
            dialog.accept();
        else
            code->edit().setFocus();
    }));
    dialog.escTakes(dialog.addClosingButton("cmdCancel", "&Cancel"));
    code->edit().setFocus();
    dialog.exec();
    return tag;
}
