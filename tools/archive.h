// Zip files, written whole or not at all. Failures are CommandFailures that name the file.
#pragma once

#include <QStringList>
#include <memory>

struct zip;

class ArchiveWriter
{
public:
    // `path` must not exist. Nothing is written before finish().
    explicit ArchiveWriter(const QString& path);
    ~ArchiveWriter();  // without finish() there is no file

    // The file is read in finish() and has to stay until then.
    void addFile(const QString& name, const QString& path);
    void addContent(const QString& name, const QByteArray& content);
    // Writes a file of another name beside it and renames that.
    void finish();

private:
    void add(const QString& name, void* source);

    QString m_path;
    zip* m_archive = nullptr;
    QList<QByteArray> m_contents;  // kept until they are written
};

class ArchiveReader
{
public:
    explicit ArchiveReader(const QString& path);
    ~ArchiveReader();

    QStringList names() const;
    QByteArray content(const QString& name) const;
    // Writes the entry into a new file. Fails when its check sum is wrong.
    void extract(const QString& name, const QString& path) const;

private:
    template <class Sink>
    void read(const QString& name, Sink sink) const;

    QString m_path;
    zip* m_archive = nullptr;
};
