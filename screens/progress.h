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
    // The same at a step that takes a while of itself, with a text of its own.
    bool tell(const QString& text);
    qint64 count() const { return m_count; }

private:
    bool showNow(const QString& text);

    std::unique_ptr<QProgressDialog> m_dialog;
    QString m_text;
    QElapsedTimer m_sinceShown;
    qint64 m_count = 0;
};
