// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Document.h"
#include "ofd/XmlElement.h"

namespace Ofd {

/** The root element of an opened document, for what is read or written after its pages. */
struct DocumentRoot
{
    /** Throws a Fault if the entry cannot be read. */
    explicit DocumentRoot(const Document &document);

    XmlElement element;
    QStringList pageIds;
    QHash<QString, int> pageIndexes; ///< By identifier.

private:
    void readPages();
};

} // namespace Ofd
