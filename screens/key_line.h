// The line at the foot of a screen that names its keys.
#pragma once

#include <QLabel>

class KeyLine : public QLabel
{
public:
    KeyLine();

    using Keys = QList<std::pair<QString, QString>>;

    // Pairs such as {"A", "Add"}; F1 for help is added.
    void setKeys(const Keys& keys);
};
