// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDomDocument>
#include <QList>
#include <QString>

/** One description out of the guides. */
struct GuideBlock
{
    QString name;             ///< Such as "description-format-3".
    QString picture;          ///< Name of its picture; empty if it has none.
    QString error;            ///< Why it is no XML; empty if it is.
    QDomDocument description; ///< The whole document that the block stands in.
};

/** The descriptions below @p folder, pieces of one completed to whole documents. */
QList<GuideBlock> guideBlocks(const QString &folder);

/** The object names of the controls in a description, without tabs and what only holds others. */
QStringList controlNames(const QDomElement &description);
