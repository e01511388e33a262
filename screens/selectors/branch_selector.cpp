#include "screens/selectors/branch_selector.h"

#include <QFormLayout>
#include <QLineEdit>

#include "core/keyed_access.h"
#include "core/locators.h"
#include "core/storage/file_paths.h"
#include "screens/command_runner.h"
#include "screens/search/inventory_searches.h"

namespace {

OpenTable openBranches(const QString& folder)
{
    return openTable(storage::joinPath(folder, "ZORVEX.mdb"), "ILCLIST");
}

bool seekCode(OpenTable& branches, const QString& code)
{
    branches.rows.Index("ILCCODE");
    return !code.isEmpty() && branches.rows.Seek("=", code);
}

std::optional<QString> nameOf(const QString& folder, const QString& code)
{
    OpenTable branches = openBranches(folder);
    if (!seekCode(branches, code))
        return {};
    return trimmedTextOf(branches.rows["ILCNAME"]);
}

std::vector<CodeChoice> allBranches(const QString& folder)
{
    std::vector<CodeChoice> all;
    OpenTable branches = openBranches(folder);
    branches.rows.Index("ILCCODE");
    if (branches.rows.RecordCount() == 0)
        return all;
    branches.rows.MoveFirst();
    do {
        all.push_back(
            {trimmedTextOf(branches.rows["ILCCODE"]), trimmedTextOf(branches.rows["ILCNAME"])});
    } while (branches.rows.MoveNext());
    return all;
}

QString codeAt(const QString& folder, const QString& bookmark)
{
    OpenTable branches = openBranches(folder);
    return goToFound(branches.rows, bookmark) ? trimmedTextOf(branches.rows["ILCCODE"]) : QString();
}

}  // namespace

BranchSelector::BranchSelector(const QString& name)
    : Selector(name),
      m_branch(
          new LookUpField("txtILCCODE", "lblILCNAME",
                          {.nameOf = [this](const QString& code) { return nameOf(m_folder, code); },
                           .choices = [this] { return allBranches(m_folder); },
                           .search = [this] { return codeAt(m_folder, zorSearchBranch(m_folder)); },
                           .notFound = "Invalid Branch Code.",
                           .nothing = branchHint}))
{
    m_branch->edit().setMaxLength(2);
    m_branch->edit().setFixedWidth(fontMetrics().averageCharWidth() * 10);
    rows()->addRow("Branch &Code:", m_branch);
    setFocusProxy(m_branch);
}

qint32 BranchSelector::tag() const
{
    qint32 tag = 0;
    runCommand([&] {
        OpenTable branches = openBranches(m_folder);
        if (m_branch->isValid() && seekCode(branches, m_branch->code()))
            tag = intOf(branches.rows["ILCTAG"]);
    });
    return tag;
}

void BranchSelector::setTag(qint32 tag)
{
    OpenTable branches = openBranches(m_folder);
    branches.rows.Index("ILCTAG");
    const bool found = tag != 0 && branches.rows.Seek("=", tag);
    m_branch->setCode(found ? trimmedTextOf(branches.rows["ILCCODE"]) : QString());
}
