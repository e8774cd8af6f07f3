// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Annotations.h"
#include "ofd/Document.h"
#include "ofd/Expansion.h"
#include "ofd/Extras.h"
#include "ofd/Fault.h"
#include "ofd/Limits.h"
#include "ofd/PageReader.h"
#include "ofd/Wording.h"

namespace Ofd {

namespace {

const QString entryPoint = QStringLiteral("OFD.xml");

/** Reads a document from its entry point to its pages. */
class DocumentReader
{
public:
    explicit DocumentReader(const QString &fileName)
        : m_document(std::make_shared<Document>())
    {
        m_document->package = std::make_shared<Package>(fileName);
        m_resources.emplace(*m_document->package, m_document->resources, m_document->unsupported);
        m_pages.emplace(*m_document->package, *m_resources, m_document->unsupported);
    }

    std::shared_ptr<const Document> read()
    {
        const Package &package = *m_document->package;
        if (!package.has(entryPoint))
            throw Fault{Wording::tr("这不是 OFD 文件：包内没有 OFD.xml。")};
        const XmlElement root = XmlElement::parse(package.read(entryPoint), entryPoint);
        const XmlElement *body = root.child("DocBody");
        const QString path =
            body ? package.find(entryPoint, body->childText("DocRoot")) : QString();
        if (path.isEmpty())
            throw Fault{Wording::tr("文件不完整：没有文档入口 Document.xml。")};
        m_document->path = path;
        if (const XmlElement *information = body->child("DocInfo"))
            Extras::readInformation(*information, *m_document);
        Extras::countSeals(*body, entryPoint, *m_document);
        readDocument(XmlElement::parse(package.read(path), path), path);
        countOtherBodies(root);
        checkExpansion(*m_document);
        return m_document;
    }

private:
    void readDocument(const XmlElement &root, const QString &path)
    {
        const XmlElement nothing;
        const XmlElement *data = root.child("CommonData");
        const XmlElement &common = data ? *data : nothing;
        m_resources->colours().setDefaultSpace(common.childText("DefaultCS"));
        m_resources->addLists(common, "PublicRes", path);
        m_resources->addLists(common, "DocumentRes", path);
        m_resources->finish();
        m_pages->readCommon(common, path);
        readPages(root, path);
        Extras::readTargets(root, m_pageIndexes, *m_document);
        readAnnotations(root, path);
        Extras::readAttachments(root, path, *m_document);
    }

    void readPages(const XmlElement &root, const QString &path)
    {
        const XmlElement *list = root.child("Pages");
        if (!list || list->children.empty())
            throw Fault{Wording::tr("文档没有页面。")};
        if (list->children.size() > Limits::pages)
            throw Fault{Wording::tr("文档的页面过多，超过 %1 页。").arg(Limits::pages)};
        for (const XmlElement &page : list->children) {
            m_pageIndexes.insert(page.attribute("ID"), int(m_document->pages.size()));
            m_document->pages.append(m_pages->read(page, path));
        }
    }

    void readAnnotations(const XmlElement &root, const QString &path)
    {
        const Package &package = *m_document->package;
        const QHash<int, QString> lists = Annotations::lists(package, root, path, m_pageIndexes);
        for (auto list = lists.cbegin(); list != lists.cend(); ++list) {
            const XmlElement element = XmlElement::parse(package.read(*list), *list);
            m_document->pages[list.key()].annotations =
                Annotations::read(element, m_resources->objects());
        }
    }

    void countOtherBodies(const XmlElement &root)
    {
        int bodies = 0;
        for (const XmlElement &child : root.children)
            bodies += child.is("DocBody") ? 1 : 0;
        if (bodies > 1)
            m_document->unsupported[Wording::tr("同一文件中的其他文档")] = bodies - 1;
    }

    std::shared_ptr<Document> m_document;
    std::optional<ResourceReader> m_resources;
    std::optional<PageReader> m_pages;
    QHash<QString, int> m_pageIndexes;
};

} // namespace

std::shared_ptr<const Document> read(const QString &fileName, QString *error)
{
    error->clear();
    try {
        return DocumentReader(fileName).read();
    } catch (const Fault &fault) {
        *error = fault.message;
        return nullptr;
    }
}

} // namespace Ofd
