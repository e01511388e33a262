// The controls of an entry's fields: they show what stands in the entry, take up what is typed,
// have a field checked when the keyboard leaves it, and open its search by "?", "/" or its button.
// Whoever owns them lays them out.
#pragma once

#include <QObject>

#include "screens/entry/entry.h"

class QAbstractButton;
class QWidget;

class EntryControls : public QObject
{
    Q_OBJECT

public:
    // `entry` stays the caller's. With `collects` the error of a field that is left is told at
    // once, without it at Update only.
    EntryControls(Entry& entry, bool collects, QObject* parent);

    // The field's control, made by the first call; it belongs to `parent`. A Heading is a label.
    QWidget* control(int at, QWidget* parent = nullptr);
    // The button of a field with a search; null for one without.
    QAbstractButton* searchButton(int at, QWidget* parent);

    // Once the entry's table is known: lengths, keys and choices.
    void prepare();
    // The entry's texts and errors on the controls; fields that may not be typed in are read-only.
    void show(bool isForTyping);
    // The entry's table closes: a field that is left is not checked any more.
    void stop() { m_isForTyping = false; }
    // The texts of the controls into the entry.
    void take();
    // The keyboard to the field that the entry names.
    void takeFocus();
    // Fields and buttons in the order of the Tab key.
    QList<QWidget*> tabChain() const;

Q_SIGNALS:
    // The user has left a field, or a search has filled it; the entry knows it and is shown.
    void changed();
    // The keyboard came to a field.
    void entered(int at);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void leave(int at, bool changedNow);
    void search(int at);
    int indexOf(const QObject* control) const;
    void showOne(int at, bool isForTyping);
    void fillChoices(int at);

    Entry& m_entry;
    bool m_collects;
    bool m_isShowing = false;
    bool m_isForTyping = true;
    std::vector<QWidget*> m_controls;
    std::vector<QAbstractButton*> m_buttons;
    QString m_textAtEntry;
};
