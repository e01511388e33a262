// The only way to show a box or to ask a question. There is one current instance: the program
// installs one that opens real boxes, tests install a script that answers. Code without widgets
// talks to its user through here, and nothing else in the program names a message box.
#pragma once

#include <QString>

enum class MessageKind { Information, Question, Warning, Critical };

// The buttons of a box, and the answer to it. Enter takes the first of the named ones unless a box
// says otherwise; Esc takes Cancel, or No, or OK.
enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Answer { Ok, Cancel, Yes, No };

struct Message
{
    MessageKind kind = MessageKind::Information;
    QString title;
    QString text;  // lines parted by '\n'
    Buttons buttons = Buttons::Ok;
    Answer enterTakes = Answer::Ok;  // the button that Enter takes; Yes where there is no OK
};

class Messages
{
public:
    virtual ~Messages() = default;

    // Shows the box and waits for the answer. While it waits, timers run.
    virtual Answer show(const Message& message) = 0;

    // The current instance. Without one a box is a broken invariant.
    static Messages& current();
    // Installs `messages`, which stays the caller's, and gives the one that was there.
    static Messages* install(Messages* messages);
};

// The usual boxes.
void showCritical(const QString& title, const QString& text);
void showInformation(const QString& title, const QString& text);
bool askOkCancel(const QString& title, const QString& text);
bool askYesNo(const QString& title, const QString& text, Answer enterTakes = Answer::Yes);

// The box of an entry that is not built yet.
void dnNotReady();
