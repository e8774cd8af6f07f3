// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/TabStrip.h"

#include "toolbar/description/Names.h"
#include "toolbar/skin/Scale.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/widgets/TabButton.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QStyleOptionButton>
#include <QWheelEvent>

#include <algorithm>
#include <iterator>

namespace {

constexpr double arrowDesignWidth = 10.0;
constexpr double chevronHeight = 8.0;

int arrowWidth(const QWidget *widget)
{
    return std::max(ScreenDensity::scaled(arrowDesignWidth, ScreenDensity::factor(widget)),
                    Scale::leastTargetFor(widget));
}

} // namespace

TabStripArrow::TabStripArrow(Qt::ArrowType direction, QWidget *parent)
    : QPushButton(parent)
    , m_direction(direction)
{
    setProperty(Property::inToolBar, "true");
    setFlat(true);
    // The keyboard goes to the tabs themselves, and the strip follows.
    setFocusPolicy(Qt::NoFocus);
    showName();
    hide();
}

void TabStripArrow::showName()
{
    setAccessibleName(m_direction == Qt::LeftArrow ? tr("向左滚动") : tr("向右滚动"));
}

void TabStripArrow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        showName();
    QPushButton::changeEvent(event);
}

void TabStripArrow::paintEvent(QPaintEvent *event)
{
    QPushButton::paintEvent(event);

    // Drawn in the colour of the skin's texts, which the host may choose.
    QStyleOptionButton option;
    initStyleOption(&option);
    const double half = chevronHeight / 2 * ScreenDensity::scale(this);
    const double tip = m_direction == Qt::LeftArrow ? -half / 2 : half / 2;
    const QPointF middle = QRectF(rect()).center();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(option.palette.color(QPalette::ButtonText),
                        1.5 * ScreenDensity::scale(this), Qt::SolidLine, Qt::RoundCap,
                        Qt::RoundJoin));
    const QPointF chevron[]{middle + QPointF(-tip, -half), middle + QPointF(tip, 0),
                            middle + QPointF(-tip, half)};
    painter.drawPolyline(chevron, static_cast<int>(std::size(chevron)));
}

TabStrip::TabStrip(QHBoxLayout *tabs, QWidget *parent)
    : Panel(parent)
    , m_view(new Panel(this))
    , m_tabs(new TabList(m_view))
    , m_left(new TabStripArrow(Qt::LeftArrow, this))
    , m_right(new TabStripArrow(Qt::RightArrow, this))
{
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    m_tabs->setLayout(tabs);
    m_tabs->installEventFilter(this);
    for (int i = 0; i < tabs->count(); ++i) {
        auto *tab = qobject_cast<QAbstractButton *>(tabs->itemAt(i)->widget());
        if (!tab)
            continue;
        tab->installEventFilter(this);
        connect(tab, &QAbstractButton::clicked, this, [this, tab] { reveal(tab); });
        connect(tab, &QAbstractButton::toggled, this, [this, tab](bool checked) {
            if (checked)
                reveal(tab);
        });
    }
    connect(m_left, &QPushButton::clicked, this, [this] { moveBy(-1); });
    connect(m_right, &QPushButton::clicked, this, [this] { moveBy(1); });
}

QSize TabStrip::sizeHint() const
{
    return m_tabs->layout()->sizeHint();
}

QSize TabStrip::minimumSizeHint() const
{
    int widest = 0;
    const QList<QWidget *> tabs = shownTabs();
    for (const QWidget *tab : tabs)
        widest = std::max(widest, std::max(tab->minimumWidth(), tab->sizeHint().width()));
    // Where tabs have round ends a tab keeps both; elsewhere arrows on both sides take no more from
    // it than the empty room beside its text.
    const int arrows = Skin::isLum() ? 2 : 1;
    return {widest + arrows * arrowWidth(this), m_tabs->layout()->minimumSize().height()};
}

