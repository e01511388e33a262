// Workbooks made of bytes and parts, in a folder of their own.
#pragma once

#include <gtest/gtest.h>
#include <zip.h>

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

#include "screens/report/workbook/biff_records.h"
#include "screens/report/workbook/compound_file.h"
#include "screens/report/workbook/workbook_reader.h"

class WorkbookReading : public ::testing::Test
{
protected:
    QString path(const QString& name) const { return folder.filePath(name); }

    QString write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }

    static QByteArray bytesOf(const QString& file)
    {
        QFile bytes(file);
        EXPECT_TRUE(bytes.open(QIODevice::ReadOnly));
        return bytes.readAll();
    }

    // A workbook made of its parts; the usual ones stand where none are given.
    QString package(std::map<QString, QByteArray> parts, bool isProtected = false) const
    {
        parts.try_emplace(
            "xl/workbook.xml",
            "<workbook xmlns:r='r'><sheets><sheet name='One' r:id='a'/></sheets></workbook>");
        parts.try_emplace("xl/_rels/workbook.xml.rels",
                          "<Relationships>"
                          "<Relationship Id='a' Type='x/worksheet' Target='worksheets/one.xml'/>"
                          "<Relationship Id='b' Type='x/sharedStrings' Target='/xl/texts.xml'/>"
                          "<Relationship Id='c' Type='x/styles' Target='../xl/styles.xml'/>"
                          "</Relationships>");
        parts.try_emplace("xl/texts.xml",
                          "<sst><si><t>first</t></si><si><r><t>se</t></r><rPh><t>no</t></rPh>"
                          "<r><t xml:space='preserve'>cond </t></r></si><si><t>a_x0007_b</t></si>"
                          "</sst>");
        parts.try_emplace("xl/styles.xml",
                          "<styleSheet><numFmts><numFmt numFmtId='164' "
                          "formatCode='yyyy\\-mm'/></numFmts>"
                          "<cellStyleXfs><xf numFmtId='14'/></cellStyleXfs>"
                          "<cellXfs><xf numFmtId='0'/><xf numFmtId='14'/><xf numFmtId='164'/>"
                          "<xf numFmtId='20'/></cellXfs></styleSheet>");
        const QString file = path("package.xlsx");
        zip_t* archive =
            zip_open(QFile::encodeName(file).constData(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
        for (const auto& [name, bytes] : parts) {
            const auto place = zip_file_add(
                archive, name.toUtf8().constData(),
                zip_source_buffer(archive, bytes.constData(), static_cast<size_t>(bytes.size()), 0),
                0);
            if (isProtected)
                zip_file_set_encryption(archive, static_cast<zip_uint64_t>(place), ZIP_EM_AES_256,
                                        "secret");
        }
        EXPECT_EQ(zip_close(archive), 0);
        return file;
    }

    // An old workbook of one stream.
    QString container(const char* streamName, const QByteArray& stream) const
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        EXPECT_TRUE(writeCompoundFile(buffer, streamName, stream));
        return write("container.xls", buffer.data());
    }

    // The globals of a BIFF8 stream; gives where the sheets' places stand. `further` puts records
    // of its own.
    static std::vector<qsizetype> beginBook(
        BiffStream& stream, const std::vector<QByteArray>& names,
        const std::function<void(BiffStream&)>& further = [](BiffStream&) {})
    {
        stream.record(0x0809, 4);
        stream.put16(0x0600).put16(5);
        std::vector<qsizetype> places;
        for (const QByteArray& name : names) {
            stream.record(0x0085, static_cast<quint16>(8 + name.size()));
            places.push_back(stream.size());
            stream.put32(0).put16(0).put8(static_cast<quint8>(name.size())).put8(0).append(name);
        }
        further(stream);
        stream.record(0x000a, 0);
        return places;
    }

    static void beginSheet(BiffStream& stream)
    {
        stream.record(0x0809, 4);
        stream.put16(0x0600).put16(16);
    }

    // A formula of which the text follows in a record of its own.
    static void putTextFormula(BiffStream& stream, quint16 row, quint16 column)
    {
        stream.record(0x0006, 22);
        stream.put16(row).put16(column).put16(0).put32(0).put32(0xffff0000).putZeros(8);
    }

    QString sheet(const QByteArray& rows) const
    {
        return package({{"xl/worksheets/one.xml",
                         "<worksheet><sheetData>" + rows + "</sheetData></worksheet>"}});
    }

    static QString refusal(const QString& file, const WorkbookLimits& limits = {})
    {
        try {
            readWorkbook(file, limits);
            return "read";
        } catch (const WorkbookError& error) {
            return error.text().section(": ", 0, 0);
        }
    }

    QTemporaryDir folder;
};
