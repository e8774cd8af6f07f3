// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/ButtonRing.h"

#include "toolbar/description/Names.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/skin/Skin.h"

#include <QEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyleOptionButton>

namespace {

constexpr double cornerRadius = 3.0;

/** What lights up under the pointer: the button without its margins. */
QRect hoverRect(const QWidget *button)
{
    const auto *pushButton = qobject_cast<const QPushButton *>(button);
    if (!pushButton)
        return button->rect(); // The skins give no other button margins.

    QStyleOptionButton option;
    option.initFrom(pushButton);
    return pushButton->style()->subElementRect(QStyle::SE_PushButtonBevel, &option, pushButton);
}

/** The tabs of lum are round from top to bottom. */
bool isPill(const QWidget *button)
{
    return Skin::isLum() && button->property(Property::module).toString() == Module::tabButton;
}

} // namespace

ButtonRing::ButtonRing(QWidget *button, double lineWidth)
    : Panel(button->parentWidget())
    , m_button(button)
    , m_lineWidth(lineWidth)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(button->geometry());
    button->installEventFilter(this);
    connect(button, &QObject::destroyed, this, &QObject::deleteLater);
    setVisible(button->isVisible());
    raise();
}

bool ButtonRing::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
        if (m_button)
            setGeometry(m_button->geometry());
        break;
    case QEvent::Show:
    case QEvent::Hide:
        setVisible(event->type() == QEvent::Show);
        break;
    default:
        break;
    }
    return Panel::eventFilter(watched, event);
}

void ButtonRing::paintEvent(QPaintEvent *)
{
    if (!m_button)
        return;
    const double line = m_lineWidth * ScreenDensity::scale(this);
    const double inset = line / 2;
    const QRectF outline = QRectF(hoverRect(m_button)).adjusted(inset, inset, -inset, -inset);
    const double corner = cornerRadius * ScreenDensity::scale(this);
    const double radius = isPill(m_button) ? outline.height() / 2 : corner;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // The colour of the button's text is seen on the button's ground, whatever the skin.
    painter.setPen(QPen(m_button->palette().color(QPalette::ButtonText), line));
    painter.drawRoundedRect(outline, radius, radius);
}
