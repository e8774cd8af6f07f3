// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/XmlBytes.h"

#include "ofd/Limits.h"

#include <QString>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace Ofd {

namespace {

/** Encodings in which the characters of markup are single bytes that are part of no other one. */
constexpr const char *countable[] = {"UTF-8", "UTF8",   "US-ASCII", "ASCII",
                                     "GBK",   "GB2312", "GB18030",  "Big5"};
/** Begins of the names of further ones. */
constexpr const char *countableFamilies[] = {"ISO-8859-", "windows-125"};

/** Counts elements and attributes, and reads only as much as tells where tags begin and end. */
class TagScanner
{
public:
    explicit TagScanner(const QByteArray &bytes)
        : m_at(bytes.constData())
        , m_end(bytes.constData() + bytes.size())
    {
    }

    bool hasTooMuch()
    {
        while (findTag()) {
            if (skip("!--", "-->") || skip("![CDATA[", "]]>") || skip("?", "?>") || skip("/", ">"))
                continue;
            const int attributes = takeTag();
            m_nodes += 1 + attributes;
            if (attributes > Limits::xmlAttributes || m_nodes > Limits::xmlNodes)
                return true;
        }
        return false;
    }

private:
    bool findTag()
    {
        m_at = std::find(m_at, m_end, '<');
        if (m_at == m_end)
            return false;
        ++m_at;
        return true;
    }

    bool skip(const char *begin, const char *end)
    {
        const auto beginLength = qptrdiff(std::strlen(begin));
        if (m_end - m_at < beginLength || !std::equal(begin, begin + beginLength, m_at))
            return false;
        m_at = std::search(m_at + beginLength, m_end, end, end + std::strlen(end));
        return true;
    }

    /** Returns the number of attributes. */
    int takeTag()
    {
        int attributes = 0;
        for (; m_at != m_end && *m_at != '>'; ++m_at) {
            attributes += *m_at == '=' ? 1 : 0;
            if (*m_at != '"' && *m_at != '\'')
                continue;
            m_at = std::find(m_at + 1, m_end, *m_at);
            if (m_at == m_end)
                break;
        }
        return attributes;
    }

    const char *m_at;
    const char *m_end;
    qint64 m_nodes = 0;
};

} // namespace

QByteArray XmlBytes::inUtf8(const QByteArray &bytes)
{
    if (!bytes.startsWith("\xff\xfe") && !bytes.startsWith("\xfe\xff"))
        return bytes;
    QString text =
        QString::fromUtf16(reinterpret_cast<const char16_t *>(bytes.constData()), bytes.size() / 2);
    // It names the encoding that the file had.
    if (text.startsWith(QLatin1String("<?xml ")))
        text.remove(0, text.indexOf(QLatin1String("?>")) + 2);
    return text.toUtf8();
}

bool XmlBytes::isCountable(QStringView encoding)
{
    const auto isIt = [encoding](const char *name) {
        return encoding.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
    };
    const auto isOfIt = [encoding](const char *begin) {
        return encoding.startsWith(QLatin1String(begin), Qt::CaseInsensitive);
    };
    return encoding.isEmpty() || std::any_of(std::begin(countable), std::end(countable), isIt)
           || std::any_of(std::begin(countableFamilies), std::end(countableFamilies), isOfIt);
}

bool XmlBytes::hasTooMuch(const QByteArray &bytes)
{
    return TagScanner(bytes).hasTooMuch();
}

} // namespace Ofd
