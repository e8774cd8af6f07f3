// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class QToolBar;

/**
 * Which quick access buttons the user wants to see, in the form in which the host stores it: short
 * names, each followed by ";". Empty means that the description decides.
 */
class QuickAccessSetting
{
public:
    explicit QuickAccessSetting(const QString &stored);

    /** The name without its "qbar_f_", "qbar_e_" or "qbar_"; null for a name with none of them. */
    static QString shortName(const QString &objectName);

    /** The stored form of the buttons shown; names without a short form are left out. */
    static QString join(const QStringList &objectNames);

    /** Whether a button is to be shown, given what its description says. */
    bool isShown(const QString &objectName, bool describedVisible) const;

private:
    bool m_isSet;
    QStringList m_shortNames;
};

/** Shows the quick access bar while it has a button to show. */
void showWhileUsed(QToolBar *bar);
