// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/PlaceholderTint.h"

#include <QEvent>
#include <QLineEdit>

namespace {

// Black on white keeps a contrast of 5.7:1.
constexpr qreal opacity = 0.6;

} // namespace

PlaceholderTint::PlaceholderTint(QLineEdit *field)
    : QObject(field)
{
    field->installEventFilter(this);
}

bool PlaceholderTint::eventFilter(QObject *watched, QEvent *event)
{
    auto *field = qobject_cast<QLineEdit *>(watched);
    if (field && event->type() == QEvent::PaletteChange)
        apply(field);
    return false;
}

void PlaceholderTint::apply(QLineEdit *field)
{
    QPalette palette = field->palette();
    bool isRight = true;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QColor colour = palette.color(group, QPalette::Text);
        colour.setAlphaF(colour.alphaF() * opacity);
        isRight = isRight && palette.color(group, QPalette::PlaceholderText) == colour;
        palette.setColor(group, QPalette::PlaceholderText, colour);
    }
    // Setting it changes the palette once more.
    if (!isRight)
        field->setPalette(palette);
}
