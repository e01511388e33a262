// The window of a browse-and-edit screen: the parent's selector, the rows with the entry fields
// over them, the commands. What it does is told in browse_session.h; what a screen is, in
// browse_spec.h.
//
// It may have several lists side by side, its levels: each shows the records below the one under
// the highlight at its left, and the commands go to the level in which the keyboard is.
#pragma once

#include <QWidget>
#include <memory>

#include "screens/browse/browse_session.h"
#include "screens/screen_context.h"

class BrowseGrid;
class BrowsePane;
class CommandBar;
class KeyLine;
class ParentBar;
class QLabel;
class QPushButton;

struct BrowseLevels
{
    // From left to right; the name, caption, print, commands and status of the first one count. The
    // parent of the others is given: its one key is the tag of the record at their left.
    std::vector<BrowseSpec> levels;
    // Before the keyboard goes on to the next level: what is told where it may not, else nothing.
    std::function<std::optional<Message>(BrowseSession& from, BrowseSession& to)> mayEnter = {};
};

class BrowseWindow : public QWidget
{
public:
    BrowseWindow(BrowseSpec spec, const ScreenContext& context);
    // Whose rows it shows, for a spec whose parent is given.
    BrowseWindow(BrowseSpec spec, const ScreenContext& context,
                 const std::vector<KeyField>& parent);
    BrowseWindow(BrowseLevels levels, const ScreenContext& context,
                 const std::vector<KeyField>& parent);
    ~BrowseWindow() override;

    // Those of the level in hand, or of one from 0.
    BrowseSession& session() { return *m_levels[m_inHand].session; }
    BrowseSession& session(size_t level) { return *m_levels[level].session; }
    BrowseGrid& grid();
    BrowseGrid& grid(size_t level);
    size_t levelInHand() const { return m_inHand; }

    // Runs a command of the session, then shows the state it left.
    void run(const std::function<void()>& command);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    struct Level
    {
        std::unique_ptr<BrowseSession> session;
        BrowsePane* pane;
    };
    struct CommandButton
    {
        QPushButton* button;
        const BrowseCommand* command;  // null for those that every screen has
    };

    const BrowseSpec& spec() const { return m_levels.front().session->spec(); }
    BrowsePane& pane() { return *m_levels[m_inHand].pane; }
    void build();
    QWidget* buildLevels();
    void buildCommands();
    void orderTabs();
    void load();
    void takeParent();
    void followParent();
    void fillBelow(size_t level);
    void enterLevel(size_t level);
    void showKeys();
    void showState();
    void showCommands();
    void showStatus();
    void takeFocus();
    bool commandForKey(QKeyCombination key);

    std::vector<Level> m_levels;
    size_t m_inHand = 0;
    std::function<std::optional<Message>(BrowseSession&, BrowseSession&)> m_mayEnter;
    ScreenContext m_context;
    std::vector<KeyField> m_givenParent;
    ParentBar* m_parent = nullptr;
    QLabel* m_status = nullptr;
    CommandBar* m_commands;
    KeyLine* m_keys;
    QPushButton* m_exit = nullptr;
    std::vector<CommandButton> m_browsing;  // commands while browsing
    std::vector<CommandButton> m_entering;  // commands of an entry
    bool m_wasEntering = false;
    bool m_loaded = false;
};

// Opens a list on the desktop, of the records below those keys where the spec's parent is given.
// For commands of other screens.
void openBrowseScreen(BrowseSpec spec, const Session& session,
                      const std::vector<KeyField>& parent = {});
