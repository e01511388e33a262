// What a screen is given when it is opened from the menu.
#pragma once

#include <QSize>

#include "core/session.h"

struct ScreenContext
{
    Session session = {};  // the screen's own copy
    QString mode = {};     // such as the cost code group; blank where a screen has none
    QSize desktop = {};    // full client size of the main window
};
