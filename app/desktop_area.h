// The area of the main window in which screens stand. Empty, it names the program and the job site.
#pragma once

#include <QMdiArea>

#include "screens/user_layout.h"

class DesktopArea : public QMdiArea
{
public:
    explicit DesktopArea(const QString& programName);

    void setSiteName(const QString& siteName);
    // From now on screens open where the user left them.
    void keepPlaces(const UserLayout& layout) { m_layout = layout; }

    // Shows the screen and owns it; it is deleted when it closes.
    void addScreen(QWidget* screen, bool centred);

    // Brings the open screen of that name to the front; false when there is none.
    bool bringToFront(const QString& screenName);

    void tileHorizontally();  // one above the other, each as wide as the area
    void tileVertically();    // side by side, each as high as the area

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void tile(int columns, int rows);
    QList<QMdiSubWindow*> windowsToTile() const;
    void takeBackground();
    void place(QMdiSubWindow* window, bool centred) const;

    QString m_programName;
    QString m_siteName;
    UserLayout m_layout;
};
