// The boxes of a program beside that of a test: what they say goes to stderr, where the test looks.
#pragma once

#include <cstdio>

#include "core/messages.h"

class Complaints : public Messages
{
public:
    Complaints() { install(this); }
    ~Complaints() override { install(nullptr); }
    Complaints(const Complaints&) = delete;
    Complaints& operator=(const Complaints&) = delete;

    Answer show(const Message& message) override
    {
        std::fprintf(stderr, "%s: %s\n", qPrintable(message.title), qPrintable(message.text));
        return Answer::Ok;
    }
};
