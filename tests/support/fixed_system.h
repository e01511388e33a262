// A machine on which it is always the same moment, with a login name of the test's choice.
#pragma once

#include "core/system.h"

class FixedSystem : public System
{
public:
    explicit FixedSystem(QString loginName = "pat",
                         QDateTime now = QDateTime(QDate(2026, 3, 7), QTime(9, 5, 42)))
        : m_loginName(std::move(loginName)), m_now(std::move(now))
    {
        install(this);
    }
    ~FixedSystem() override { install(nullptr); }
    FixedSystem(const FixedSystem&) = delete;
    FixedSystem& operator=(const FixedSystem&) = delete;

    void logIn(const QString& name) { m_loginName = name; }
    void setNow(const QDateTime& now) { m_now = now; }

    QDateTime now() const override { return m_now; }
    QString loginName() const override { return m_loginName; }

private:
    QString m_loginName;
    QDateTime m_now;
};
