// What a user arranged for himself: places and sizes of windows, widths of columns. It stands in
// "vexley.ini" in his settings folder. Without that folder nothing is kept and nothing fails.
#pragma once

#include <QVariant>

class UserLayout
{
public:
    UserLayout() = default;  // keeps nothing
    explicit UserLayout(const QString& userSettingsPath);

    // Keys are the screen's name, a slash and what it is, such as "frmVEXMAIN/geometry".
    QVariant value(const QString& key) const;
    void setValue(const QString& key, const QVariant& value) const;

private:
    QString m_file;
};
