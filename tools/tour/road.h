// What a tour saw: its steps with their pictures and checks, kept as a page. A check that does not
// hold is told on the page and at once on the standard error; the tour goes on.
#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

class Road
{
public:
    // The page goes into the folder, which must be there, the pictures into one of that name in it,
    // as they are taken.
    Road(const QString& folder, const QString& name) : m_folder(folder), m_name(name) {}

    void begin(const QString& title, const QString& text);
    void step(const QString& title);
    // A paragraph of the step, Markdown.
    void tell(const QString& text);
    // `name` without ending. Fails the road when it cannot be written.
    void picture(const QString& name, const QImage& image, const QString& caption);
    void check(const QString& what, const QString& seen, const QString& expected);
    // Something that keeps the tour from going on.
    void fail(const QString& text);

    int checks() const { return m_checks; }
    int failures() const { return m_failures; }

    // "index.html" with the checks, and the same road as a page of the guide, NAME.md. False when
    // one cannot be written.
    bool write();

private:
    void add(const QString& markdown);
    bool writeFile(const QString& name, const QString& text);

    QString m_folder;
    QString m_name;
    QString m_page;   // Markdown, with the checks
    QString m_guide;  // Markdown, without them
    int m_checks = 0;
    int m_failures = 0;
};
