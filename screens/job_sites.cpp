#include "screens/job_sites.h"

#include "core/locators.h"
#include "screens/browse/browse_session.h"
#include "screens/folder_search.h"
#include "screens/search/job_searches.h"
#include "screens/search/search_window.h"

namespace {

QString capitalsWithoutSeparator(const QString& folder)
{
    QString text = folder.trimmed().toUpper();
    if (text.size() > 1 && (text.endsWith('\\') || text.endsWith('/')))
        text.chop(1);
    return text;
}

void selectFolder(BrowseSession& screen)
{
    Entry& entry = screen.entry();
    const QString folder = chooseFolder(entry["PathText"]);
    if (folder.isEmpty())
        return;
    entry.setText("PathText", capitalsWithoutSeparator(folder));
    entry.setFocus("PathText");
}

// The job site of that name, or no record.
OpenTable openJobSite(const QString& name)
{
    OpenTable sites = openLocator("DBPATHS");
    sites.rows.Index("DBPATHS");
    sites.rows.Seek("=", name);
    return sites;
}

QString checkJobSite(const Entry& entry)
{
    const QString name = entry["PATHNAME"];
    if (entry.isBlank("PATHNAME"))
        return "Job Site is Empty.";
    if (openJobSite(name).rows.NoMatch())
        return "Cannot Find Job Site: " + name;
    return entry.isTaken("DATABASES", {{"PATHNAME", name}}) ? "Duplicate Job Site Detected."
                                                            : QString();
}

class OwnSiteRules : public EntryRules
{
public:
    void complete(const Entry& entry, storage::Recordset& rows) override
    {
        const OpenTable site = openJobSite(entry["PATHNAME"]);
        if (!site.rows.NoMatch())
            rows["PathText"] = site.rows["PathText"].value();
    }
};

void selectJobSite(BrowseSession& screen)
{
    const QString bookmark = zorSearchJobSite();
    OpenTable sites = openLocator("DBPATHS");
    if (!goToFound(sites.rows, bookmark))
        return;
    screen.entry().setText("PATHNAME", trimmedTextOf(sites.rows["PATHNAME"]));
    screen.entry().setFocus("PATHNAME");
}

QString searchOwnSites(const BrowseSession& screen)
{
    return dnSearch({.DBPath = screen.session().UserSettingsPath,
                     .DBName = "ZORUSER",
                     .TableName = "DATABASES",
                     .IndexList = "DATABASES",
                     .WindowTitle = "Search Job Sites",
                     .SearchTitle = "Job Sites",
                     .FieldList = "PATHNAME",
                     .TypeList = "C",
                     .LengthList = "255",
                     .HeadingList = "Job Site",
                     .WidthList = "3000",
                     .AlignList = "0"});
}

}  // namespace

BrowseSpec frmDBPBrowse()
{
    return {
        .name = "frmDBPBrowse",
        .caption = "Browse Job Sites",
        .file = "DBPATHS.mdb",
        .table = "DBPATHS",
        .index = "DBPATHS",
        .columns = {{.field = "PATHNAME",
                     .length = 255,
                     .heading = "Job Site",
                     .width = 2000,
                     .entry = "txtPATHNAME",
                     .keys = {.upperCase = true},
                     .check = required("PATHNAME", "Database Name is Empty.")},
                    {.field = "PathText",
                     .length = 255,
                     .heading = "Location of Database",
                     .width = 8000,
                     .entry = "txtPATHTEXT",
                     .tidy = capitalsWithoutSeparator,
                     .check = required("PathText", "Path String is Empty.")}},
        .tag = {.field = "DBTAG", .file = "DBPATHS.mdb", .table = "DBTAGS"},
        .refusals = BrowseSpec::Refusals::BoxToFirstField,
        .deleteQuestion = askToDelete("Job Site:", {"PATHNAME"}, " ", "  ?"),
        .search = [](const BrowseSession&) { return zorSearchJobSite(); },
        .print = {.window = "Print Job Sites", .title = "List of Job Sites"},
        .commands = {{.name = "cmdSelectPath",
                      .caption = "&Select Path",
                      .run = selectFolder,
                      .inEntryMode = true}},
        .reminderAfterEdit =
            Message{.kind = MessageKind::Information,
                    .title = "Reminder",
                    .text = "Remember, if you changed the Location of Database Files\n"
                            "for an existing Job Site then you need to Reselect that Job Site\n"
                            "(Main Menu Option: File, 1 - Select Job Site)\n"
                            "in order for the changes to take effect."},
    };
}

BrowseSpec frmZORJS01()
{
    return {
        .name = "frmZORJS01",
        .caption = "Job Sites",
        .file = "ZORUSER.mdb",
        .table = "DATABASES",
        .index = "DATABASES",
        .columns = {{.field = "PATHNAME",
                     .length = 255,
                     .heading = "Job Site",
                     .width = 3000,
                     .entry = "txtPATHNAME",
                     .keys = {.upperCase = true},
                     .check = checkJobSite},
                    {.field = "PathText",
                     .length = 255,
                     .heading = "Location of Database",
                     .width = 6000}},
        .rules = std::make_shared<OwnSiteRules>(),
        .deleteQuestion = askToDelete("Job Site:", {"PATHNAME"}, " ", "  ?"),
        .search = searchOwnSites,
        .print = {.window = "Print Job Sites", .title = "List of Job Sites"},
        .commands = {{.name = "cmdSelectPath",
                      .caption = "&Select Job Site",
                      .run = selectJobSite,
                      .inEntryMode = true}},
    };
}
