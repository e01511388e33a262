// The screens that menu entries open, by their system names.
#pragma once

#include <QWidget>

#include "screens/screen_context.h"

struct ScreenFactory
{
    const char* name;
    QWidget* (*create)(const ScreenContext& context);  // the caller owns what it gives
};

// Null for a screen that is not built yet.
const ScreenFactory* findScreen(const QString& name);
