// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/AnnotationWriter.h"

#include "ofd/Annotations.h"
#include "ofd/AppearanceWriter.h"
#include "ofd/Archive.h"
#include "ofd/DocumentRoot.h"
#include "ofd/Extras.h"
#include "ofd/Fault.h"
#include "ofd/Wording.h"
#include "ofd/XmlCopy.h"

#include <algorithm>

namespace Ofd {

namespace {

const QByteArray emptyFile =
    QByteArrayLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                      "<ofd:%1 xmlns:ofd=\"http://www.ofdspec.org/2016\"></ofd:%1>");

QByteArray emptyFileOf(const char *root)
{
    return QByteArray(emptyFile).replace("%1", root);
}

/** Identifiers are 32 bits wide; a higher one is damaged and must not make others so. */
constexpr qint64 mostId = 4000000000;

qint64 idOf(const QString &text)
{
    const qint64 id = text.toLongLong();
    return id <= mostId ? id : 0;
}

/** The highest of the identifiers in a file. */
qint64 highestId(const XmlElement &element)
{
    qint64 highest = idOf(element.attribute("ID"));
    for (const XmlElement &child : element.children)
        highest = std::max(highest, highestId(child));
    return highest;
}

/** Writes the files of a document that its annotations and bookmarks are in. */
class ChangedFiles
{
public:
    explicit ChangedFiles(const Document &document)
        : m_document(document)
        , m_package(*document.package)
        , m_root(document)
        , m_lists(Annotations::lists(m_package, m_root.element, document.path, m_root.pageIndexes))
    {
        const XmlElement *common = m_root.element.child("CommonData");
        const qint64 declared = common ? idOf(common->childText("MaxUnitID")) : 0;
        m_lastId = std::max(declared, highestId(m_root.element));
        // Some writers forget to count what they add, so the files that matter here are looked at.
        for (const QString &list : std::as_const(m_lists))
            m_lastId = std::max(m_lastId, highestId(XmlElement::parse(read(list), list)));
    }

    QMap<QString, QByteArray> changed(const QMap<int, AnnotationChanges> &annotations,
                                      const BookmarkChanges &bookmarks)
    {
        writeAnnotations(annotations);
        const QString &path = m_document.path;
        if (!bookmarks.isEmpty())
            m_entries.insert(path,
                             withBookmarks(m_entries.value(path, read(path)), m_root, bookmarks));
        return m_entries;
    }

private:
    void writeAnnotations(const QMap<int, AnnotationChanges> &changes)
    {
        for (auto page = changes.cbegin(); page != changes.cend(); ++page) {
            if (page->isEmpty() || page.key() >= m_root.pageIds.size())
                continue;
            const QString known = m_lists.value(page.key());
            const QString path = known.isEmpty() ? newPath(page.key()) : known;
            const QByteArray old = known.isEmpty() ? emptyFileOf("PageAnnot") : read(path);
            // Nothing forbids that pages share a list.
            m_entries.insert(path, list(m_entries.value(path, old), *page));
            if (known.isEmpty())
                m_newLists.insert(m_root.pageIds.at(page.key()), path);
        }
        if (m_entries.isEmpty())
            return;
        const QString index = m_newLists.isEmpty() ? QString() : writeIndex();
        m_entries.insert(m_document.path, root(index));
    }

    QByteArray read(const QString &path) const { return m_package.read(path); }

    QString folder() const
    {
        const QString &path = m_document.path;
        return path.left(path.lastIndexOf(QChar(u'/')) + 1) + QStringLiteral("Annots/");
    }

    /** A path that the package does not have. */
    QString unused(const QString &pattern, int number) const
    {
        QString path = folder() + pattern.arg(number == 0 ? QString() : QString::number(number));
        while (m_package.has(path))
            path = folder() + pattern.arg(++number);
        return path;
    }

    QString newPath(int page) const
    {
        return unused(QStringLiteral("Page_%1/Annotation%2.xml").arg(page), 0);
    }

