// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

/** How much a finding matters to the author of a description. */
enum class Severity
{
    Note,    ///< Harmless: what is described works, though not by this part of the text.
    Warning, ///< The control is there, but hardly as it was meant.
    Error,   ///< Something that is described will not be in the toolbar.
};

/** One thing about a description that the library passes over in silence. */
struct Finding
{
    Severity severity = Severity::Note;
    QString id; ///< Stable name of the rule, such as "unknown-attribute".
    int line = 0;
    int column = 0;  ///< Both count from 1.
    QString message; ///< One sentence: what the library does, and how to mend it.
};

struct CheckOptions
{
    /** The skin whose icons count, "marodi" or "lum"; empty to accept the icons of either. */
    QString skin;
};

/**
 * What the library would pass over in the description of a toolbar, in the order of the text.
 *
 * Needs no application object and no window. Icons are looked up among the resources of the
 * library, which must be linked or loaded.
 *
 * @param description The document as it stands in its file.
 */
QVector<Finding> checkDescription(const QByteArray &description, const CheckOptions &options = {});
