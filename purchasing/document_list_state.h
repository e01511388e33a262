// What the lists of documents know beside their rows: the filter, the marks, whether statuses are
// coloured. It lives as long as its list.
#pragma once

#include <QSet>

#include "core/user_settings.h"
#include "purchasing/document_dialogs.h"
#include "screens/browse/browse_session.h"

// Of the table that the list shows.
const DocumentKind& kindOf(const BrowseSession& list);

// The user's settings of the job site.
class UserSettings
{
public:
    explicit UserSettings(const Session& session);
    storage::Value operator[](const char* field);
    void save(const char* field, const storage::Value& value);

private:
    OpenTable m_open;
    qint32 m_site;
};

struct ListState
{
    qint32 REQTAG = 0;  // the orders of that requisition only
    DocumentFilter filter = {};
    bool usesColors = false;
    QSet<qint32> marked = {};  // looked up once, not for each row
};
using State = std::shared_ptr<ListState>;

// Which documents the user has marked, read anew.
void readMarks(const BrowseSession& list, ListState& state);

// The list within the state's filter; one that finds nothing is told and turned off.
void applyFilter(BrowseSession& list, ListState& state);
// Goes to the document; a filter that hides it is turned off.
void showDocument(BrowseSession& list, ListState& state, qint32 tag);
QString filterText(const ListState& state);

// What the user left, and what he leaves.
void openList(BrowseSession& list, ListState& state);
void closeList(BrowseSession& list, const ListState& state);
