// Picks a report by its group and title, with a sample of its page where a picture of it lies in
// the folder ZORMedia beside the program.
#pragma once

#include "core/session.h"
#include "screens/small_dialog.h"

class QListWidget;

class frmVEXReportSelector : public SmallDialog
{
public:
    // Opens the screen of that name; false when it is not built yet.
    using ScreenOpener = std::function<bool(const QString& name)>;

    frmVEXReportSelector(const Session& session, ScreenOpener openByName);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void build();
    void showTitles();
    void showSample();
    void openReport();
    QString screenName() const;

    QString m_columnTenTitle;
    ScreenOpener m_openByName;
    QListWidget* m_groups;
    QListWidget* m_titles;
    QLabel* m_sample;
    QPushButton* m_select;
    QPixmap m_picture;
};
