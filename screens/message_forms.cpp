#include "screens/message_forms.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "core/text.h"

frmDNMsgBox::frmDNMsgBox(const QString& text, const QString& firstButton,
                         const QString& secondButton)
    : SmallDialog("frmDNMsgBox", "Message Box")
{
    addText("lblMessageText", text);
    QPushButton* first =
        addClosingButton("cmdButton1", dnIsBlank(firstButton) ? "&OK" : firstButton, 1);
    if (dnIsBlank(secondButton))
        centreButtons();
    else
        addClosingButton("cmdButton2", secondButton, 2);
    enterTakes(first);
}

frmDNWarning::frmDNWarning(const QString& text)
    : SmallDialog("frmDNWarning", "Warning Form with Option"),
      m_option(new QCheckBox("&Do Not Warn Again During this Report Run."))
{
    addText("lblWarning", text);
    m_option->setObjectName("ckbDoNotWarn");
    addAcross(m_option);
    enterTakes(addButton("cmdOK", "&OK", [this] {
        m_doNotWarnAgain = m_option->isChecked();
        accept();
    }));
}
