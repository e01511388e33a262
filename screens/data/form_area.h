// The fields of one section of a data screen, as a form that scrolls where it does not fit.
#pragma once

#include <QScrollArea>

struct DataSection;
class EntryControls;

class FormArea : public QScrollArea
{
public:
    // The controls are those of the section's fields, the first of which has that place among all.
    FormArea(const DataSection& section, int firstField, EntryControls& controls);

    // Asks for the room that its whole form takes; the desktop gives what it has.
    QSize sizeHint() const override;
    // Scrolls to all of a control, with some room around it.
    void showWhole(QWidget* control);

protected:
    void resizeEvent(QResizeEvent* event) override;
};
