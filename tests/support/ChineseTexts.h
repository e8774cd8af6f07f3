// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QListWidget>
#include <QRegularExpression>
#include <QWidget>

/** The Chinese texts of a window and its parts, without those of @p left. */
inline QStringList chineseTexts(const QWidget &window, const QWidget *left = nullptr)
{
    static const QRegularExpression chinese("[\\x{3000}-\\x{9fff}\\x{ff00}-\\x{ffef}]");
    QStringList texts{window.windowTitle()};
    const QWidgetList parts = window.findChildren<QWidget *>();
    for (const QWidget *part : parts) {
        const QWidget *ancestor = part;
        while (ancestor && ancestor != left) // Menus are windows of their own.
            ancestor = ancestor->parentWidget();
        if (left && ancestor)
            continue;
        texts += {part->toolTip(),
                  part->accessibleName(),
                  part->accessibleDescription(),
                  part->property("text").toString(),
                  part->windowTitle(),
                  part->property("placeholderText").toString()};
        const auto *list = qobject_cast<const QListWidget *>(part);
        for (int row = 0; list && row < list->count(); ++row)
            texts.append(list->item(row)->text());
    }
    return texts.filter(chinese);
}
