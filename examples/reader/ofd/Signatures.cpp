// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Signatures.h"

#include "ofd/Extras.h"
#include "ofd/Fault.h"
#include "ofd/Limits.h"
#include "ofd/Picture.h"
#include "ofd/Seal.h"
#include "ofd/Values.h"
#include "ofd/Wording.h"

namespace Ofd {

namespace {

void leaveOut(Document &document)
{
    document.unsupported.add(Wording::tr("电子签章"), 1);
}

/** Puts the seals of signatures on the pages. */
class SealReader
{
public:
    SealReader(const QHash<QString, int> &pages, Document &document)
        : m_pages(pages)
        , m_document(document)
    {
    }

    /** Throws a Fault for a seal that cannot be drawn; only that it does is of interest. */
    void read(const QString &path, int signature)
    {
        const Package &package = *m_document.package;
        const XmlElement root = XmlElement::parse(package.read(path), path);
        const XmlElement *information = root.child("SignedInfo");
        if (!information || !information->child("StampAnnot"))
            return;
        Stamp stamp;
        stamp.signature = signature;
        setPicture(pictureOf(root, *information, path), stamp);
        for (const XmlElement &child : information->children) {
            if (child.is("StampAnnot"))
                place(child, stamp);
        }
    }

private:
    QByteArray pictureOf(const XmlElement &root, const XmlElement &information,
                         const QString &path) const
    {
        const Package &package = *m_document.package;
        try {
            // What was signed comes first, because the file of the seal may have been replaced.
            const QString value = root.childText("SignedValue");
            return SealedValue::read(Der::read(Signatures::readNamed(package, value, path)))
                .seal.picture;
        } catch (const Fault &) {
            const XmlElement *seal = information.child("Seal");
            const QString file = seal ? seal->childText("BaseLoc") : QString();
            return Seal::read(Der::read(Signatures::readNamed(package, file, path))).picture;
        }
    }

    void setPicture(const QByteArray &picture, Stamp &stamp)
    {
        m_bytes += picture.size();
        if (m_bytes > Limits::sealBytes)
            throw Fault();
        if (picture.startsWith("PK")) {
            stamp.drawing = drawingOf(picture);
            return;
        }
        if (!Picture::faultOf(picture).isEmpty())
            throw Fault();
        // No entry of an archive may have a colon in its name.
        const QString name = QStringLiteral("seal:%1").arg(stamp.signature);
        m_document.package->add(name, picture);
        m_document.resources.images.insert(name, name);
        Image image;
        image.resource = name;
        stamp.object.content = image;
    }

    std::shared_ptr<const Document> drawingOf(const QByteArray &picture)
    {
        auto known = m_drawings.constFind(picture);
        if (known == m_drawings.constEnd()) {
            if (m_drawings.size() >= Limits::sealDrawings)
                throw Fault();
            QString error;
            known = m_drawings.insert(picture, Ofd::read(picture, &error));
        }
        if (!*known)
            throw Fault();
        return *known;
    }

    void place(const XmlElement &annotation, Stamp stamp)
    {
        stamp.object.boundary = Values::box(annotation.attribute("Boundary"));
        const int page = m_pages.value(annotation.attribute("PageRef"), -1);
        if (stamp.object.boundary.isEmpty() || page < 0
            || m_document.stamps.value(page).size() >= Limits::sealsPerPage)
            throw Fault();
        const QRectF clip = Values::box(annotation.attribute("Clip"));
        if (!clip.isEmpty()) {
            Clip visible;
            visible.path.addRect(clip.translated(stamp.object.boundary.topLeft()));
            stamp.object.clips.append(visible);
        }
        m_document.stamps[page].append(stamp);
    }

    const QHash<QString, int> &m_pages;
    Document &m_document;
    qint64 m_bytes = 0;
    QHash<QByteArray, std::shared_ptr<const Document>> m_drawings;
};

std::optional<XmlElement> listOf(const XmlElement &body, const QString &from, Document &document)
{
    try {
        return Extras::namedFile(*document.package, body, "Signatures", from,
                                 &document.signatures.file);
    } catch (const Fault &) {
        leaveOut(document);
        return std::nullopt;
    }
}

} // namespace

void Signatures::read(const XmlElement &body, const QString &from, const QHash<QString, int> &pages,
                      Document &document)
{
    const std::optional<XmlElement> list = listOf(body, from, document);
    if (!list)
        return;
    SealReader seals(pages, document);
    for (const XmlElement &element : list->children) {
        if (!element.is("Signature") || document.signatures.entries.size() >= Limits::signatures)
            continue;
        const int signature = int(document.signatures.entries.size());
        const QString location = element.attribute("BaseLoc");
        document.signatures.entries.append(location);
        try {
            const QString path = document.package->find(document.signatures.file, location);
            document.signatures.entries.last() = path.isEmpty() ? location : path;
            seals.read(document.signatures.entries.last(), signature);
        } catch (const Fault &) {
            leaveOut(document);
        }
    }
}

QByteArray Signatures::readNamed(const Package &package, const QString &location,
                                 const QString &from)
{
    const QString path = package.find(from, location);
    if (path.isEmpty())
        throw Fault{Wording::tr("包内文件“%1”缺失或已损坏。").arg(location)};
    QByteArray bytes = package.read(path);
    if (bytes.size() > Limits::sealBytes)
        throw Fault{Wording::tr("签名数据过大。")};
    return bytes;
}

} // namespace Ofd
