// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Expansion.h"

#include "ofd/Fault.h"
#include "ofd/Limits.h"
#include "ofd/Wording.h"

#include <QSet>

#include <algorithm>

namespace Ofd {

namespace {

qint64 ownCount(const Object &object)
{
    qint64 count = 1;
    if (const auto *text = std::get_if<Text>(&object.content)) {
        for (const TextRun &run : text->runs)
            count += run.text.size();
    } else if (const auto *path = std::get_if<Path>(&object.content)) {
        count += path->path.elementCount();
    }
    return count;
}

/** Counts the marks of objects with every composite expanded. */
class Counter
{
public:
    explicit Counter(const Resources &resources)
        : m_resources(resources)
    {
    }

    qint64 count(const Objects &objects)
    {
        qint64 total = 0;
        for (const Object &object : objects) {
            total += ownCount(object);
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
        const auto objects = m_resources.composites.value(composite);
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
    const Resources &m_resources;
    QHash<QString, qint64> m_counts;
    QSet<QString> m_open;
};

} // namespace

void checkExpansion(const Document &document)
{
    Counter counter(document.resources);
    const QStringList composites = document.resources.composites.keys();
    for (const QString &composite : composites)
        counter.countOf(composite);
    QHash<const Objects *, qint64> counts;
    qint64 all = 0;
    for (const Page &page : document.pages) {
        qint64 total = 0;
        for (const auto &layer : page.layers) {
            if (!counts.contains(layer.get()))
                counts.insert(layer.get(), counter.count(*layer));
            total += counts.value(layer.get());
        }
        for (const Annotation &annotation : page.annotations)
            total += counter.count({annotation.appearance});
        all += total;
        if (total > Limits::marksPerPage || all > Limits::marks)
            throw Fault{Wording::tr("文档的内容展开后过多，无法显示。")};
    }
}

} // namespace Ofd
