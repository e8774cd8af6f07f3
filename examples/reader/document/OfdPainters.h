// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Painter.h"

class QThread;

/** The painters of one document: a thread must not use the fonts of another one. */
class OfdPainters
{
public:
    explicit OfdPainters(const std::shared_ptr<const Ofd::Document> &document);

    const std::shared_ptr<const Ofd::Document> &document() const { return m_document; }
    /** The painter of the calling thread. A thread keeps it until it paints another document. */
    Ofd::Painter &here();

private:
    std::shared_ptr<const Ofd::Document> m_document;
    Ofd::Painter m_own; ///< Of the thread that opened the document, which closes it as well.
    QThread *m_home;
};
