// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/FocusRing.h"

#include "toolbar/description/Names.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/widgets/MRScrollWidget.h"
#include "toolbar/widgets/Panel.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyleOptionButton>

namespace {

constexpr double lineWidth = 1.5;
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

/** A sibling of the button: it scrolls, and is cut off, with it. */
class Ring : public Panel
{
public:
    explicit Ring(QWidget *button)
        : Panel(button->parentWidget())
        , m_button(button)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setGeometry(button->geometry());
        button->installEventFilter(this);
        setVisible(button->isVisible());
        raise();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
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

protected:
    void paintEvent(QPaintEvent *) override
    {
        const double scale = ScreenDensity::scale(this);
        const double inset = lineWidth * scale / 2;
        const QRectF line = QRectF(hoverRect(m_button)).adjusted(inset, inset, -inset, -inset);
        const double radius = isPill(m_button) ? line.height() / 2 : cornerRadius * scale;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        // The colour of the button's text is seen on the button's ground, whatever the skin.
        painter.setPen(QPen(m_button->palette().color(QPalette::ButtonText), lineWidth * scale));
        painter.drawRoundedRect(line, radius, radius);
    }

private:
    QWidget *m_button;
};

/** A row that has scrolled the button away scrolls it back. */
void bringIntoView(QWidget *button)
{
    for (QWidget *parent = button->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto *area = qobject_cast<MRScrollArea *>(parent)) {
            area->ensureWidgetVisible(button, 0, 0);
            area->UpdateExtendButton();
        }
    }
}

} // namespace

FocusRing::FocusRing(QWidget *scope)
    : QObject(scope)
    , m_scope(scope)
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { follow(now); });
}

void FocusRing::follow(QWidget *focused)
{
    if (m_ring) {
        m_ring->hide();
        m_ring->deleteLater();
    }
    m_ring = nullptr;
    if (!qobject_cast<QAbstractButton *>(focused) || !m_scope->isAncestorOf(focused))
        return;
    // A window that has just been shown gives the focus to its first widget.
    if (!focused->window()->testAttribute(Qt::WA_KeyboardFocusChange))
        return;

    bringIntoView(focused);
    m_ring = new Ring(focused);
}
