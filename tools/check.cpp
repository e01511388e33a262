#include "tools/check.h"

#include <QCommandLineOption>
#include <QFileInfo>

#include "core/storage/engine_pool.h"
#include "core/storage/storage_error.h"
#include "tools/command.h"
#include "tools/ledger_check.h"

namespace {

using schema::FieldType;
using storage::FieldDefinition;
using storage::IndexDefinition;
using storage::TableDefinition;

QString typeText(const FieldDefinition& field)
{
    const QString number = "type " + QString::number(static_cast<int>(field.type));
    return field.type == FieldType::Text ? number + " size " + QString::number(field.size) : number;
}

QString indexText(const IndexDefinition& index)
{
    return '(' + index.fields.join(", ") + (index.unique ? ") unique" : ")");
}

void compareFields(const TableDefinition& wanted, const TableDefinition& found,
                   QStringList& findings)
{
    for (const FieldDefinition& field : wanted.fields) {
        const int position = found.fieldPosition(field.name);
        if (position < 0) {
            findings.append(wanted.name + '.' + field.name + ": the field is missing");
            continue;
        }
        const QString is = typeText(found.fields[static_cast<size_t>(position)]);
        if (is != typeText(field))
            findings.append(wanted.name + '.' + field.name + ": is " + is + ", should be " +
                            typeText(field));
    }
    for (const FieldDefinition& field : found.fields)
        if (wanted.fieldPosition(field.name) < 0)
            findings.append(wanted.name + '.' + field.name + ": the schema has no such field");
}

// Emptying a work table makes it anew without the mark of its unique indexes, so that mark means
// nothing in a user's file.
void compareIndexes(const TableDefinition& wanted, const TableDefinition& found, bool uniqueCounts,
                    QStringList& findings)
{
    for (const IndexDefinition& index : wanted.indexes) {
        const int position = found.indexPosition(index.name);
        if (position < 0) {
            findings.append(wanted.name + ": the index " + index.name + " is missing");
            continue;
        }
        const IndexDefinition& is = found.indexes[static_cast<size_t>(position)];
        const bool sameKeys =
            is.fields.join('\n').compare(index.fields.join('\n'), Qt::CaseInsensitive) == 0;
        if (!sameKeys || (uniqueCounts && is.unique != index.unique))
            findings.append(wanted.name + ": the index " + index.name + " is " + indexText(is) +
                            ", should be " + indexText(index));
    }
    for (const IndexDefinition& index : found.indexes)
        if (wanted.indexPosition(index.name) < 0)
            findings.append(wanted.name + ": the schema has no index " + index.name);
}

void compareTables(const schema::File& file, storage::Engine& engine, QStringList& findings)
{
    QStringList known;
    for (const schema::Table* table : file.tables) {
        const TableDefinition wanted = storage::definitionOf(*table);
        known.append(wanted.name.toUpper());
        const auto found = engine.table(wanted.name);
        if (!found) {
            findings.append(wanted.name + ": the table is missing");
            continue;
        }
        compareFields(wanted, *found, findings);
        compareIndexes(wanted, *found, file.place != schema::Place::User, findings);
    }
    // Siblings keep tables of their own in the files that this module shares with them.
    if (file.place == schema::Place::Sibling)
        return;
    for (const QString& name : engine.tableNames())
        if (!known.contains(name.toUpper()))
            findings.append(name + ": the schema has no such table");
}

}  // namespace

QStringList findingsIn(const SiteFile& file)
{
    if (!QFileInfo::exists(file.path))
        return {"the file is missing"};
    QStringList findings;
    try {
        const auto engine = storage::acquireEngine(file.path);
        for (const QString& damage : engine->checkIntegrity())
            findings.append("damaged: " + damage);
        compareTables(*file.definition, *engine, findings);
        // Figures are looked at only where they can be read.
        if (findings.isEmpty() && file.definition->name == "ZORVEX.mdb")
            findings += ledgerFindingsIn(file.path);
    } catch (const storage::StorageError& error) {
        findings.append(QString("%1 (%2)").arg(error.description()).arg(error.number()));
    }
    return findings;
}

QStringList findingsIn(const std::vector<SiteFolder>& folders)
{
    QStringList all;
    for (const SiteFolder& folder : folders) {
        if (!QFileInfo(folder.path).isDir()) {
            all.append(shownPath(folder.path) + ": the folder is missing");
            continue;
        }
        for (const SiteFile& file : filesOf(folder))
            for (const QString& finding : findingsIn(file))
                all.append(shownPath(file.path) + ": " + finding);
    }
    return all;
}

int runCheck(const QStringList& arguments)
{
    const Arguments given(
        arguments,
        "Checks the files of the installation in FOLDER: none is missing, none is damaged, and\n"
        "tables, fields and indexes are those of the schema. In a sound ZORVEX.mdb the quantities "
        "of\n"
        "each item are then compared with a replay of its ledger; an item that differs is named\n"
        "with both figures and the row at which they part: the one after the last at which the\n"
        "replay stood at the stored figures, or the item's first when it never did.\n"
        "A line per finding.",
        {"FOLDER"}, {{"site", "Check the files of this job site only.", "NAME"}});
    enterInstallation(given[0]);
    const Installation installation = readInstallation();
    QStringList findings;
    if (given.isSet("site")) {
        findings = findingsIn({jobSiteNamed(installation, given.text("site"))});
    } else {
        findings = installation.problems;
        findings += findingsIn(installation.folders);
    }
    for (const QString& finding : findings)
        say(finding);
    complain(findings.isEmpty() ? QString("Nothing found.")
                                : QString("%1 found.").arg(findings.size()));
    return findings.isEmpty() ? exitDone : exitFailed;
}
