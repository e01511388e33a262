#include "screens/report/remembered_fields.h"

#include "core/dates.h"
#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/storage/storage_error.h"
#include "core/user_settings.h"
#include "screens/report/report_run.h"

using storage::FieldType;
using storage::Value;

namespace {

constexpr char nullDate[] = "01/01/1900";

std::vector<RememberedValue> rememberedOf(const ReportSpec& spec)
{
    std::vector<RememberedValue> all;
    for (const ReportField& field : spec.fields) {
        if (!field.setting.isNone())
            all.push_back({field.name, field.setting});
        all.insert(all.end(), field.settings.begin(), field.settings.end());
    }
    if (!spec.workbookSetting.isNone())
        all.push_back({spec.workbookBox, spec.workbookSetting});
    return all;
}

QString nameOf(const schema::FieldName& field)
{
    return QString::fromUtf8(field.text().data(), qsizetype(field.text().size()));
}

// As the selection holds it; blank when nothing was remembered.
QString selectedText(const storage::Field& field, const Value& value)
{
    if (field.Type() == FieldType::Boolean)
        return value.toBool() ? "-1" : "0";
    if (field.Type() == FieldType::Date) {
        const QString date = value.toDateTime().toString("MM/dd/yyyy");
        return date == nullDate ? QString() : date;
    }
    if (const auto* text = value.as<QString>())
        return text->trimmed().isEmpty() ? QString() : *text;
    return value.toDouble() == 0 ? QString() : value.toString();
}

// As the field holds it; null when it cannot.
Value storedValue(const storage::Field& field, const QString& text)
{
    switch (field.Type()) {
        case FieldType::Boolean:
            return text == "-1";
        case FieldType::Date: {
            const QDate date = QDate::fromString(dnFixDate(text), "MM/dd/yyyy");
            return date.isValid() ? Value(date) : Value();
        }
        case FieldType::Text:
            return text.isEmpty() ? Value(" ") : text.size() > field.Size() ? Value() : Value(text);
        case FieldType::Memo:
            return text.isEmpty() ? Value(" ") : Value(text);
        default: {
            bool isNumber = false;
            const double number = text.toDouble(&isNumber);
            return isNumber || text.trimmed().isEmpty() ? Value(number) : Value();
        }
    }
}

void withSettings(const ReportRun& run, const QString& refusal,
                  const std::function<void(storage::Recordset&, const RememberedValue&)>& act)
{
    const std::vector<RememberedValue> all = rememberedOf(run.spec());
    if (all.empty())
        return;
    try {
        OpenTable settings =
            openTable(run.session().UserSettingsPath, "ZORUSER.mdb", "VEXSETTINGS");
        for (const RememberedValue& each : all)
            act(settings.rows, each);
    } catch (const storage::StorageError&) {
        showCritical("Error", refusal);
    }
}

}  // namespace

void recallFields(ReportRun& run)
{
    withSettings(run, "Could not Retreive User Settings.",
                 [&run](storage::Recordset& rows, const RememberedValue& each) {
                     const QString name = nameOf(each.setting);
                     const Value value = zorGetUserSetting(rows, run.session().SiteTag, name);
                     const QString text = selectedText(rows.fieldNamed(name), value);
                     if (!text.isEmpty())
                         run.selection.set(each.value, text);
                 });
}

void rememberFields(ReportRun& run)
{
    withSettings(run, "Could not Save User Settings.",
                 [&run](storage::Recordset& rows, const RememberedValue& each) {
                     const QString name = nameOf(each.setting);
                     const Value value =
                         storedValue(rows.fieldNamed(name), run.selection[each.value]);
                     if (!value.isNull())
                         zorSaveUserSetting(rows, run.session().SiteTag, name, value);
                 });
}
