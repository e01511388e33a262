// An entry field of a date, shown as month/day/year. '=' is today, '+' and '-' the next and the day
// before; a calendar opens by the button, F4 or Alt+Down. Leaving the field writes a date that was
// typed in another form, such as 3/7/26 or 030726, as it is shown, unless the field keeps what is
// typed; what is no date stays as typed.
#pragma once

#include <QLineEdit>

class QToolButton;

class DateField : public QLineEdit
{
    Q_OBJECT

public:
    // `name` is the field's system name.
    explicit DateField(const QString& name = {}, QWidget* parent = nullptr);

    // The date in its shown form, such as "03/07/2026"; ten blanks when it is none.
    QString date() const;
    // Any form; the null date and the empty entry mask leave the field empty.
    void setDate(const QString& date);
    bool isValid() const;
    // Eight digits, year first, for comparing; eight blanks when it is no date.
    QString dateKey() const;

    // Leaving the field rewrites nothing.
    void setKeepsTyped(bool keeps) { m_keepsTyped = keeps; }

    void openCalendar();

Q_SIGNALS:
    // By the user: typed and left, by a date key, or from the calendar.
    void dateChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void take();

    QToolButton* m_button;
    QString m_taken;
    bool m_keepsTyped = false;
};
