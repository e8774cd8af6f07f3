// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Expansion.h"

#include "ofd/Fault.h"
#include "ofd/Limits.h"
#include "ofd/Pattern.h"
#include "ofd/Wording.h"

#include <QSet>

#include <algorithm>

namespace Ofd {

namespace {

qint64 charactersOf(const Text &text)
{
    qint64 count = 0;
    for (const TextRun &run : text.runs)
        count += run.text.size();
    return count;
}

qint64 ownCount(const Object &object)
{
    qint64 count = 1;
    for (const Clip &clip : object.clips) {
        count += clip.path.elementCount();
        for (const Clip::TextArea &area : clip.texts)
            count += charactersOf(area.text);
    }
    if (const auto *text = std::get_if<Text>(&object.content)) {
        count += charactersOf(*text);
    } else if (const auto *path = std::get_if<Path>(&object.content)) {
        count += path->path.elementCount();
    }
    return count;
}

/** Counts the marks of objects with every composite expanded. */
class Counter
{
public:
    Counter(const Document &document, const Page &page)
        : m_document(document)
        , m_page(page)
    {
    }

    qint64 count(const Objects &objects)
    {
        qint64 total = 0;
        for (const Object &object : objects) {
            total += ownCount(object);
            if (std::holds_alternative<Path>(object.content)
                || std::holds_alternative<Text>(object.content))
                total += countOf(object.style.fill) + countOf(object.style.stroke);
            if (const auto *composite = std::get_if<Composite>(&object.content))
                total += countOf(composite->resource);
            else if (const auto *group = std::get_if<Group>(&object.content))
                total += count(*group->objects);
            // Limited, so that the sum cannot overflow.
            total = std::min(total, Limits::marksPerPage + 1);
        }
        return total;
    }

    qint64 countOf(const QString &composite)
    {
        if (m_counts.contains(composite))
            return m_counts.value(composite);
        if (m_open.contains(composite))
            throw Fault{Wording::tr("复合图元“%1”循环引用。").arg(composite)};
        const auto objects = m_document.composite(composite, m_page);
        if (!objects)
            return 0;
        if (m_open.size() >= Limits::xmlDepth)
            throw Fault{Wording::tr("复合图元“%1”嵌套过深。").arg(composite)};
        m_open.insert(composite);
        const qint64 total = count(*objects);
        m_open.remove(composite);
        m_counts.insert(composite, total);
        return total;
    }

private:
    qint64 countOf(const std::optional<Paint> &paint)
    {
        if (!paint || !std::holds_alternative<std::shared_ptr<const Pattern>>(*paint))
            return 0;
        const Pattern *pattern = std::get<std::shared_ptr<const Pattern>>(*paint).get();
        if (m_patternCounts.contains(pattern))
            return m_patternCounts.value(pattern);
        if (++m_openPatterns > Limits::patternDepth)
            throw Fault{Wording::tr("底纹嵌套过深。")};
        const qint64 total = count(pattern->cell);
        --m_openPatterns;
        m_patternCounts.insert(pattern, total);
        return total;
    }

    const Document &m_document;
    const Page &m_page;
    QHash<QString, qint64> m_counts;
    QSet<QString> m_open;
    QHash<const Pattern *, qint64> m_patternCounts;
    int m_openPatterns = 0;
};

} // namespace

void checkExpansion(const Page &page, const Document &document)
{
    Counter counter(document, page);
    qint64 total = 0;
    for (const auto &layer : page.layers)
        total += counter.count(*layer);
    for (const Annotation &annotation : page.annotations)
        total += counter.count({annotation.appearance});
    if (total > Limits::marksPerPage)
        throw Fault{Wording::tr("页面的内容展开后过多，无法显示。")};
}

} // namespace Ofd
