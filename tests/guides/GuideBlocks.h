// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDomDocument>
#include <QList>
#include <QString>

/** One description from the guides. */
struct GuideBlock
{
    QString name;             ///< Such as "description-format-3".
    QString picture;          ///< Name of its picture; empty if it has none.
    QString error;            ///< Why it is not XML; empty if it is.
    QDomDocument description; ///< The completed document.
};

/** The descriptions below @p folder; fragments are completed to whole documents. */
QList<GuideBlock> guideBlocks(const QString &folder);

/** The object names of the controls in a description, without tabs and other containers. */
QStringList controlNames(const QDomElement &description);
