// What the composite controls have in common in which a user chooses a company, a job or dates.
//
// A control tells when the keyboard comes into it and when it goes elsewhere in the window; the
// search window, a calendar or another program in front in between do not count. What was typed
// has been checked before `left` is told. The screen sets Active while the user works in it.
#pragma once

#include <QWidget>

class QFormLayout;

class Selector : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool Active READ Active WRITE setActive)

public:
    // `name` is the control's system name, such as "tqCoNumber1".
    explicit Selector(const QString& name);
    ~Selector() override;

    bool Active() const { return m_active; }
    // An inactive control hints at how to make it active.
    void setActive(bool active);

    // Checks what stands in the fields, for a command that leaves the keyboard there.
    void checkTyped() { takeTyped(); }

Q_SIGNALS:
    void entered();
    void left();
    // A value or its validity may have changed, by the user or a program: at each key, when what
    // was typed is checked, and from searches and calendars.
    void changed();

protected:
    // Checks what stands in the fields but was not checked yet.
    virtual void takeTyped() {}
    // A click beside the fields takes the keyboard to the first one.
    void mousePressEvent(QMouseEvent* event) override;

    QFormLayout* rows() const { return m_rows; }

private:
    void focusMoved(const QWidget* to);

    QFormLayout* m_rows;
    bool m_active = false;
    bool m_hasFocusInside = false;
};
