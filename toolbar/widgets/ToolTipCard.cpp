#include "toolbar/widgets/ToolTipCard.h"

#include <QStringList>

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

QString toolTipTitle(const QString &tip)
{
    return tip.section(QLatin1Char(';'), 0, 0);
}
