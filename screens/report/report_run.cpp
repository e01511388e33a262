#include "screens/report/report_run.h"

#include <QCoreApplication>
#include <QScopeGuard>

#include "core/messages.h"
#include "core/number_format.h"
#include "core/storage/file_paths.h"
#include "screens/command_runner.h"
#include "screens/report/remembered_fields.h"
#include "screens/report/report_page.h"
#include "screens/report/workbook_sink.h"
#include "screens/system_dialogs.h"

namespace {

constexpr int livingInterval = 20;   // ms; often enough for a Cancel, seldom enough to stay fast
constexpr int papersTolerance = 60;  // twips; printers tell their paper in rounded units

QList<ReportRun*>& runningReports()
{
    static QList<ReportRun*> all;
    return all;
}

QString minutesAndSeconds(qint64 milliseconds)
{
    const qint64 seconds = (milliseconds + 999) / 1000;
    return QString("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QChar('0'));
}

QString count(int number)
{
    return number == 0 ? QString("0") : dnFormat(number, "###,###,###");
}

int orDefault(int margin)
{
    return margin == 0 ? PageMargins().left : margin;
}

}  // namespace

ReportRun::ReportRun(ReportSpec spec, Session session)
    : m_spec(std::move(spec)), m_session(std::move(session))
{
    pages.setPaper(m_spec.paper.value_or(systemPaper()));
    for (const ReportField& field : m_spec.fields)
        selection.set(field.name, field.value);
    recallFields(*this);
    if (m_spec.recall)
        m_spec.recall(*this);
}

void ReportRun::setState(State state, const QString& processText)
{
    m_state = state;
    m_processText = processText;
    onChange();
}

bool ReportRun::isRefused(
    const std::function<std::optional<ReportRefusal>(const ReportRun&)>& check)
{
    const auto refusal = check ? check(*this) : std::nullopt;
    if (refusal)
        showCritical(refusal->title, refusal->text);
    return refusal.has_value();
}

void ReportRun::begin(size_t which)
{
    if (isRunning() || !m_spec.canBegin)
        return;
    if (!runningReports().isEmpty()) {
        showCritical("Cannot Print Report",
                     "Another Report is Being Printed. Wait for its End or Cancel it.");
        return;
    }
    const bool isOneOfSeveral = which < m_spec.begins.size();
    if (isRefused(m_spec.check) || (isOneOfSeveral && isRefused(m_spec.begins[which].check)))
        return;
    m_isCancelled = false;
    m_isBroken = false;
    m_status.clear();
    m_furtherSinks.clear();
    expectRows(0);
    m_sinceLived.start();
    rememberFields(*this);
    if (m_spec.remember)
        m_spec.remember(*this);
    if (offersWorkbook() && selection.isTicked(m_spec.workbookBox)) {
        m_status = "Preparing to Create Spreadsheet...";
        m_furtherSinks.push_back(std::make_unique<WorkbookSink>(workbookPath()));
    }
    printGuarded(isOneOfSeveral ? m_spec.begins[which].print : m_spec.print);
    m_furtherSinks.clear();
}

void ReportRun::selectionChanged()
{
    if (m_state == State::Finished)
        setState(State::Idle, {});
}

QString ReportRun::workbookPath() const
{
    const QString name = m_spec.workbookName(*this);
    const bool isPath = name.contains('/') || name.contains('\\');
    return isPath ? name : storage::joinPath(m_session.UserSettingsPath, name);
}

void ReportRun::cancelAll()
{
    for (ReportRun* run : runningReports())
        run->requestCancel();
}

// A failure in the middle leaves what was drawn in the preview.
void ReportRun::printGuarded(const std::function<void(ReportRun&)>& print)
{
    runningReports().append(this);
    m_isBroken = false;
    bool isWhole = false;
    const auto end = qScopeGuard([&] {
        runningReports().removeOne(this);
        if (isWhole)
            return;
        m_isBroken = true;
        dnReportEnd(*this);
    });
    isWhole = runCommand([&] { print(*this); });
}

void ReportRun::expectRows(int count)
{
    m_rowCount = 0;
    m_expectedRows = count;
    m_sinceStep.start();
}

bool ReportRun::proceed()
{
    ++m_rowCount;
    if (m_sinceLived.elapsed() >= livingInterval)
        letLive();
    return !m_isCancelled;
}

void ReportRun::letLive()
{
    if (m_status.isEmpty())
        m_processText = "Printing Page: " + QString::number(pages.currentPage()).rightJustified(4);
    onChange();
    QCoreApplication::processEvents();
    m_sinceLived.restart();
}

void ReportRun::showStatus(const QString& text)
{
    m_status = text;
    if (!text.isEmpty())
        m_processText = text;
    letLive();
}

QString ReportRun::progressText() const
{
    if (m_expectedRows <= 0 || m_rowCount <= 0 || m_rowCount > m_expectedRows)
        return count(m_rowCount);
    const QString text = count(m_rowCount) + " of " + count(m_expectedRows);
    const qint64 elapsed = m_sinceStep.elapsed();
    constexpr qint64 tooSoonToTell = 500;
    if (elapsed < tooSoonToTell)
        return text;
    const qint64 left = elapsed * (m_expectedRows - m_rowCount) / m_rowCount;
    return text + ", " + minutesAndSeconds(left) + " left";
}

bool dnReportBegin(ReportRun& run, const QString& orientation, const PageMargins& margins)
{
    run.m_savedLandscape = run.pages.isLandscape();
    run.setState(ReportRun::State::Running,
                 run.m_status.isEmpty() ? "Now Printing..." : run.m_status);
    run.pages.setLandscape(orientation.trimmed().toUpper() == "L");
    run.pages.margins = {orDefault(margins.left), orDefault(margins.right), orDefault(margins.top),
                         orDefault(margins.bottom)};
    if (!run.pages.isReady()) {
        run.pages.setLandscape(run.m_savedLandscape);
        showCritical("Printer Error", "Printer Problem Detected");
        run.setState(ReportRun::State::Idle, {});
        return false;
    }
    run.pages.style = {};
    run.m_isStarted = true;
    run.pages.startDocument();
    run.onChange();
    return true;
}

void dnReportEnd(ReportRun& run)
{
    if (!run.m_isStarted)
        return;
    run.m_isStarted = false;
    run.pages.endDocument();
    run.pages.style = {};
    run.pages.setLandscape(run.m_savedLandscape);
    QString text = run.m_spec.finishedText;
    if (run.m_isCancelled)
        text = "Report STOPPED BY USER (INCOMPLETE)";
    else if (run.m_isBroken)
        text = "Report STOPPED BY AN ERROR (INCOMPLETE)";
    run.setState(ReportRun::State::Finished, text);
}

bool dnReportKeys(PageDocument& pages, int key)
{
    switch (key) {
        case Qt::Key_PageUp:
            pages.setPreviewPage(pages.previewPage() - 1);
            return true;
        case Qt::Key_PageDown:
            pages.setPreviewPage(pages.previewPage() + 1);
            return true;
        case Qt::Key_Home:
            pages.setPreviewPage(1);
            return true;
        case Qt::Key_End:
            pages.setPreviewPage(pages.pageCount());
            return true;
        default:
            return false;
    }
}

bool dnReportPaperSize(const PageDocument& pages, QString& caption)
{
    caption = "Paper Size: " + paperSizeText(pages.paper());
    return pages.paper().code == a4Paper.code;
}

PaperSize systemPaper()
{
    const QSizeF points =
        SystemDialogs::isInstalled() ? SystemDialogs::current().defaultPaper() : QSizeF();
    if (points.isEmpty())
        return letterPaper;
    const QSize twips = (points * twipsPerPoint).toSize();
    for (const PaperSize& known : {letterPaper, legalPaper, a4Paper})
        if (std::abs(twips.width() - known.width) < papersTolerance &&
            std::abs(twips.height() - known.height) < papersTolerance)
            return known;
    return {0, twips.width(), twips.height()};
}
