// Shows that a long walk goes on, and lets the user stop it. Appears only when it takes a while.
#pragma once

#include <QElapsedTimer>
#include <QString>
#include <memory>

class QProgressDialog;
class QWidget;

class Progress
{
public:
    Progress(QWidget* over, const QString& text);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    // After each record; cheap. False as soon as the user has asked to stop.
    bool step();
    qint64 count() const { return m_count; }

private:
    std::unique_ptr<QProgressDialog> m_dialog;
    QString m_text;
    QElapsedTimer m_sinceShown;
    qint64 m_count = 0;
};
