// The errors of an entry screen's fields, by field number from 1. A later error of a field takes
// the place of the one before.
#pragma once

#include <QMap>
#include <QString>

class ErrorCollector
{
public:
    void AddError(const QString& text, int fieldNo) { m_errors[fieldNo] = text; }
    void ClearField(int fieldNo) { m_errors.remove(fieldNo); }
    void ClearAll() { m_errors.clear(); }

    int ErrorCount() const { return static_cast<int>(m_errors.size()); }
    // The lowest number with an error; 0 for none.
    int FirstFieldInError() const { return m_errors.isEmpty() ? 0 : m_errors.firstKey(); }
    bool hasError(int fieldNo) const { return m_errors.contains(fieldNo); }
    // All messages, in the order of the fields.
    QString text() const { return QStringList(m_errors.values()).join('\n'); }

private:
    QMap<int, QString> m_errors;
};
