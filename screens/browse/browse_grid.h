// Draws a BrowseList and moves it: rows and headings, a scroll bar that shows the place in the
// list, the movement keys, the wheel, clicks, and the seven movement buttons. It takes as many rows
// as there is room for and tells the list.
//
// It serves every window with a list: the browse screens, the search window, the logs. What the
// window does on its own with the list it follows by `refresh`.
#pragma once

#include <QWidget>

#include "screens/browse/browse_list.h"
#include "screens/user_layout.h"

class BrowsePage;
class QLabel;
class QScrollBar;
class QTableView;
class QTimer;

struct GridColumn
{
    QString heading;
    int width = 0;  // twips, 1440 to the inch; 0: not shown
    Qt::Alignment alignment = Qt::AlignLeft;
};

class BrowseGrid : public QWidget
{
    Q_OBJECT

public:
    enum class Move { Home, End, PageUp, PageDown, Up, Down };

    // The list stays the caller's and lives longer. `focusHolder` is the system name of the control
    // that has the keyboard while browsing, such as "hsbMAIN".
    BrowseGrid(BrowseList& list, const QString& focusHolder);
    ~BrowseGrid() override;

    void setColumns(const std::vector<GridColumn>& columns);
    void setHeading(int column, const QString& heading);
    // Takes the widths that the user gave the columns, and keeps those that he gives them. `key`
    // tells columns of one kind, such as "frmVEXGLC01/columns".
    void keepWidths(const UserLayout& layout, const QString& key);
    // What stands in place of a row below the last record and in an empty list.
    void setEndTexts(const QString& endOfList, const QString& listIsEmpty);
    // A click on the highlighted row is the same as Enter (the default), or only a double click is.
    void setActsOnClick(bool acts) { m_actsOnClick = acts; }

    // While off, keys, buttons, clicks and wheel do nothing.
    void setMovesEnabled(bool enabled);
    bool movesEnabled() const { return m_movesEnabled; }

    void move(Move move);
    // True if the key is one that moves; it has moved then.
    bool takeMoveKey(int key);
    void act();  // as Enter

    // After anything but this widget has changed the list.
    void refresh();

    // The whole list as lines of tab-separated cells under their headings, to the clipboard; shows
    // progress and can be stopped.
    void copyList();

    // The buttons "cmdDNBHOME" and so on to "cmdDNBACTION", made by the first call; the prefix
    // stands for "cmdDNB". The caller lays the widget out.
    QWidget* moveButtons(const QString& prefix = "cmdDNB");

    QSize sizeHint() const override;

    QTableView* view() const { return m_view; }
    void takeFocus();
    // Scrolls sideways as far as the column needs it.
    void bringIntoView(int column);
    // Where a cell lies in `view()->viewport()`; fields are laid over it there.
    QRect cellRect(int row, int column) const;

Q_SIGNALS:
    void moved();  // the highlight may stand elsewhere
    void acted();  // Enter, a click on the highlight, a double click
    void headingClicked(int column);
    void layoutChanged();  // cells lie elsewhere

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool takeSidewaysKey(const QKeyEvent& key);
    void showMessageRow();
    void takeRoom();
    bool clicked(const QPoint& at, bool isDouble);
    void changed();
    void showPosition();
    void jumpTo(int position);
    void showMenu(const QPoint& at);
    void storeWidths();

    BrowseList& m_list;
    BrowsePage* m_page;
    QTableView* m_view;
    QScrollBar* m_position;
    QTimer* m_positionDue;
    QWidget* m_buttons = nullptr;
    UserLayout m_layout;
    QString m_layoutKey;
    bool m_movesEnabled = true;
    bool m_actsOnClick = true;
    bool m_settingWidths = false;
    int m_messageRow = -1;
    int m_wishedWidth = 0;  // of all columns
    int m_wheel = 0;        // eighths of a degree not used up
};
