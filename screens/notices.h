// What users see when an administrator takes the module down for maintenance. Both close by
// themselves after ten seconds.
#pragma once

#include "screens/small_dialog.h"

class Notice : public SmallDialog
{
public:
    // Half a second has passed; the twentieth closes.
    void tick();

protected:
    Notice(const QString& name, const QString& caption, const QString& heading,
           const QString& moduleName, const QString& text);
    void showEvent(QShowEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    int m_ticks = 0;
};

// The program does not start.
class frmZORShutdown : public Notice
{
public:
    explicit frmZORShutdown(const QString& moduleName);
};

// It will be ended soon.
class frmZORWarning : public Notice
{
public:
    explicit frmZORWarning(const QString& moduleName);
};
