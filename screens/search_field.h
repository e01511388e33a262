// A text field with its look-up: "?", "/" and the button open it, whatever keys the field takes
// otherwise.
#pragma once

#include <QWidget>
#include <functional>

class QLineEdit;

class SearchField : public QWidget
{
public:
    // Takes a field that has its keys and its system name already. `search` gives the text chosen,
    // blank for none, and may fail as the store does.
    SearchField(QLineEdit* edit, std::function<QString()> search);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void open();

    QLineEdit* m_edit;
    std::function<QString()> m_search;
};
