// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/MRScrollWidget.h"

#include "toolbar/Latin1.h"
#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/Scale.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/skin/SkinIcon.h"
#include "toolbar/widgets/EndFade.h"
#include "toolbar/widgets/ObjectTree.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPropertyAnimation>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr QLatin1String leftSide = latin1("left");
constexpr QLatin1String rightSide = latin1("right");

constexpr int scrollStep = 180;
constexpr int scrollDuration = 300;

/** Side of an arrow's square, in pixels. */
int arrowSide(const QWidget *widget)
{
    return ScreenDensity::scaled(12.0, ScreenDensity::verticalFactor(widget));
}

/**
 * Whether @p object, somewhere below @p area, is or belongs to something that the wheel is meant
 * for: a combo box with its field and its list, or a window that is open above the row.
 */
bool keepsWheel(const QObject *object, const QObject *area)
{
    for (; object && object != area; object = object->parent()) {
        const auto *widget = qobject_cast<const QWidget *>(object);
        if (qobject_cast<const QComboBox *>(object) || (widget && widget->isWindow()))
            return true;
    }
    return false;
}

/**
 * Filters the events of the application and passes wheel events on to the areas above their
 * receivers. All areas share one filter: with a filter per tab every event would cost more with
 * every tab.
 */
class WheelWatch : public QObject
{
public:
    WheelWatch() { QCoreApplication::instance()->installEventFilter(this); }

    /** The one that there is, for as long as somebody holds it. */
    static std::shared_ptr<QObject> shared()
    {
        static std::weak_ptr<QObject> current;
        std::shared_ptr<QObject> watch = current.lock();
        if (!watch) {
            watch = std::make_shared<WheelWatch>();
            current = watch;
        }
        return watch;
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Wheel)
            return false;
        for (QObject *object = watched->parent(); object; object = object->parent()) {
            if (auto *area = qobject_cast<MRScrollArea *>(object))
                area->eventFilter(watched, event);
        }
        return false;
    }
};

} // namespace

MRExtendButton::MRExtendButton(QWidget *parent)
    : QPushButton(parent)
    , m_arrow(new QPushButton(this))
{
    setFlat(true);
    setFocusPolicy(Qt::NoFocus);
    m_arrow->setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);

    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 2, 0, 2);
    layout->addWidget(m_arrow);
    connect(m_arrow, &QPushButton::clicked, this, &MRExtendButton::Clicked);
}

void MRExtendButton::SetObjectName(QString name)
{
    setObjectName(name);
    fitArrow();
    const bool isLeft = name.contains(leftSide);
    m_arrow->setObjectName(isLeft ? leftSide : rightSide);
    nameArrow();
    updateArrow();
}

void MRExtendButton::nameArrow()
{
    const bool isLeft = objectName().contains(leftSide);
    m_arrow->setAccessibleName(isLeft ? tr("向左滚动") : tr("向右滚动"));
}

void MRExtendButton::fitArrow()
{
    const int side = arrowSide(this);
    m_arrow->setIconSize(QSize(side, side));
}

void MRExtendButton::updateArrow()
{
    // Where everything is mirrored, the button named "left" stands on the right.
    const bool pointsLeft = objectName().contains(leftSide) != isRightToLeft();
    const QString file =
        pointsLeft ? QStringLiteral("extendLeft.svg") : QStringLiteral("extendRight.svg");
    m_look = Appearance::lookFor(this);
    m_arrow->setIcon(skinIcon(Skin::resourceDirectory() + file, m_look));
}

void MRExtendButton::changeEvent(QEvent *event)
{
    // Another scheme is another sheet.
    const bool isOther =
        event->type() == QEvent::StyleChange && m_look != Appearance::lookFor(this);
    if (isOther || event->type() == QEvent::LayoutDirectionChange)
        updateArrow();
    if (event->type() == QEvent::LanguageChange)
        nameArrow();
    QPushButton::changeEvent(event);
}

void MRExtendButton::SetExtendButtonVisible(bool visible)
{
    m_arrow->setVisible(visible);
}

MRScrollArea::MRScrollArea(QWidget *parent)
    : QScrollArea(parent)
    , m_animation(new QPropertyAnimation(horizontalScrollBar(), "value", this))
    , m_wheelWatch(WheelWatch::shared())
{
    setObjectName(QStringLiteral("scrollarea"));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    // The row moves by the wheel and by the arrows. To wait for a gesture as well would have
    // Qt search every event of every control on it, and allocate for that.
    viewport()->ungrabGesture(Qt::PanGesture);

    m_animation->setDuration(scrollDuration);
    m_animation->setEasingCurve(QEasingCurve::InQuad);
    connect(m_animation, &QPropertyAnimation::finished, this, &MRScrollArea::UpdateExtendButton);

    // A row that is filled later changes its width by itself, and the focus scrolls to where it
    // goes, both without a resize of the area.
    connect(horizontalScrollBar(), &QScrollBar::rangeChanged, this,
            &MRScrollArea::UpdateExtendButton);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        fadeEnds();
        if (!isScrolling())
            UpdateExtendButton();
    });
}

QSize MRScrollArea::sizeHint() const
{
    // Qt measures a row once, before it has its sheet, and the sheet limits what comes of it. In
    // the font of then a row would be too low for a larger scale.
    QSize hint = QScrollArea::sizeHint();
    if (const auto chosen = Scale::chosenFor(this)) {
        const auto ofFont = static_cast<float>(logicalDpiY()) / ScreenDensity::designDpi;
        hint.setHeight(
            qRound(static_cast<float>(hint.height()) * std::max(1.0F, *chosen / ofFont)));
    }
    return hint;
}

