// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/check/Role.h"

#include <QString>
#include <QStringList>

/** The elements and attributes of the format, and where each of them is used. */
namespace Vocabulary {

/** How the parser reads an attribute. */
enum class AttributeKind
{
    Unknown,
    Text,
    Number,
    TrueOnly,  ///< Off by default; only "true" changes it.
    FalseOnly, ///< On by default; only "false" changes it.
};

/** Determines the kind by parsing an element with the attribute. */
AttributeKind attributeKind(const QString &name);

/** All attributes that the parser reads. */
const QStringList &attributes();
/** Whether a control of that role uses the attribute. */
bool usesAttribute(Role role, const QString &name);
/** The attributes that a control of that role uses. */
QStringList usedAttributes(Role role);
/** Whether the attribute is meant for other programs, such as an editor with the schema. */
bool isForeignAttribute(Role role, const QString &name);
/** Whether the attribute is common in existing descriptions, although no control uses it. */
bool isFormerAttribute(const QString &name);

/** All elements that may occur below a section. */
QStringList elements();
/** The elements that belong below an element of that role. */
QStringList elementsBelow(Role parent);
/** The role of an element below one of that role. */
Role roleBelow(Role parent, const QString &tag);

QStringList sections();
Role sectionRole(const QString &tag);

/** Whether the children of that role are the entries of a menu. */
bool holdsEntries(Role role);
/** Whether nothing is built from an element of that role. */
bool isLeftOut(Role role);

/** The name of a control of that role with its article, for messages. */
QString noun(Role role);

} // namespace Vocabulary
