// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/ToolTipCard.h"

#include <QAction>
#include <QStringList>
#include <QWidget>

QString toolTipCard(const QString &tip)
{
    constexpr int lineLength = 10;
    if (!tip.contains(QLatin1Char(';')))
        return tip;

    const QStringList parts = tip.split(QLatin1Char(';'));
    const QString &title = parts.at(0);
    const QString &description = parts.at(1);

    QString card =
        QStringLiteral("<html><head/><body><p><span style=\"font-weight:600;\">%1</span></p>")
            .arg(title);
    for (int start = 0; start < description.size(); start += lineLength) {
        // The missing blank in "<pstyle" and the order of the closing tags are part of the format.
        card += QStringLiteral("<pstyle=\"line-height:16px\">%1</p>")
                    .arg(description.mid(start, lineLength));
    }
    return card + QStringLiteral("</body></head></html>");
}

void setToolTipCard(QObject *target, const QString &tip)
{
    if (tip.isEmpty())
        return;

    const QString card = toolTipCard(tip);
    if (auto *widget = qobject_cast<QWidget *>(target))
        widget->setToolTip(card);
    else if (auto *action = qobject_cast<QAction *>(target))
        action->setToolTip(card);
}

QString toolTipTitle(const QString &tip)
{
    return tip.section(QLatin1Char(';'), 0, 0);
}
