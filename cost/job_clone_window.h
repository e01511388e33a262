// The screen of the job clone. It is run over the list of jobs.
#pragma once

#include <map>

#include "core/job_numbers.h"
#include "core/session.h"
#include "cost/job_clone.h"
#include "screens/selectors/job_directory.h"
#include "screens/small_dialog.h"

class LookUpField;
class QCheckBox;

class frmZORJOB05 : public SmallDialog
{
public:
    struct Job
    {
        int CONO;
        QString JOBNO;  // stored form
        QString name;
    };
    frmZORJOB05(Session session, JobNoFormat format, Job source);

    // Esc and the window's own way out wait for the end of a clone.
    void reject() override;

private:
    void addSteps();
    JobClone request() const;
    void start();
    void clone(const JobClone& request);
    void showProgress(std::optional<CloneStep> step, const QString& text);
    void setRunning(bool isRunning);

    Session m_session;
    JobNoFormat m_format;
    Job m_source;
    JobDirectory m_directory;
    LookUpField* m_company;
    QLineEdit* m_number;
    QLineEdit* m_name;
    QLabel* m_jobProcess;
    struct Step
    {
        QCheckBox* box;
        QLabel* process;
    };
    std::map<CloneStep, Step> m_steps;
    QPushButton* m_start;
    QPushButton* m_exit;
    bool m_isRunning = false;
};
