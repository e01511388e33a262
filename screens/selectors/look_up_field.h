// An entry field of a code, with the name that belongs to it beside it. While the user types, those
// codes and names that contain it are offered; "?", "/" or the button open a search window.
#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "screens/selectors/job_directory.h"

class QLabel;
class QLineEdit;
class QStandardItemModel;
class QToolButton;

// What a look-up field asks of its surroundings. Each may fail as the store does.
struct LookUpSource
{
    // The name that belongs to a code; nothing when there is no such code.
    std::function<std::optional<QString>(const QString& code)> nameOf;
    std::function<std::vector<CodeChoice>()> choices;
    std::function<QString()> search;  // the code chosen in the search window; blank for none
    QString notFound;                 // in place of the name
    QString nothing = {};             // the same, of no code
};

class LookUpField : public QWidget
{
    Q_OBJECT

public:
    // The system names of the field and of the label with the name.
    LookUpField(const QString& name, const QString& nameLabel, LookUpSource source);

    QLineEdit& edit() const { return *m_edit; }
    QString code() const;
    // Shows the code and its name.
    void setCode(const QString& code);
    // False, too, while another code stands in the field than was checked.
    bool isValid() const { return m_isValid && code() == m_checked; }

    // Looks the code up that stands in the field, even if nobody changed it.
    void check();
    // The same, where it has changed since the last check.
    void takeTyped();

Q_SIGNALS:
    // Another code was typed and checked, or chosen.
    void codeChanged();
    // What code() or isValid() tell may have changed: at each key, and after each check.
    void changed();

private:
    void textEdited(const QString& text);
    void offerChoices();
    void search();

    LookUpSource m_source;
    QLineEdit* m_edit;
    QLabel* m_name;
    QToolButton* m_button;
    QStandardItemModel* m_choices;
    QString m_checked;
    bool m_isValid = false;
    bool m_areChoicesDue = true;
};
