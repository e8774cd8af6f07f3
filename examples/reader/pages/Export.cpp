// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/Export.h"

#include "document/Document.h"
#include "pages/OfdSaving.h"
#include "pages/PagePainter.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

namespace {

constexpr qreal pointsPerPageUnit = 72.0 / 96.0;

bool hasSuffix(const QString &fileName, const char *suffix)
{
    return fileName.endsWith(QLatin1String(suffix), Qt::CaseInsensitive);
}

bool writePdf(const Document &document, QSaveFile &file)
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
        if (page > 0 ? !writer.newPage() : !painter.begin(&writer))
            return false;
        painter.save();
        painter.scale(writer.width() / size.width(), writer.width() / size.width());
        paintPage(painter, document, page, colours, PageDecoration());
        painter.restore();
    }
    return painter.end();
}

bool writeText(const Document &document, QSaveFile &file)
{
    for (int page = 0; page < document.pageCount(); ++page) {
        if (file.write(document.page(page).text.toUtf8() + '\n') < 0)
            return false;
    }
    return true;
}

} // namespace

bool Export::write(const Document &document, const QString &fileName, QString *error)
{
    QSaveFile file(fileName);
    const QString refusal = QCoreApplication::translate("Export", "无法写入：%1").arg(fileName);
    *error = refusal;
    if (!file.open(QIODevice::WriteOnly))
        return false;
    bool isWritten = false;
    if (hasSuffix(fileName, ".ofd")) {
        const QByteArray archive = OfdSaving::archiveOf(document, error);
        if (archive.isEmpty())
            return false;
        *error = refusal;
        isWritten = file.write(archive) == archive.size();
    } else if (hasSuffix(fileName, ".txt")) {
        isWritten = writeText(document, file);
    } else {
        isWritten = writePdf(document, file);
    }
    return isWritten && file.commit();
}

QString Export::lossOf(const Document &document, const QString &fileName)
{
    if (hasSuffix(fileName, ".ofd"))
        return OfdSaving::lossOf(document);
    if (hasSuffix(fileName, ".txt") && document.isModified())
        return QCoreApplication::translate("Export", "文本文件中不含批注");
    return QString();
}
