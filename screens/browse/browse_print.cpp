#include "screens/browse/browse_session.h"

void BrowseSession::print()
{
    if (!isBrowsing() || !activeRecordTest(false))
        return;
    if (m_spec.print.run)
        return m_spec.print.run(*this);
}
