#include "core/job_numbers.h"

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/storage/file_paths.h"
#include "core/storage/storage_error.h"
#include "core/text.h"

namespace {

constexpr char settingsFile[] = "ZORSYS.mdb";
constexpr char settingsTable[] = "SYSSETTINGS";
constexpr char cannotRetrieve[] = "Cannot Retreive Job Number Settings\n";

// One of the two settings, with what is told when it has to be mended.
struct Setting
{
    schema::FieldName field;
    storage::Value standard;
    QString unsettled;
    QString choices;
    QString standardText;

    bool isSettled(const storage::Recordset& rows) const
    {
        return standard.as<QString>() ? !trimmedTextOf(rows[field]).isEmpty()
                                      : intOf(rows[field]) != 0;
    }
};

Setting sizeSetting()
{
    return {"JOBNOSIZE", JobNoFormat().size, "Job Number Size is Zero. ",
            "Job Numbers can be 1 - 8 characters/digits long.",
            "The Default Setting of 8 Will be Used."};
}

Setting typeSetting()
{
    return {"JOBNOTYPE", JobNoFormat().type, "Job Number Type is Empty. ",
            "Job Number Types can be 'C' or 'N' (Character/Number).",
            "The Default Setting of 'C' will be used."};
}

void tellMended(const QString& fault, const Setting& setting)
{
    showCritical("Error", fault + '\n' + setting.choices + '\n' + setting.standardText +
                              "\nTo update the Job Number Settings\n"
                              "Select Menu Option: Settings, 1 - Job Site Settings.");
}

void mend(storage::Recordset& rows, const Setting& setting)
{
    const bool isEmpty = rows.RecordCount() == 0;
    if (isEmpty) {
        tellMended("Job Site Settings Table is Empty. ", setting);
        rows.AddNew();
    } else {
        tellMended(setting.unsettled, setting);
        rows.Edit();
    }
    rows[setting.field] = setting.standard;
    rows.Update();
    if (isEmpty)
        rows.MoveFirst();
}

// Nothing after a failure, which was told.
storage::Value settingOf(const QString& jobSitePath, const Setting& setting)
{
    const QString path = storage::joinPath(jobSitePath, settingsFile);
    if (!storage::pathExists(path)) {
        showCritical("Error", cannotRetrieve + ("Cannot Find the Database File: " + path));
        return {};
    }
    try {
        OpenTable settings = openTable(path, settingsTable);
        if (settings.rows.RecordCount() == 0 || !setting.isSettled(settings.rows))
            mend(settings.rows, setting);
        return settings.rows[setting.field].value();
    } catch (const storage::StorageError& error) {
        showCritical("Error", cannotRetrieve + error.description());
        return {};
    }
}

QString knownType(const QString& type)
{
    return type.trimmed().toUpper() == "N" ? "N" : "C";
}

}  // namespace

int zorGetJobNoSize(const QString& jobSitePath)
{
    return settingOf(jobSitePath, sizeSetting()).toInt();
}

QString zorGetJobNoType(const QString& jobSitePath)
{
    return knownType(settingOf(jobSitePath, typeSetting()).toString());
}

JobNoFormat zorGetJobNoFormat(const QString& jobSitePath)
{
    JobNoFormat format;
    format.size = zorGetJobNoSize(jobSitePath);
    if (format.size > 0)  // else told already
        format.type = zorGetJobNoType(jobSitePath);
    return format;
}

JobNoFormat settledJobNoFormat(const QString& jobSitePath)
{
    JobNoFormat format;
    const QString path = storage::joinPath(jobSitePath, settingsFile);
    if (dnIsBlank(jobSitePath) || !storage::pathExists(path))
        return format;
    const OpenTable settings = openTable(path, settingsTable);
    if (settings.rows.RecordCount() == 0)
        return format;
    const int size = intOf(settings.rows["JOBNOSIZE"]);
    if (size >= 1 && size <= format.size)
        format.size = size;
    format.type = knownType(textOf(settings.rows["JOBNOTYPE"]));
    return format;
}
