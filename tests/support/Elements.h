// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDomElement>
#include <QList>

/** All elements below one, in the order of the document. */
inline QList<QDomElement> elementsBelow(const QDomElement &parent)
{
    QList<QDomElement> elements;
    for (QDomElement child = parent.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement())
        elements += QList<QDomElement>{child} + elementsBelow(child);
    return elements;
}
