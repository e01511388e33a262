// What goes wrong with a workbook, told for the user.
#pragma once

#include <QString>
#include <exception>

class WorkbookError : public std::exception
{
public:
    explicit WorkbookError(const QString& text) : m_text(text), m_utf8(text.toUtf8()) {}

    const QString& text() const { return m_text; }
    const char* what() const noexcept override { return m_utf8.constData(); }

private:
    QString m_text;
    QByteArray m_utf8;
};
