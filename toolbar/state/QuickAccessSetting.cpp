// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/state/QuickAccessSetting.h"

#include "toolbar/description/Names.h"

#include <QAction>
#include <QToolBar>

#include <algorithm>

namespace {

constexpr QLatin1Char separator(';');

} // namespace

QuickAccessSetting::QuickAccessSetting(const QString &stored)
    : m_isSet(!stored.isEmpty())
    , m_shortNames(stored.split(separator))
{
}

QString QuickAccessSetting::shortName(const QString &objectName)
{
    for (const QLatin1String prefix : {Prefix::quickFile, Prefix::quickEdit, Prefix::quick}) {
        if (objectName.startsWith(prefix)) {
            // Every occurrence goes, not just the first: stored settings were made that way.
            QString name = objectName;
            return name.remove(prefix);
        }
    }
    return QString();
}

QString QuickAccessSetting::join(const QStringList &objectNames)
{
    QString stored;
    for (const QString &objectName : objectNames) {
        const QString name = shortName(objectName);
        if (!name.isNull())
            stored += name + separator;
    }
    return stored;
}

bool QuickAccessSetting::isShown(const QString &objectName, bool describedVisible) const
{
    const QString name = shortName(objectName);
    return m_isSet && !name.isNull() ? m_shortNames.contains(name) : describedVisible;
}

void showWhileUsed(QToolBar *bar)
{
    const QList<QAction *> buttons = bar->actions();
    bar->setVisible(std::any_of(buttons.begin(), buttons.end(),
                                [](const QAction *button) { return button->isVisible(); }));
}
