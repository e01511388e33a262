#include "app/screen_table.h"

#include "cost/companies.h"
#include "cost/cost_codes.h"
#include "cost/gl_codes.h"
#include "cost/invoice_codes.h"
#include "cost/job_defaults.h"
#include "cost/job_deletion_screen.h"
#include "cost/job_site_settings.h"
#include "cost/jobs.h"
#include "cost/super_filter_screens.h"
#include "cost/target_list_screen.h"
#include "inventory/address_books.h"
#include "inventory/branches.h"
#include "inventory/catalog_copies.h"
#include "inventory/issue_summary.h"
#include "inventory/item_prints.h"
#include "inventory/items.h"
#include "inventory/ledger_refresh.h"
#include "inventory/transaction_history.h"
#include "purchasing/code_lists.h"
#include "purchasing/document_list.h"
#include "purchasing/document_texts.h"
#include "purchasing/forms/addendum_texts.h"
#include "purchasing/terms_codes.h"
#include "screens/browse/browse_window.h"
#include "screens/desktop.h"
#include "screens/job_sites.h"
#include "screens/network_settings.h"
#include "screens/report/report_selector.h"
#include "screens/report/report_window.h"
#include "screens/small_dialog.h"

namespace {

template <BrowseSpec (*spec)()>
QWidget* browse(const ScreenContext& context)
{
    return new BrowseWindow(spec(), context);
}

QWidget* networkSettings(const ScreenContext& context)
{
    return new frmNETSET(context.session, context.mode);
}

QWidget* reportSelector(const ScreenContext& context)
{
    return new frmVEXReportSelector(context.session, [context](const QString& name) {
        const ScreenFactory* factory = findScreen(name);
        if (factory)
            openScreen(factory->create(context));
        return factory != nullptr;
    });
}

template <ReportSpec (*spec)()>
QWidget* report(const ScreenContext& context)
{
    return new ReportWindow(spec(), context.session);
}

QWidget* refreshLedger(const ScreenContext& context)
{
    return new frmVEXINVCALC(context.session);
}

QWidget* refreshPartNumbersList(const ScreenContext& context)
{
    return frmVEXREFRESHPN(context.session);
}

QWidget* documentCounters(const ScreenContext& context)
{
    return newFrmVEXCNTRS(context.session);
}

constexpr ScreenFactory screens[] = {
    {"frmCCBQSHIP01", browse<frmCCBQSHIP01>},
    {"frmDBPBrowse", browse<frmDBPBrowse>},
    {"frmNETSET", networkSettings},
    {"frmPLGCCG01", newCostCodes},
    {"frmVEXCNTRS", documentCounters},
    {"frmVEXGLC01", browse<frmVEXGLC01>},
    {"frmVEXIC01", browse<frmVEXIC01>},
    {"frmVEXILC01", browse<frmVEXILC01>},
    {"frmVEXINV01", browse<frmVEXINV01>},
    {"frmVEXINVBIN01", browse<frmVEXINVBIN01>},
    {"frmVEXINVCALC", refreshLedger},
    {"frmVEXINVCAT01", browse<frmVEXINVCAT01>},
    {"frmVEXINVISR", report<frmVEXINVISR>},
    {"frmVEXINVP04", report<frmVEXINVP04>},
    {"frmVEXINVP05", report<frmVEXINVP05>},
    {"frmVEXINVP06", report<frmVEXINVP06>},
    {"frmVEXINVP07", report<frmVEXINVP07>},
    {"frmVEXINVP08", report<frmVEXINVP08>},
    {"frmVEXINVSC01", browse<frmVEXINVSC01>},
    {"frmVEXJND01", browse<frmVEXJND01>},
    {"frmVEXMC01", browse<frmVEXMC01>},
    {"frmVEXMFG01", browse<frmVEXMFG01>},
    {"frmVEXPO01", browse<frmVEXPO01>},
    {"frmVEXPON01", browse<frmVEXPON01>},
    {"frmVEXREFRESHPN", refreshPartNumbersList},
    {"frmVEXREQ01", browse<frmVEXREQ01>},
    {"frmVEXRT01", browse<frmVEXRT01>},
    {"frmVEXReportSelector", reportSelector},
    {"frmVEXSHIPTO01", browse<frmVEXSHIPTO01>},
    {"frmVEXSHIPVIA01", browse<frmVEXSHIPVIA01>},
    {"frmVEXTRMC01", browse<frmVEXTRMC01>},
    {"frmVEXVEN01", browse<frmVEXVEN01>},
    {"frmVEXWHODIDIT01", browse<frmVEXWHODIDIT01>},
    {"frmZORCO01", browse<frmZORCO01>},
    {"frmZORDELJOBNO", newJobDeletion},
    {"frmZORJOB01", newJobNumbers},
    {"frmZORJS01", browse<frmZORJS01>},
    {"frmZORSYS", newJobSiteSettings},
    {"frmZORTLCC", browse<frmZORTLCC>},
    {"frmZORUDS01", browse<frmZORUDS01>},
};

}  // namespace

const ScreenFactory* findScreen(const QString& name)
{
    for (const ScreenFactory& screen : screens)
        if (name == screen.name)
            return &screen;
    return nullptr;
}
