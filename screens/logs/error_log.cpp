#include "screens/logs/error_log.h"

#include <QBoxLayout>

#include "screens/browse/browse_grid.h"
#include "screens/command_bar.h"
#include "screens/desktop.h"
#include "screens/load_error.h"
#include "screens/logs/log_prints.h"
#include "screens/report/report_window.h"

namespace {
constexpr int lineWidth = 12000;  // twips; a longer line is cut
}

frmZORERRLOG01::frmZORERRLOG01(const Session& session, const QString& word)
    : m_list([](storage::Recordset& rows) {
          return QStringList{dnNullCheck(rows["REMARK"]).toString()};
      }),
      m_grid(new BrowseGrid(m_list, "hsbALMAIN"))
{
    setObjectName("frmZORERRLOG01");
    setWindowTitle("View " + word + " Error Log");
    resize(900, 480);
    m_grid->setColumns({{"Error Message", lineWidth}});
    m_grid->setEndTexts("End of List", "List is Empty");
    auto* commands = new CommandBar;
    commands->add("cmdPrint", "&Print",
                  [session, word] { openScreen(new ReportWindow(frmZORERRLOG02(word), session)); });
    commands->add("cmdExit", "E&xit", [this] { close(); });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 8);
    layout->setSpacing(8);
    layout->addWidget(m_grid, 1);
    auto* foot = new QHBoxLayout;
    foot->addWidget(m_grid->moveButtons("cmdB"), 0, Qt::AlignTop);
    foot->addSpacing(12);
    foot->addWidget(commands, 1);
    layout->addLayout(foot);
    setFocusProxy(m_grid);
    loadScreen(this, [&] {
        m_list.open({.folder = session.UserSettingsPath,
                     .file = "ZORUSER.mdb",
                     .table = "ERRORS",
                     .index = "",
                     .parent = {},
                     .accepts = {}},
                    "wksLOG");
        m_list.fill({});
        m_grid->refresh();
    });
}
