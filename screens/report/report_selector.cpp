#include "screens/report/report_selector.h"

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/messages.h"
#include "core/storage/file_paths.h"
#include "core/storage/storage_error.h"
#include "core/text.h"

namespace {

struct ReportTitle
{
    const char* title;  // "%1" is the site's own name of a payment's check number
    const char* screen;
};

struct ReportGroup
{
    const char* name;
    std::vector<ReportTitle> titles;
};

const std::vector<ReportGroup>& reportGroups()
{
    static const std::vector<ReportGroup> groups = {
        {"Requisition and PO Logs",
         {{"Requisition Log by Co./Job Number", "frmVEXREQLOG01"},
          {"Requisition Log by Vendor", "frmVEXREQLOG02"},
          {"Purchase Order Log by Co./Job Number", "frmVEXPOLOG01"},
          {"Purchase Order Log with Detail by Company/Job Number", "frmVEXPOLOG02"},
          {"Purchase Order Log by Vendor", "frmVEXPOLOG03"}}},
        {"Invoicing Reports",
         {{"PO Invoice Status Log", "frmVEXIR01"},
          {"Payment Detail by Client Invoice Number", "frmVEXIR02"},
          {"Payment Detail by %1", "frmVEXIR03"},
          {"Invoice Summary Sheet by Vendor", "frmVEXIR04"},
          {"Invoice Summary Sheet by Invoice Code", "frmVEXIR05"},
          {"Client Invoice Summary", "frmVEXIR06"},
          {"Payment Detail by Client Invoice Number/Cost Codes", "frmVEXIR07"},
          {"Vendor Invoice Report", "frmVEXVIR01"}}},
        {"Internal Cost Reports",
         {{"Internal Cost Report by Cost Codes", "frmVEXIJC1"},
          {"Internal Job Cost Report by Cost Codes with Detail", "frmVEXIJC2"},
          {"Internal Job Cost Report by Target Cost Codes with Detail", "frmVEXIJC3"},
          {"Fill Cost Table with Material Costs", "frmVEXCOST1"},
          {"Materials History Report", "frmVEXRPTMCR1"}}},
        {"Payment Activity Reports",
         {{"Payment Activity by G/L Number", "frmVEXPAR01"},
          {"Payment Activity by Cost Code and G/L Number", "frmVEXPAR02"},
          {"Payment Activity by Cost Code (Detailed)", "frmVEXPAR03"},
          {"Payment Activity Summary by Single Cost Code Group (Summary)", "frmVEXPAR04"},
          {"Payment Activity by Cost Codes", "frmVEXPAR05"},
          {"Payment Activity by Cost Codes and G/L Number", "frmVEXPAR06"},
          {"Payment Activity by Target List of Cost Codes (Summary)", "frmVEXPAR07"},
          {"Payment Activity by Target List of Cost Codes (Combined)", "frmVEXPAR08"},
          {"Payment Activity Summary by Approver Code/Single Cost Code Group", "frmVEXPAR09"},
          {"Payment Activity by Two Cost Codes (Detailed)", "frmVEXPAR10"},
          {"Unpaid Materials Report", "frmVEXUPM01"},
          {"Payment History Report", "frmVEXPAYH01"},
          {"Blank Dates Report", "frmVEXBLANKS"}}}};
    return groups;
}

// Where the site has not named its column, and where its settings cannot be read.
constexpr char usualColumnTen[] = "Check #";

QString columnTenTitle(const Session& session)
{
    try {
        const OpenTable settings =
            openTable(storage::joinPath(session.JobSitePath, "ZORSYS.mdb"), "SYSSETTINGS");
        if (settings.rows.RecordCount() == 0)
            return usualColumnTen;
        const QString title = trimmedTextOf(settings.rows["VEXCOL10TXT"]);
        return dnIsBlank(title) ? QString(usualColumnTen) : title;
    } catch (const storage::StorageError&) {
        return usualColumnTen;
    }
}

}  // namespace

frmVEXReportSelector::frmVEXReportSelector(const Session& session, ScreenOpener openByName)
    : SmallDialog("frmVEXReportSelector", "Zorvane Suite - Vexley Module - Report Selection Form"),
      m_columnTenTitle(columnTenTitle(session)),
      m_openByName(std::move(openByName)),
      m_groups(new QListWidget),
      m_titles(new QListWidget),
      m_sample(new QLabel)
{
    build();
    for (const ReportGroup& group : reportGroups())
        m_groups->addItem(group.name);
    QObject::connect(m_groups, &QListWidget::currentRowChanged, this, [this] { showTitles(); });
    QObject::connect(m_titles, &QListWidget::currentRowChanged, this, [this] { showSample(); });
    QObject::connect(m_titles, &QListWidget::itemDoubleClicked, this, [this] { openReport(); });
    showSample();
    m_groups->setFocus();
}

void frmVEXReportSelector::build()
{
    m_groups->setObjectName("lstGroups");
    m_titles->setObjectName("lstTitles");
    m_sample->setObjectName("imgSample");
    m_sample->setAlignment(Qt::AlignCenter);
    m_sample->setFrameShape(QFrame::StyledPanel);
    m_sample->setMinimumSize(240, 300);
    auto* lists = new QWidget;
    auto* grid = new QGridLayout(lists);
    grid->setContentsMargins(0, 0, 0, 0);
    int column = 0;
    for (const auto& [caption, list] :
         {std::pair{"Report &Groups", m_groups}, std::pair{"Report &Titles", m_titles}}) {
        auto* label = new QLabel(caption);
        label->setBuddy(list);
        grid->addWidget(label, 0, column);
        grid->addWidget(list, 1, column++);
    }
    m_groups->setMinimumWidth(220);
    m_titles->setMinimumWidth(420);
    grid->addWidget(m_sample, 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    addAcross(lists);
    m_select = addButton("cmdSelect", "&Select Report", [this] { openReport(); });
    m_select->setDefault(true);
    escTakes(addClosingButton("cmdExit", "E&xit"));
}

void frmVEXReportSelector::showTitles()
{
    m_titles->clear();
    const int group = m_groups->currentRow();
    if (group >= 0)
        for (const ReportTitle& each : reportGroups()[static_cast<size_t>(group)].titles)
            m_titles->addItem(QString(each.title).replace("%1", m_columnTenTitle));
    showSample();
}

QString frmVEXReportSelector::screenName() const
{
    const int group = m_groups->currentRow();
    const int title = m_titles->currentRow();
    if (group < 0 || title < 0)
        return {};
    return reportGroups()[static_cast<size_t>(group)].titles[static_cast<size_t>(title)].screen;
}

void frmVEXReportSelector::showSample()
{
    const QString screen = screenName();
    m_select->setEnabled(!screen.isEmpty());
    m_picture = {};
    const QString file = "ZORMedia/" + screen.mid(qsizetype(strlen("frm"))) + ".jpg";
    if (!screen.isEmpty() && storage::pathExists(file))
        m_picture.load(storage::nativePath(file));
    if (m_picture.isNull())
        m_sample->setText(screen.isEmpty() ? QString() : QString("No sample"));
    else
        m_sample->setPixmap(m_picture.scaled(m_sample->contentsRect().size(), Qt::KeepAspectRatio,
                                             Qt::SmoothTransformation));
}

void frmVEXReportSelector::resizeEvent(QResizeEvent* event)
{
    SmallDialog::resizeEvent(event);
    showSample();
}

void frmVEXReportSelector::openReport()
{
    const QString screen = screenName();
    if (!screen.isEmpty() && !m_openByName(screen))
        dnNotReady();
}
