// The boxes of the program, over the window in which the user is working.
#pragma once

#include "core/messages.h"

class QtMessages : public Messages
{
public:
    Answer show(const Message& message) override;
};
