// SPDX-License-Identifier: MIT
#include "corvex/common/PictureFile.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/RegularFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Common;

TEST(PictureFile, AcceptsOnlySelfContainedDrawings)
{
    // A PNG with one pixel, and a drawing with an external link, both as embedded in a drawing.
    const QByteArray dot =
        "data:image/png;base64,iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAQAAAC1HAwCAAAAC0lEQVR42mNk";
    const QByteArray nested =
        "data:image/svg+xml;base64," + QByteArray("<svg><image href='/a.png'/></svg>").toBase64();
    const std::pair<QByteArray, bool> drawings[] = {
        {"<rect id='a'/><use xlink:href='#a'/><text>/etc/passwd</text>", true},
        {"<image xlink:href='" + dot + "'/>", true},
        {"<image xlink:href='" + nested + "'/>", false},
        {"<image xlink:href='data:,/a.png'/>", false},
        {"<image xlink:href='/a.png'/>", false},
        {"<image href=' beside.png'/>", false},
        {"<image href='file:///a.png'/>", false},
        {"<image href='http://host/a.png'/>", false},
        {"<use xlink:href='other.svg#a'/>", false},
        {"<font-face-uri xlink:href='a.ttf'/>", false},
        {"<?xml-stylesheet type=\"text/css\" href=\"/a.css\"?>", false},
        {"<image href='/a.png'/><broken", false},
    };
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"drawing.svg"_s);
    for (const auto &[content, isFine] : drawings) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink'>"
                   + content + "</svg>");
        file.close();
        const QString problem = PictureFile::problem(path);
        EXPECT_EQ(problem.isEmpty(), isFine) << content.constData() << qPrintable(problem);
        EXPECT_EQ(FileHelper::isValidImage(path), isFine) << content.constData();
        EXPECT_TRUE(isFine || problem.startsWith(u"\"%1\" is not drawn: it links to "_s.arg(path)))
            << qPrintable(problem);
    }
}

TEST(RegularFile, RefusesPipesLinksAndLargeFiles)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"file"_s);
    const QString pipe = folder.filePath(u"pipe"_s);
    const QString link = folder.filePath(u"link"_s);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("12345") == 5);
    file.close();
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(path, link));
    QByteArray bytes;
    QString error;
    EXPECT_TRUE(RegularFile::read(link, 5, &bytes, &error));
    EXPECT_EQ(bytes, "12345");
    for (const QString &wrong : {pipe, folder.path(), link, path, folder.filePath(u"none"_s)}) {
        EXPECT_FALSE(
            RegularFile::read(wrong, wrong == path ? 4 : 5, &bytes, &error, RegularFile::Links::Refuse));
        EXPECT_TRUE(error.startsWith(u"\"%1\" "_s.arg(wrong))) << qPrintable(error);
    }
}
