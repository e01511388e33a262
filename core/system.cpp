#include "core/system.h"

#include <pwd.h>
#include <unistd.h>

namespace {
System* installed = nullptr;
}

QDateTime System::now() const
{
    return QDateTime::currentDateTime();
}

QString System::loginName() const
{
    const passwd* entry = ::getpwuid(::geteuid());
    return entry ? QString::fromLocal8Bit(entry->pw_name) : QString();
}

System& System::current()
{
    static System machine;
    return installed ? *installed : machine;
}

void System::install(System* system)
{
    installed = system;
}
