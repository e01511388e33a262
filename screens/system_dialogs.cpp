#include "screens/system_dialogs.h"

namespace {
SystemDialogs* installed = nullptr;
}

SystemDialogs& SystemDialogs::current()
{
    Q_ASSERT(installed);
    return *installed;
}

bool SystemDialogs::isInstalled()
{
    return installed != nullptr;
}

SystemDialogs* SystemDialogs::install(SystemDialogs* dialogs)
{
    return std::exchange(installed, dialogs);
}
