// The print of a list: what the table report needs, from the description of the screen.
#include "core/locators.h"
#include "core/storage/file_paths.h"
#include "screens/browse/browse_session.h"
#include "screens/report/table_print.h"

namespace {

bool isText(storage::FieldType type)
{
    return type == storage::FieldType::Text || type == storage::FieldType::Memo ||
           type == storage::FieldType::Date;
}

QString nameOf(schema::FieldName field)
{
    const std::string_view name = field.text();
    return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

}  // namespace

void BrowseSession::print()
{
    if (!isBrowsing() || !activeRecordTest(false) || !allowsUpdates())
        return;
    if (m_spec.print.run)
        return m_spec.print.run(*this);
    QStringList fields;
    QStringList types;
    QStringList lengths;
    QStringList headings;
    QStringList widths;
    QStringList formats;
    for (const BrowseColumn& column : m_spec.columns) {
        if (!column.isPrinted)
            continue;
        fields.append(nameOf(column.field));
        const storage::FieldType type = m_list.typeOf(column.field);
        types.append(type == storage::FieldType::Boolean ? "B" : isText(type) ? "C" : "N");
        lengths.append(QString::number(column.length));
        headings.append(column.heading);
        widths.append(QString::number(column.width));
        formats.append((column.format.isEmpty() ? QString("-") : column.format) +
                       (column.alignment == Qt::AlignHCenter ? "^" : ""));
    }
    std::vector<PrintKey> keys;
    for (const KeyField& key : m_list.source().parent)
        keys.push_back({key.key, nameOf(key.field)});
    const QString file = m_spec.file;
    const QString folder = folderOf(m_session, file);
    dnPrint(
        {.file = folder.isEmpty() ? locatorPath(file.section('.', 0, 0))
                                  : storage::joinPath(folder, file),
         .table = m_spec.table,
         .index = m_spec.index,
         .windowTitle = m_spec.print.window,
         .reportName = m_spec.print.titleFor ? m_spec.print.titleFor(*this) : m_spec.print.title,
         .fields = fields.join('|'),
         .types = types.join('|'),
         .lengths = lengths.join('|'),
         .headings = headings.join('|'),
         .widths = widths.join('|'),
         .formats = formats.join('|'),
         .keys = keys},
        m_session);
}
