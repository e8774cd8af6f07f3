// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Annotations.h"
#include "ofd/Document.h"
#include "ofd/Expansion.h"
#include "ofd/Extras.h"
#include "ofd/Fault.h"
#include "ofd/Limits.h"
#include "ofd/Links.h"
#include "ofd/PageReader.h"
#include "ofd/Signatures.h"
#include "ofd/Wording.h"

#include <QBitArray>

#include <algorithm>

namespace Ofd {

namespace {

const QString entryPoint = QStringLiteral("OFD.xml");
/** Measuring a page takes some ten microseconds, so most documents have their true sizes at once.
 */
constexpr int measuredAtOnce = 200;

/** Of documents, so that a package of many broken ones is refused in time. */
constexpr int mostTried = 5;

QString noRoot()
{
    return Wording::tr("文件不完整：没有文档入口 Document.xml。");
}

/** Reads a document up to the list of its pages, and later each page. The document owns it. */
class DocumentReader
{
public:
    explicit DocumentReader(Document &document)
        : m_document(document)
    {
    }

    /** @param body What the entry point has about the document. */
    void read(const XmlElement &body, bool withSignatures)
    {
        const Package &package = *m_document.package;
        const QString path = package.find(entryPoint, body.childText("DocRoot"));
        if (path.isEmpty())
            throw Fault{noRoot()};
        m_document.path = path;
        if (const XmlElement *information = body.child("DocInfo"))
            Extras::readInformation(*information, m_document);
        const QHash<QString, int> pages =
            readDocument(XmlElement::parse(package.read(path), path), path);
        if (withSignatures)
            Signatures::read(body, entryPoint, pages, m_document);
        addCounts();
    }

    int pageCount() const { return int(m_locations.size()); }
    QRectF commonArea() const { return m_pages.commonArea(); }

    /** The sheet of a page; null if it is found only by reading the page. */
    QRectF measure(int index) const
    {
        try {
            return m_pages.measure(m_document.package->find(m_path, m_locations.at(index)));
        } catch (const Fault &) {
            return QRectF();
        }
    }

    /** A page; one that cannot be read costs itself only. */
    Page page(int index)
    {
        m_counts.clear();
        m_resources.objects().restartCount();
        Page page;
        try {
            page = readPage(index);
        } catch (const Fault &fault) {
            page = Page();
            page.fault = fault.message;
            ++m_counts[Wording::tr("无法显示的页面")];
        }
        // The store forgets pages, and the same parts are left out when one is read again.
        if (!m_isCounted.testBit(index))
            addCounts();
        m_isCounted.setBit(index);
        return page;
    }

private:
    /** Returns the indexes of the pages by their identifiers. */
    QHash<QString, int> readDocument(const XmlElement &root, const QString &path)
    {
        const XmlElement nothing;
        const XmlElement *data = root.child("CommonData");
        const XmlElement &common = data ? *data : nothing;
        m_resources.colours().setDefaultSpace(common.childText("DefaultCS"));
        m_resources.addLists(common, "PublicRes", path);
        m_resources.addLists(common, "DocumentRes", path);
        m_resources.finish(&m_document.resources.composites);
        m_pages.readCommon(common, path);
        const QHash<QString, int> indexes = listPages(root, path);
        Extras::readTargets(root, indexes, m_document);
        listAnnotations(root, path, indexes);
        Extras::readAttachments(root, path, m_document);
        return indexes;
    }

    QHash<QString, int> listPages(const XmlElement &root, const QString &path)
    {
        const XmlElement *list = root.child("Pages");
        if (!list || list->children.empty())
            throw Fault{Wording::tr("文档没有页面。")};
        if (list->childCount() > Limits::pages)
            throw Fault{Wording::tr("文档的页面过多，超过 %1 页。").arg(Limits::pages)};
        m_path = path;
        QHash<QString, int> indexes;
        for (const XmlElement &page : list->children) {
            indexes.insert(page.attribute("ID"), pageCount());
            m_locations.append(page.attribute("BaseLoc"));
        }
        m_isCounted.resize(pageCount());
        return indexes;
    }

    /** A damaged index of annotations leaves the document without them. */
    void listAnnotations(const XmlElement &root, const QString &path,
                         const QHash<QString, int> &indexes)
    {
        try {
            m_annotations = Annotations::lists(*m_document.package, root, path, indexes);
        } catch (const Fault &) {
            ++m_counts[Wording::tr("无法读取的批注")];
        }
    }

