#include "screens/selectors/company_selector.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <limits>

#include "screens/search/job_searches.h"

namespace {

constexpr int mostDigits = 5;

}  // namespace

LookUpField* makeCompanyField(const JobDirectory& directory)
{
    auto* field = new LookUpField(
        "txtCONO", "lblCONAME",
        {.nameOf =
             [&directory](const QString& code) { return directory.companyName(code.toInt()); },
         .choices = [&directory] { return directory.companies(); },
         .search =
             [&directory] { return directory.companyAt(zorSearchCompany(directory.folder())); },
         .notFound = "Company Not Found"});
    // "?" and "/" open the search and never stay.
    field->edit().setValidator(
        new QRegularExpressionValidator(QRegularExpression("[0-9?/]*"), field));
    field->edit().setMaxLength(mostDigits);
    field->edit().setFixedWidth(field->fontMetrics().horizontalAdvance('0') * (mostDigits + 5));
    return field;
}

qint16 companyNumberIn(const LookUpField& field)
{
    const int number = field.code().toInt();
    return number <= std::numeric_limits<qint16>::max() ? static_cast<qint16>(number) : qint16(0);
}

tqCoNumber::tqCoNumber(const QString& name)
    : Selector(name), m_company(makeCompanyField(m_directory))
{
    rows()->addRow("C&ompany Number:", m_company);
    setFocusProxy(m_company);
    connect(m_company, &LookUpField::changed, this, &Selector::changed);
}

void tqCoNumber::setDBPath(const QString& path)
{
    m_directory = JobDirectory(path);
    m_company->check();
}

qint16 tqCoNumber::CoNumber() const
{
    return companyNumberIn(*m_company);
}

void tqCoNumber::setCoNumber(int number)
{
    m_company->setCode(number > 0 ? QString::number(number) : QString());
}
