#include "screens/desktop.h"

namespace {
Desktop* installed = nullptr;
}

Desktop* Desktop::install(Desktop* desktop)
{
    return std::exchange(installed, desktop);
}

void openScreen(QWidget* screen)
{
    if (installed) {
        installed->openScreen(screen);
        return;
    }
    screen->setAttribute(Qt::WA_DeleteOnClose);
    screen->show();
}
