// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/RoundedMenu.h"

#include "toolbar/description/Names.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/widgets/Composition.h"

#include <QDeadlineTimer>
#include <QMenu>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionMenuItem>
#include <QToolBar>
#include <QToolButton>

#include <chrono>
#include <cmath>

namespace {

constexpr double designRadius = 4.0;

} // namespace

/** Qt polishes a menu before it makes its window, which stays opaque if it is made so. */
class RoundedMenu::PolishWatch : public QObject
{
public:
    static PolishWatch *instance()
    {
        // Never destroyed: a menu may be, or be a child of, a static object.
        static auto *watch = new PolishWatch;
        return watch;
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Polish) {
            watched->removeEventFilter(this);
            dress(qobject_cast<QMenu *>(watched));
        }
        return false;
    }

private:
    void dress(QMenu *menu)
    {
        if (!menu->testAttribute(Qt::WA_WState_Created) && isComposed())
            new RoundedMenu(menu);
    }

    /** One answer for all menus that are polished in one go, as those of a toolbar are. */
    bool isComposed()
    {
        if (m_validity.hasExpired()) {
            m_isComposed = Composition::isActive();
            m_validity.setRemainingTime(std::chrono::milliseconds(20));
        }
        return m_isComposed;
    }

    bool m_isComposed = false;
    QDeadlineTimer m_validity;
};

void RoundedMenu::prepare(QMenu *menu)
{
    menu->installEventFilter(PolishWatch::instance());
}

void RoundedMenu::prepareExtensionOf(const QToolBar *bar)
{
    const auto *button =
        bar->findChild<QToolButton *>(Part::overflowButton, Qt::FindDirectChildrenOnly);
    if (QMenu *menu = button ? button->menu() : nullptr)
        prepare(menu);
}

RoundedMenu::RoundedMenu(QMenu *menu)
    : QObject(menu)
    , m_menu(menu)
{
    menu->setAttribute(Qt::WA_TranslucentBackground);
    menu->installEventFilter(this);
}

bool RoundedMenu::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
        appear();
        return false;
    case QEvent::Hide:
        m_shadow.reset();
        return false;
    case QEvent::Move:
    case QEvent::Resize:
        if (m_shadow)
            m_shadow->follow();
        return false;
    case QEvent::Paint:
        paint(static_cast<QPaintEvent *>(event));
        return true;
    default:
        return false;
    }
}

void RoundedMenu::appear()
{
    m_radius = designRadius * ScreenDensity::scale(m_menu);
    // What composed when the menu was polished may have ended.
    m_isComposed = Composition::isActive();
    if (!m_isComposed || !Composition::lacksShadows())
        return;

    m_shadow = std::make_unique<MenuShadow>(m_menu, m_radius);
    m_shadow->appear();
    m_menu->raise();
}

void RoundedMenu::paint(QPaintEvent *event)
{
    // Qt no longer does this for a translucent window, and not every sheet has a ground for menus.
    QPainter(m_menu).fillRect(event->rect(), m_menu->palette().brush(m_menu->backgroundRole()));
    // The menu's own handling of the event, which is no longer sent to it.
    QObject *receiver = m_menu;
    receiver->event(event);
    if (m_isComposed)
        roundCorners(event->region());
}

void RoundedMenu::roundCorners(const QRegion &exposed)
{
    const QRect panel = m_menu->rect();
    const int side = static_cast<int>(std::ceil(m_radius));
    const QRegion corners =
        QRegion(panel) - panel.adjusted(side, 0, -side, 0) - panel.adjusted(0, side, 0, -side);
    if (!corners.intersects(exposed))
        return;

    QPainter painter(m_menu);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRegion(corners);
    QPainterPath outside; // Of the round panel, in the square one.
    outside.addRect(panel);
    outside.addRoundedRect(panel, m_radius, m_radius);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.fillPath(outside, Qt::black);

    const int line = m_menu->style()->pixelMetric(QStyle::PM_MenuPanelWidth, nullptr, m_menu);
    if (line <= 0)
        return;
    const double inset = line / 2.0;
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.setPen(QPen(frameColour(), line));
    painter.drawRoundedRect(QRectF(panel).adjusted(inset, inset, -inset, -inset), m_radius - inset,
                            m_radius - inset);
}

QColor RoundedMenu::frameColour() const
{
    // Only the style knows: it is the skin's, the scheme's, or that of a sheet of the host.
    constexpr int side = 32;
    QImage sample(side, side, QImage::Format_ARGB32_Premultiplied);
    sample.fill(m_menu->palette().color(m_menu->backgroundRole()));
    QStyleOptionMenuItem panel;
    panel.initFrom(m_menu);
    panel.rect = sample.rect();
    QStyleOptionFrame frame;
    frame.initFrom(m_menu);
    frame.rect = sample.rect();
    QPainter painter(&sample);
    m_menu->style()->drawPrimitive(QStyle::PE_PanelMenu, &panel, &painter, m_menu);
    m_menu->style()->drawPrimitive(QStyle::PE_FrameMenu, &frame, &painter, m_menu);
    return sample.pixelColor(0, side / 2);
}
