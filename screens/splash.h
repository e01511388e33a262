// What is seen while the program starts. Any key and any click takes it away.
#pragma once

#include <QDialog>

class frmVEXSplash : public QDialog
{
public:
    frmVEXSplash(const QString& moduleName, const QString& versionText);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
};
