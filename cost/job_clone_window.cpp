#include "cost/job_clone_window.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>

#include "core/messages.h"
#include "core/text.h"
#include "screens/field_keys.h"
#include "screens/selectors/company_selector.h"

frmZORJOB05::frmZORJOB05(Session session, JobNoFormat format, Job source)
    : SmallDialog("frmZORJOB05", "Clone a Job Number"),
      m_session(std::move(session)),
      m_format(std::move(format)),
      m_source(std::move(source)),
      m_directory(m_session.JobSitePath),
      m_company(makeCompanyField(m_directory)),
      m_number(new QLineEdit),
      m_name(new QLineEdit),
      m_jobProcess(new QLabel)
{
    addValue("Source Company:", "lblSOURCECONO", QString::number(m_source.CONO));
    addValue("Source Job:", "lblSOURCEJOBNO", m_source.JOBNO.trimmed() + ' ' + m_source.name);
    addField("&Target Company:", m_company);
    m_company->setCode(QString::number(m_source.CONO));
    m_number->setObjectName("txtJOBNO");
    m_number->setMaxLength(m_format.size);
    m_number->setMaximumWidth(m_number->fontMetrics().averageCharWidth() * 16);
    addField("New &Job Number:", m_number);
    m_name->setObjectName("txtJOBNAME");
    constexpr int longestName = 50;
    m_name->setMaxLength(longestName);
    addField("New Job &Name:", m_name);
    for (QLineEdit* field : {m_number, m_name})
        setFieldKeys(*field);
    addSteps();
    m_start = addButton("cmdStart", "&Start", [this] { start(); });
    m_exit = addClosingButton("cmdExit", "E&xit");
    m_company->edit().setFocus();
}

// Each step with its tick box and the line on which it tells how far it is.
void frmZORJOB05::addSteps()
{
    auto* area = new QWidget;
    auto* grid = new QGridLayout(area);
    grid->setContentsMargins(0, 8, 0, 0);
    const auto addProcess = [grid](QLabel* label, int row) {
        label->setObjectName("lblProcess" + QString::number(row));
        label->setTextFormat(Qt::PlainText);
        label->setMinimumWidth(label->fontMetrics().averageCharWidth() * 46);
        grid->addWidget(label, row, 1);
    };
    grid->addWidget(new QLabel("Job Number and its Settings"), 0, 0);
    addProcess(m_jobProcess, 0);
    const bool hasEquipment = siteHasEquipment(m_session.JobSitePath);
    int row = 1;
    for (const CloneStepInfo& info : cloneSteps()) {
        auto* box = new QCheckBox(info.name);
        box->setObjectName(info.checkBox);
        const bool isOffered = hasEquipment || !info.needsEquipment;
        box->setChecked(isOffered);
        box->setVisible(isOffered);
        grid->addWidget(box, row, 0);
        auto* process = new QLabel;
        addProcess(process, row);
        process->setVisible(isOffered);
        m_steps[info.step] = {box, process};
        ++row;
    }
    grid->setColumnStretch(1, 1);
    addAcross(area);
}

JobClone frmZORJOB05::request() const
{
    JobClone clone{.jobSitePath = m_session.JobSitePath,
                   .userSettingsPath = m_session.UserSettingsPath,
                   .sourceCONO = m_source.CONO,
                   .sourceJOBNO = m_source.JOBNO,
                   .targetCONO = companyNumberIn(*m_company),
                   .targetJOBNO = storedJobNo(m_number->text(), m_format),
                   .targetName = m_name->text().trimmed(),
                   .steps = {}};
    for (const auto& [step, shown] : m_steps)
        if (shown.box->isChecked())
            clone.steps.push_back(step);
    return clone;
}

void frmZORJOB05::start()
{
    m_company->takeTyped();
    const JobClone wanted = request();
    if (const std::optional<Refusal> refusal = refuseJobClone(wanted)) {
        showCritical(refusal->title, refusal->text);
        QWidget* wrong = m_name;
        if (!m_company->isValid())
            wrong = &m_company->edit();
        else if (dnIsBlank(wanted.targetJOBNO) || dnNotBlank(wanted.targetName))
            wrong = m_number;
        wrong->setFocus();
        return;
    }
    if (askYesNo("Are You Sure?", "Cannot Undo Clone Process. OK to Proceed?"))
        clone(wanted);
}

void frmZORJOB05::clone(const JobClone& request)
{
    setRunning(true);
    const auto whole = qScopeGuard([this] { setRunning(false); });
    m_jobProcess->clear();
    for (const auto& [step, shown] : m_steps)
        shown.process->clear();
    const bool isDone =
        cloneJob(request, [this](std::optional<CloneStep> step, bool, const QString& text) {
            showProgress(step, text);
        });
    if (!isDone)
        showCritical("Cannot Clone", "Another user has deleted this job.");
}

void frmZORJOB05::showProgress(std::optional<CloneStep> step, const QString& text)
{
    (step ? m_steps[*step].process : m_jobProcess)->setText(text);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmZORJOB05::setRunning(bool isRunning)
{
    m_isRunning = isRunning;
    m_start->setEnabled(!isRunning);
    m_exit->setEnabled(!isRunning);
    if (!isRunning)
        m_exit->setFocus();
}

void frmZORJOB05::reject()
{
    if (!m_isRunning)
        SmallDialog::reject();
}
