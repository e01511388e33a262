// A rule that is not met, as the box tells it.
#pragma once

#include <QString>

struct Refusal
{
    QString title;
    QString text;  // lines parted by '\n'
};