void MRScrollArea::setStylePaused(bool paused)
{
    m_isStylePaused = paused;
    if (paused || !m_hasMissedStyle)
        return;
    QEvent change(QEvent::StyleChange);
    QCoreApplication::sendEvent(this, &change);
}

bool MRScrollArea::isScrolling() const
{
    return m_animation->state() == QAbstractAnimation::Running;
}

int MRScrollArea::hiddenWidth() const
{
    const int contentWidth = widget() ? widget()->width() : 0;
    return contentWidth - viewport()->width();
}

void MRScrollArea::animate(int from, int to)
{
    m_animation->setStartValue(from);
    m_animation->setEndValue(to);
    m_animation->start();
}

void MRScrollArea::UpdateExtendButton()
{
    const int value = horizontalScrollBar()->value();
    Q_EMIT SetExtendButtonVisible(leftSide, value >= 1);
    Q_EMIT SetExtendButtonVisible(rightSide, value < hiddenWidth());
    fadeEnds();
}

void MRScrollArea::fadeEnds()
{
    const auto showAt = [this](EndFade *&fade, Qt::Edge edge, bool isCut) {
        if (!fade && !isCut)
            return;
        if (!fade)
            fade = new EndFade(edge, this);
        fade->follow(viewport()->geometry());
        fade->setVisible(isCut);
    };
    const int value = horizontalScrollBar()->value();
    const bool isStartCut = value >= 1;
    const bool isEndCut = value < hiddenWidth();
    // Where everything is mirrored, the row starts on the right.
    showAt(m_leftFade, Qt::LeftEdge, isRightToLeft() ? isEndCut : isStartCut);
    showAt(m_rightFade, Qt::RightEdge, isRightToLeft() ? isStartCut : isEndCut);
}

void MRScrollArea::DoScrollAction()
{
    if (isScrolling() || !widget())
        return;

    const int value = horizontalScrollBar()->value();
    if (value != 0 && value >= hiddenWidth()) {
        animate(value, 0);
    } else if (value == 0) {
        // From the start either arrow leads to the far end, where the scroll bar stops.
        animate(0, widget()->width());
    } else if (const auto *arrow = qobject_cast<QPushButton *>(sender())) {
        const bool toLeft = arrow->objectName().contains(leftSide);
        animate(value, toLeft ? value - scrollStep : value + scrollStep);
    }
}

bool MRScrollArea::event(QEvent *event)
{
    // QScrollArea would measure the whole row at once, and again when the row has its new layout.
    if (event->type() == QEvent::StyleChange) {
        m_hasMissedStyle = m_isStylePaused;
        return m_isStylePaused || QAbstractScrollArea::event(event);
    }
    const bool isHandled = QScrollArea::event(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        fadeEnds();
    return isHandled;
}

void MRScrollArea::wheelEvent(QWheelEvent *event)
{
    const int delta = event->angleDelta().y();
    if (delta == 0 || isScrolling())
        return;

    const int value = horizontalScrollBar()->value();
    animate(value, delta > 0 ? value + scrollStep : value - scrollStep);
}

bool MRScrollArea::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel)
        return QScrollArea::eventFilter(watched, event);

    // Where the pointer is costs less to find out than who the object's ancestors are.
    if (!rect().contains(mapFromGlobal(QCursor::pos())) || !isChildren(this, watched))
        return QScrollArea::eventFilter(watched, event);

    // The event goes on to its target; what hands it up from there finds the row moving already.
    if (!keepsWheel(watched, this))
        wheelEvent(static_cast<QWheelEvent *>(event));
    return false;
}

void MRScrollArea::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    UpdateExtendButton();
}

MRScrollWidget::MRScrollWidget(QWidget *parent)
    : QWidget(parent)
    , m_left(new MRExtendButton(this))
    , m_right(new MRExtendButton(this))
    , m_area(new MRScrollArea(this))
{
    setObjectName(QStringLiteral("scrollbar"));
    m_left->SetObjectName(QStringLiteral("leftextend"));
    m_right->SetObjectName(QStringLiteral("rightextend"));

    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(1);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_left);
    layout->addWidget(m_area);
    layout->addWidget(m_right);

    for (MRExtendButton *button : {m_left, m_right}) {
        button->SetExtendButtonVisible(false);
        connect(button, &MRExtendButton::Clicked, m_area, &MRScrollArea::DoScrollAction);
    }
    connect(m_area, &MRScrollArea::SetExtendButtonVisible, this,
            &MRScrollWidget::DoSetExtendButtonVisible);
    fitArrows();
    // By the order of construction the right arrow would come before the row.
    setTabOrder(m_area, m_right);
}

void MRScrollWidget::SetWidget(QWidget *widget, Qt::Alignment alignment)
{
    m_area->setWidget(widget);
    m_area->setAlignment(alignment);
}

void MRScrollWidget::fitArrows()
{
    for (MRExtendButton *button : {m_left, m_right}) {
        button->fitArrow();
        button->setMinimumWidth(arrowSide(this));
    }
}

void MRScrollWidget::DoSetExtendButtonVisible(QString side, bool visible)
{
    MRExtendButton *button = side == leftSide ? m_left : m_right;
    button->SetExtendButtonVisible(visible);
}
