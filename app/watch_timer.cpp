#include "app/watch_timer.h"

#include "core/storage/file_paths.h"
#include "core/text.h"

void WatchTimer::beginStartPhase()
{
    m_starting = true;
    m_counter = 0;
    m_limit = 3;
    m_host.setTimerInterval(500);
}

void WatchTimer::watchFromNowOn()
{
    m_limit = 30;
    m_counter = 1;
    m_host.setTimerInterval(1000);
}

void WatchTimer::tick()
{
    if (m_starting) {
        startTick();
        return;
    }
    // The warning waits for its user while the timer runs on.
    if (m_warning)
        return;
    if (m_counter < m_limit)
        ++m_counter;
    if (m_counter >= m_limit)
        lookForMarkers();
}

void WatchTimer::startTick()
{
    if (m_counter < m_limit) {
        ++m_counter;
        if (!m_host.splashIsOpen())
            m_counter = m_limit;
    }
    if (m_counter == m_limit) {
        m_starting = false;
        m_host.closeSplash();
        m_host.showMainWindow();
    }
}

// While both files are there the users are warned again and again, and not thrown out.
void WatchTimer::lookForMarkers()
{
    const QString folder = m_host.jobSitePath();
    if (dnIsBlank(folder)) {
        m_counter = 1;
    } else if (storage::pathExists(storage::joinPath(folder, warningMarker))) {
        m_warning = true;
        m_host.showWarning();
        m_warning = false;
        m_counter = 1;
    } else if (storage::pathExists(storage::joinPath(folder, shutdownMarker))) {
        m_host.endProcess();
    } else {
        m_counter = 1;
    }
}
