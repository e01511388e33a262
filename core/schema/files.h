// Every database file with its tables.
#pragma once

#include "core/schema/counter_tables.h"
#include "core/schema/definition_tables.h"
#include "core/schema/interchange_tables.h"
#include "core/schema/inventory_buffer_tables.h"
#include "core/schema/inventory_document_tables.h"
#include "core/schema/inventory_tables.h"
#include "core/schema/job_template_tables.h"
#include "core/schema/labour_tables.h"
#include "core/schema/locator_tables.h"
#include "core/schema/main_tables.h"
#include "core/schema/network_tables.h"
#include "core/schema/purchasing_buffer_tables.h"
#include "core/schema/purchasing_tables.h"
#include "core/schema/receiving_tables.h"
#include "core/schema/report_buffer_tables.h"
#include "core/schema/report_tables.h"
#include "core/schema/settings_tables.h"
#include "core/schema/sibling_tables.h"
#include "core/schema/support_tables.h"
#include "core/schema/transfer_tables.h"
#include "core/schema/user_tables.h"
#include "core/schema/vendor_tables.h"

namespace schema {

inline constexpr const Table* VEXPATH_file[] = {&VEXPATH};
inline constexpr const Table* DBPATHS_file[] = {&DBPATHS, &DBTAGS};
inline constexpr const Table* USERPATH_file[] = {&USERPATH};
inline constexpr const Table* NETPATH_file[] = {&NETPATH};

inline constexpr const Table* MAIN_file[] = {
    &SYSTAGS,      &COLIST,       &JOBLIST,   &CCALIST,   &CCBLIST,  &CCCLIST,
    &CCLIST,       &CCUNION,      &CCRATES,   &PCLIST,    &TCLIST,   &UALIST,
    &UDSLIST,      &UDSLEVEL1,    &UDSLEVEL2, &UDSLEVEL3, &SITEINFO, &EXTCOSTCATS,
    &EXTCOSTRATES, &EXTCOSTITEMS, &XILXREF,   &ZORTLCC,
};
inline constexpr const Table* ZORVEX_file[] = {
    &VEXTAGS,    &VEXCOUNTERS, &VENDORS,         &MANUFACTURERS, &GLCODES,      &MCLIST,
    &TERMSCODES, &INVCODES,    &REQTYPES,        &SHIPTOITEMS,   &SHIPVIAITEMS, &WHODIDITITEMS,
    &PONOTETEXT, &RSTLIST,     &JOB_NO_DEFAULTS, &REQLIST,       &RQILIST,      &POLIST,
    &RECEIVED,   &APINVOICES,  &APIITEMS,        &PAYMENTS,      &PROSTATUS,    &PSCOMMENTS,
    &INVENTORY,  &INVCATALOG,  &INVCATHISTORY,   &INVPNMASTER,   &INVTRANS,     &ISSUED,
    &ILCLIST,    &BINLIST,     &SERIESCODES,     &SUBCATEGORIES, &MIRLIST,      &MIRITEMS,
    &MRRLIST,    &MRRITEMS,    &MTRLIST,         &MTRITEMS,      &OSRLIST,      &OSRITEMS,
    &OSRPOLIST,  &PILIST,      &PIITEMS,         &INVADJLIST,
};
inline constexpr const Table* ZORSYS_file[] = {&SYSSETTINGS};
inline constexpr const Table* ZORDLU_file[] = {&VEXDLTAG, &VEXDLM2, &VEXDLTL};
inline constexpr const Table* ZORMPH_file[] = {&Purchase_History};
inline constexpr const Table* VEXCOST_file[] = {&VEXCOST};
inline constexpr const Table* VEXREPORTS_file[] = {&PurchaseReport, &TransactionHistory};
inline constexpr const Table* ZORPOTXFR_file[] = {&ZORPOTXFR_POLIST, &ZORPOTXFR_RQILIST,
                                                  &ZORPOTXFR_VENDORS};

inline constexpr const Table* ZORNET_file[] = {
    &USERLIST, &USERRIGHTS, &USERACCESSITEMS, &NETTAGS, &MODULES, &RECORDLOCKS,
};

inline constexpr const Table* ZORUSER_file[] = {
    &WINTAG,
    &WINLIST,
    &VEXSETTINGS,
    &PLGSETTINGS,
    &BRQSETTINGS,
    &TAGLIST,
    &ERRORS,
    &ACTIVITYLOG,
    &DATABASES,
    &JOBDEFAULTS,
    &DELJOBLIST,
    &VEXPRINTBUFFER,
    &VEXRQITEMP,
    &VEXRQICLIP,
    &VEXRQIAUTO,
    &VEXRQISEARCH,
    &VEXREQRQISEARCH,
    &VEXINVBUF03,
    &VEXINVBUF04,
    &VEXINVCOPYBUF,
    &VEXPSPRINTBUFFER,
    &VEXIJC1BUF,
    &VEXBSRPRTBUF,
    &VEXRECPRTBUF,
    &VEXPOLUPLOAD,
    &VEXCCSTLBUF,
    &VEXCIS,
    &VEXPAYH,
    &VEXPAR,
    &VEXPHBCCBUF,
    &VEXPOLOGBV,
    &VEXVIR,
    &INVISR,
    &VEXINVLASTUPDATE,
    &VEXINVCATLASTUPDATE,
    &INVHISTORY,
    &INVCATHISTORY,
    &JCBUFCCALIST,
    &JCBUFCCBLIST,
    &JCBUFCCCLIST,
    &JCBUFPCLIST,
    &JCBUFCCLIST,
    &JCBUFCCRATES,
    &JCBUFCCUNION,
    &JCBUFEXTCOSTCATS,
    &JCBUFEXTCOSTRATES,
    &JCBUFUALIST,
    &JCBUFCATCODES,
    &JCBUFSUBCATS,
    &JCBUFSCRATES,
    &JCBUFSCRDETAIL,
    &JCBUFFUELTYPES,
    &JCBUFROLBRATES,
};

inline constexpr const Table* ZORDEF_file[] = {
    &ZORDEF_DATABASES, &NEWDEF,
    &NEWINDEXES,       &OLDDEF,
    &OLDINDEXES,       &ZORDEF_ACTIVITYLOG,
    &MODULES,          &ZORDEF_USERACCESSITEMS,
};

inline constexpr const Table* ZORBRQ_file[] = {
    &BRQTAGS,   &CATCODES, &SUBCATS, &SCRATES,   &SCRDETAIL, &FUELTYPES,
    &ROLBRATES, &ETINV,    &ETLIST,  &BRQWOLIST, &BRQROLIST, &BRQROMAT,
};
inline constexpr const Table* ZORXIL_file[] = {&XILXREF};
inline constexpr const Table* EDUPATH_file[] = {&EDUPATH};
inline constexpr const Table* EDUMAIN_file[] = {&PROJECTS, &EDUCCXREF};
inline constexpr const Table* XILPATH_file[] = {&XILPATH};
inline constexpr const Table* WIFTPATH_file[] = {&WIFTPATH};
inline constexpr const Table* GRUDPATH_file[] = {&GRUDPATH};

inline constexpr File files[] = {
    {"VEXPATH.mdb", Place::Program, "Which job site is in use on this machine", VEXPATH_file},
    {"DBPATHS.mdb", Place::Program, "The job sites", DBPATHS_file},
    {"USERPATH.mdb", Place::Program, "Where each user's settings lie", USERPATH_file},
    {"NETPATH.mdb", Place::Program, "Where the network database lies", NETPATH_file},
    {"ZORDEF.mdb", Place::Program, "Master definitions for the definition update", ZORDEF_file},
    {"MAIN.mdb", Place::JobSite, "Companies, jobs, cost codes and what else all modules share",
     MAIN_file},
    {"ZORVEX.mdb", Place::JobSite, "Documents, inventory and support tables", ZORVEX_file},
    {"ZORSYS.mdb", Place::JobSite, "Settings of the job site", ZORSYS_file},
    {"ZORDLU.mdb", Place::JobSite, "Download batches", ZORDLU_file},
    {"DOWNLOAD.mdb", Place::JobSite, "Must be present; holds no table of this module", {}},
    {"ZORMPH.mdb", Place::JobSite, "Purchase history", ZORMPH_file},
    {"VEXCOST.mdb", Place::JobSite, "Material costs for other programs", VEXCOST_file},
    {"VEXREPORTS.mdb", Place::JobSite, "Report tables for other programs", VEXREPORTS_file},
    {"ZORPOTXFR.mdb", Place::JobSite, "Purchase orders packed for transfer", ZORPOTXFR_file},
    {"ZORNET.mdb", Place::Network, "Users, rights and record locks", ZORNET_file},
    {"ZORUSER.mdb", Place::User, "One user's settings, marks, logs and work buffers", ZORUSER_file},
    {"ZORBRQ.mdb", Place::Sibling, "Equipment module", ZORBRQ_file},
    {"ZORXIL.mdb", Place::Sibling, "Electronic invoicing module", ZORXIL_file},
    {"EDUPATH.mdb", Place::Sibling, "Where the EcoSys data lies", EDUPATH_file},
    {"EDUMAIN.mdb", Place::Sibling, "EcoSys projects and cost codes", EDUMAIN_file},
    {"XILPATH.mdb", Place::Sibling, "Where the electronic invoicing data lies", XILPATH_file},
    {"WIFTPATH.mdb", Place::Sibling, "Where a sibling's data lies", WIFTPATH_file},
    {"GRUDPATH.mdb", Place::Sibling, "Where a sibling's data lies", GRUDPATH_file},
};

}  // namespace schema
