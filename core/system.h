// What the program asks of the machine: the time and who is logged in. One current instance, so
// that tests stand at a fixed moment under a name of their own.
#pragma once

#include <QDateTime>
#include <QString>

class System
{
public:
    virtual ~System() = default;

    virtual QDateTime now() const;      // local wall-clock time
    virtual QString loginName() const;  // empty when the system gives none

    static System& current();
    // Installs `system`, which stays the caller's; null brings the real one back.
    static void install(System* system);
};
