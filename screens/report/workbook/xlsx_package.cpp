#include "screens/report/workbook/xlsx_package.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

#include "screens/report/workbook/xml_elements.h"

namespace {

constexpr qint64 ratioCounts = 1 << 20;
// The reader takes a text or a tag whole; none of a true part is nearly that long.
constexpr qint64 longestRun = 1 << 20;

// One part of the archive as a stream that ends at the limit.
class PartDevice : public QIODevice
{
public:
    PartDevice(zip_file_t* part, qint64& unpacked, qint64 limit)
        : m_part(part), m_unpacked(unpacked), m_limit(limit)
    {
        open(ReadOnly);
    }
    ~PartDevice() override { zip_fclose(m_part); }

    bool isSequential() const override { return true; }
    bool isTooLarge() const { return m_unpacked > m_limit || m_run > longestRun; }
    bool hasFailed() const { return m_failed; }

protected:
    qint64 readData(char* data, qint64 maxSize) override
    {
        const zip_int64_t count = zip_fread(m_part, data, static_cast<zip_uint64_t>(maxSize));
        m_failed = m_failed || count < 0;
        m_unpacked += std::max<qint64>(count, 0);
        const QByteArrayView bytes(data, std::max<qint64>(count, 0));
        const qsizetype tag = bytes.lastIndexOf('<');
        m_run = tag < 0 ? m_run + bytes.size() : bytes.size() - tag;
        return m_failed || isTooLarge() ? -1 : count;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    zip_file_t* m_part;
    qint64& m_unpacked;
    qint64 m_limit;
    qint64 m_run = 0;  // since the last tag began
    bool m_failed = false;
};

QString partBeside(const QString& part, const QString& target)
{
    if (target.startsWith('/'))
        return target.mid(1);
    QStringList path = part.split('/');
    path.removeLast();
    for (const QString& step : target.split('/')) {
        if (step == "..") {
            if (!path.isEmpty())
                path.removeLast();
        } else if (step != ".") {
            path.append(step);
        }
    }
    return path.join('/');
}

}  // namespace

XlsxPackage::XlsxPackage(const QString& file, const WorkbookLimits& limits)
    : m_file(file), m_limits(limits), m_archive(nullptr, zip_discard)
{
    int error = 0;
    m_archive.reset(zip_open(QFile::encodeName(file).constData(), ZIP_RDONLY, &error));
    if (!m_archive)
        refuseDamaged();
}

XlsxPackage::~XlsxPackage() = default;

qint64 XlsxPackage::placeOf(const QString& part) const
{
    return zip_name_locate(m_archive.get(), part.toUtf8().constData(), ZIP_FL_NOCASE);
}

bool XlsxPackage::has(const QString& part) const
{
    return placeOf(part) >= 0;
}

void XlsxPackage::read(const QString& part, const std::function<void(QXmlStreamReader&)>& element)
{
    const qint64 place = placeOf(part);
    zip_stat_t told;
    if (place < 0 ||
        zip_stat_index(m_archive.get(), static_cast<zip_uint64_t>(place), 0, &told) != 0)
        throw WorkbookError("The file is not a workbook, or it is damaged: " + m_file);
    if ((told.valid & ZIP_STAT_ENCRYPTION_METHOD) && told.encryption_method != ZIP_EM_NONE)
        throw WorkbookError("The workbook is protected by a password: " + m_file);
    // The archive's own word of a part's size counts for nothing: what comes out is counted.
    const qint64 packed = (told.valid & ZIP_STAT_COMP_SIZE)
                              ? std::min<qint64>(told.comp_size, QFileInfo(m_file).size())
                              : 0;
    const qint64 byRatio = m_unpacked + std::max(ratioCounts, packed * m_limits.ratio);
    zip_file_t* opened = zip_fopen_index(m_archive.get(), static_cast<zip_uint64_t>(place), 0);
    if (!opened)
        refuseDamaged();
    PartDevice device(opened, m_unpacked, std::min(m_limits.unpackedBytes, byRatio));
    QXmlStreamReader xml(&device);
    int depth = 0;
    while (!xml.atEnd() && depth <= maxElementDepth) {
        switch (xml.readNext()) {
            case QXmlStreamReader::StartElement:
                element(xml);
                // It may have read to the end of the element.
                depth += xml.isEndElement() ? 0 : 1;
                break;
            case QXmlStreamReader::EndElement:
                --depth;
                break;
            case QXmlStreamReader::DTD:
                refuseDamaged();  // no workbook has one, and entities could stand for anything
            default:
                break;
        }
    }
    if (device.isTooLarge())
        throw WorkbookTooLarge();
    if (device.hasFailed() || xml.hasError() || depth != 0)
        refuseDamaged();
}

std::vector<XlsxPackage::Relation> XlsxPackage::relationsOf(const QString& part, WorkbookRoom& room)
{
    const qsizetype name = part.lastIndexOf('/') + 1;
    const QString list = part.left(name) + "_rels/" + part.mid(name) + ".rels";
    std::vector<Relation> found;
    if (!has(list))
        return found;
    read(list, [&](QXmlStreamReader& xml) {
        const QXmlStreamAttributes attributes = xml.attributes();
        if (xml.name() != u"Relationship" || attributes.value("TargetMode") == u"External")
            return;
        found.push_back({attributes.value("Id").toString(),
                         attributes.value("Type").toString().section('/', -1),
                         partBeside(part, attributes.value("Target").toString())});
        room.take(sizeof(Relation));
        for (const QString& text : {found.back().id, found.back().type, found.back().target})
            room.takeText(text);
    });
    return found;
}

void XlsxPackage::refuseDamaged() const
{
    throw WorkbookError("The workbook is damaged: " + m_file);
}
