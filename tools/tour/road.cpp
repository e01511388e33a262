#include "tools/tour/road.h"

#include <QDir>
#include <QFile>
#include <QTextDocument>
#include <cstdio>

namespace {

// Text that stands as it is in Markdown.
QString plain(QString text)
{
    for (const char* special : {"\\", "`", "*", "_", "<", "[", "]", "|"})
        text.replace(special, QString('\\') + special);
    return text.replace('\n', " / ");
}

}  // namespace

void Road::add(const QString& markdown)
{
    m_page += markdown;
    m_guide += markdown;
}

void Road::begin(const QString& title, const QString& text)
{
    add("# " + title + "\n\n" + text + "\n\n");
}

void Road::step(const QString& title)
{
    std::printf("%s\n", qPrintable(title));
    std::fflush(stdout);
    add("## " + title + "\n\n");
}

void Road::tell(const QString& text)
{
    add(text + "\n\n");
}

void Road::picture(const QString& name, const QImage& image, const QString& caption)
{
    const QString file = m_name + '/' + name + ".png";
    constexpr int smallest = 0;  // compressed as far as it goes
    if (image.isNull() || !QDir(m_folder).mkpath(m_name) ||
        !image.convertToFormat(QImage::Format_RGB32).save(m_folder + '/' + file, "PNG", smallest))
        return fail("The picture " + file + " cannot be written.");
    add("![" + caption + "](" + file + ")\n\n");
}

void Road::check(const QString& what, const QString& seen, const QString& expected)
{
    ++m_checks;
    if (seen == expected) {
        m_page += "- " + plain(what) + ": **" + plain(seen) + "**\n\n";
        return;
    }
    fail(what + ": \"" + seen + "\" is seen, \"" + expected + "\" is expected.");
}

void Road::fail(const QString& text)
{
    ++m_failures;
    std::fprintf(stderr, "%s\n", qPrintable(text));
    m_page += "- **DIFFERS: " + plain(text) + "**\n\n";
}

bool Road::write()
{
    m_page += QString("%1 checks, %2 differ.\n").arg(m_checks).arg(m_failures);
    QTextDocument page;
    page.setMarkdown(m_page);
    const bool isWritten = writeFile("index.html", page.toHtml());
    return writeFile(m_name + ".md", m_guide) && isWritten;
}

bool Road::writeFile(const QString& name, const QString& text)
{
    QFile file(m_folder + '/' + name);
    const QByteArray bytes = text.toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}
