// Companies, jobs, their cost codes and invoice codes, and what new documents of a job start from.

#include "core/fit_column.h"
#include "core/storage/file_paths.h"
#include "tools/demo/world.h"

namespace demo {
namespace {

constexpr int jobNumberSize = 8;

void addCompany(World& world, Recordset& rows, Random& random, int number, const char* name)
{
    const Address office = address(random);
    world.loader.add(rows, [&](Recordset& row) {
        row["CONO"] = number;
        row["CONAME"] = name;
        writeAddress(row, office);
        row["VOICE"] = office.phone;
        row["COCSTEXT"] = QString("For ") + name;
        row["CLCSTEXT"] = "For the Client";
        row["INFOLINE1"] = "Send invoices to the address above and show our purchase order number.";
        row["INFOLINE2"] = "";
        row["LOGOFILENAME"] = "";
    });
}

void addCode(Group& group, const QString& code, const QString& glCode)
{
    group.codes.push_back({dnFitColumn(code, group.type, group.size), glCode});
}

QString glCodeOf(Random& random)
{
    return QString::number(random.pick(trades).glCode);
}

// Phases of five digits, areas of three, packages of letters and digits: one of each type, and a
// third of the jobs without the last group.
void makeGroups(Job& job, Random& random, int position)
{
    job.groups[0] = {"Phase", "C", 6, {}};
    for (size_t i = 0; i < phases.size(); ++i)
        addCode(
            job.groups[0],
            QString("%1-%2").arg(i / 6 + 1, 2, 10, QChar('0')).arg(i % 6 * 100, 3, 10, QChar('0')),
            glCodeOf(random));
    job.groups[1] = {"Area", "N", 4, {}};
    for (size_t i = 0; i < areas.size(); ++i)
        addCode(job.groups[1], QString::number((i + 1) * 10 + (i > 8 ? 1000 : 0)),
                random.chance(30) ? glCodeOf(random) : QString());
    if (position % 3 == 2)
        return;
    job.groups[2] = {"Package", "C", 8, {}};
    for (size_t i = 0; i < packages.size(); ++i)
        addCode(job.groups[2],
                QString("wp%1%2").arg(QChar('a' + static_cast<int>(i % 4))).arg(i + 1), QString());
}

void storeJob(World& world, Recordset& rows, const Job& job, Random& random, const char* name)
{
    world.loader.add(rows, [&](Recordset& row) {
        row["CONO"] = job.company;
        row["JOBNO"] = job.number;
        row["JOBNAME"] = name;
        row["REMARKS"] = random.chance(40) ? "Client: " + personName(random) : QString();
        row["CCNAMEA"] = job.groups[0].caption;
        row["CCNAMEB"] = job.groups[1].caption;
        row["CCNAMEC"] = job.groups[2].caption;
        row["CCSIZEA"] = job.groups[0].size;
        row["CCSIZEB"] = job.groups[1].size;
        row["CCSIZEC"] = job.groups[2].size;
        row["CCTYPEA"] = job.groups[0].type;
        row["CCTYPEB"] = job.groups[1].type;
        row["CCTYPEC"] = job.groups[2].type.isEmpty() ? "C" : job.groups[2].type;
        row["CLCNAMEA1"] = job.reimbursable ? "Client WBS" : "";
        row["CLCNAMEB1"] = "";
        row["CLCNAMEC1"] = "";
        row["TAXCOST"] = 0.0825;
    });
}

template <size_t N>
void storeCodes(World& world, const char* table, schema::FieldName code,
                schema::FieldName description, schema::FieldName clientCode, int group,
                const std::array<const char*, N>& descriptions)
{
    Random random(world.plan.seed, table);
    Recordset rows = world.main.OpenRecordset(table);
    for (const Job& job : world.jobs) {
        const Group& codes = job.groups[group];
        for (size_t i = 0; i < codes.codes.size(); ++i)
            world.loader.add(rows, [&](Recordset& row) {
                row["CONO"] = job.company;
                row["JOBNO"] = job.number;
                row[code] = codes.codes[i].stored;
                row[description] = descriptions[i];
                row[clientCode] = job.reimbursable ? QString("C.%1.%2")
                                                         .arg(random.between(10, 99))
                                                         .arg(random.between(100, 999))
                                                   : QString();
                row["APCODE"] = QString::number(random.between(100000, 999999));
                row["NONREIM"] = job.reimbursable && random.chance(10);
                row["GLCODE"] = codes.codes[i].glCode;
                row["MCODE"] = "";
                row["DLTAG"] = 0;
            });
    }
}

void addInvoiceCodes(World& world)
{
    Recordset rows = world.zorvex.OpenRecordset("INVCODES");
    static const char* const descriptions[] = {"Direct Material", "Consumables", "Equipment",
                                               "Subcontract", "Freight"};
    for (Job& job : world.jobs)
        for (size_t i = 0; i < std::size(descriptions); ++i) {
            job.invoiceCodes.push_back(QString("IC%1").arg(i + 1, 2, 10, QChar('0')));
            world.loader.add(rows, [&](Recordset& row) {
                row["CONO"] = job.company;
                row["JOBNO"] = job.number;
                row["INVCODE"] = job.invoiceCodes.back();
                row["DESC"] = descriptions[i];
                row["UOM"] = "LS";
            });
        }
}

void addJobDefaults(World& world, Random& random)
{
    Recordset rows = world.zorvex.OpenRecordset("JOB_NO_DEFAULTS");
    for (const Job& job : world.jobs)
        world.loader.add(rows, [&](Recordset& row) {
            row["JNDTAG"] = world.tags.plain("JNDTAG");
            row["CONO"] = job.company;
            row["JOBNO"] = job.number;
            row["REQTYPE"] = "M";
            row["SHIPTO"] = job.shipTo;
            row["SHIPVIA"] = "Best Way";
            row["FOB"] = "Job Site";
            row["TERMS"] = "Net 30";
            row["WHODIDIT"] = personName(random);
            row["REQNO"] = 1;
            row["ITEM1"] = 3;
            row["ITEM2"] = 4;
            row["ITEM3"] = job.groups[2].caption.isEmpty() ? 1 : 5;
            row["ITEM4"] = 6;
            row["ITEM5"] = 1;
            row["ITEM6"] = 1;
            row["REPLYTO"] = personName(random);
            row["REPLYBY"] = "";
            row["REPLYPHONE"] = address(random).phone;
            row["REPLYFAX"] = address(random).fax;
        });
}

// The row that a new job site has, with what this contractor works by.
void chooseSettings(World& world)
{
    const storage::Database zorsys =
        world.loader.open(storage::joinPath(world.sitePath, "ZORSYS.mdb"));
    Recordset row = zorsys.OpenRecordset("SYSSETTINGS");
    row.MoveFirst();
    row.Edit();
    row["JOBNOSIZE"] = jobNumberSize;
    row["VEXFORMATPONO"] = true;
    row["VEXQTYNOEDIT"] = true;
    row["VEXCCSTL"] = true;
    row["POLIMIT"] = 25000.0;
    row["MENUOPTMAS200DL"] = true;
    row.Update();
    world.loader.commit();
}

}  // namespace

void addCompaniesAndJobs(World& world)
{
    Random random(world.plan.seed, "companies");
    chooseSettings(world);
    Recordset companies = world.main.OpenRecordset("COLIST");
    addCompany(world, companies, random, 1, "Alder & Bristow Constructors");
    addCompany(world, companies, random, 2, "Alder & Bristow Maintenance");

    Recordset jobs = world.main.OpenRecordset("JOBLIST");
    for (int i = 0; i < world.plan.jobs; ++i) {
        Job job{};
        job.company = i % 8 < 5 ? 1 : 2;
        job.number = dnFitColumn(QString::number(4700 + i * 11), "C", jobNumberSize);
        job.branch = i % 3;
        job.reimbursable = i % 2 == 0;
        const Address place = address(random);
        job.shipTo =
            QString("Job %1, %2, %3").arg(job.number.trimmed(), place.line1, place.city.name);
        makeGroups(job, random, i);
        storeJob(world, jobs, job, random, jobNames[static_cast<size_t>(i) % jobNames.size()]);
        world.jobs.push_back(job);
    }
    storeCodes(world, "CCALIST", "COSTCODEA", "DESCA", "CUSTCODEA1", 0, phases);
    storeCodes(world, "CCBLIST", "COSTCODEB", "DESCB", "CUSTCODEB1", 1, areas);
    storeCodes(world, "CCCLIST", "COSTCODEC", "DESCC", "CUSTCODEC1", 2, packages);
    addInvoiceCodes(world);
    addJobDefaults(world, random);
}

}  // namespace demo
