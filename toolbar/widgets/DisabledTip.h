// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/widgets/ToolTipCard.h"

#include <QObject>

/**
 * Gives a widget or an action another tooltip while it is disabled, an action another status tip,
 * too. Whoever sets a tooltip in the meantime sets the one to come back.
 */
class DisabledTip : public QObject
{
    Q_OBJECT

public:
    /** @param control a widget or an action, which may have got another one before */
    static void give(QObject *control, const QString &tip, CardLines lines);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /** A text of the control's that is replaced. */
    struct Replaced
    {
        const char *property;
        QString whileDisabled;
        QString usual;
        QString shown; ///< By this object, or before it was made.
    };

    explicit DisabledTip(QObject *control);

    void follow();
    void follow(Replaced &text);

    QObject *m_control;
    Replaced m_toolTip{"toolTip", {}, {}, {}};
    Replaced m_statusTip{"statusTip", {}, {}, {}};
};
