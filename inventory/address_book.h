// What differs between vendors and manufacturers.
#pragma once

#include <array>

#include "screens/report/report_spec.h"

struct AddressBook
{
    QString table;  // and the name of its record lock
    QString names;  // such as "Vendors"
    QString name;
    schema::FieldName number;
    schema::FieldName nameField;
    schema::FieldName tag;
    QString tagField;  // the same; also the index by tag
    QString byNumber;
    QString byName;
    QString editRight;
    QString listScreen;
    QString dataScreen;
    QString printScreen;
    QString information;
    QString numberHeading;
    bool hasTerms;  // terms of payment, and an e-mail address
    QString (*search)(const QString& path);
    std::array<QString, 3> printCaptions;  // of one sheet, of all, of the list
};

extern const AddressBook vendorBook;
extern const AddressBook manufacturerBook;

ReportSpec addressPrint(const AddressBook& book, qint32 tag);
