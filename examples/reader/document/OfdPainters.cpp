// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/OfdPainters.h"

#include <QThread>
#include <QThreadStorage>

OfdPainters::OfdPainters(const std::shared_ptr<const Ofd::Document> &document)
    : m_document(document)
    , m_own(document)
    , m_home(QThread::currentThread())
{
}

Ofd::Painter &OfdPainters::here()
{
    if (QThread::currentThread() == m_home)
        return m_own;
    // Deleted at the end of the thread, as the fonts require.
    static QThreadStorage<std::shared_ptr<Ofd::Painter>> painters;
    std::shared_ptr<Ofd::Painter> &painter = painters.localData();
    if (!painter || &painter->document() != m_document.get())
        painter = std::make_shared<Ofd::Painter>(m_document);
    return *painter;
}
