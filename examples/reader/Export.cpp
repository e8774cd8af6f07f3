#include "Export.h"

#include "Document.h"
#include "PagePainter.h"

#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

namespace {

constexpr qreal pointsPerPageUnit = 72.0 / 96.0;

bool writePdf(const Document &document, QSaveFile &file, bool forPrint)
{
    QPdfWriter writer(&file);
    writer.setTitle(document.title());
    writer.setPageSize(QPageSize(pageSize * pointsPerPageUnit, QPageSize::Point));
    writer.setPageMargins(QMarginsF());
    QPainter painter;
    if (!painter.begin(&writer))
        return false;
    PageDecoration decoration;
    decoration.forPrint = forPrint;
    const PageColours colours = PageColours::of(Background_Default);
    for (int page = 0; page < document.pageCount(); ++page) {
        if (page > 0)
            writer.newPage();
        painter.save();
        painter.scale(writer.width() / pageSize.width(), writer.width() / pageSize.width());
        paintPage(painter, document, page, colours, decoration);
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

bool Export::write(const Document &document, const QString &fileName)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const bool asText = fileName.endsWith(QLatin1String(".txt"), Qt::CaseInsensitive);
    const bool written = asText ? writeText(document, file) : writePdf(document, file, false);
    return written && file.commit();
}

bool Export::print(const Document &document, const QString &fileName)
{
    QSaveFile file(fileName);
    return file.open(QIODevice::WriteOnly) && writePdf(document, file, true) && file.commit();
}
