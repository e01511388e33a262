// The control above a list in which the user chooses whose rows it shows.
#pragma once

#include <QWidget>

#include "screens/browse/browse_session.h"

class Selector;

class ParentBar : public QWidget
{
    Q_OBJECT

public:
    // Takes up what the user chose last.
    virtual void load() = 0;
    // The keys of the parent, in the order of the index; none when the choice is not valid.
    virtual std::vector<KeyField> keys() const = 0;
    // Remembers the choice.
    virtual void save() = 0;
    // What stands in place of a list when there is no parent.
    virtual QString hint() const = 0;
    // While a record is entered nobody chooses another parent.
    void setLocked(bool locked) { setEnabled(!locked); }

Q_SIGNALS:
    void entered();
    void left();

protected:
    ParentBar(Session session, Selector* selector);

    storage::Value remembered(const QString& field) const;
    void remember(const QString& field, const storage::Value& value) const;

    const Session m_session;
};

// The control for the parent that the screen needs; null for none.
ParentBar* makeParentBar(const BrowseSession& session);
