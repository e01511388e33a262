#include "tools/archive.h"

#include <zip.h>

#include <QFile>

#include "tools/command.h"

namespace {

constexpr int compressionLevel = 3;

[[noreturn]] void failOn(const QString& path, zip_t* archive)
{
    throw CommandFailure(path + ": " + QString::fromLocal8Bit(zip_strerror(archive)));
}

zip_t* opened(const QString& path, int flags)
{
    int code = 0;
    zip_t* archive = zip_open(QFile::encodeName(path).constData(), flags, &code);
    if (archive)
        return archive;
    zip_error_t error;
    zip_error_init_with_code(&error, code);
    const QString text = QString::fromLocal8Bit(zip_error_strerror(&error));
    zip_error_fini(&error);
    throw CommandFailure(path + ": " + text);
}

}  // namespace

ArchiveWriter::ArchiveWriter(const QString& path)
    : m_path(path), m_archive(opened(path, ZIP_CREATE | ZIP_EXCL))
{
}

ArchiveWriter::~ArchiveWriter()
{
    if (m_archive)
        zip_discard(m_archive);
}

void ArchiveWriter::add(const QString& name, void* source)
{
    auto* content = static_cast<zip_source_t*>(source);
    if (!content)
        failOn(m_path, m_archive);
    const zip_int64_t entry =
        zip_file_add(m_archive, name.toUtf8().constData(), content, ZIP_FL_ENC_UTF_8);
    if (entry < 0) {
        zip_source_free(content);
        failOn(m_path, m_archive);
    }
    // The library's own choice is the hardest level: fifteen times slower for a tenth less.
    if (zip_set_file_compression(m_archive, static_cast<zip_uint64_t>(entry), ZIP_CM_DEFLATE,
                                 compressionLevel) != 0)
        failOn(m_path, m_archive);
}

void ArchiveWriter::addFile(const QString& name, const QString& path)
{
    add(name, zip_source_file(m_archive, QFile::encodeName(path).constData(), 0, -1));
}

void ArchiveWriter::addContent(const QString& name, const QByteArray& content)
{
    m_contents.append(content);
    add(name, zip_source_buffer(m_archive, m_contents.back().constData(),
                                static_cast<zip_uint64_t>(content.size()), 0));
}

void ArchiveWriter::finish()
{
    if (zip_close(m_archive) != 0)
        failOn(m_path, m_archive);
    m_archive = nullptr;
}

ArchiveReader::ArchiveReader(const QString& path)
    : m_path(path), m_archive(opened(path, ZIP_RDONLY | ZIP_CHECKCONS))
{
}

ArchiveReader::~ArchiveReader()
{
    zip_discard(m_archive);
}

QStringList ArchiveReader::names() const
{
    QStringList names;
    const zip_int64_t count = zip_get_num_entries(m_archive, 0);
    for (zip_int64_t i = 0; i < count; ++i)
        names.append(QString::fromUtf8(
            zip_get_name(m_archive, static_cast<zip_uint64_t>(i), ZIP_FL_ENC_GUESS)));
    return names;
}

template <class Sink>
void ArchiveReader::read(const QString& name, Sink sink) const
{
    zip_file_t* entry = zip_fopen(m_archive, name.toUtf8().constData(), 0);
    if (!entry)
        failOn(m_path + ", " + name, m_archive);
    QByteArray buffer(1 << 16, Qt::Uninitialized);
    zip_int64_t length = 0;
    while ((length = zip_fread(entry, buffer.data(), static_cast<zip_uint64_t>(buffer.size()))) > 0)
        sink(buffer.constData(), length);
    const QString text = QString::fromLocal8Bit(zip_file_strerror(entry));
    zip_fclose(entry);
    if (length < 0)
        throw CommandFailure(m_path + ", " + name + ": " + text);
}

QByteArray ArchiveReader::content(const QString& name) const
{
    QByteArray content;
    read(name, [&](const char* data, qint64 length) { content.append(data, length); });
    return content;
}

void ArchiveReader::extract(const QString& name, const QString& path) const
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw CommandFailure(path + ": " + file.errorString());
    read(name, [&](const char* data, qint64 length) {
        if (file.write(data, length) != length)
            throw CommandFailure(path + ": " + file.errorString());
    });
    if (!file.flush())
        throw CommandFailure(path + ": " + file.errorString());
}
