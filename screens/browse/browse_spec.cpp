#include "screens/browse/browse_spec.h"

#include "screens/browse/browse_session.h"

BrowseColumn numberColumn(schema::FieldName field, int length, const QString& heading, int width,
                          const QString& format)
{
    return {.field = field,
            .length = length,
            .heading = heading,
            .width = width,
            .format = format,
            .alignment = Qt::AlignRight};
}

std::vector<EntryField> entryFieldsOf(const std::vector<BrowseColumn>& columns)
{
    std::vector<EntryField> fields;
    for (const BrowseColumn& column : columns)
        if (!column.entry.isEmpty())
            fields.push_back({.kind = column.kind,
                              .name = column.entry,
                              .field = column.field,
                              .caption = column.heading,
                              .length = column.length,
                              .lengthFor = column.lengthFor,
                              .keys = column.keys,
                              .alignment = column.alignment,
                              .choicesFor = column.choicesFor,
                              .tidy = column.tidy,
                              .check = column.check,
                              .search = column.search,
                              .left = column.left,
                              .hint = column.hint});
    return fields;
}

std::function<QString(storage::Recordset&)> askToDelete(const QString& what,
                                                        std::vector<schema::FieldName> fields,
                                                        const QString& separator,
                                                        const QString& end)
{
    return [=](storage::Recordset& rows) {
        QStringList values;
        for (const schema::FieldName field : fields)
            values.append(trimmedTextOf(rows[field]));
        return "OK to Delete " + what + ' ' + values.join(separator) + end;
    };
}

BrowseParent companyParent()
{
    return {BrowseParent::Kind::Company, {"CONO"}, "Invalid Company Number Detected."};
}

BrowseParent companyAndJobParent()
{
    return {BrowseParent::Kind::CompanyAndJob,
            {"CONO", "JOBNO"},
            "Invalid Company/Job Number Pair Detected."};
}

BrowseParent branchParent()
{
    return {BrowseParent::Kind::Branch, {"ILCTAG"}, "Select a Valid Branch Code"};
}
