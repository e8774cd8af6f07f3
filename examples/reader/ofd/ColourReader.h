// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/XmlElement.h"

#include <QBrush>
#include <QHash>
#include <QMap>

#include <optional>

namespace Ofd {

/** Reads colours and gradients, in the colour spaces of the document. */
class ColourReader
{
public:
    explicit ColourReader(QMap<QString, int> &unsupported)
        : m_unsupported(unsupported)
    {
    }

    void addSpace(const XmlElement &space);
    void setDefaultSpace(const QString &id) { m_defaultSpace = id; }

    /** The child element as a brush; nothing if it is missing or of an unsupported kind. */
    std::optional<QBrush> read(const XmlElement &parent, const char *name) const;

private:
    struct Space
    {
        QString type = QStringLiteral("RGB");
        int bits = 8;
        QVector<QVector<qreal>> palette;
    };

    QColor colourOf(const XmlElement &element) const;
    QColor colourOf(const QVector<qreal> &values, const Space &space) const;
    QBrush gradientOf(const XmlElement &shade, bool isRadial) const;
    void addStops(QGradient &gradient, const XmlElement &shade) const;

    QMap<QString, int> &m_unsupported;
    QHash<QString, Space> m_spaces;
    QString m_defaultSpace;
};

} // namespace Ofd
