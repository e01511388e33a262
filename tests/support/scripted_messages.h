// The user of a test: answers the boxes that the test expects, in order. A box that was not
// expected fails the test, and so does an expected one that had not come when the script goes.
//
//   ScriptedMessages user;
//   user.expect("Confirm Delete", "OK to Delete?", Answer::Cancel);
#pragma once

#include <QList>

#include "core/messages.h"
#include "tests/support/printing.h"

class ScriptedMessages : public Messages
{
public:
    ScriptedMessages() : m_before(install(this)) {}
    ~ScriptedMessages() override;
    ScriptedMessages(const ScriptedMessages&) = delete;
    ScriptedMessages& operator=(const ScriptedMessages&) = delete;

    // The next box after those expected so far, matched on its whole title and text.
    void expect(const QString& title, const QString& text, Answer answer = Answer::Ok);
    // True once every expected box has come.
    bool allCame() const { return m_expected.isEmpty(); }

    Answer show(const Message& message) override;

private:
    struct Expected
    {
        QString title;
        QString text;
        Answer answer;
    };
    QList<Expected> m_expected;
    Messages* m_before;
};
