// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** A zoom mode by its name: "vzmode_fitpage" and its like, or a percentage as "vzmode_125p". */
class ZoomMode
{
public:
    enum Kind
    {
        Percent,
        FitPage,
        FitWidth,
        FitHeight
    };

    ZoomMode() = default;
    explicit ZoomMode(qreal percent);

    /** An invalid mode for a name that says nothing. "vzmode_original" is a kind of 100 percent. */
    static ZoomMode fromName(const QString &name);
    /** The next larger or smaller mode of the usual steps, seen from a percentage. */
    static ZoomMode next(qreal percent, bool larger);

    bool isValid() const { return m_percent > 0; }
    Kind kind() const { return m_kind; }
    qreal percent() const { return m_percent; }
    QString name() const { return m_name; }

private:
    Kind m_kind = Percent;
    qreal m_percent = 0; ///< Of a fitting mode any positive number.
    QString m_name;
};
