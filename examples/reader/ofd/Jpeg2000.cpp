// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Codestream.h"
#include "ofd/Limits.h"
#include "ofd/PictureDecoder.h"

#include <QColor>

#ifdef READER_HAS_JPEG2000
#include <openjpeg.h>
#endif

#include <algorithm>
#include <cstring>
#include <memory>

namespace Ofd {

namespace {

bool isOne(const QByteArray &bytes)
{
    return Codestream::isFile(bytes) || Codestream::isBare(bytes);
}

#ifdef READER_HAS_JPEG2000

struct Source
{
    const QByteArray &bytes;
    OPJ_OFF_T at = 0;
};

OPJ_SIZE_T readNext(void *to, OPJ_SIZE_T count, void *data)
{
    auto *source = static_cast<Source *>(data);
    const auto left = OPJ_SIZE_T(source->bytes.size() - source->at);
    if (left == 0)
        return OPJ_SIZE_T(-1);
    const OPJ_SIZE_T taken = std::min(count, left);
    std::memcpy(to, source->bytes.constData() + source->at, taken);
    source->at += OPJ_OFF_T(taken);
    return taken;
}

OPJ_BOOL goTo(OPJ_OFF_T place, void *data)
{
    auto *source = static_cast<Source *>(data);
    if (place < 0 || place > source->bytes.size())
        return OPJ_FALSE;
    source->at = place;
    return OPJ_TRUE;
}

OPJ_OFF_T skipNext(OPJ_OFF_T count, void *data)
{
    auto *source = static_cast<Source *>(data);
    const OPJ_OFF_T place = std::min<OPJ_OFF_T>(source->at + count, source->bytes.size());
    const OPJ_OFF_T skipped = place - source->at;
    return goTo(place, data) ? skipped : -1;
}

template <auto destroy>
struct Deleter
{
    template <typename T>
    void operator()(T *object) const
    {
        destroy(object);
    }
};

using Stream = std::unique_ptr<opj_stream_t, Deleter<opj_stream_destroy>>;
using Codec = std::unique_ptr<opj_codec_t, Deleter<opj_destroy_codec>>;
using Decoded = std::unique_ptr<opj_image_t, Deleter<opj_image_destroy>>;

Stream streamOf(Source &source)
{
    Stream stream(opj_stream_default_create(OPJ_TRUE));
    opj_stream_set_user_data(stream.get(), &source, nullptr);
    opj_stream_set_user_data_length(stream.get(), OPJ_UINT64(source.bytes.size()));
    opj_stream_set_read_function(stream.get(), readNext);
    opj_stream_set_skip_function(stream.get(), skipNext);
    opj_stream_set_seek_function(stream.get(), goTo);
    return stream;
}

/** How often the picture must be halved so that its samples fit into the memory. */
int halvingsOf(const Codestream &header)
{
    int times = 0;
    while (header.samples() >> 2 * times > Limits::imageSamples)
        ++times;
    return times;
}

Decoded decode(const QByteArray &bytes, const Codestream &header)
{
    Source source{bytes};
    const Stream stream = streamOf(source);
    const Codec codec(
        opj_create_decompress(Codestream::isFile(bytes) ? OPJ_CODEC_JP2 : OPJ_CODEC_J2K));
    opj_dparameters_t parameters;
    opj_set_default_decoder_parameters(&parameters);
    parameters.cp_reduce = OPJ_UINT32(halvingsOf(header));
    opj_image_t *image = nullptr;
    if (!opj_setup_decoder(codec.get(), &parameters)
        || !opj_read_header(stream.get(), codec.get(), &image))
        return Decoded(image);
    Decoded decoded(image);
    if (!opj_decode(codec.get(), stream.get(), image))
        decoded.reset();
    return decoded;
}

/** One component of a picture; those of colour can have fewer samples. */
class Channel
{
public:
    Channel(const opj_image_comp_t &component, QSize size)
        : m_component(component)
        , m_size(size)
    {
    }

    int at(int x, int y) const
    {
        const auto column = qint64(x) * m_component.w / m_size.width();
        const auto row = qint64(y) * m_component.h / m_size.height();
        int value = m_component.data[row * m_component.w + column];
        const int precision = int(m_component.prec);
        if (m_component.sgnd)
            value += 1 << (precision - 1);
        value = precision > 8 ? value >> (precision - 8)
                              : value * 255 / std::max(1, (1 << precision) - 1);
        return std::clamp(value, 0, 255);
    }

private:
    const opj_image_comp_t &m_component;
    QSize m_size;
};

/** Makes colours of the components of a picture. */
class Colours
{
public:
    Colours(const opj_image_t &image, QSize size)
        : m_space(image.color_space)
    {
        for (OPJ_UINT32 i = 0; i < image.numcomps; ++i)
            m_channels.append(Channel(image.comps[i], size));
        const bool isColoured = m_channels.size() > 2;
        if (isColoured && image.comps[0].dx == 1 && image.comps[1].dx > 1)
            m_space = OPJ_CLRSPC_SYCC;
        m_hasAlpha = m_channels.size() == (isColoured ? 4 : 2) && m_space != OPJ_CLRSPC_CMYK;
    }

    bool hasAlpha() const { return m_hasAlpha; }

    QRgb at(int x, int y) const
    {
        const int alpha = m_hasAlpha ? m_channels.last().at(x, y) : 255;
        const int first = m_channels.first().at(x, y);
        if (m_channels.size() < 3)
            return qRgba(first, first, first, alpha);
        const int second = m_channels.at(1).at(x, y);
        const int third = m_channels.at(2).at(x, y);
        if (m_space == OPJ_CLRSPC_CMYK && m_channels.size() > 3)
            return QColor::fromCmyk(first, second, third, m_channels.at(3).at(x, y)).rgb();
        return m_space == OPJ_CLRSPC_SYCC ? fromYcc(first, second - 128, third - 128, alpha)
                                          : qRgba(first, second, third, alpha);
    }

private:
    static QRgb fromYcc(int light, int blue, int red, int alpha)
    {
        return qRgba(std::clamp(qRound(light + 1.402 * red), 0, 255),
                     std::clamp(qRound(light - 0.344136 * blue - 0.714136 * red), 0, 255),
                     std::clamp(qRound(light + 1.772 * blue), 0, 255), alpha);
    }

    COLOR_SPACE m_space;
    QVector<Channel> m_channels;
    bool m_hasAlpha = false;
};

QImage imageOf(const opj_image_t &decoded)
{
    for (OPJ_UINT32 i = 0; i < decoded.numcomps; ++i) {
        const opj_image_comp_t &component = decoded.comps[i];
        if (!component.data || component.w == 0 || component.h == 0 || component.prec == 0
            || component.prec > 30)
            return QImage();
    }
    const QSize size(int(decoded.comps[0].w), int(decoded.comps[0].h));
    const Colours colours(decoded, size);
    QImage image(size, colours.hasAlpha() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = colours.at(x, y);
    }
    return image;
}

bool isReadable(const QByteArray &bytes)
{
    return Codestream(bytes).isAllowed();
}

QImage decoded(const QByteArray &bytes)
{
    const Codestream header(bytes);
    const Decoded picture = header.isAllowed() ? decode(bytes, header) : nullptr;
    return picture && picture->numcomps > 0 ? imageOf(*picture) : QImage();
}

#endif

} // namespace

#ifdef READER_HAS_JPEG2000
const PictureDecoder jpeg2000{"JPEG 2000", isOne, isReadable, decoded};
#else
const PictureDecoder jpeg2000{"JPEG 2000", isOne};
#endif

} // namespace Ofd