    Page readPage(int index)
    {
        const QString path = m_document.package->find(m_path, m_locations.at(index));
        if (path.isEmpty())
            throw Fault{Wording::tr("包内没有这一页的文件。")};
        Page page = m_pages.read(path);
        readAnnotations(index, &page);
        checkExpansion(page, m_document);
        if (!Links::place(page, m_document))
            ++m_counts[Wording::tr("过多的链接")];
        return page;
    }

    /** A damaged list of annotations leaves the page without them. */
    void readAnnotations(int index, Page *page)
    {
        const QString list = m_annotations.value(index);
        if (list.isEmpty())
            return;
        try {
            const XmlElement element = XmlElement::parse(m_document.package->read(list), list);
            page->annotations = Annotations::read(element, m_resources.objects());
        } catch (const Fault &) {
            ++m_counts[Wording::tr("无法读取的批注")];
        }
    }

    void addCounts()
    {
        for (auto count = m_counts.cbegin(); count != m_counts.cend(); ++count)
            m_document.unsupported.add(count.key(), count.value());
        m_counts.clear();
    }

    Document &m_document;
    QMap<QString, int> m_counts; ///< What was left out since addCounts() was called.
    ResourceReader m_resources{*m_document.package, m_document.resources, m_counts};
    PageReader m_pages{*m_document.package, m_resources, m_counts};
    QString m_path;
    QStringList m_locations; ///< Of the pages, as the file m_path gives them.
    QHash<int, QString> m_annotations;
    QBitArray m_isCounted;
};

/** The documents that the entry point of a package lists. */
class Bodies
{
public:
    explicit Bodies(std::shared_ptr<Package> package)
        : m_package(std::move(package))
    {
        if (!m_package->has(entryPoint))
            throw Fault{Wording::tr("这不是 OFD 文件：包内没有 OFD.xml。")};
        m_root = XmlElement::parse(m_package->read(entryPoint), entryPoint);
        for (const XmlElement &child : m_root.children) {
            if (!child.is("DocBody"))
                continue;
            m_bodies.append(&child);
            const XmlElement *information = child.child("DocInfo");
            const QString title = information ? information->childText("Title") : QString();
            m_names.append(title.isEmpty() ? Wording::tr("文档 %1").arg(m_bodies.size()) : title);
        }
    }
    Q_DISABLE_COPY(Bodies)

    std::shared_ptr<const Document> open(int body, bool withSignatures) const
    {
        if (body < 0 || body >= m_bodies.size())
            throw Fault{noRoot()};
        const auto document = std::make_shared<Document>();
        document->package = m_package;
        document->bodies = m_names;
        document->body = body;
        const auto reader = std::make_shared<DocumentReader>(*document);
        reader->read(*m_bodies.at(body), withSignatures);
        document->pages = std::make_unique<PageStore>(
            reader->pageCount(), reader->commonArea(),
            [reader](int index) { return reader->page(index); },
            [reader](int index) { return reader->measure(index); });
        for (int page = 0; page < std::min(reader->pageCount(), measuredAtOnce); ++page)
            document->pages->measure(page);
        return document;
    }

    /** Leaves out those before it, which are broken. */
    std::shared_ptr<const Document> openFirstReadable(bool withSignatures) const
    {
        Fault first{noRoot()};
        for (int body = 0; body < std::min(int(m_bodies.size()), mostTried); ++body) {
            try {
                const auto document = open(body, withSignatures);
                for (const QString &name : m_names.mid(0, body))
                    document->unsupported.add(Wording::tr("无法打开的文档（%1）").arg(name), 1);
                return document;
            } catch (const Fault &fault) {
                if (body == 0)
                    first = fault;
            }
        }
        throw first;
    }

private:
    std::shared_ptr<Package> m_package;
    XmlElement m_root;
    QVector<const XmlElement *> m_bodies;
    QStringList m_names;
};

template <typename MakePackage>
std::shared_ptr<const Document> readFrom(MakePackage makePackage, int body, bool withSignatures,
                                         QString *error)
{
    error->clear();
    try {
        const Bodies bodies(makePackage());
        return body == firstReadable ? bodies.openFirstReadable(withSignatures)
                                     : bodies.open(body, withSignatures);
    } catch (const Fault &fault) {
        *error = fault.message;
        return nullptr;
    }
}

} // namespace

std::shared_ptr<const Document> read(const QString &fileName, QString *error, int body)
{
    return readFrom([&] { return std::make_shared<Package>(fileName); }, body, true, error);
}

std::shared_ptr<const Document> read(const QByteArray &archive, QString *error)
{
    // Without signatures, seals in drawings of seals cannot go on for ever.
    return readFrom([&] { return std::make_shared<Package>(archive); }, 0, false, error);
}

} // namespace Ofd
