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
#include <cstdlib>

namespace {

constexpr double lineContrast = 3.0;

// At 96 dpi, in pixels.
constexpr double lineWidth = 2.0;
constexpr double iconGap = 4.0;
constexpr double endWidth = 10.0; ///< Beside the text, in lum.

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

/** A tint that can hardly be told from the ground shows by its lightness. */
QColor tellable(const QColor &tint, const QColor &ground, const QColor &end)
{
    constexpr int leastDistance = 90;
    const int distance = std::abs(tint.red() - ground.red())
                         + std::abs(tint.green() - ground.green())
                         + std::abs(tint.blue() - ground.blue());
    return distance < leastDistance ? Contrast::towards(tint, end, ground, 1.5) : tint;
}

} // namespace

ContextTab::ContextTab(const Page &page, const QString &context, const QColor &colour,
                       const Appearance &appearance)
    : TabButton(page)
    , m_context(context)
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

ContextTab::Colours ContextTab::colours(const QStyleOptionButton &option) const
{
    const SchemeLook &look = m_appearance.look();
    const double textContrast = look.scheme == Scheme::Contrast ? 7.0 : 4.5;
    const QColor around = ground();
    const QColor read = palette().color(QPalette::Active, QPalette::ButtonText);
    const QColor given = m_colour.isValid() ? m_colour : m_appearance.accent();
    const QColor tint = tellable(given, around, Contrast::textOn(read));

    // On the checked tabs of the skins texts are white, and in dark schemes what is read best.
    Colours result;
    result.ground = Contrast::mixed(around, tint, shareOfTint(option));
    result.text = read;
    if (option.state.testFlag(QStyle::State_On))
        result.text = look.isLight() ? QColor(Qt::white) : Contrast::textOn(result.ground);
    result.ground =
        Contrast::towards(result.ground, Contrast::textOn(result.text), result.text, textContrast);
    result.line = Contrast::towards(tint, result.text, result.ground, lineContrast);
    if (!option.state.testFlag(QStyle::State_Enabled)) {
        result.text = Contrast::mixed(result.ground, result.text, 0.45);
        result.line = Contrast::mixed(result.ground, result.line, 0.45);
    }
    return result;
}

void ContextTab::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const Colours used = colours(option);
    const QRectF place(style()->subElementRect(QStyle::SE_PushButtonBevel, &option, this));
    const double radius = Skin::isLum() ? place.height() / 2 : 0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(used.ground);
    painter.drawRoundedRect(place, radius, radius);
    drawLine(painter, place, used.line);
    QPalette textPalette = palette();
    textPalette.setColor(QPalette::ButtonText, used.text);
    drawLabel(painter, place.toRect(), textPalette);
}

QSize ContextTab::sizeHint() const
{
    // The ground of a tab in lum is not seen unless it is the one on show, and its round ends begin
    // where the text does.
    QSize hint = TabButton::sizeHint();
    if (Skin::isLum()) {
        const int text = fontMetrics().size(Qt::TextShowMnemonic, this->text()).width();
        const int ends = ScreenDensity::scaled(2 * endWidth, ScreenDensity::factor(this));
        hint.setWidth(std::max(hint.width(), text + ends));
    }
    return hint;
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
