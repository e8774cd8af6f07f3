// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Picture.h"

#include "ofd/Limits.h"
#include "ofd/PictureDecoder.h"
#include "ofd/Wording.h"

#include <QBuffer>
#include <QImageReader>

namespace Ofd {

namespace {

constexpr int usualDepth = 32;

/** A format that Qt reads, and its name for the user. */
struct Format
{
    QByteArray signature;
    const char *reader;
    const char *name;
    QByteArray later; ///< Expected at the offset 8 as well; empty for most formats.
};

const QVector<Format> &formats()
{
    static const QVector<Format> all = {
        {QByteArrayLiteral("\x89PNG\r\n\x1a\n"), "png", "PNG", {}},
        {QByteArrayLiteral("\xff\xd8\xff"), "jpeg", "JPEG", {}},
        {QByteArrayLiteral("BM"), "bmp", "BMP", {}},
        {QByteArrayLiteral("GIF8"), "gif", "GIF", {}},
        {QByteArrayLiteral("II*\0"), "tiff", "TIFF", {}},
        {QByteArrayLiteral("MM\0*"), "tiff", "TIFF", {}},
        {QByteArrayLiteral("RIFF"), "webp", "WebP", QByteArrayLiteral("WEBP")},
    };
    return all;
}

const Format *formatOf(const QByteArray &bytes)
{
    for (const Format &format : formats()) {
        if (bytes.startsWith(format.signature)
            && (format.later.isEmpty() || bytes.mid(8).startsWith(format.later)))
            return &format;
    }
    return nullptr;
}

const PictureDecoder *decoderOf(const QByteArray &bytes)
{
    for (const PictureDecoder *decoder : {&jpeg2000, &jbig2}) {
        if (decoder->isOne(bytes))
            return decoder;
    }
    return nullptr;
}

/** A reader for exactly that format: others could take the bytes for something else. */
class QtReader
{
public:
    QtReader(const QByteArray &bytes, const Format &format)
        : m_isJpeg(!qstrcmp(format.reader, "jpeg"))
    {
        m_buffer.setData(bytes);
        m_buffer.open(QIODevice::ReadOnly);
        m_reader.setDevice(&m_buffer);
        m_reader.setFormat(format.reader);
        m_reader.setAutoDetectImageFormat(false);
    }

    bool isReadable()
    {
        const QSize size = m_reader.size();
        if (!size.isValid() || qint64(size.width()) * size.height() > Limits::imagePixels)
            return false;
        if (!m_isJpeg)
            return bytesOf(size) <= Limits::imageBytes;
        // Its decoder makes a smaller picture without making the whole one first, but a progressive
        // one can send all its pixels anew in each scan.
        const qint64 scans = m_buffer.data().count(QByteArrayLiteral("\xff\xda"));
        return scans * size.width() * size.height() <= Limits::imageScans;
    }

    QImage read()
    {
        const QSize whole = m_reader.size();
        QSize size = whole;
        while (bytesOf(size) > Limits::imageBytes)
            size /= 2;
        if (size != whole)
            m_reader.setScaledSize(size);
        return m_reader.read();
    }

private:
    qint64 bytesOf(const QSize &size) const
    {
        const QImage::Format format = m_reader.imageFormat();
        const int depth = format == QImage::Format_Invalid
                              ? usualDepth
                              : int(QImage::toPixelFormat(format).bitsPerPixel());
        return qint64(size.width()) * size.height() * depth / 8;
    }

    QBuffer m_buffer;
    QImageReader m_reader;
    bool m_isJpeg;
};

} // namespace

QString Picture::faultOf(const QByteArray &bytes)
{
    const Format *format = formatOf(bytes);
    if (format) {
        if (!QImageReader::supportedImageFormats().contains(format->reader))
            return Wording::tr("图像（%1，未安装其解码插件）").arg(QLatin1String(format->name));
        return QtReader(bytes, *format).isReadable()
                   ? QString()
                   : Wording::tr("图像（%1）").arg(QLatin1String(format->name));
    }
    const PictureDecoder *decoder = decoderOf(bytes);
    if (!decoder)
        return Wording::tr("图像");
    return decoder->isReadable(bytes) ? QString()
                                      : Wording::tr("图像（%1）").arg(QLatin1String(decoder->name));
}

QImage Picture::decoded(const QByteArray &bytes)
{
    const Format *format = formatOf(bytes);
    if (format) {
        QtReader reader(bytes, *format);
        return reader.isReadable() ? reader.read() : QImage();
    }
    const PictureDecoder *decoder = decoderOf(bytes);
    return decoder ? decoder->decoded(bytes) : QImage();
}

} // namespace Ofd
