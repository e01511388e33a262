// An installation in a temporary folder, made from the schema: the program's folder, which is the
// current directory while the installation lives, a job site, the network folder and the settings
// of one user. A new one is in order: job site "NORTH YARD" with number 1 is chosen, and user
// "pat" has number 1 and a settings folder.
#pragma once

#include <QTemporaryDir>
#include <initializer_list>
#include <utility>

#include "core/locators.h"

class TestInstallation
{
public:
    TestInstallation();
    ~TestInstallation();
    TestInstallation(const TestInstallation&) = delete;
    TestInstallation& operator=(const TestInstallation&) = delete;

    static constexpr char siteName[] = "NORTH YARD";
    static constexpr char userName[] = "pat";

    QString programFolder() const { return m_folder.filePath("program"); }
    QString siteFolder() const { return m_folder.filePath("site"); }
    QString networkFolder() const { return m_folder.filePath("network"); }
    QString userFolder() const { return m_folder.filePath("user"); }

    // Where a file of the schema lies here.
    QString pathOf(const QString& file) const;

    // An empty folder of that name beside the others; with the files of another folder in it.
    QString makeFolder(const QString& name) const;
    QString copyFolder(const QString& from, const QString& name) const;

    void removeFile(const QString& file) const;
    void makeMarker(const QString& folder, const QString& name) const;
    void removeMarker(const QString& folder, const QString& name) const;

    OpenTable open(const QString& file, const QString& table) const;
    using NewRow = std::initializer_list<std::pair<const char*, storage::Value>>;
    void addRow(const QString& file, const QString& table, NewRow values) const;
    void emptyTable(const QString& file, const QString& table) const;
    int rowCount(const QString& file, const QString& table) const;
    // A field of the table's first record, or writes it.
    storage::Value first(const QString& file, const QString& table, const QString& field) const;
    void setFirst(const QString& file, const QString& table, const QString& field,
                  const storage::Value& value) const;

private:
    QTemporaryDir m_folder;
    QString m_directoryBefore;
};
