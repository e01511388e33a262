// A vendor added or changed from the head of a document.
#pragma once

#include <optional>

#include "core/session.h"

// Shows the vendor of the number for changes, or an empty one to be added where the number is
// blank; gives the number of the vendor that was saved.
std::optional<QString> editVendorPanel(const Session& session, const QString& VENNO);

// What the panel's fields hold, by the names of the table's fields.
struct VendorPanel
{
    QString VENNO = {};
    QString Name = {};
    QString ADDRESS1 = {};
    QString ADDRESS2 = {};
    QString CITY = {};
    QString State = {};
    QString ZIP = {};
    QString PLUS4 = {};
    QString PHONE = {};
    QString FAX = {};
};
std::optional<VendorPanel> vendorPanelOf(const Session& session, const QString& VENNO);
// Writes it: a new vendor, or the one of the former number. False after a box.
bool saveVendorPanel(const Session& session, const QString& oldVENNO, const VendorPanel& panel);