QList<QWidget *> TabStrip::shownTabs() const
{
    QList<QWidget *> tabs;
    const QLayout *layout = m_tabs->layout();
    for (int i = 0; i < layout->count(); ++i) {
        QWidget *tab = layout->itemAt(i)->widget();
        if (tab && !tab->isHidden())
            tabs.append(tab);
    }
    return tabs;
}

int TabStrip::offsetShowing(const QWidget *tab) const
{
    const int room = roomForTabs();
    const QRect place = tab->geometry();
    int offset = m_offset;
    if (place.width() > room)
        offset = place.center().x() - room / 2;
    else if (place.left() < offset)
        offset = place.left();
    else if (place.right() >= offset + room)
        offset = place.right() + 1 - room;
    return std::clamp(offset, 0, std::max(0, m_tabs->width() - room));
}

void TabStrip::reveal(const QWidget *tab)
{
    m_tabs->layout()->activate();
    moveTo(offsetShowing(tab));
}

void TabStrip::moveBy(int direction)
{
    int nearest = m_offset;
    const QList<QWidget *> tabs = shownTabs();
    for (const QWidget *tab : tabs) {
        const int offset = offsetShowing(tab);
        const bool isAhead = direction * (offset - m_offset) > 0;
        const bool isNearer = nearest == m_offset || direction * (nearest - offset) > 0;
        if (isAhead && isNearer)
            nearest = offset;
    }
    moveTo(nearest);
}

void TabStrip::moveTo(int offset)
{
    m_offset = offset;
    placeParts();
}

int TabStrip::roomForTabs() const
{
    const bool isShort = sizeHint().width() > width();
    return std::max(0, width() - (isShort ? 2 * arrowWidth(this) : 0));
}

QRect TabStrip::wholeTabs(int room) const
{
    const QRect view(m_offset, 0, room, height());
    QRect whole;
    const QList<QWidget *> tabs = shownTabs();
    for (const QWidget *tab : tabs) {
        const QRect place = tab->geometry();
        if (place.left() >= view.left() && place.right() <= view.right())
            whole |= QRect(place.left(), 0, place.width(), height());
    }
    return whole.isEmpty() ? view : whole;
}

void TabStrip::placeParts()
{
    const int wanted = sizeHint().width();
    const bool isShort = wanted > width();
    const int arrow = isShort ? arrowWidth(this) : 0;
    const int room = roomForTabs();
    const int hidden = std::max(0, wanted - room);
    m_offset = std::clamp(m_offset, 0, hidden);

    m_tabs->resize(std::max(wanted, room), height());
    m_tabs->layout()->activate();
    const QRect shown = isShort ? wholeTabs(room) : QRect(0, 0, room, height());
    m_view->setGeometry(arrow, 0, shown.width(), height());
    m_tabs->move(-shown.left(), 0);
    m_left->setGeometry(0, 0, arrow, height());
    m_right->setGeometry(width() - arrow, 0, arrow, height());
    m_left->setVisible(isShort && m_offset > 0);
    m_right->setVisible(isShort && m_offset < hidden);
}

void TabStrip::resizeEvent(QResizeEvent *event)
{
    Panel::resizeEvent(event);
    placeParts();
    for (QWidget *tab : shownTabs()) {
        const auto *button = qobject_cast<QAbstractButton *>(tab);
        if (button && button->isChecked())
            reveal(button);
    }
}

void TabStrip::wheelEvent(QWheelEvent *event)
{
    const QPoint turn = event->angleDelta();
    const int delta = turn.y() != 0 ? turn.y() : turn.x();
    if (delta != 0)
        moveBy(delta > 0 ? -1 : 1);
    event->accept();
}

bool TabStrip::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_tabs && event->type() == QEvent::LayoutRequest) {
        // A tab has been shown or hidden or has another text.
        updateGeometry();
        placeParts();
    } else if (event->type() == QEvent::FocusIn) {
        reveal(qobject_cast<QWidget *>(watched));
    }
    return Panel::eventFilter(watched, event);
}
