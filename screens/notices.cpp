#include "screens/notices.h"

namespace {
constexpr int tickMilliseconds = 500;
constexpr int ticksUntilClosed = 20;
}  // namespace

Notice::Notice(const QString& name, const QString& caption, const QString& heading,
               const QString& moduleName, const QString& text)
    : SmallDialog(name, caption)
{
    addHeading(heading);
    QLabel* module = addText("lblModuleName", moduleName);
    QFont large = module->font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    module->setFont(large);
    addText("lblText", text);
    enterTakes(addClosingButton("cmdOK", "&OK", Accepted));
}

void Notice::showEvent(QShowEvent* event)
{
    SmallDialog::showEvent(event);
    startTimer(tickMilliseconds);
}

void Notice::timerEvent(QTimerEvent*)
{
    tick();
}

void Notice::tick()
{
    if (++m_ticks >= ticksUntilClosed)
        accept();
}

frmZORShutdown::frmZORShutdown(const QString& moduleName)
    : Notice("frmZORShutdown", "Application Shutdown Notice", "Notice", moduleName,
             "Is Temporarily Shutdown for Database Maintenance")
{
}

frmZORWarning::frmZORWarning(const QString& moduleName)
    : Notice("frmZORWarning", "Application Shutdown Warning", "Warning!", moduleName,
             "Is About to be Shutdown for Database Maintenance")
{
}
