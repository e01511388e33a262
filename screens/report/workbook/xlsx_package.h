// The parts of a workbook in the new form: XML files in a zip archive, unpacked as they are read
// and within limits, so that a small file cannot fill the memory.
#pragma once

#include <zip.h>

#include <QIODevice>
#include <functional>
#include <memory>

#include "screens/report/workbook/workbook_room.h"

class QXmlStreamReader;

class XlsxPackage
{
public:
    XlsxPackage(const QString& file, const WorkbookLimits& limits);
    ~XlsxPackage();
    XlsxPackage(const XlsxPackage&) = delete;
    XlsxPackage& operator=(const XlsxPackage&) = delete;

    bool has(const QString& part) const;
    // Calls `element` at the start of each element of the part; it may read on. Throws a
    // WorkbookError when the part is missing, damaged, or declares a document type, and
    // WorkbookTooLarge when it is.
    void read(const QString& part, const std::function<void(QXmlStreamReader&)>& element);
    // The parts that `part` refers to, by their id and by their type's last word.
    struct Relation
    {
        QString id;
        QString type;
        QString target;
    };
    std::vector<Relation> relationsOf(const QString& part, WorkbookRoom& room);

    [[noreturn]] void refuseDamaged() const;

private:
    qint64 placeOf(const QString& part) const;

    QString m_file;
    WorkbookLimits m_limits;
    qint64 m_unpacked = 0;
    std::unique_ptr<zip_t, void (*)(zip_t*)> m_archive;
};
