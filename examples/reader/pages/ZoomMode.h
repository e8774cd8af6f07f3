// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/** A zoom mode: a fitting one such as "vzmode_fitpage", or a percentage such as "vzmode_125p". */
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

    /** The mode of that name; invalid for an unknown name. "vzmode_original" means 100 percent. */
    static ZoomMode fromName(const QString &name);
    /** The modes that are not named by their percentage. */
    static QStringList names();
    /** The next larger or smaller zoom step from a percentage. */
    static ZoomMode next(qreal percent, bool larger);

    bool isValid() const { return m_percent > 0; }
    Kind kind() const { return m_kind; }
    qreal percent() const { return m_percent; }
    QString name() const { return m_name; }
    /** The one of names() that this is, or else @p other. */
    QString knownName(const QString &other) const;

private:
    Kind m_kind = Percent;
    qreal m_percent = 0; ///< Any positive number for a fitting mode.
    QString m_name;
};
