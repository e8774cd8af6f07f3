// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/ContextTab.h"

#include "toolbar/description/Names.h"
#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/Contrast.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/skin/Skin.h"

#include <QPainter>
#include <QStyleOptionButton>

#include <algorithm>

namespace {

constexpr double textContrast = 4.5;
constexpr double lineContrast = 3.0;
constexpr double tintContrast = 1.5; ///< Less is not seen as another colour.

// At 96 dpi, in pixels.
constexpr double lineWidth = 2.0;
constexpr double iconGap = 4.0;

/** How much of the tint there is in the ground of a tab. */
double shareOfTint(const QStyleOptionButton &option)
{
    if (!option.state.testFlag(QStyle::State_Enabled))
        return 0.08;
    const bool isHovered = option.state.testFlag(QStyle::State_MouseOver);
    if (option.state.testFlag(QStyle::State_Sunken))
        return 0.45;
    if (option.state.testFlag(QStyle::State_On))
        return isHovered ? 0.85 : 1.0;
    return isHovered ? 0.3 : 0.16;
}

} // namespace

ContextTab::ContextTab(const QString &context, const QColor &colour, const Appearance &appearance)
    : m_context(context)
    , m_colour(colour)
    , m_appearance(appearance)
{
}

void ContextTab::setContextShown(bool isShown)
{
    m_isContextShown = isShown;
    setVisible(m_isWanted);
}

void ContextTab::setVisible(bool isVisible)
{
    m_isWanted = isVisible;
    QPushButton::setVisible(isVisible && m_isContextShown);
}

QColor ContextTab::ground() const
{
    // The skin's sheet has put it into the palette.
    const QWidget *line = this;
    while (line && line->objectName() != Part::topLine)
        line = line->parentWidget();
    return line ? line->palette().color(line->backgroundRole()) : palette().color(QPalette::Window);
}

QRect ContextTab::bevel() const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    return style()->subElementRect(QStyle::SE_PushButtonBevel, &option, this);
}

void ContextTab::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const QColor around = ground();
    const QColor given = m_colour.isValid() ? m_colour : m_appearance.accent();
    const QColor tint = Contrast::standingOut(given, around, tintContrast);
    const QColor own = Contrast::mixed(around, tint, shareOfTint(option));
    QColor text = palette().color(QPalette::Active, QPalette::ButtonText);
    if (Contrast::ratio(text, own) < textContrast)
        text = Contrast::textOn(own);
    QColor line = Contrast::standingOut(tint, own, lineContrast);
    if (!isEnabled()) {
        text = Contrast::mixed(own, text, 0.45);
        line = Contrast::mixed(own, line, 0.45);
    }

    const QRectF place(bevel());
    const double radius = Skin::isLum() ? place.height() / 2 : 0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(own);
    painter.drawRoundedRect(place, radius, radius);
    drawLine(painter, place, line);
    QPalette colours = palette();
    colours.setColor(QPalette::ButtonText, text);
    drawLabel(painter, place.toRect(), colours);
}

void ContextTab::drawLine(QPainter &painter, const QRectF &bevel, const QColor &colour) const
{
    const double width = std::max(1.0, qRound(lineWidth * ScreenDensity::scale(this)) * 1.0);
    painter.setBrush(colour);
    if (!Skin::isLum()) {
        painter.drawRect(QRectF(bevel.left(), bevel.top(), bevel.width(), width));
        return;
    }
    // Below the text, between the round ends.
    const double inset = bevel.height() / 2;
    const QRectF line(bevel.left() + inset, bevel.bottom() - width, bevel.width() - 2 * inset,
                      width);
    painter.drawRoundedRect(line, width / 2, width / 2);
}

void ContextTab::drawLabel(QPainter &painter, const QRect &bevel, const QPalette &palette)
{
    constexpr int alignment = Qt::AlignCenter | Qt::TextShowMnemonic;
    QRect place = bevel;
    if (!icon().isNull()) {
        // The host has given the tab one by its name.
        const int gap =
            text().isEmpty() ? 0 : ScreenDensity::scaled(iconGap, ScreenDensity::factor(this));
        const int textWidth = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
        const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
        QRect both(QPoint(), QSize(iconSize().width() + gap + textWidth, bevel.height()));
        both.moveCenter(bevel.center());
        QRect first = both;
        first.setWidth(iconSize().width());
        QRect second = both;
        second.setLeft(both.right() + 1 - textWidth);
        icon().paint(&painter, QStyle::visualRect(layoutDirection(), both, first), Qt::AlignCenter,
                     mode, isChecked() ? QIcon::On : QIcon::Off);
        place = QStyle::visualRect(layoutDirection(), both, second);
    }
    painter.setFont(font());
    style()->drawItemText(&painter, place, alignment, palette, true, text(), QPalette::ButtonText);
}
