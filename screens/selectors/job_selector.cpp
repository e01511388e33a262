#include "screens/selectors/job_selector.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QRegularExpressionValidator>

#include "screens/command_runner.h"
#include "screens/search/job_searches.h"
#include "screens/selectors/company_selector.h"

tqCoJobNumber::tqCoJobNumber(const QString& name)
    : Selector(name), m_company(makeCompanyField(m_directory)), m_job(makeJobField())
{
    rows()->addRow("C&ompany Number:", m_company);
    rows()->addRow("&Job Number:", m_job);
    setFocusProxy(m_company);
    connect(m_company, &LookUpField::codeChanged, this, [this] {
        m_job->check();
        Q_EMIT pairChanged();
    });
    connect(m_job, &LookUpField::codeChanged, this, &tqCoJobNumber::pairChanged);
    for (LookUpField* field : {m_company, m_job})
        connect(field, &LookUpField::changed, this, &Selector::changed);
}

LookUpField* tqCoJobNumber::makeJobField()
{
    auto* field = new LookUpField(
        "txtJOBNO", "lblJOBNAME",
        {.nameOf = [this](const QString&) { return m_directory.jobName(CoNumber(), JobNo()); },
         .choices = [this] { return m_directory.jobs(CoNumber()); },
         .search =
             [this] {
                 m_company->takeTyped();
                 return m_directory.jobAt(zorSearchJob(m_directory.folder(), CoNumber()));
             },
         .notFound = "Job Number Not Found"});
    field->edit().setFixedWidth(field->fontMetrics().averageCharWidth() * 16);
    return field;
}

void tqCoJobNumber::setDBPath(const QString& path)
{
    m_directory = JobDirectory(path);
    runCommand([this] { m_form = m_directory.jobNoFormat(); });
    m_job->edit().setMaxLength(m_form.size);
    // "?" and "/" open the search and never stay.
    m_job->edit().setValidator(
        m_form.type == "N" ? new QRegularExpressionValidator(QRegularExpression("[0-9?/]*"), m_job)
                           : nullptr);
    m_company->check();
    m_job->check();
}

qint16 tqCoJobNumber::CoNumber() const
{
    return companyNumberIn(*m_company);
}

void tqCoJobNumber::setCoNumber(int number)
{
    m_company->setCode(number > 0 ? QString::number(number) : QString());
    m_job->check();
}

QString tqCoJobNumber::JobNo() const
{
    return storedJobNo(m_job->code(), m_form);
}

void tqCoJobNumber::setJobNo(const QString& number)
{
    m_job->setCode(number);
}

void tqCoJobNumber::takeTyped()
{
    m_company->takeTyped();
    m_job->takeTyped();
}
