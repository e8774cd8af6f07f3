// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/description/Controller.h"
#include "tools/check/Role.h"

#include <QByteArray>
#include <QString>
#include <QVector>

#include <optional>
#include <vector>

/** A position in the text; line and column count from 1. */
struct SourcePosition
{
    int line = 1;
    int column = 1;
};

struct SourceAttribute
{
    QString name;
    QString value;
    SourcePosition position;
};

/** One element of a description with its position and the record that the library reads. */
struct SourceElement
{
    QString tag;
    SourcePosition position;
    QVector<SourceAttribute> attributes;
    std::optional<SourcePosition> strayText; ///< The position of text directly inside the element.
    int parent = -1;                         ///< Index in the document's list of elements.
    QVector<int> children;
    Controller record; ///< As read by the library's parser, without section and children.
    Role role = Role::Nothing;

    bool has(const char *attribute) const { return find(attribute) != nullptr; }
    /** The attribute of that name; null if the element has none. */
    const SourceAttribute *find(const char *attribute) const;
    /** The position of the attribute; that of the element if it has no such attribute. */
    SourcePosition positionOf(const char *attribute) const;
    /** The position of the attribute that names the element; that of the element without one. */
    SourcePosition namePosition() const { return positionOf(has("action") ? "action" : "name"); }
};

struct SourceFault
{
    QString message;
    SourcePosition position;
    bool isEncoding = false;
};

/** A description with the positions of its elements, in the order of the text; the root is first.
 */
struct SourceDocument
{
    std::vector<SourceElement> elements;
    std::optional<SourceFault> fault; ///< Why there are no elements.

    const SourceElement &at(int index) const { return elements[static_cast<std::size_t>(index)]; }
    const SourceElement &parentOf(const SourceElement &element) const { return at(element.parent); }
    /** Whether the element or one around it has the role. */
    bool isBelow(const SourceElement &element, Role role) const;
};

SourceDocument readDocument(const QByteArray &description);
