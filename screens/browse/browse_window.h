// The window of a browse-and-edit screen: the parent's selector, the rows, the entry fields laid
// over the row in hand, the commands. What it does is told in browse_session.h; what a screen is,
// in browse_spec.h.
#pragma once

#include <QWidget>

#include "screens/browse/browse_session.h"
#include "screens/screen_context.h"

class BrowseGrid;
class CommandBar;
class KeyLine;
class ParentBar;
class QLineEdit;
class QPushButton;
class tqErrorBox;

class BrowseWindow : public QWidget
{
public:
    BrowseWindow(BrowseSpec spec, const ScreenContext& context);
    // Whose rows it shows, for a spec whose parent is given.
    BrowseWindow(BrowseSpec spec, const ScreenContext& context,
                 const std::vector<KeyField>& parent);
    ~BrowseWindow() override;

    BrowseSession& session() { return m_session; }
    BrowseGrid& grid() { return *m_grid; }

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void build();
    void buildCommands();
    void buildFields();
    void load();
    void takeParent();
    void showKeys();

    // Runs a command of the session, then shows the state it left.
    void run(const std::function<void()>& command);
    void showState();
    void showEntry();
    void placeFields();
    void showErrors();
    void placeErrorBox();
    void takeFocus();
    void takeTexts();
    void fieldLeft(int entry);
    bool commandForKey(int key);

    BrowseSession m_session;
    ScreenContext m_context;
    std::vector<KeyField> m_givenParent;
    ParentBar* m_parent = nullptr;
    BrowseGrid* m_grid;
    CommandBar* m_commands;
    KeyLine* m_keys;
    tqErrorBox* m_errorBox;
    QPushButton* m_update = nullptr;
    QPushButton* m_exit = nullptr;
    std::vector<QPushButton*> m_browsing;  // commands while browsing
    std::vector<QPushButton*> m_entering;  // commands of an entry
    std::vector<QLineEdit*> m_fields;
    bool m_wasEntering = false;
    bool m_loaded = false;
};
