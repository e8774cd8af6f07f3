// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaType>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <optional>

/** A place in a document, in page units. */
struct PagePlace
{
    int page = -1; ///< Counted from 0 in the file; -1 for none.
    std::optional<qreal> left;
    std::optional<qreal> top;
    std::optional<qreal> percent;
};

Q_DECLARE_METATYPE(PagePlace)

/** An area of a page that does something when it is clicked. */
struct PageLink
{
    QRectF area;         ///< In page units.
    PagePlace place;     ///< Where it leads in the document.
    QString address;     ///< What it opens outside; empty if nothing.
    int attachment = -1; ///< The attached file that it opens, by its index; -1 for none.

    bool isValid() const { return place.page >= 0 || attachment >= 0 || !address.isEmpty(); }
};
