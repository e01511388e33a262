// The common shape of the small dialogs: rows of a caption and a value, texts across, and a line of
// buttons below. Enter takes the default button, Esc the one named for it; without one Esc closes.
// A small dialog is run modally or opened as a screen of the main window; it is the same to it.
#pragma once

#include <QDialog>
#include <functional>

class QFormLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

// How wide a window must be to show its caption in full, beside the frame's buttons.
int widthOfCaption(const QWidget& window, const QString& caption);

class SmallDialog : public QDialog
{
public:
    // `name` is the screen's system name.
    SmallDialog(const QString& name, const QString& caption);

    // Each adds a row. `name` is the control's system name; a blank one needs none.
    QLabel* addText(const QString& name, const QString& text);
    QLabel* addHeading(const QString& text);
    QLabel* addValue(const QString& caption, const QString& name, const QString& value = {});
    void addField(const QString& caption, QWidget* field);  // takes the focus by the caption's key
    void addAcross(QWidget* widget);

    // Buttons stand in the order in which they are added. A failure of the store in the command is
    // shown.
    QPushButton* addButton(const QString& name, const QString& caption,
                           std::function<void()> command);
    QPushButton* addClosingButton(const QString& name, const QString& caption,
                                  int result = Rejected);
    // In the middle instead of at the right; after the last button.
    void centreButtons();
    void enterTakes(QPushButton* button);
    void escTakes(QPushButton* button) { m_escape = button; }

    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    QFormLayout* m_rows;
    QHBoxLayout* m_buttons;
    QPushButton* m_escape = nullptr;
};
