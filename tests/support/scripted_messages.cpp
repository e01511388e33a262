#include "tests/support/scripted_messages.h"

#include <gtest/gtest.h>

namespace {

std::string shown(const QString& title, const QString& text)
{
    return ("[" + title + "] " + text).toStdString();
}

// What a box without that answer could never give.
bool canAnswer(const Message& message, Answer answer)
{
    switch (message.buttons) {
        case Buttons::Ok:
            return answer == Answer::Ok;
        case Buttons::OkCancel:
            return answer == Answer::Ok || answer == Answer::Cancel;
        case Buttons::YesNo:
            return answer == Answer::Yes || answer == Answer::No;
        case Buttons::YesNoCancel:
            return answer != Answer::Ok;
    }
    return false;
}

}  // namespace

ScriptedMessages::~ScriptedMessages()
{
    for (const Expected& missing : m_expected)
        ADD_FAILURE() << "This box never came: " << shown(missing.title, missing.text);
    install(m_before);
}

void ScriptedMessages::expect(const QString& title, const QString& text, Answer answer)
{
    m_expected.append({title, text, answer});
}

Answer ScriptedMessages::show(const Message& message)
{
    // Unexpected questions are answered so that least happens.
    const Answer least = message.buttons == Buttons::Ok      ? Answer::Ok
                         : message.buttons == Buttons::YesNo ? Answer::No
                                                             : Answer::Cancel;
    if (m_expected.isEmpty()) {
        ADD_FAILURE() << "Unexpected box: " << shown(message.title, message.text);
        return least;
    }
    const Expected next = m_expected.takeFirst();
    EXPECT_EQ(shown(message.title, message.text), shown(next.title, next.text));
    EXPECT_TRUE(canAnswer(message, next.answer)) << "The box has no such button.";
    return canAnswer(message, next.answer) ? next.answer : least;
}
