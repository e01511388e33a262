#include "screens/progress.h"

#include <QLocale>
#include <QProgressDialog>

namespace {
constexpr qint64 shownEvery = 100;  // milliseconds
}

Progress::Progress(QWidget* over, const QString& text)
    : m_dialog(new QProgressDialog(text, "&Stop", 0, 0, over)), m_text(text)
{
    m_dialog->setWindowModality(Qt::ApplicationModal);
    m_dialog->setMinimumDuration(400);
    m_dialog->setValue(0);
    m_sinceShown.start();
}

Progress::~Progress() = default;

bool Progress::step()
{
    ++m_count;
    if (m_count % 64 != 0 || m_sinceShown.elapsed() < shownEvery)
        return !m_dialog->wasCanceled();
    m_sinceShown.restart();
    m_dialog->setLabelText(m_text + "\n" + QLocale::c().toString(m_count));
    m_dialog->setValue(0);  // lets events through while the dialog is up
    return !m_dialog->wasCanceled();
}
