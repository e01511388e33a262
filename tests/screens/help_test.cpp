#include "screens/help.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QRegularExpression>
#include <QWidget>

namespace {

// A page that leads to one that is not there shows nothing, and so does a picture.
TEST(Help, EveryLinkAndPictureOfItsPagesIsThere)
{
    static const QRegularExpression link("\\]\\(([^)#]+)\\)");
    int links = 0;
    int pictures = 0;
    for (QDirIterator pages(":/help", {"*.md"}, QDir::Files); pages.hasNext();) {
        QFile page(pages.next());
        ASSERT_TRUE(page.open(QFile::ReadOnly));
        const QString text = QString::fromUtf8(page.readAll());
        for (auto found = link.globalMatch(text); found.hasNext();) {
            const QString target = found.next().captured(1);
            EXPECT_TRUE(QFile::exists(":/help/" + target))
                << qPrintable(page.fileName()) << ": " << qPrintable(target);
            ++(target.endsWith(".png") ? pictures : links);
        }
    }
    EXPECT_GT(links, 5);
    EXPECT_GT(pictures, 10);
}

TEST(Help, IsTheScreensOwnPageOrThatOfItsListOrOfItsShape)
{
    QWidget window;
    window.setProperty(helpPageProperty, "data");
    QWidget screen(&window);
    QWidget field(&screen);
    const auto pageOn = [&](const char* name) {
        screen.setObjectName(name);
        return helpPageFor(&field).toStdString();
    };
    EXPECT_EQ("frmVEXPO01", pageOn("frmVEXPO01"));
    EXPECT_EQ("frmVEXRQI01", pageOn("frmVEXRQI02"));
    EXPECT_EQ("data", pageOn("frmVEXNONE02"));
    window.setProperty(helpPageProperty, {});
    EXPECT_EQ("index", pageOn(""));
}

}  // namespace
