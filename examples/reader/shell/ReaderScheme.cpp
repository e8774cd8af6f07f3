// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/ReaderScheme.h"

#include <QApplication>
#include <QPalette>

namespace {

const QString prefix = QStringLiteral("r_scheme_");
const QString dark = QStringLiteral("dark");
const QString contrast = QStringLiteral("contrast");

QPalette darkPalette(const QColor &window, const QColor &base)
{
    QPalette palette(window);
    const QColor text(0xF2, 0xF2, 0xF2);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x8C, 0x8C, 0x8C));
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Highlight, QColor(0x5F, 0xC5, 0xFF));
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::Link, QColor(0x5F, 0xC5, 0xFF));
    return palette;
}

} // namespace

QStringList ReaderScheme::names()
{
    return {QStringLiteral("light"), dark, contrast, QStringLiteral("system")};
}

QStringList ReaderScheme::commands()
{
    QStringList commands = names();
    for (QString &command : commands)
        command.prepend(prefix);
    return commands;
}

QString ReaderScheme::ofCommand(const QString &command)
{
    return command.mid(prefix.size());
}

void ReaderScheme::applyPalette(const QString &name)
{
    // What the reader began with is the system's.
    static const QPalette own = QApplication::palette();
    QPalette palette = own;
    if (name == dark)
        palette = darkPalette(QColor(0x2B, 0x2B, 0x2B), QColor(0x1C, 0x1C, 0x1C));
    else if (name == contrast)
        palette = darkPalette(QColor(0x14, 0x14, 0x14), Qt::black);
    if (palette != QApplication::palette())
        QApplication::setPalette(palette);
}
