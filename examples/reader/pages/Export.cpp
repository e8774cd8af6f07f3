// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/Export.h"

#include "document/Document.h"
#include "pages/OfdSaving.h"
#include "pages/PagePainter.h"
#include "pages/PdfText.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include <utility>

namespace {

constexpr qreal pointsPerPageUnit = 72 / unitsPerInch;
/** Pixels for a page unit: pictures have 192 dots an inch. */
constexpr qreal pictureScale = 2;
constexpr const char *pictureSuffix = ".png";

bool hasSuffix(const QString &fileName, const char *suffix)
{
    return fileName.endsWith(QLatin1String(suffix), Qt::CaseInsensitive);
}

bool writePdf(const Document &document, QSaveFile &file, const Export::MayGoOn &mayGoOn)
{
    QPdfWriter writer(&file);
    writer.setTitle(document.title());
    writer.setPageMargins(QMarginsF());
    QPainter painter;
    const PageColours colours = PageColours::of(Background_Default);
    for (int page = 0; page < document.pageCount(); ++page) {
        const QSizeF size = document.sizeOf(page);
        writer.setPageSize(QPageSize(size * pointsPerPageUnit, QPageSize::Point, QString(),
                                     QPageSize::ExactMatch));
        if (!mayGoOn(page) || (page > 0 ? !writer.newPage() : !painter.begin(&writer)))
            return false;
        painter.save();
        painter.scale(writer.width() / size.width(), writer.width() / size.width());
        paintPage(painter, document, page, colours, PageDecoration());
        addHiddenText(painter, document.page(page));
        painter.restore();
    }
    return painter.end();
}

bool writeText(const Document &document, QSaveFile &file, const Export::MayGoOn &mayGoOn)
{
    for (int page = 0; page < document.pageCount(); ++page) {
        if (!mayGoOn(page) || file.write(document.page(page).text.toUtf8() + '\n') < 0)
            return false;
    }
    return true;
}

/** The file for a page: the name as it is for the only page, else with the number before the
 * suffix. */
QString pictureOf(const QString &fileName, int page, int pages)
{
    if (pages == 1)
        return fileName;
    const int digits = int(QString::number(pages).size());
    const QString number = QString::number(page + 1).rightJustified(digits, QChar(u'0'));
    return QString(fileName).insert(fileName.size() - int(qstrlen(pictureSuffix)),
                                    QChar(u'-') + number);
}

bool writePicture(const Document &document, int page, const QString &fileName)
{
    const QSizeF size = document.sizeOf(page) * pictureScale;
    QImage image(size.toSize(), QImage::Format_RGB32);
    if (image.isNull())
        return false;
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(image.width() / document.sizeOf(page).width(),
                  image.height() / document.sizeOf(page).height());
    painter.setRenderHint(QPainter::Antialiasing);
    paintPage(painter, document, page, PageColours::of(Background_Default), PageDecoration());
    painter.end();
    QSaveFile file(fileName);
    return file.open(QIODevice::WriteOnly) && image.save(&file, "PNG") && file.commit();
}

bool writePictures(const Document &document, const QString &fileName,
                   const Export::MayGoOn &mayGoOn, QString *error)
{
    const int pages = document.pageCount();
    // The dialog asked about the name itself only; nothing else may be overwritten.
    for (int page = 0; pages > 1 && page < pages; ++page) {
        const QString name = pictureOf(fileName, page, pages);
        if (QFile::exists(name)) {
            *error = QCoreApplication::translate("Export", "没有写入，因为已有文件：%1").arg(name);
            return false;
        }
    }
    QStringList written;
    for (int page = 0; page < pages; ++page) {
        const QString name = pictureOf(fileName, page, pages);
        if (!mayGoOn(page) || !writePicture(document, page, name)) {
            for (const QString &half : std::as_const(written))
                QFile::remove(half);
            return false;
        }
        written.append(name);
    }
    return pages > 0;
}

} // namespace

bool Export::write(const Document &document, const QString &fileName, QString *error,
                   const MayGoOn &mayGoOn)
{
    const QString refusal = QCoreApplication::translate("Export", "无法写入：%1").arg(fileName);
    *error = refusal;
    const MayGoOn goesOn = [&](int page) {
        const bool isEnd = mayGoOn && !mayGoOn(page);
        if (isEnd)
            *error = QCoreApplication::translate("Export", "已取消，没有写入文件");
        return !isEnd;
    };
    if (hasSuffix(fileName, pictureSuffix))
        return writePictures(document, fileName, goesOn, error);
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    if (hasSuffix(fileName, ".txt"))
        return writeText(document, file, goesOn) && file.commit();
    if (!hasSuffix(fileName, ".ofd"))
        return writePdf(document, file, goesOn) && file.commit();
    const QByteArray archive = OfdSaving::archiveOf(document, error);
    if (archive.isEmpty())
        return false;
    *error = refusal;
    return file.write(archive) == archive.size() && file.commit();
}

QString Export::writtenNames(const Document &document, const QString &fileName)
{
    const int pages = document.pageCount();
    if (pages < 2 || !hasSuffix(fileName, pictureSuffix))
        return fileName;
    return QCoreApplication::translate("Export", "%1 至 %2")
        .arg(pictureOf(fileName, 0, pages),
             QFileInfo(pictureOf(fileName, pages - 1, pages)).fileName());
}

QString Export::lossOf(const Document &document, const QString &fileName)
{
    if (hasSuffix(fileName, ".ofd"))
        return OfdSaving::lossOf(document);
    if (hasSuffix(fileName, ".txt") && document.isModified())
        return QCoreApplication::translate("Export", "文本文件中不含批注");
    if (OfdSaving::changesBookmarks(document))
        return QCoreApplication::translate("Export", "书签只能保存到 OFD 文件中");
    return QString();
}
