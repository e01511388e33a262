// A text that a screen shows beside its fields, such as the name that belongs to a code. One too
// long for its place ends in an ellipsis, and the pointer shows it whole.
#pragma once

#include <QLabel>

class NameLabel : public QLabel
{
public:
    explicit NameLabel(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    bool isCut() const;
};
