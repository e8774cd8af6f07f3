// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Objects.h"
#include "ofd/XmlElement.h"

#include <QHash>
#include <QMap>

#include <functional>
#include <optional>

namespace Ofd {

/** Reads colours of all kinds, in the colour spaces of the document. */
class ColourReader
{
public:
    explicit ColourReader(QMap<QString, int> &unsupported)
        : m_unsupported(unsupported)
    {
    }

    using CellReader = std::function<Objects(const XmlElement &)>;
    /** The reader of the objects in patterns, which are left out without it. */
    void setCellReader(CellReader reader) { m_readCell = std::move(reader); }

    void addSpace(const XmlElement &space);
    void setDefaultSpace(const QString &id) { m_defaultSpace = id; }

    /** The child element as a paint, which is no brush if it cannot be painted. */
    std::optional<Paint> read(const XmlElement &parent, const char *name) const;

private:
    struct Space
    {
        QString type = QStringLiteral("RGB");
        int bits = 8;
        QVector<QVector<qreal>> palette;
    };

    QColor colourOf(const XmlElement &element) const;
    QColor colourOf(const QVector<qreal> &values, const Space &space) const;
    Paint flat(const XmlElement &colour) const;
    Paint shadingOf(const XmlElement &colour) const;
    Paint patternOf(const XmlElement &colour) const;
    /** Counts what cannot be painted, and returns the flat colour, if there is one. */
    Paint without(const XmlElement &colour, const QString &kind) const;

    QMap<QString, int> &m_unsupported;
    QHash<QString, Space> m_spaces;
    QString m_defaultSpace;
    CellReader m_readCell;
};

} // namespace Ofd
