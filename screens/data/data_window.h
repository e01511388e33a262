// The window of a data screen: a form of the fields, in pages where there are several sections, and
// the commands. What it does is told in data_session.h; what a screen is, in data_spec.h.
#pragma once

#include <QWidget>

#include "screens/data/data_session.h"
#include "screens/entry/entry_controls.h"
#include "screens/screen_context.h"

class CommandBar;
class FormArea;
class KeyLine;
class QLineEdit;
class QPushButton;
class QTabWidget;
class tqErrorBox;

class DataWindow : public QWidget
{
public:
    DataWindow(DataSpec spec, const Session& session, const DataRecord& record);
    ~DataWindow() override;

    DataSession& session() { return m_session; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;

private:
    void build();
    void buildCommands();
    void update(bool stays);
    void run(const std::function<void()>& command);
    void showState();
    void showKeys();
    void takeFocus();
    void showWhole(int at);
    void fieldEntered(int at);
    void findField(const QString& text, bool next);

    DataSession m_session;
    EntryControls* m_fields;
    tqErrorBox* m_errorBox;
    CommandBar* m_commands;
    KeyLine* m_keys;
    QTabWidget* m_pages = nullptr;
    QLineEdit* m_finder = nullptr;
    QPushButton* m_update = nullptr;
    QPushButton* m_cancel = nullptr;
    std::vector<QPushButton*> m_whileTyping;  // commands that wait for that
    std::vector<std::pair<QPushButton*, const DataCommand*>> m_shownAtTimes;
    std::vector<FormArea*> m_pageOf;  // of each field
    int m_found = -1;
    int m_entered = -1;  // the field that had the focus last
    bool m_loaded = false;
    bool m_isTelling = false;
};

// Opens a data screen on the desktop; nothing is opened, and the lock given up, when its record is
// not there. For the `open` of a BrowseDetail.
bool openDataScreen(DataSpec spec, const Session& session, const DataRecord& record);
