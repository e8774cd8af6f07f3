// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/DocumentRoot.h"

namespace Ofd {

DocumentRoot::DocumentRoot(const Document &document)
    : element(XmlElement::parse(document.package->read(document.path), document.path))
{
    readPages();
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
