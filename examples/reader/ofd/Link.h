// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>

#include <optional>

namespace Ofd {

/** A place in a document. */
struct Destination
{
    QString page; ///< The identifier of the page.
    std::optional<qreal> left;
    std::optional<qreal> top;
    std::optional<qreal> zoom; ///< 1 is the true size.
};

/** An area of a page that leads to a place, an address or an attached file by a click. */
struct Link
{
    enum Kind
    {
        ToPlace,
        ToBookmark,
        ToAddress,
        ToAttachment
    };

    QRectF area; ///< In the coordinates of the page.
    Kind kind = ToPlace;
    Destination destination;
    QString target; ///< A bookmark's name, an address or an attachment's identifier.
};

} // namespace Ofd