    QByteArray list(const QByteArray &bytes, const AnnotationChanges &changes)
    {
        XmlCopy copy(bytes);
        int index = -1;
        while (copy.next()) {
            const bool isAnnotation = copy.begins("Annot", 1);
            index += isAnnotation ? 1 : 0;
            if (isAnnotation && changes.removed.contains(index))
                copy.skip();
            else if (isAnnotation && changes.remarks.contains(index))
                copyWithRemark(copy, changes.remarks.value(index), changes.date);
            else if (copy.ends(0))
                addAll(copy, changes.added);
            else
                copy.copy();
        }
        return copy.finished();
    }

    static void copyWithRemark(XmlCopy &copy, const QString &remark, const QString &date)
    {
        copy.copyWith(QStringLiteral("LastModDate"), date);
        copy.addElement("Remark", allowedInXml(remark));
        while (copy.next() && !copy.ends(1)) {
            if (copy.begins("Remark", 2))
                copy.skip();
            else
                copy.copy();
        }
        copy.copy();
    }

    void addAll(XmlCopy &copy, const QVector<AnnotationDraft> &drafts)
    {
        for (const AnnotationDraft &draft : drafts)
            writeAnnotation(copy, draft, m_lastId);
        copy.copy();
    }

    QString writeIndex()
    {
        QString path;
        const auto known =
            Extras::namedFile(m_package, m_root.element, "Annotations", m_document.path, &path);
        const bool isNew = path.isEmpty();
        if (isNew)
            path = unused(QStringLiteral("Annotations%1.xml"), 0);
        XmlCopy copy(isNew ? emptyFileOf("Annotations") : read(path));
        while (copy.next()) {
            if (copy.ends(0))
                addPages(copy);
            copy.copy();
        }
        m_entries.insert(path, copy.finished());
        return isNew ? path : QString();
    }

    void addPages(XmlCopy &copy)
    {
        for (auto page = m_newLists.cbegin(); page != m_newLists.cend(); ++page) {
            copy.writer().writeStartElement(copy.withPrefix("Page"));
            copy.writer().writeAttribute(QStringLiteral("PageID"), page.key());
            copy.addElement("FileLoc", QChar(u'/') + page.value());
            copy.writer().writeEndElement();
        }
    }

    /** Document.xml with the highest identifier and, if it is not empty, the index. */
    QByteArray root(const QString &index) const
    {
        static const QSet<QString> later = {QStringLiteral("CustomTags"),
                                            QStringLiteral("Attachments"),
                                            QStringLiteral("Extensions")};
        const XmlElement *common = m_root.element.child("CommonData");
        const bool hasHighest = common && common->child("MaxUnitID");
        XmlCopy copy(read(m_document.path));
        bool isMissing = !index.isEmpty();
        while (copy.next()) {
            const bool isPlace =
                copy.ends(0)
                || (later.contains(copy.name()) && copy.begins(qPrintable(copy.name()), 1));
            if (isMissing && isPlace) {
                copy.addElement("Annotations", QChar(u'/') + index);
                isMissing = false;
            }
            const bool isHighest = copy.begins("MaxUnitID", 2);
            if (isHighest)
                copy.skip();
            else
                copy.copy();
            if (isHighest || (!hasHighest && copy.begins("CommonData", 1)))
                copy.addElement("MaxUnitID", QString::number(m_lastId));
        }
        return copy.finished();
    }

    const Document &m_document;
    const Package &m_package;
    DocumentRoot m_root;
    QHash<int, QString> m_lists;
    QMap<QString, QString> m_newLists; ///< By the identifier of the page.
    QMap<QString, QByteArray> m_entries;
    qint64 m_lastId = 0;
};

} // namespace

QByteArray withChanges(const Document &document, const QMap<int, AnnotationChanges> &annotations,
                       const BookmarkChanges &bookmarks)
{
    const auto entries = ChangedFiles(document).changed(annotations, bookmarks);
    return Archive::withEntries(*document.package, entries);
}

} // namespace Ofd
