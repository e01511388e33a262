// Two small forms that ask more than a box does.
#pragma once

#include "screens/small_dialog.h"

class QCheckBox;

// A text with one or two buttons of the caller's choice. `exec` gives 1 for the first and 2 for the
// second; 0 when the form was closed otherwise.
class frmDNMsgBox : public SmallDialog
{
public:
    // A blank first button is "&OK"; a blank second one is not there, and the first stands in the
    // middle.
    explicit frmDNMsgBox(const QString& text, const QString& firstButton = {},
                         const QString& secondButton = {});
};

// A warning within a report's run, which the user can ask not to see again.
class frmDNWarning : public SmallDialog
{
public:
    explicit frmDNWarning(const QString& text);

    bool doNotWarnAgain() const { return m_doNotWarnAgain; }

private:
    QCheckBox* m_option;
    bool m_doNotWarnAgain = false;
};
