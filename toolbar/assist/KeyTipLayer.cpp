// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/assist/KeyTipLayer.h"

#include "toolbar/description/Names.h"
#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/skin/Skin.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double textSize = 11.0;
constexpr double besideText = 4.0;
constexpr double aboveText = 1.0;
constexpr double cornerRadius = 3.0;
/** How much of a badge is over its control; the rest stands below it. */
constexpr double overlap = 0.3;

struct BadgeColours
{
    QColor ground;
    QColor frame;
    QColor text;
    QColor dimText;
};

/** As the skins' sheets give them to tooltips. */
BadgeColours coloursFor(const QWidget *toolBar)
{
    if (const SchemeColours *colours = Appearance::coloursFor(toolBar))
        return {colours->raised, colours->frame, colours->text, colours->dimText};
    if (Skin::isLum())
        return {QColor(0xff, 0xff, 0xff), QColor(0xa0, 0xa4, 0xaa), QColor(0, 0, 0),
                QColor(0xa0, 0xa0, 0xa0)};
    return {QColor(0xff, 0xff, 0xff), QColor(0xc8, 0xc8, 0xc8), QColor(0x33, 0x33, 0x33),
            QColor(0xa0, 0xa0, 0xa0)};
}

bool isModifier(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt
           || key == Qt::Key_AltGr || key == Qt::Key_Meta || key == Qt::Key_CapsLock
           || key == Qt::Key_NumLock;
}

bool isTyped(int key)
{
    return (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
}

/** The badge on one line with those that are only a little lower: controls differ in height. */
QRect onLine(QRect badge, const QList<QRect> &badges)
{
    const int highest = badge.top();
    for (const QRect &other : badges) {
        if (!other.isEmpty() && std::abs(other.top() - highest) <= badge.height() / 2)
            badge.moveTop(std::max(badge.top(), other.top()));
    }
    return badge;
}

QString spokenName(QWidget *control)
{
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(control);
    return accessible ? accessible->text(QAccessible::Name).simplified() : QString();
}

} // namespace

KeyTipLayer::KeyTipLayer(QWidget *window, const QWidget *toolBar)
    : Panel(window)
    , m_toolBar(toolBar)
    , m_focusBefore(window->focusWidget())
{
    setObjectName(Part::keyTips);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::ClickFocus); // No click comes here, nor may the Tab key.
    setGeometry(window->rect());
    QFont small = toolBar->font();
    small.setPixelSize(std::max(1, qRound(textSize * ScreenDensity::scale(toolBar))));
    setFont(small);
    raise();
    show();
    QCoreApplication::instance()->installEventFilter(this);
}

void KeyTipLayer::takeFocus()
{
    setFocus(Qt::MenuBarFocusReason);
}

void KeyTipLayer::present(const QList<KeyTip> &tips)
{
    m_tips = tips;
    narrow({});
    speak();
}

void KeyTipLayer::narrow(const QString &typed)
{
    m_typed = typed;
    update();
}

void KeyTipLayer::dismiss()
{
    m_isDismissed = true;
    QCoreApplication::instance()->removeEventFilter(this);
    if (hasFocus() && m_focusBefore)
        m_focusBefore->setFocus(Qt::MenuBarFocusReason);
    hide();
    deleteLater();
}

void KeyTipLayer::speak()
{
    QStringList spoken;
    for (const KeyTip &tip : m_tips) {
        if (tip.control && tip.control->isEnabled())
            spoken.append(tip.letters + QLatin1Char(' ') + spokenName(tip.control));
    }
    setAccessibleName(tr("按键提示：%1").arg(spoken.join(QStringLiteral(", "))));
}

QRect KeyTipLayer::badge(const KeyTip &tip) const
{
    const QRect seen = tip.place ? tip.place->visibleRegion().boundingRect() : QRect();
    if (seen.isEmpty())
        return {};

    const double scale = ScreenDensity::scale(m_toolBar);
    const QFontMetrics metrics = fontMetrics();
    const int height = metrics.height() + 2 * qRound(aboveText * scale);
    const int width =
        std::max(height, metrics.horizontalAdvance(tip.letters) + 2 * qRound(besideText * scale));
    const QPoint foot =
        mapFromGlobal(tip.place->mapToGlobal(QPoint(seen.center().x(), seen.bottom())));
    const int left = foot.x() - width / 2;
    const int top = foot.y() - static_cast<int>(std::lround(height * overlap));
    return {std::clamp(left, 0, std::max(0, this->width() - width)),
            std::clamp(top, 0, std::max(0, this->height() - height)), width, height};
}

void KeyTipLayer::paintEvent(QPaintEvent *)
{
    const BadgeColours colours = coloursFor(m_toolBar);
    const double scale = ScreenDensity::scale(m_toolBar);
    const double line = std::max(1.0, std::floor(scale));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QList<QRect> badges;
    for (const KeyTip &tip : std::as_const(m_tips))
        badges.append(badge(tip));
    for (int i = 0; i < badges.size(); ++i) {
        const KeyTip &tip = m_tips.at(i);
        const QRect place = onLine(badges.at(i), badges);
        if (place.isEmpty() || !tip.control || !tip.letters.startsWith(m_typed))
            continue;
        const QRectF edge = QRectF(place).adjusted(line / 2, line / 2, -line / 2, -line / 2);
        painter.setPen(QPen(colours.frame, line));
        painter.setBrush(colours.ground);
        painter.drawRoundedRect(edge, cornerRadius * scale, cornerRadius * scale);
        painter.setPen(tip.control->isEnabled() ? colours.text : colours.dimText);
        painter.drawText(place, Qt::AlignCenter, tip.letters);
    }
}

bool KeyTipLayer::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride)
        return takeShortcutKey(static_cast<QKeyEvent *>(event));
    // Not keyPressEvent(): the Tab key would not come there.
    if (event->type() == QEvent::KeyPress)
        return takeKey(static_cast<QKeyEvent *>(event));
    return Panel::event(event);
}

bool KeyTipLayer::takeShortcutKey(QKeyEvent *key)
{
    // A command by its own keys is something else to do.
    if (!isModifier(key->key()) && (key->modifiers() & (Qt::ControlModifier | Qt::MetaModifier)))
        Q_EMIT left();
    else
        key->accept();
    return true;
}

bool KeyTipLayer::takeKey(QKeyEvent *key)
{
    key->accept();
    if (isModifier(key->key()))
        key->ignore();
    else if (key->key() == Qt::Key_Escape)
        Q_EMIT steppedBack();
    else if (isTyped(key->key()))
        Q_EMIT typed(QChar(key->key()));
    else
        Q_EMIT left();
    return true;
}

bool KeyTipLayer::eventFilter(QObject *watched, QEvent *event)
{
    const bool isClick = event->type() == QEvent::MouseButtonPress && watched->isWidgetType();
    const bool isResize = event->type() == QEvent::Resize && watched == parent();
    if (isClick || isResize)
        Q_EMIT left();
    return false;
}

void KeyTipLayer::focusOutEvent(QFocusEvent *event)
{
    Panel::focusOutEvent(event);
    if (!m_isDismissed)
        Q_EMIT left();
}
