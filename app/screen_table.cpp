#include "app/screen_table.h"

#include "screens/network_settings.h"

namespace {

const ScreenFactory screens[] = {
    {"frmNETSET",
     [](const ScreenContext& context) -> QWidget* {
         return new frmNETSET(context.session, context.mode);
     }},
};

}  // namespace

const ScreenFactory* findScreen(const QString& name)
{
    for (const ScreenFactory& screen : screens)
        if (name == screen.name)
            return &screen;
    return nullptr;
}
