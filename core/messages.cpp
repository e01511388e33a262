#include "core/messages.h"

namespace {
Messages* installed = nullptr;
}

Messages& Messages::current()
{
    Q_ASSERT_X(installed, "Messages", "no instance is installed");
    return *installed;
}

Messages* Messages::install(Messages* messages)
{
    return std::exchange(installed, messages);
}

void showCritical(const QString& title, const QString& text)
{
    Messages::current().show({.kind = MessageKind::Critical, .title = title, .text = text});
}

void showInformation(const QString& title, const QString& text)
{
    Messages::current().show({.kind = MessageKind::Information, .title = title, .text = text});
}

bool askOkCancel(const QString& title, const QString& text)
{
    return Messages::current().show({.kind = MessageKind::Question,
                                     .title = title,
                                     .text = text,
                                     .buttons = Buttons::OkCancel}) == Answer::Ok;
}

bool askYesNo(const QString& title, const QString& text, Answer enterTakes)
{
    return Messages::current().show({.kind = MessageKind::Question,
                                     .title = title,
                                     .text = text,
                                     .buttons = Buttons::YesNo,
                                     .enterTakes = enterTakes}) == Answer::Yes;
}

void dnNotReady()
{
    showInformation("Option Not Ready", "Development is Pending on this Option.");
}
