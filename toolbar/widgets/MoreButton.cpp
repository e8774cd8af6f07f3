// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/MoreButton.h"

#include "toolbar/description/Names.h"
#include "toolbar/skin/ScreenDensity.h"

#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionToolButton>
#include <QStylePainter>

MoreButton::MoreButton(QMenu *menu, QWidget *parent)
    : QToolButton(parent)
{
    setObjectName(Name::rowMore);
    setAutoRaise(true);
    setPopupMode(InstantPopup);
    setMenu(menu);
    showTexts();
}

void MoreButton::showTexts()
{
    setToolTip(tr("更多"));
    setAccessibleName(tr("更多"));
}

void MoreButton::changeEvent(QEvent *event)
{
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        showTexts();
}

void MoreButton::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        showMenu();
        break;
    default:
        QToolButton::keyPressEvent(event);
    }
}

void MoreButton::paintEvent(QPaintEvent *)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    // The dots say already that there is more.
    option.features &= ~QStyleOptionToolButton::ToolButtonFeatures(QStyleOptionToolButton::HasMenu);
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);

    const double scale = ScreenDensity::scale(this);
    const double radius = 1.5 * scale;
    const double distance = 6.0 * scale;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::ButtonText));
    const QPointF middle = QRectF(rect()).center();
    for (const int step : {-1, 0, 1})
        painter.drawEllipse(middle + QPointF(step * distance, 0), radius, radius);
}
