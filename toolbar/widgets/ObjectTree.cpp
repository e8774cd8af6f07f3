// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/ObjectTree.h"

#include <QObject>

bool isChildren(QObject *ancestor, QObject *object)
{
    if (!ancestor || !object)
        return false;

    const QObjectList children = ancestor->children();
    for (QObject *child : children) {
        if (child == object || isChildren(child, object))
            return true;
    }
    return false;
}
