// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

/** The importance of a finding for the author of a description. */
enum class Severity
{
    Note,    ///< Harmless: this part of the description has no effect, or no bad one.
    Warning, ///< The control exists, but probably not as intended.
    Error,   ///< Something described is missing in the toolbar.
};

/** One mistake or oddity in a description that the library ignores without a message. */
struct Finding
{
    Severity severity = Severity::Note;
    QString id; ///< Stable name of the rule, such as "unknown-attribute".
    int line = 0;
    int column = 0;  ///< Both count from 1.
    QString message; ///< One sentence: the effect, and how to correct it.
};

struct CheckOptions
{
    /** The skin whose icons are accepted, "marodi" or "lum"; empty to accept those of both. */
    QString skin;
    bool hasToolTipWords = false; ///< The host sets the skin key "tooltipwords".
};

/**
 * Checks a description; returns the findings in the order of the text.
 *
 * Needs neither a QCoreApplication nor a window. Icons are looked up in the resources of the
 * library, which must be linked or loaded.
 *
 * @param description The content of the file.
 */
QVector<Finding> checkDescription(const QByteArray &description, const CheckOptions &options = {});
