#include "screens/browse/parent_bar.h"

#include <QBoxLayout>

#include "core/locators.h"
#include "core/storage/file_paths.h"
#include "core/user_settings.h"
#include "screens/selectors/branch_selector.h"
#include "screens/selectors/company_selector.h"
#include "screens/selectors/job_selector.h"

namespace {

OpenTable openSettings(const Session& session)
{
    return openTable(storage::joinPath(session.UserSettingsPath, "ZORUSER.mdb"), "VEXSETTINGS");
}

class CompanyBar : public ParentBar
{
public:
    explicit CompanyBar(const Session& session) : CompanyBar(session, new tqCoNumber) {}

    void load() override
    {
        m_company->setDBPath(m_session.JobSitePath);
        m_company->setCoNumber(remembered("CONO").toInt());
    }
    std::vector<KeyField> keys() const override
    {
        if (!m_company->IsValid())
            return {};
        return {{"CONO", m_company->CoNumber()}};
    }
    void save() override { remember("CONO", m_company->CoNumber()); }
    QString hint() const override { return "Select Company Number First."; }

private:
    CompanyBar(const Session& session, tqCoNumber* company)
        : ParentBar(session, company), m_company(company)
    {
    }

    tqCoNumber* m_company;
};

class CompanyAndJobBar : public ParentBar
{
public:
    explicit CompanyAndJobBar(const Session& session) : CompanyAndJobBar(session, new tqCoJobNumber)
    {
    }

    void load() override
    {
        m_job->setDBPath(m_session.JobSitePath);
        m_job->setCoNumber(remembered("CONOPAIR").toInt());
        m_job->setJobNo(remembered("JOBNOPAIR").toString().trimmed());
    }
    std::vector<KeyField> keys() const override
    {
        if (!m_job->IsValid())
            return {};
        return {{"CONO", m_job->CoNumber()}, {"JOBNO", m_job->JobNo()}};
    }
    void save() override
    {
        remember("CONOPAIR", m_job->CoNumber());
        remember("JOBNOPAIR", m_job->JobNo());
    }
    QString hint() const override { return "Select Company/Job Number Pair First."; }

private:
    CompanyAndJobBar(const Session& session, tqCoJobNumber* job)
        : ParentBar(session, job), m_job(job)
    {
    }

    tqCoJobNumber* m_job;
};

class BranchBar : public ParentBar
{
public:
    explicit BranchBar(const Session& session) : BranchBar(session, new BranchSelector) {}

    void load() override
    {
        m_branch->setFolder(m_session.JobSitePath);
        m_branch->setTag(remembered("ILCTAG").toInt());
    }
    std::vector<KeyField> keys() const override
    {
        if (m_branch->tag() == 0)
            return {};
        return {{"ILCTAG", m_branch->tag()}};
    }
    void save() override { remember("ILCTAG", m_branch->tag()); }
    QString hint() const override { return branchHint; }

private:
    BranchBar(const Session& session, BranchSelector* branch)
        : ParentBar(session, branch), m_branch(branch)
    {
    }

    BranchSelector* m_branch;
};

}  // namespace

ParentBar::ParentBar(Session session, Selector* selector) : m_session(std::move(session))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(selector);
    setFocusProxy(selector);
    connect(selector, &Selector::entered, this, [this, selector] {
        selector->setActive(true);
        Q_EMIT entered();
    });
    connect(selector, &Selector::left, this, [this, selector] {
        Q_EMIT left();
        selector->setActive(false);
    });
}

storage::Value ParentBar::remembered(const QString& field) const
{
    OpenTable settings = openSettings(m_session);
    return zorGetUserSetting(settings.rows, m_session.SiteTag, field);
}

void ParentBar::remember(const QString& field, const storage::Value& value) const
{
    OpenTable settings = openSettings(m_session);
    zorSaveUserSetting(settings.rows, m_session.SiteTag, field, value);
}

ParentBar* makeParentBar(const BrowseSession& session)
{
    switch (session.spec().parent.kind) {
        case BrowseParent::Kind::Company:
            return new CompanyBar(session.session());
        case BrowseParent::Kind::CompanyAndJob:
            return new CompanyAndJobBar(session.session());
        case BrowseParent::Kind::Branch:
            return new BranchBar(session.session());
        default:
            return nullptr;
    }
}
