#include "app/menu_table.h"

#include <string_view>

namespace {

// clang-format off
constexpr MenuEntry entries[] = {
    {0, "miFile", "&File"},
    {1, "miSelectDB", "&1 - Select Job Sites", "frmDBPSelect"},
    {1, "miDBBrowse", "&2 - Browse Job Sites", "frmDBPBrowse"},
    {1, "miVEXDLTL01", "&3 - Timberline Downloads", "frmVEXDLTL01"},
    {1, "miVEXDLM201", "&4 - MAS 200 Downloads", "frmVEXDLM201"},
    {1, "miExit", "E&xit"},

    {0, "miMaterials", "&Documents"},
    {1, "miVEXREQ01", "&1 - Requisitions", "frmVEXREQ01", "REQ01"},
    {1, "miVEXPO01", "&2 - Purchase Orders", "frmVEXPO01", "PO01", "A"},
    {1, "miVEXAPI01", "&3 - A/P Invoices", "frmVEXAPI01"},
    {1, "miVEXMTR01", "&4 - Material Transfer Reports", "frmVEXMTR01"},
    {1, "miVEXMRR01", "&5 - Material Return Reports", "frmVEXMRR01"},
    {1, "miVEXMIR01", "&6 - Material Issue Reports", "frmVEXMIR01"},

    {0, "miINVENTORY", "&Inventory"},
    {1, "miVEXINV01", "&1 -  Inventory", "frmVEXINV01", "INV01"},
    {1, "miVEXINVPRINT", "&2 - Print Inventory Items"},
    {2, "miVEXINVP04", "&1 -  by Series Code/Subcategory", "frmVEXINVP04"},
    {2, "miVEXINVP05", "&2 - by Part Number", "frmVEXINVP05"},
    {2, "miVEXINVP06", "&3 - by Bin Number", "frmVEXINVP06"},
    {2, "miVEXINVP07", "&4 - by Preferred Vendor", "frmVEXINVP07"},
    {1, "miVEXINVISR", "&3- Issue Summary Report", "frmVEXINVISR"},
    {1, "miVEXOSR01", "&4 - Out of Stock Reports", "frmVEXOSR01"},
    {1, "miVEXINVP08", "&5 - Inventory Transaction History", "frmVEXINVP08"},
    {1, "miVEXILC01", "&6 - Branch Codes", "frmVEXILC01"},
    {1, "miVEXINVSC01", "&7 - Series Codes/Subcategory Codes/Inventory Items", "frmVEXINVSC01", "INV01"},
    {1, "miVEXINVBIN01", "&8 - Bin Numbers", "frmVEXINVBIN01"},
    {1, "miVEXPI01", "&9 - Physical Inventories", "frmVEXPI01", "PI01"},
    {1, "miVEXINV07", "&A - Update Inventory On Hand Quantities by Bin Number", "frmVEXINV07"},
    {1, "miVEXINVCALC", "&B - Refresh Inventory Transactions", "frmVEXINVCALC"},
    {1, "miVEXINVCAT01", "&C - Inventory Catalog", "frmVEXINVCAT01", "INC01"},

    {0, "miReports", "&Reports"},
    {1, "miLOGS", "&1 - Requisition && PO Logs"},
    {2, "miVEXREQLOG01", "&1 - Requisition Log by Company/Job No.", "frmVEXREQLOG01"},
    {2, "miVEXREQLOG02", "&2 - Requisition Log by Vendor", "frmVEXREQLOG02"},
    {2, "miVEXPOLOG01", "&3 - PO Log by Company/Job Number", "frmVEXPOLOG01"},
    {2, "miVEXPOLOG02", "&4 - PO Log by Co./Job with Detail", "frmVEXPOLOG02"},
    {2, "miVEXPOLOG03", "&5 - PO Log by Vendor", "frmVEXPOLOG03"},
    {1, "miINV", "&2 - Invoicing Reports"},
    {2, "miVEXIR01", "&1 - PO Invoice Status Log", "frmVEXIR01"},
    {2, "miVEXIR02", "&2 - Payment Detail by Client Invoice Number", "frmVEXIR02"},
    {2, "miVEXIR03", "&3 - Payment Detail by Refernce Number", "frmVEXIR03"},
    {2, "miVEXIR04", "&4 - Invoice Summary Sheet by Vendor", "frmVEXIR04"},
    {2, "miVEXIR05", "&5 - Invoice Summary Sheet by Invoice Code", "frmVEXIR05"},
    {2, "miVEXIR06", "&6 - Client Invoice Numbers", "frmVEXIR06"},
    {2, "miVEXIR07", "&7 - Payment Detail by Client Invoice #/Cost Codes", "frmVEXIR07"},
    {2, "miVEXVIR01", "&8 - Vendor Invoice Report", "frmVEXVIR01"},
    {1, "miVEXIJC", "&3 - Internal Cost Reports"},
    {2, "miVEXIJC1", "&1 - by Cost Codes"},
    {3, "miVEXIJC1S", "Standard", "frmVEXIJC1", "", "S"},
    {3, "miVEXIJC1R", "Raw Data Dump", "frmVEXIJC1", "", "R"},
    {2, "miVEXIJC2", "&2 - by Cost Codes with Detail", "frmVEXIJC2"},
    {2, "miVEXIJC3", "&3 - by Single Cost Code with Detail", "frmVEXIJC3"},
    {1, "miVEXPAR", "&4 - Payment Activity Reports"},
    {2, "miVEXPAR01", "&1 - by G/L Number", "frmVEXPAR01"},
    {2, "miVEXPAR02", "&2 - by Single Costcode Group and G/L Number", "frmVEXPAR02"},
    {2, "miVEXPAR03", "&3 - by Single Costcode Group (Detailed)", "frmVEXPAR03"},
    {2, "miVEXPAR04", "&4 - by Single Costcode Group (Summary)", "frmVEXPAR04"},
    {2, "miVEXPAR05", "&5 - by Costcodes", "frmVEXPAR05"},
    {2, "miVEXPAR06", "&6 - by Costcodes and G/L Number", "frmVEXPAR06"},
    {2, "miVEXPAR07", "&7 - by Target List of Costcodes (Summary)", "frmVEXPAR07"},
    {2, "miVEXPAR08", "&8 - by Target List of Costcodes (Combined)", "frmVEXPAR08"},
    {2, "miVEXPAR09", "&9 - by Approver Code/Single Costcode Group (Summary)", "frmVEXPAR09"},
    {2, "miVEXPAR10", "&A - by Two Costcode Groups (Detailed)", "frmVEXPAR10"},
    {2, "miVEXUPM01", "&B - Unpaid Materials Report", "frmVEXUPM01"},
    {2, "miVEXPAYH01", "&C - Payment History Report", "frmVEXPAYH01"},
    {2, "miVEXBLANKS", "&D - Blank Dates Report", "frmVEXBLANKS"},
    {1, "miVEXPHR", "&5 - Purchase History Reports"},
    {2, "miVEXPHR01", "&1 - by Costcode", "frmVEXPHR01"},
    {2, "miVEXPHR02", "&2 - by Vendors/Cost Codes/GL No.s", "frmVEXPHR02"},
    {2, "miVEXPHR03", "&3 - by Multiple Job Numbers", "frmVEXPHR03"},
    {2, "miVEXPHR04", "&4 - by Single Vendor/Date Range/Job Sites", "frmVEXPHR04"},
    {2, "miVEXPHR05", "&5 - by Costcode/PO Status", "frmVEXPHR05"},
    {1, "miVEXRECRPT01", "&6 - Materials Receiving Report", "frmVEXRECRPT01"},
    {1, "miVEXRPTMCR1", "&7 - Materials Consumption Report", "frmVEXRPTMCR1"},
    {1, "miVEXPSR01", "&8 - Procurement Status Report", "frmVEXPSR01"},
    {1, "miVEXCOST1", "&9 - Fill Material Costs Table", "frmVEXCOST1"},

    {0, "miVendors", "&Support Tables"},
    {1, "miVEXVEN01", "&1 - Vendors", "frmVEXVEN01", "VEN01"},
    {1, "miVEXGLC01", "&2 - G/L Codes", "frmVEXGLC01", "GLC01"},
    {1, "miVEXMC01", "&3 - Material Codes", "frmVEXMC01"},
    {1, "miVEXJND01", "&4 - Job Number Defaults", "frmVEXJND01"},
    {1, "miVEXRT01", "&5 - Requisition Types", "frmVEXRT01"},
    {1, "miVEXTRMC01", "&6 - Terms Codes", "frmVEXTRMC01"},
    {1, "miVEXRST01", "&7 - Requisition Spreadsheet Upload Templates", "frmVEXRST01"},
    {1, "miVEXMFG01", "&8 - Manufacturers", "frmVEXMFG01", "MFG01"},
    {1, "miVEXCNTRS", "&9 - Requisition and PO Number Counters", "frmVEXCNTRS"},
    {1, "miVEXPON01", "&A - Purchase Order Addendum Text", "frmVEXPON01"},
    {1, "miVEXSHIPTO01", "&B - Ship To Items", "frmVEXSHIPTO01"},
    {1, "miVEXSHIPVIA01", "&C - Ship Via Items", "frmVEXSHIPVIA01"},
    {1, "miVEXWHODIDIT01", "&D - Requisitioned By Items", "frmVEXWHODIDIT01"},

    {0, "miCostStructure", "&Cost Structure"},
    {1, "miZORCO01", "&1 - Company Numbers", "frmZORCO01"},
    {1, "miZORJOB01", "&2 - Job Numbers", "frmZORJOB01"},
    {1, "miPLGCCGA", "&3 - Group A Cost Codes", "frmPLGCCG01", "", "A"},
    {1, "miPLGCCGB", "&4 - Group B Cost Codes", "frmPLGCCG01", "", "B"},
    {1, "miPLGCCGC", "&5 - Group C Cost Codes", "frmPLGCCG01", "", "C"},
    {1, "miVEXIC01", "&6 - Invoice Codes", "frmVEXIC01"},
    {1, "miXILXREF01", "&7 - XIL X-Ref Table", "frmXILXREF01"},
    {1, "miZORUDS01", "&8 - Super Costcode Filters", "frmZORUDS01"},

    {0, "miUtilities", "&Utilities"},
    {1, "miDBUDDU", "&1 - Database Definition Update", "frmDBUDDU"},
    {1, "miUtilCCR", "&2 - Reformat Cost Codes", "frmUtilCCR"},
    {1, "VEXRECALC1", "&3 - Recalculate PO Totals", "frmVEXRECALC1"},
    {1, "miVEXREITEM", "&4 - Reassign Req and PO Item Numbers", "frmVEXREITEM"},
    {1, "miVEXUCASEIT", "&5 - VEX Uppercase Conversion Utility", "frmVEXUCASEIT"},
    {1, "miVEXCKDUPS1", "&6 - Check Purchase Order Tags", "frmVEXCKDUPS1"},
    {1, "miVEXCKLINK1", "&7 - Check Database for Orphaned Items", "frmVEXCKLINK1"},
    {1, "miZORDELJOBNO", "&8 - Delete Job Numbers", "frmZORDELJOBNO"},
    {1, "miVEXREFRESHPN", "&9 - Refresh Master Parts List Utility", "frmVEXREFRESHPN"},
    {1, "miVEXPOXLSDUMP", "&A - PO Info to Spreadsheet File Utility", "frmVEXPOXLSDUMP"},
    {1, "miZORUEmptyZORUSER", "&B - Empty ZORUSER Database", "frmZORUEmptyZORUSER"},
    {1, "miZORUCCUPLOAD", "&C - Upload  Cost Codes From a csv or txt File", "frmZORUCCUPLOAD"},
    {1, "miVEXPOLUPLOAD", "&D - Update PO Line Items from the PO Log Spreadsheet", "frmVEXPOLUPLOAD"},
    {1, "miVEXCKINVTAGS", "&E - Check Inventory Tags", "frmVEXCKINVTAGS"},

    {0, "miSettings", "Settin&gs"},
    {1, "miSYSSET", "&1 - Job Site Settings", "frmZORSYS"},
    {1, "miNETSET", "&2 - Network Settings", "frmNETSET", "", "VEX"},
    {1, "miUSERSET", "&3 - User Settings", "frmUSERSET"},

    {0, "miWindow", "&Window"},
    {1, "miHorizontally", "Tile &Horizontally"},
    {1, "miVertical", "Tile &Vertically"},
    {1, "miCascade", "&Cascade"},

    {0, "miHelp", "&About"},
    {1, "miHelpAbout", "&About Vexley Module", "frmAboutView"},
    {1, "miTest", "&Report Viewer (Test)", "frmVEXReportSelector"},
    {1, "miZORTLCC", "&Target List of Cost Codes Test", "frmZORTLCC", "", "A"},
};
// clang-format on

}  // namespace

std::span<const MenuEntry> menuTable()
{
    return entries;
}

std::span<const MenuEntry> entriesBelow(std::size_t index)
{
    const std::span<const MenuEntry> rest = std::span(entries).subspan(index + 1);
    std::size_t count = 0;
    while (count < rest.size() && rest[count].depth > entries[index].depth)
        ++count;
    return rest.first(count);
}

bool isUtility(const MenuEntry& entry)
{
    std::string_view menu;
    for (const MenuEntry& other : entries) {
        if (other.depth == 0)
            menu = other.name;
        if (&other == &entry)
            return entry.depth > 0 && menu == "miUtilities";
    }
    return false;
}

bool opensOneScreenOnly(const MenuEntry& entry)
{
    return isUtility(entry) || std::string_view(entry.name) == "miNETSET";
}
