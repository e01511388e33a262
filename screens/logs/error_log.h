// The error log of the last upload, a line a row: it is looked through and printed, not changed.
#pragma once

#include "screens/browse/browse_list.h"
#include "screens/screen_context.h"

#include <QWidget>

class BrowseGrid;

class frmZORERRLOG01 : public QWidget
{
public:
    // `word` names what wrote the log: "View " + word + " Error Log".
    frmZORERRLOG01(const Session& session, const QString& word);

    BrowseGrid& grid() { return *m_grid; }

private:
    BrowseList m_list;
    BrowseGrid* m_grid;
};
