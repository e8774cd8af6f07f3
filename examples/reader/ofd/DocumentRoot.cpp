// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/DocumentRoot.h"

#include "ofd/Fault.h"

namespace Ofd {

namespace {

bool isBodyOf(const XmlElement &body, const Document &document)
{
    try {
        const QString root = body.childText("DocRoot");
        return document.package->find(QStringLiteral("OFD.xml"), root) == document.path;
    } catch (const Fault &) {
        return false; // Of another document, which does not matter here.
    }
}

} // namespace

DocumentRoot::DocumentRoot(const Document &document)
    : element(XmlElement::parse(document.package->read(document.path), document.path))
{
    readPages();
    const QString entryPoint = QStringLiteral("OFD.xml");
    const XmlElement entry = XmlElement::parse(document.package->read(entryPoint), entryPoint);
    for (const XmlElement &body : entry.children)
        isSigned = isSigned || (body.child("Signatures") && isBodyOf(body, document));
}

void DocumentRoot::readPages()
{
    const XmlElement *pages = element.child("Pages");
    if (!pages)
        return;
    for (const XmlElement &page : pages->children) {
        pageIndexes.insert(page.attribute("ID"), int(pageIds.size()));
        pageIds.append(page.attribute("ID"));
    }
}

} // namespace Ofd
