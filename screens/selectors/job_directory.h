// Companies and jobs of a job site, as the selectors look them up in MAIN.mdb. Each call opens the
// file anew, so that it sees what other users did. Failures of the store are thrown; without a
// folder nothing is found.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "core/job_numbers.h"

// Something with a code that can be chosen.
struct CodeChoice
{
    QString code;
    QString name;
};

class JobDirectory
{
public:
    JobDirectory() = default;
    explicit JobDirectory(QString folder) : m_folder(std::move(folder)) {}

    // The name; nothing when there is no such company or job. `JOBNO` is in its stored form.
    std::optional<QString> companyName(int CONO) const;
    std::optional<QString> jobName(int CONO, const QString& JOBNO) const;

    // All companies, or all jobs of a company, in the order of their numbers.
    std::vector<CodeChoice> companies() const;
    std::vector<CodeChoice> jobs(int CONO) const;

    // What the search window gave, as the number; empty for no or a deleted record.
    QString companyAt(const QString& bookmark) const;
    QString jobAt(const QString& bookmark) const;

    // How this job site writes job numbers.
    JobNoFormat jobNoFormat() const { return settledJobNoFormat(m_folder); }

    const QString& folder() const { return m_folder; }

private:
    QString m_folder;
};
