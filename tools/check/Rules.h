// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/check/DescriptionCheck.h"
#include "tools/check/SourceDocument.h"

/** Collects the findings of one document. */
class Findings
{
public:
    void note(const char *id, SourcePosition position, const QString &message)
    {
        add(Severity::Note, id, position, message);
    }
    void warn(const char *id, SourcePosition position, const QString &message)
    {
        add(Severity::Warning, id, position, message);
    }
    void fail(const char *id, SourcePosition position, const QString &message)
    {
        add(Severity::Error, id, position, message);
    }
    void add(Severity severity, const char *id, SourcePosition position, const QString &message)
    {
        m_all.append({severity, QLatin1String(id), position.line, position.column, message});
    }

    QVector<Finding> &all() { return m_all; }

private:
    QVector<Finding> m_all;
};

/** The rules by subject. Each takes a document with assigned roles. */
namespace Rules {

/** Sections, and elements in places where nothing or something else is built from them. */
void checkStructure(const SourceDocument &document, Findings &findings);
/** Single attributes, and attributes that exclude or need each other. */
void checkAttributes(const SourceDocument &document, Findings &findings);
/** The attribute index of menus and combo boxes. */
void checkIndexes(const SourceDocument &document, Findings &findings);
/** Orders in which controls of a row give way. */
void checkShrinking(const SourceDocument &document, Findings &findings);
/** Names that occur more than once. */
void checkNames(const SourceDocument &document, Findings &findings);
/** Names that decide what a control does, by themselves or by a word in them. */
void checkReservedNames(const SourceDocument &document, Findings &findings);
/** Exclusive groups and their checked members. */
void checkGroups(const SourceDocument &document, Findings &findings);
void checkIcons(const SourceDocument &document, const CheckOptions &options, Findings &findings);
/** Tooltips of two parts, whose lines have a fixed length. */
void checkToolTips(const SourceDocument &document, const CheckOptions &options, Findings &findings);
void checkShortcuts(const SourceDocument &document, Findings &findings);
/** Letters that cannot be typed, or that lead to two of the controls that are shown together. */
void checkKeyTips(const SourceDocument &document, Findings &findings);
/** Controls that may exist only once, or need certain children. */
void checkSpecialControls(const SourceDocument &document, Findings &findings);

} // namespace Rules
