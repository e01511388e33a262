// ZORSYS.mdb: the switches of a job site, shared by its users and by all modules.
#pragma once

#include "core/schema/schema.h"

namespace schema {

inline constexpr Field SYSSETTINGS_fields[] = {
    text("JOBNOTYPE", 1, "type of job numbers: C characters, N number only"),
    integer("JOBNOSIZE", "length of job numbers, 1 to 8"),

    // Requisitions, purchase orders and their lines.
    boolean("VEXNODECIMAL", "quantities are whole numbers"),
    boolean("VEXUSECOL2", "the detail has its second column"),
    text("VEXCOL2TXT", 20, "heading of that column"),
    text("VEXCOL10TXT", 20, "heading of the check number in payment detail"),
    text("VEXCOL11TXT", 20, "heading of the check date in payment detail"),
    text("MCODEDEFAULT", 1, "material code of new lines; blank takes the cost code's"),
    boolean("VEXCCSTL", "cost code subtotals on purchase orders and authorizations"),
    boolean("VEXFORMATPONO", "purchase order numbers are made of job and requisition number"),
    boolean("VEXUSEPONOCOUNTER", "purchase order numbers come from the counter"),
    boolean("VEXUCASEONLY", "typed text becomes upper case"),
    boolean("VEXQTYNOEDIT", "available and on order quantities of items are not for typing"),
    boolean("VEXPRTQCSIGBLK", "purchase orders have signature blocks of receiver and Q/C"),
    boolean("VEXPRINTPOTERMS", "terms and conditions follow the purchase order"),
    boolean("VEXPRINTPONOTICE", "notice to the vendor near the limit of the purchase order"),
    doubleFloat("POLIMIT", "amount from which that notice is printed"),
    boolean("VEXJOBNOPRINTOPT", "group A cost code in place of the job number on forms"),
    boolean("VEXCOMBINEJNPONO", "job and purchase order number as one number on forms"),
    boolean("VEXPRINTASSETCOL", "asset column on purchase order forms"),
    boolean("PLGCOSTCODEOPT1", "the extended cost code columns are hidden"),
    boolean("CCERRORCK", "time entry offers to add an unknown cost code"),

    // Cross references to the client's systems.
    text("XILL1OPTIONVEX", 1, "cost code group of level 1 of the client codes, this module"),
    text("XILL2OPTIONVEX", 1, "cost code group of level 2"),
    text("XILL3OPTIONVEX", 1, "cost code group of level 3"),
    text("XILL1OPTIONPLG", 1, "cost code group of level 1, labour module"),
    text("XILL2OPTIONPLG", 1, "cost code group of level 2"),
    text("XILL3OPTIONPLG", 1, "cost code group of level 3"),
    text("XILL1OPTIONBRQ", 1, "cost code group of level 1, equipment module"),
    text("XILL2OPTIONBRQ", 1, "cost code group of level 2"),
    text("XILL3OPTIONBRQ", 1, "cost code group of level 3"),
    boolean("ECOSYSXREF", "the job site is tied to EcoSys"),
    boolean("EDUCCXREFVERIFY", "a saved line's cost codes must be known to EcoSys"),
    longInteger("PROJTAG", "EcoSys project"),
    text("PROJCODE", 10, "its code"),
    text("PROJNAME", 50, "its name"),
    integer("SITETYPE", "EcoSys type of the job site"),

    // Entries of the main menu.
    boolean("MENUOPTMAS200DL", "the main menu shows the MAS 200 downloads"),
    boolean("MENUOPTORACLEDL", "menu option of a sibling's download"),
    boolean("MENUOPTGPDL", "menu option of a sibling's download"),
    boolean("MENUOPTECMSDL", "menu option of a sibling's download"),
    boolean("MENUOPTSPRDL", "menu option of a sibling's download"),
    boolean("MENUOPTPTDL", "menu option of a sibling's download"),
    boolean("MENUOPTWORKORDERS", "menu option of work orders"),
    text("ERRORSOUND", 50, "wave file of the error alert, blank for none"),

    // Of the sibling modules; this one lets them be edited and reads none of them.
    boolean("PLGUSEPRIDNO", "option of the labour module"),
    boolean("PLGNOSSNO", "option of the labour module"),
    boolean("PLGNOTAXSTAT", "option of the labour module"),
    boolean("PLGNOECNO", "option of the labour module"),
    boolean("PLGNONCNO", "option of the labour module"),
    boolean("USESTATECODE", "option of the labour module"),
    boolean("PLGALLOWACTIVATION", "option of the labour module"),
    boolean("PLGALLOWEMPHISTORY", "option of the labour module"),
    boolean("PLGUSEBILLINGCODES", "option of the labour module"),
    integer("PLGDTSSTYLE", "choice of the labour module"),
    integer("BRQRAMETHOD", "choice of the equipment module"),
    boolean("USERTF", "option of the equipment module"),
    boolean("BRQETRATESENABLE", "option of the equipment module"),
    text("BRQETUOM", 10, "unit of measure of the equipment module"),
};
inline constexpr Table SYSSETTINGS = {
    "SYSSETTINGS", "Settings of the job site, one row", SYSSETTINGS_fields, {}};

}  // namespace schema
