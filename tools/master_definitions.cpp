#include "tools/installation.h"
#include "tools/new_files.h"

namespace {

using schema::Place;
using storage::Recordset;

struct AccessItem
{
    const char* code;
    const char* description;
    const char* screen;
};

// In the order of the main menu. Rights of users refer to the numbers, which are the positions
// here: new ones go to the end.
constexpr AccessItem accessItems[] = {
    {"REQ01", "Requisitions", "frmVEXREQ01"},
    {"REQ02", "Requisitions - Browse", "frmVEXREQ01"},
    {"REQ03", "Requisitions - Change when not Open", "frmVEXREQ01"},
    {"PO01", "Purchase Orders", "frmVEXPO01"},
    {"PO02", "Purchase Orders - Line Items", "frmVEXPO01"},
    {"INV01", "Inventory", "frmVEXINV01"},
    {"INV02", "Inventory - Add, Edit, Delete", "frmVEXINV01"},
    {"INC01", "Inventory Catalog", "frmVEXINVCAT01"},
    {"INC02", "Inventory Catalog - Add, Edit, Delete", "frmVEXINVCAT01"},
    {"PI01", "Physical Inventories", "frmVEXPI01"},
    {"VEN01", "Vendors", "frmVEXVEN01"},
    {"VEN02", "Vendors - Add, Edit, Delete", "frmVEXVEN01"},
    {"MFG01", "Manufacturers", "frmVEXMFG01"},
    {"MFG02", "Manufacturers - Add, Edit, Delete", "frmVEXMFG01"},
    {"GLC01", "G/L Codes", "frmVEXGLC01"},
};

const char* pathCodeOf(const schema::File& file)
{
    switch (file.place) {
        case Place::JobSite:
            return "DBPATHS";
        case Place::User:
            return "ZORUSER";
        case Place::Network:
            return "NETPATH";
        case Place::Program:
            return "DEFAULT";
        case Place::Sibling:
            break;
    }
    if (file.name == "ZORXIL.mdb")
        return "XILPATH";
    return file.name == "ZORBRQ.mdb" ? "DBPATHS" : "DEFAULT";
}

// Files whose tables other modules of the suite use too.
bool isShared(const schema::File& file)
{
    return file.place == Place::Program || file.place == Place::Network ||
           file.place == Place::User || file.name == "MAIN.mdb" || file.name == "ZORSYS.mdb";
}

QString databaseName(const schema::File& file)
{
    return toText(file.name).section('.', 0, 0);
}

// Where a refresh of the master finds a file to take the definitions from: the first of its kind.
QString referenceFolder(const Installation& installation, Place place)
{
    if (place == Place::Program)
        return ".";
    for (const SiteFolder& folder : installation.folders)
        if (folder.place == place)
            return folder.storedPath;
    return " ";
}

void addDatabase(Recordset& rows, const schema::File& file, const QString& reference)
{
    const bool sibling = file.place == Place::Sibling;
    rows.AddNew();
    rows["DBNAME"] = databaseName(file);
    rows["PATHCODE"] = pathCodeOf(file);
    rows["Modules"] = sibling ? " " : isShared(file) ? "A" : "M";
    rows["Optional"] = sibling;
    rows["ONLYONCE"] = file.place != Place::JobSite && file.name != "ZORBRQ.mdb";
    rows["DBDESC"] = toText(file.meaning);
    rows["FILLLOC"] = reference;
    rows["ALTDBNAME"] = " ";
    rows.Update();
}

void addFields(Recordset& rows, const QString& databaseName, const storage::TableDefinition& table)
{
    for (const storage::FieldDefinition& field : table.fields) {
        rows.AddNew();
        rows["DBNAME"] = databaseName;
        rows["TNAME"] = table.name;
        rows["FNAME"] = field.name;
        rows["FSIZE"] = field.size;
        rows["FTYPE"] = static_cast<int>(field.type);
        rows["OPOS"] = field.ordinalPosition;
        rows.Update();
    }
}

void addIndexes(Recordset& rows, const QString& databaseName, const storage::TableDefinition& table)
{
    constexpr schema::FieldName keyFields[] = {"IKEY01", "IKEY02", "IKEY03", "IKEY04", "IKEY05",
                                               "IKEY06", "IKEY07", "IKEY08", "IKEY09", "IKEY10"};
    for (const storage::IndexDefinition& index : table.indexes) {
        rows.AddNew();
        rows["DBNAME"] = databaseName;
        rows["TNAME"] = table.name;
        rows["IName"] = index.name;
        rows["KEYSTRING"] = index.fields.join(QString());
        for (qsizetype i = 0; i < 10; ++i)
            rows[keyFields[i]] = index.fields.value(i, " ");
        rows.Update();
    }
}

}  // namespace

void fillAccessItems(const storage::Database& database)
{
    Recordset modules = database.OpenRecordset("MODULES");
    modules.AddNew();
    modules["MODULEID"] = "VEX";
    modules["MODULENAME"] = "Vexley Module";
    modules.Update();

    Recordset rows = database.OpenRecordset("USERACCESSITEMS");
    int tag = 0;
    for (const AccessItem& item : accessItems) {
        rows.AddNew();
        rows["UAITAG"] = ++tag;
        rows["MODULEID"] = "VEX";
        rows["UAICODE"] = item.code;
        rows["Desc"] = item.description;
        rows["FORMNAME"] = item.screen;
        rows.Update();
    }
}

void fillMasterDefinitions(const storage::Database& zordef)
{
    fillAccessItems(zordef);
    const Installation installation = readInstallation();
    Recordset databases = zordef.OpenRecordset("DATABASES");
    Recordset fields = zordef.OpenRecordset("NEWDEF");
    Recordset indexes = zordef.OpenRecordset("NEWINDEXES");
    for (const schema::File& file : schema::files) {
        if (file.name == "ZORDEF.mdb")
            continue;  // open while the definition update runs
        addDatabase(databases, file, referenceFolder(installation, file.place));
        for (const schema::Table* table : file.tables) {
            addFields(fields, databaseName(file), storage::definitionOf(*table));
            addIndexes(indexes, databaseName(file), storage::definitionOf(*table));
        }
    }
}
