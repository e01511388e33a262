// The user of a test in front of the system's dialogs: prints into a file, names a file to write.
#pragma once

#include <gtest/gtest.h>

#include <QPrinter>
#include <optional>

#include "screens/system_dialogs.h"

class ScriptedDialogs : public SystemDialogs
{
public:
    ScriptedDialogs() : m_before(install(this)) {}
    ~ScriptedDialogs() override
    {
        EXPECT_FALSE(printTo || writeTo || read) << "a dialog never came";
        install(m_before);
    }
    ScriptedDialogs(const ScriptedDialogs&) = delete;
    ScriptedDialogs& operator=(const ScriptedDialogs&) = delete;

    // The answers of the next dialogs: where to print, what file to write, what file to read.
    // Blank is a cancel, none
    // means that no dialog is expected.
    std::optional<QString> printTo;
    std::optional<QString> writeTo;
    std::optional<QString> read;
    QSizeF paper;

    bool choosePrinter(QPrinter& printer, int pageCount) override
    {
        EXPECT_TRUE(printTo) << "unexpected printer dialog";
        EXPECT_GT(pageCount, 0);
        const QString file = std::exchange(printTo, std::nullopt).value_or("");
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file);
        return !file.isEmpty();
    }
    QString chooseFileToWrite(const QString& /*caption*/, const QString& suggestion,
                              const QString& /*pattern*/) override
    {
        EXPECT_TRUE(writeTo) << "unexpected file dialog";
        lastSuggestion = suggestion;
        return std::exchange(writeTo, std::nullopt).value_or("");
    }
    QString chooseFileToRead(const QString& /*caption*/, const QString& folder,
                             const QString& /*pattern*/) override
    {
        EXPECT_TRUE(read) << "unexpected file dialog";
        lastFolder = folder;
        return std::exchange(read, std::nullopt).value_or("");
    }
    QSizeF defaultPaper() override { return paper; }

    QString lastSuggestion;
    QString lastFolder;

private:
    SystemDialogs* m_before;
};
