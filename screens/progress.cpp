#include "screens/progress.h"

#include <QCoreApplication>
#include <QLocale>
#include <QProgressDialog>
#include <limits>

namespace {
// In milliseconds.
constexpr qint64 shownAfter = 400;
constexpr qint64 shownEvery = 100;
}  // namespace

Progress::Progress(QWidget* over, const QString& text)
    : m_dialog(new QProgressDialog(text, "&Stop", 0, 0, over)), m_text(text)
{
    m_dialog->setWindowModality(Qt::ApplicationModal);
    m_dialog->setMinimumDuration(std::numeric_limits<int>::max());  // shown by `step`
    m_sinceShown.start();
}

Progress::~Progress() = default;

bool Progress::step()
{
    ++m_count;
    const qint64 wait = m_dialog->isVisible() ? shownEvery : shownAfter;
    if (m_count % 64 != 0 || m_sinceShown.elapsed() < wait)
        return !m_dialog->wasCanceled();
    m_sinceShown.restart();
    m_dialog->setLabelText(m_text + "\n" + QLocale::c().toString(m_count));
    m_dialog->show();
    QCoreApplication::processEvents();
    return !m_dialog->wasCanceled();
}
