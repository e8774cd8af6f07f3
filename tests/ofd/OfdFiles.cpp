// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/ofd/OfdFiles.h"

#include "ofd/Archive.h"
#include "ofd/Painter.h"

#include <QDir>
#include <QPainter>
#include <QTemporaryFile>
#include <QTest>

namespace {

/** The two versions of Qt smooth edges and scale pictures with other roundings. */
constexpr int mostOfChannel = 24;
constexpr double mostOfPixels = 0.004;

bool isNear(QRgb a, QRgb b)
{
    return qAbs(qRed(a) - qRed(b)) <= mostOfChannel && qAbs(qGreen(a) - qGreen(b)) <= mostOfChannel
           && qAbs(qBlue(a) - qBlue(b)) <= mostOfChannel;
}

} // namespace

QString OfdFiles::path(const QString &name)
{
    return QDir(QStringLiteral(OFD_MADE)).filePath(name + QStringLiteral(".ofd"));
}

std::shared_ptr<const Ofd::Document> OfdFiles::opened(const QString &name)
{
    QString error;
    auto document = Ofd::read(path(name), &error);
    if (!document)
        qWarning("%s: %s", qUtf8Printable(name), qUtf8Printable(error));
    return document;
}

std::shared_ptr<const Ofd::Document> OfdFiles::read(const QByteArray &archive)
{
    QTemporaryFile file;
    file.open();
    file.write(archive);
    file.flush();
    QString error;
    auto document = Ofd::read(file.fileName(), &error);
    if (!document)
        qWarning("%s", qUtf8Printable(error));
    return document;
}

QByteArray OfdFiles::replaced(const Ofd::Document &document, const QString &entry,
                              const QByteArray &from, const QByteArray &to)
{
    QByteArray bytes = document.package->read(entry);
    if (!bytes.contains(from))
        return QByteArray();
    return Ofd::Archive::withEntries(*document.package, {{entry, bytes.replace(from, to)}});
}

QImage OfdFiles::painted(const std::shared_ptr<const Ofd::Document> &document, int page)
{
    const QSizeF size = document->area(page).size() * pixelsPerMillimetre;
    QImage image(size.toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(pixelsPerMillimetre, pixelsPerMillimetre);
    Ofd::Painter(document).paint(painter, page);
    return image;
}

QString OfdFiles::difference(const QImage &picture, const QString &name)
{
    const QString file = QDir(QStringLiteral(OFD_PICTURES)).filePath(name + QStringLiteral(".png"));
    if (qEnvironmentVariableIsSet("OFD_KEEP_PICTURES"))
        return picture.save(file) ? QString() : QStringLiteral("%1 cannot be written").arg(file);
    const QImage kept = QImage(file).convertToFormat(QImage::Format_RGB32);
    if (kept.size() != picture.size())
        return QStringLiteral("no kept picture of this size: %1").arg(file);
    int others = 0;
    for (int y = 0; y < kept.height(); ++y) {
        for (int x = 0; x < kept.width(); ++x)
            others += isNear(kept.pixel(x, y), picture.pixel(x, y)) ? 0 : 1;
    }
    if (others <= mostOfPixels * kept.width() * kept.height())
        return QString();
    const QString shown = QDir::temp().filePath(name + QStringLiteral(".png"));
    picture.save(shown);
    return QStringLiteral("%1 pixels differ, see %2").arg(others).arg(shown);
}
