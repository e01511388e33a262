// The preferred vendor that is posted to tagged items.
#pragma once

#include <optional>

#include "core/session.h"

class LookUpField;

// txtVENNO with the vendor's name, its look-up and search.
LookUpField* vendorLookUp(const Session& session);
// Asks which vendor to post to the tagged items: its tag, 0 to clear them, nothing after a cancel.
std::optional<qint32> frmVEXINV06(const Session& session);
// What its Post takes; nothing after the user was told why not.
std::optional<qint32> vendorToPost(const QString& jobSitePath, const QString& VENNO, bool clears);
