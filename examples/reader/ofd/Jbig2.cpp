// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Limits.h"
#include "ofd/PictureDecoder.h"

#include <QDataStream>

#ifdef READER_HAS_JBIG2
#include <jbig2.h>
#endif

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace Ofd {

namespace {

const QByteArray fileSignature = QByteArrayLiteral("\x97JB2\r\n\x1a\n");
constexpr quint32 unknown = 0xffffffff;
constexpr int mostSegments = 10000;
constexpr int pageInformation = 48;
constexpr int endOfFile = 51;

struct Segment
{
    int type = 0;
    quint32 length = 0;
};

bool isKnown(int type)
{
    static constexpr int types[] = {0,  4,  6,  7,  16, 20, 22, 23, 36, 38, 39,
                                    40, 42, 43, 48, 49, 50, 51, 52, 53, 62};
    return std::find(std::begin(types), std::end(types), type) != std::end(types);
}

/** Reads the head of a segment; its type is unknown if the bytes are something else. */
Segment nextSegment(QDataStream &stream)
{
    quint32 number = 0;
    quint8 flags = 0;
    quint8 references = 0;
    stream >> number >> flags >> references;
    quint32 count = references >> 5;
    if (count == 7) {
        quint8 rest[3] = {};
        stream >> rest[0] >> rest[1] >> rest[2];
        count = (references & 0x1fU) << 24 | quint32(rest[0]) << 16 | rest[1] << 8U | rest[2];
        stream.skipRawData(int((qint64(count) + 8) / 8));
    }
    const int bytesOfReference = number <= 256 ? 1 : number <= 65536 ? 2 : 4;
    const int bytesOfPage = flags & 0x40 ? 4 : 1;
    stream.skipRawData(int(qint64(count) * bytesOfReference % INT_MAX) + bytesOfPage);
    Segment segment;
    segment.type = flags & 0x3f;
    stream >> segment.length;
    return segment;
}

/** The size of the first page, with a height of 1 if only its end tells it; else invalid. */
QSize sizeOf(const QByteArray &bytes)
{
    QDataStream stream(bytes);
    bool isSequential = true;
    if (bytes.startsWith(fileSignature)) {
        const quint8 flags = quint8(bytes.at(qMin(fileSignature.size(), bytes.size() - 1)));
        isSequential = flags & 1;
        stream.skipRawData(int(fileSignature.size()) + (flags & 2 ? 1 : 5));
    }
    // Data of segments follow each head, or all heads.
    qint64 dataBefore = -1;
    qint64 data = 0;
    for (int i = 0; i < mostSegments && stream.status() == QDataStream::Ok; ++i) {
        const Segment segment = nextSegment(stream);
        if (stream.status() != QDataStream::Ok || !isKnown(segment.type))
            return QSize();
        const bool isPage = segment.type == pageInformation;
        if (isPage && dataBefore < 0)
            dataBefore = data;
        if (isSequential ? isPage : segment.type == endOfFile)
            break;
        data += segment.length;
        if (isSequential && stream.skipRawData(int(qMin(segment.length, quint32(INT_MAX)))) < 0)
            return QSize();
    }
    if (!isSequential)
        stream.skipRawData(int(qBound(qint64(0), dataBefore, qint64(INT_MAX))));
    quint32 width = 0;
    quint32 height = 0;
    stream >> width >> height;
    if (dataBefore < 0 || stream.status() != QDataStream::Ok || width > INT_MAX)
        return QSize();
    return QSize(int(width), height == unknown ? 1 : int(qMin(height, quint32(INT_MAX))));
}

bool isOne(const QByteArray &bytes)
{
    return bytes.startsWith(fileSignature) || sizeOf(bytes).isValid();
}

#ifdef READER_HAS_JBIG2

/** The picture, a part of it that is as large, and dictionaries; eight pixels are in a byte. */
constexpr std::size_t mostBytes = Limits::imagePixels / 8 * 4;

/** Memory for the decoder, which asks for whatever a file says. */
class Memory : public Jbig2Allocator
{
public:
    Memory()
        : Jbig2Allocator{&Memory::take, &Memory::give, &Memory::change}
    {
    }

private:
    static constexpr std::size_t head = alignof(std::max_align_t);

    static void *take(Jbig2Allocator *self, std::size_t size)
    {
        return change(self, nullptr, size);
    }
    static void give(Jbig2Allocator *self, void *block) { change(self, block, 0); }

    /** The size of each block stands before it. */
    static void *change(Jbig2Allocator *self, void *block, std::size_t size)
    {
        std::size_t &used = static_cast<Memory *>(self)->m_used;
        char *start = block ? static_cast<char *>(block) - head : nullptr;
        std::size_t before = 0;
        if (start)
            std::memcpy(&before, start, sizeof before);
        if (size == 0) {
            used -= before;
            std::free(start);
            return nullptr;
        }
        if (size > mostBytes || used - before + size > mostBytes)
            return nullptr;
        auto *changed = static_cast<char *>(std::realloc(start, size + head));
        if (!changed)
            return nullptr;
        used += size - before;
        std::memcpy(changed, &size, sizeof size);
        return changed + head;
    }

    std::size_t m_used = 0;
};

void ignoreMessage(void *, const char *, Jbig2Severity, quint32) {}

QImage imageOf(const Jbig2Image &page)
{
    QImage image(int(page.width), int(page.height), QImage::Format_Mono);
    if (image.isNull())
        return image;
    // White is 0.
    image.setColorTable({qRgb(255, 255, 255), qRgb(0, 0, 0)});
    const auto length = std::size_t(qMin(qsizetype(page.stride), qsizetype(image.bytesPerLine())));
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(image.scanLine(y), page.data + std::size_t(y) * page.stride, length);
    return image;
}

bool isReadable(const QByteArray &bytes)
{
    const QSize size = sizeOf(bytes);
    return !size.isEmpty() && qint64(size.width()) * size.height() <= Limits::imagePixels;
}

QImage decoded(const QByteArray &bytes)
{
    if (!isReadable(bytes))
        return QImage();
    Memory memory;
    const auto option = bytes.startsWith(fileSignature) ? 0 : JBIG2_OPTIONS_EMBEDDED;
    const auto end = [](Jbig2Ctx *context) { jbig2_ctx_free(context); };
    const std::unique_ptr<Jbig2Ctx, decltype(end)> context(
        jbig2_ctx_new(&memory, Jbig2Options(option), nullptr, ignoreMessage, nullptr), end);
    if (!context)
        return QImage();
    const auto *data = reinterpret_cast<const unsigned char *>(bytes.constData());
    if (jbig2_data_in(context.get(), data, std::size_t(bytes.size())) < 0)
        return QImage();
    Jbig2Image *page = jbig2_page_out(context.get());
    // Bare segments need no end of the page.
    if (!page && jbig2_complete_page(context.get()) >= 0)
        page = jbig2_page_out(context.get());
    if (!page)
        return QImage();
    // Only the end of the segments may have told the height.
    const bool isAllowed = qint64(page->width) * page->height <= Limits::imagePixels;
    const QImage image = isAllowed ? imageOf(*page) : QImage();
    jbig2_release_page(context.get(), page);
    return image;
}

#endif

} // namespace

#ifdef READER_HAS_JBIG2
const PictureDecoder jbig2{"JBIG2", isOne, isReadable, decoded};
#else
const PictureDecoder jbig2{"JBIG2", isOne};
#endif

} // namespace Ofd
