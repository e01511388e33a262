// What stands before the first purchase: settings, company, job, codes, vendors and stock.
#include "tools/tour/purchase_road.h"

namespace {

// Goes to a screen by the menu's keys.
void openScreen(Hands& hands, const QStringList& menuKeys, const QString& name)
{
    hands.keys(menuKeys);
    hands.awaitScreen(name);
}

void closeScreen(Hands& hands)
{
    hands.keys({"Ctrl+F4"});
}

// A record that is entered on a row of its list.
void addRow(Hands& hands, const std::vector<TypedField>& fields)
{
    hands.keys({"A"});
    hands.awaitFocus(fields.front().control);
    hands.fill(fields);
    hands.command("cmdUpdate");
}

QString firstCells(Hands& hands, int row, int count)
{
    return hands.rows().value(row).mid(0, count).join(" ");
}

}  // namespace

void setUpCostStructure(Hands& hands, Road& road)
{
    road.step("The job site");
    road.tell(
        "Numbers of purchase orders are to be made of job, requisition type and requisition: "
        "**Settings**, *Job Site Settings*, page *Documents*.");
    openScreen(hands, {"Alt+G", "1"}, "frmZORSYS");
    hands.keys({"Alt+2"});
    hands.tabTo("ckbVEXFORMATPONO");
    hands.keys({"Space"});
    road.picture("settings", hands.picture(), "Settings of the job site");
    hands.command("cmdUpdate");
    road.check("What is told", hands.answerBox("Return"),
               "Changes Saved: System Settings Have Been Updated.");
    closeScreen(hands);

    road.step("The company");
    road.tell("**Cost Structure**, *Company Numbers*; **A** adds one.");
    openScreen(hands, {"Alt+C", "1"}, "frmZORCO01");
    hands.keys({"A"});
    hands.awaitScreen("frmZORCO02");
    hands.fill({{"txtCONO", "1"},
                {"txtCONAME", "Alder Mechanical Contractors"},
                {"txtADDRESS1", "4100 Harbor Road"},
                {"txtCITY", "Port Arlen"},
                {"mebState", "TX"},
                {"txtZIP", "77550"},
                {"mebVOICE", "4095550142"},
                {"txtINFOLINE1", "Mechanical - Piping - Process"},
                {"txtLOGOFILENAME", logoFile}});
    hands.keys({"Return"});
    road.picture("company", hands.picture(), "A company");
    hands.command("cmdUpdate");
    hands.awaitScreen("frmZORCO01");
    road.check("The company in the list", firstCells(hands, 0, 2).trimmed(),
               "1 Alder Mechanical Contractors");
    closeScreen(hands);

    road.step("The job and its cost codes");
    road.tell(
        "*Job Numbers*: the company is chosen above the list. **C** names the groups of cost "
        "codes that the job uses.");
    openScreen(hands, {"Alt+C", "2"}, "frmZORJOB01");
    hands.fill("txtCONO", "1");
    hands.keys({"Return"});
    addRow(hands, {{"txtJOBNO", "4711"},
                   {"txtJOBNAME", "Pump House Expansion"},
                   {"txtREMARKS", "Phase two"}});
    road.check("The job in the list", firstCells(hands, 0, 2).trimmed(),
               "4711 Pump House Expansion");
    hands.keys({"C"});
    hands.awaitScreen("frmZORJOB02");
    hands.fill({{"txtCCNAMEA", "Phase"}, {"cboCCTYPEA", "C"}, {"txtCCSIZEA", "4"}});
    hands.keys({"Return"});
    hands.answerBox("Return");
    hands.fill({{"txtCCNAMEB", "Type"}, {"cboCCTYPEB", "C"}, {"txtCCSIZEB", "3"}});
    hands.keys({"Return"});
    hands.answerBox("Return");
    road.picture("job_groups", hands.picture(), "The groups of cost codes of a job");
    hands.command("cmdUpdate");
    hands.awaitScreen("frmZORJOB01");
    closeScreen(hands);

    const std::pair<QString, std::vector<std::vector<TypedField>>> groups[] = {
        {"3",
         {{{"txtCOSTCODE", "1000"}, {"txtDESC", "Site work"}},
          {{"txtCOSTCODE", "2000"}, {"txtDESC", "Process piping"}}}},
        {"4", {{{"txtCOSTCODE", "MAT"}, {"txtDESC", "Material"}}}}};
    for (const auto& [key, codes] : groups) {
        openScreen(hands, {"Alt+C", key}, "frmPLGCCG01");
        hands.fill({{"txtCONO", "1"}, {"txtJOBNO", "4711"}});
        hands.keys({"Return"});
        for (const std::vector<TypedField>& code : codes)
            addRow(hands, code);
        road.check("Cost codes of group " + QString(key == "3" ? "A" : "B"),
                   QString::number(hands.rows().size()), QString::number(codes.size()));
        if (key == "3")
            road.picture("cost_codes", hands.picture(), "Cost codes");
        closeScreen(hands);
    }
}

