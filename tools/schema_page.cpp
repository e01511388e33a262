#include "tools/schema_page.h"

#include <QCommandLineOption>
#include <QFile>
#include <QSaveFile>

#include "tools/command.h"
#include "tools/installation.h"

namespace {

using schema::FieldType;
using schema::Place;

QString placeText(Place place)
{
    switch (place) {
        case Place::Program:
            return "beside the program";
        case Place::JobSite:
            return "in each job site's folder";
        case Place::Network:
            return "in the network folder";
        case Place::User:
            return "in each user's folder";
        case Place::Sibling:
            return "of a sibling module";
    }
    return {};
}

QString typeText(const schema::Field& field)
{
    switch (field.type) {
        case FieldType::Boolean:
            return "Boolean";
        case FieldType::Byte:
            return "Byte";
        case FieldType::Integer:
            return "Integer";
        case FieldType::Long:
            return "Long";
        case FieldType::Currency:
            return "Currency";
        case FieldType::Single:
            return "Single";
        case FieldType::Double:
            return "Double";
        case FieldType::Date:
            return "Date";
        case FieldType::Text:
            return QString("Text %1").arg(field.size);
        case FieldType::Binary:
            return "Binary";
        case FieldType::Memo:
            return "Memo";
        case FieldType::Guid:
            return "GUID";
    }
    return {};
}

QString cell(std::string_view text)
{
    return toText(text).replace('|', "\\|");
}

void addTable(QString& page, const schema::Table& table)
{
    page += "\n### " + toText(table.name) + "\n\n" + toText(table.meaning) + ".\n\n";
    page += "| Field | Type | Meaning |\n|---|---|---|\n";
    for (const schema::Field& field : table.fields)
        page += "| " + cell(field.name) + " | " + typeText(field) + " | " + cell(field.meaning) +
                " |\n";
    if (table.indexes.empty())
        return;
    page += "\n| Index | Keys |  |\n|---|---|---|\n";
    for (const schema::Index& index : table.indexes) {
        QStringList keys;
        for (size_t i = 0; i < index.keyCount(); ++i)
            keys.append(toText(index.keys[i]));
        page += "| " + cell(index.name) + " | " + keys.join(", ") + " | " +
                (index.unique ? "unique" : "") + " |\n";
    }
}

}  // namespace

QString schemaPage()
{
    QString page =
        "# Files, tables and fields\n\n"
        "Made by `vexsite schema` from the definitions in `core/schema`; change those and make\n"
        "this page anew. Text fields tell how many characters they hold. Indexes are ascending,\n"
        "nulls first; only unique ones refuse a second row with the same key.\n\n";
    for (const schema::File& file : schema::files)
        page += "- [" + toText(file.name) + "](#" + toText(file.name).toLower().remove('.') +
                "): " + toText(file.meaning) + ".\n";
    for (const schema::File& file : schema::files) {
        page += "\n## " + toText(file.name) + "\n\n" + toText(file.meaning) + "; " +
                placeText(file.place) + ".\n";
        if (file.tables.empty())
            page += "\nNo tables.\n";
        for (const schema::Table* table : file.tables)
            addTable(page, *table);
    }
    return page;
}

int runSchema(const QStringList& arguments)
{
    const Arguments given(arguments,
                          "Writes the page that tells every file, table, field and index.", {},
                          {{"output", "Write to FILE instead of the standard output.", "FILE"}});
    const QString page = schemaPage();
    if (!given.isSet("output")) {
        QFile output;
        if (!output.open(stdout, QIODevice::WriteOnly) || output.write(page.toUtf8()) < 0)
            throw CommandFailure(output.errorString());
        return exitDone;
    }
    QSaveFile file(given.text("output"));
    if (!file.open(QIODevice::WriteOnly) || file.write(page.toUtf8()) < 0 || !file.commit())
        throw CommandFailure(file.fileName() + ": " + file.errorString());
    return exitDone;
}
