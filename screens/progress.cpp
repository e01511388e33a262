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
    constexpr int seldom = 64;
    return m_count % seldom == 0 ? showNow(m_text + "\n" + QLocale::c().toString(m_count))
                                 : !m_dialog->wasCanceled();
}

bool Progress::tell(const QString& text)
{
    ++m_count;
    return showNow(text);
}

bool Progress::showNow(const QString& text)
{
    const qint64 wait = m_dialog->isVisible() ? shownEvery : shownAfter;
    if (m_sinceShown.elapsed() < wait)
        return !m_dialog->wasCanceled();
    m_sinceShown.restart();
    m_dialog->setLabelText(text);
    m_dialog->show();
    QCoreApplication::processEvents();
    return !m_dialog->wasCanceled();
}