void setUpPurchasing(Hands& hands, Road& road)
{
    road.step("Codes of purchasing");
    road.tell(
        "**Support Tables** hold G/L codes, requisition types and terms. *Job Number Defaults* "
        "are what a new requisition of the job begins with.");
    openScreen(hands, {"Alt+S", "2"}, "frmVEXGLC01");
    hands.fill("txtCONO", "1");
    hands.keys({"Return"});
    addRow(hands, {{"txtGLCODE", "5120"}, {"txtDESC", "Job materials"}});
    closeScreen(hands);
    openScreen(hands, {"Alt+S", "5"}, "frmVEXRT01");
    addRow(hands, {{"txtREQTYPE", "M"}, {"txtRTNAME", "Materials"}});
    closeScreen(hands);
    openScreen(hands, {"Alt+S", "6"}, "frmVEXTRMC01");
    addRow(hands, {{"txtTERMSCODE", "N30"}, {"txtTCNAME", "Net 30 days"}});
    closeScreen(hands);
    openScreen(hands, {"Alt+S", "4"}, "frmVEXJND01");
    hands.keys({"A"});
    hands.awaitScreen("frmVEXJND02");
    hands.fill({{"txtCONO", "1"},
                {"txtJOBNO", "4711"},
                {"cboREQTYPE", "M"},
                {"txtSHIPTO", "Pump House, Gate 3"},
                {"txtSHIPVIA", "Vendor's truck"},
                {"txtFOB", "Job site"},
                {"txtTERMS", "Net 30 days"},
                {"cboItem1", "3"},
                {"cboItem2", "4"},
                {"cboItem3", "6"}});
    road.picture("job_defaults", hands.picture(), "What a new requisition begins with");
    hands.command("cmdUpdate");
    hands.awaitScreen("frmVEXJND01");
    closeScreen(hands);

    road.step("The vendors");
    openScreen(hands, {"Alt+S", "1"}, "frmVEXVEN01");
    const std::vector<std::vector<TypedField>> vendors = {{{"txtVENNO", "HARBOR"},
                                                           {"txtNAME", "Harbor Pipe & Supply"},
                                                           {"txtADDRESS1", "18 Dock Street"},
                                                           {"txtCITY", "Port Arlen"},
                                                           {"txtSTATE", "TX"},
                                                           {"txtZIP", "77551"},
                                                           {"txtPHONE", "4095550177"},
                                                           {"txtCONTACT", "Dana Reyes"}},
                                                          {{"txtVENNO", "COAST"},
                                                           {"txtNAME", "Coast Fastener Company"},
                                                           {"txtADDRESS1", "902 Mill Road"},
                                                           {"txtCITY", "Westport"},
                                                           {"txtSTATE", "TX"},
                                                           {"txtZIP", "77502"}}};
    for (const std::vector<TypedField>& vendor : vendors) {
        hands.keys({"A"});
        hands.awaitScreen("frmVEXVEN02");
        hands.fill(vendor);
        if (&vendor == &vendors.front())
            road.picture("vendor", hands.picture(), "A vendor");
        hands.command("cmdUpdate");
        hands.awaitScreen("frmVEXVEN01");
    }
    road.check("Vendors in the list, by name",
               hands.rows().value(0).value(0) + ", " + hands.rows().value(1).value(0),
               "COAST, HARBOR");
    closeScreen(hands);
}

void setUpStock(Hands& hands, Road& road)
{
    road.step("The stock");
    road.tell(
        "**Inventory** begins with a branch; it has bins, series and subcategories, and its "
        "items.");
    openScreen(hands, {"Alt+I", "6"}, "frmVEXILC01");
    addRow(hands, {{"txtILCCODE", "01"}, {"txtILCNAME", "Main yard"}});
    closeScreen(hands);
    openScreen(hands, {"Alt+I", "8"}, "frmVEXINVBIN01");
    hands.fill("txtILCCODE", "01");
    hands.keys({"Return"});
    addRow(hands, {{"txtBINNO", "A-01"}, {"txtBINNAME", "Valves, aisle A"}});
    closeScreen(hands);
    openScreen(hands, {"Alt+I", "7"}, "frmVEXINVSC01");
    hands.fill("txtILCCODE", "01");
    hands.keys({"Return"});
    addRow(hands, {{"txtSERIESCODE", "VLV"}, {"txtSERIESNAME", "Valves"}});
    hands.keys({"B"});
    hands.awaitScreen("frmVEXINVS01");
    addRow(hands, {{"txtSUBCATCODE", "GATE"}, {"txtSUBCATNAME", "Gate valves"}});
    closeScreen(hands);
    hands.awaitScreen("frmVEXINVSC01");
    closeScreen(hands);
    openScreen(hands, {"Alt+I", "1"}, "frmVEXINV01");
    hands.fill("txtILCCODE", "01");
    hands.keys({"Return", "A"});
    hands.awaitScreen("frmVEXINV02");
    hands.fill({{"txtSERIESCODE", "VLV"},
                {"txtSUBCATCODE", "GATE"},
                {"txtPARTNO", "GV-200"},
                {"txtDESC", "Gate valve, 2 in, class 150, flanged"},
                {"txtUOM", "EA"},
                {"txtWHOLESALE", "120"},
                {"txtRETAIL", "145"},
                {"txtVENNO", "HARBOR"},
                {"txtBINNO", "A-01"}});
    road.picture("item", hands.picture(), "An inventory item");
    hands.command("cmdSaveAndExit");
    hands.awaitScreen("frmVEXINV01");
    road.picture("items", hands.picture(), "The items of a branch");
    closeScreen(hands);
}
