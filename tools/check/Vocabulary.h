// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/check/Role.h"

#include <QString>
#include <QStringList>

/** The words of the format: which elements and attributes there are, and where each has a use. */
namespace Vocabulary {

/** How the library's parser reads an attribute. */
enum class AttributeKind
{
    Unknown,
    Text,
    Number,
    TrueOnly,  ///< Off by default; only "true" changes it.
    FalseOnly, ///< On by default; only "false" changes it.
};

/** Asks the parser itself. */
AttributeKind attributeKind(const QString &name);

/** All attributes that the parser reads. */
const QStringList &attributes();
/** Whether a control of that role makes any use of the attribute. */
bool usesAttribute(Role role, const QString &name);
/** The attributes that a control of that role makes use of. */
QStringList usedAttributes(Role role);
/** Whether the attribute is there for other readers, such as an editor that knows the schema. */
bool isForeignAttribute(Role role, const QString &name);
/** Whether descriptions carry the attribute by old habit, though no control looks at it. */
bool isFormerAttribute(const QString &name);

/** All elements that have a place somewhere below a section. */
QStringList elements();
/** The elements that belong below one of that role. */
QStringList elementsBelow(Role parent);
/** What becomes of an element below one of that role. */
Role roleBelow(Role parent, const QString &tag);

QStringList sections();
Role sectionRole(const QString &tag);

/** Whether the children of that role are the entries of a menu. */
bool holdsEntries(Role role);
/** Whether nothing is built from an element of that role. */
bool isLeftOut(Role role);

/** What a control of that role is called in a sentence, with its article. */
QString noun(Role role);

} // namespace Vocabulary
