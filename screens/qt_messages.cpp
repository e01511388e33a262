#include "screens/qt_messages.h"

#include <QGridLayout>
#include <QMessageBox>

#include "screens/small_dialog.h"

namespace {

QMessageBox::Icon iconOf(MessageKind kind)
{
    switch (kind) {
        case MessageKind::Information:
            return QMessageBox::Information;
        case MessageKind::Question:
            return QMessageBox::Question;
        case MessageKind::Warning:
            return QMessageBox::Warning;
        case MessageKind::Critical:
            return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

struct BoxButton
{
    Answer answer;
    const char* caption;
    QMessageBox::ButtonRole role;
};

constexpr BoxButton okButton = {Answer::Ok, "&OK", QMessageBox::AcceptRole};
constexpr BoxButton cancelButton = {Answer::Cancel, "&Cancel", QMessageBox::RejectRole};
constexpr BoxButton yesButton = {Answer::Yes, "&Yes", QMessageBox::YesRole};
constexpr BoxButton noButton = {Answer::No, "&No", QMessageBox::NoRole};

QList<BoxButton> buttonsOf(Buttons buttons)
{
    switch (buttons) {
        case Buttons::Ok:
            return {okButton};
        case Buttons::OkCancel:
            return {okButton, cancelButton};
        case Buttons::YesNo:
            return {yesButton, noButton};
        case Buttons::YesNoCancel:
            return {yesButton, noButton, cancelButton};
    }
    return {okButton};
}

}  // namespace

Answer QtMessages::show(const Message& message)
{
    QWidget* parent = QApplication::activeModalWidget();
    QMessageBox box(iconOf(message.kind), message.title, message.text, QMessageBox::NoButton,
                    parent ? parent : QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    // A box takes its width from its rows.
    if (auto* rows = qobject_cast<QGridLayout*>(box.layout()))
        rows->addItem(new QSpacerItem(widthOfCaption(box, message.title), 0), rows->rowCount(), 0,
                      1, rows->columnCount());
    QHash<QAbstractButton*, Answer> answers;
    const QList<BoxButton> buttons = buttonsOf(message.buttons);
    for (const BoxButton& wanted : buttons) {
        QPushButton* button = box.addButton(wanted.caption, wanted.role);
        answers.insert(button, wanted.answer);
        if (answers.size() == 1 || wanted.answer == message.enterTakes)
            box.setDefaultButton(button);
        // The last named one does least: Cancel, else No, else OK.
        box.setEscapeButton(button);
    }
    box.exec();
    return answers.value(box.clickedButton(), buttons.last().answer);
}
