// The text that is printed behind a purchase order: the one that was chosen for it, else the
// default one.
#pragma once

#include <optional>

#include "core/session.h"

struct Addendum
{
    QString title = {};
    QString text = {};

    QString heading() const { return title.isEmpty() ? QString("NOTICE") : title; }
};
// Nothing where there is neither. All of these fail as the store does.
std::optional<Addendum> addendumOf(const Session& session, qint32 POTAG);
std::optional<Addendum> addendumText(const Session& session, qint32 PONTAG);
bool hasAddenda(const Session& session);
// Stores the text on which the bookmark stands as the order's; a blank bookmark changes nothing.
void setAddendum(const Session& session, qint32 POTAG, const QString& bookmark);
// Turns the mark of the default text on or off, and clears it elsewhere.
void toggleDefaultAddendum(const Session& session, qint32 PONTAG);
