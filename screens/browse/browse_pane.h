// The rows of one session and the entry fields that lie over the row in hand, with the box of their
// errors. A window has one, or several side by side; commands are the window's.
#pragma once

#include <QWidget>

#include "screens/browse/browse_session.h"
#include "screens/entry/entry_controls.h"
#include "screens/user_layout.h"

class BrowseGrid;
class tqErrorBox;

class BrowsePane : public QWidget
{
    Q_OBJECT

public:
    // The session stays the caller's. `layoutKey` names the columns' widths, such as "frmVEXGLC01".
    BrowsePane(BrowseSession& session, const UserLayout& layout, const QString& layoutKey);
    ~BrowsePane() override;

    BrowseGrid& grid() { return *m_grid; }
    EntryControls& fields() { return *m_fields; }

    // Once the session is open.
    void load();
    // Headings that follow the parent.
    void showHeadings();
    // The rows, and while a record is entered its fields, as the session has them now. `emptyText`
    // stands in an empty list; `isInHand`: the user works in this pane.
    void showState(const QString& emptyText, bool isInHand = true);

Q_SIGNALS:
    void fieldLeft();

protected:
    bool event(QEvent* event) override;

private:
    void buildFields();
    void placeFields();
    void placeErrorBox();
    void showErrors();

    BrowseSession& m_session;
    BrowseGrid* m_grid;
    EntryControls* m_fields;
    tqErrorBox* m_errorBox;
    std::vector<int> m_columnOf;  // of each entry field
};
