// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/find/FindPopup.h"

#include "toolbar/description/Names.h"
#include "toolbar/find/FoundLineDelegate.h"
#include "toolbar/widgets/PlaceholderTint.h"

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr double shadowWidth = 8.0;
constexpr double padding = 8.0;
constexpr double mostWidth = 480.0;
constexpr int mostLines = 8;
constexpr double corner = 6.0;

bool isReturn(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

void paintShadow(QPainter &painter, const QRectF &ground, double width, double radius)
{
    // Many faint layers, each a little larger, add up to a soft edge.
    constexpr int layers = 8;
    constexpr int strength = 7;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, strength));
    for (int layer = layers; layer > 0; --layer) {
        const double reach = width * layer / layers;
        painter.drawRoundedRect(
            ground.adjusted(-reach, -reach, reach, reach).translated(0, width / layers),
            radius + reach, radius + reach);
    }
}

} // namespace

FindPopup::FindPopup(QWidget *window, FoundModel::LineOf lineOf)
    : QWidget(window)
    , m_model(new FoundModel(std::move(lineOf), this))
    , m_delegate(new FoundLineDelegate(this))
    , m_layout(new QVBoxLayout(this))
    , m_field(new QLineEdit)
    , m_list(new QListView)
    , m_hint(new QLabel)
{
    hide();
    setObjectName(Part::finder);
    makeField();
    makeList();
    m_layout->addWidget(m_field);
    m_layout->addWidget(m_list, 1);
    m_layout->addWidget(m_hint);
    retranslate();
}

void FindPopup::makeField()
{
    m_field->setObjectName(Part::finderField);
    m_field->installEventFilter(this);
    new PlaceholderTint(m_field);
    connect(m_field, &QLineEdit::textChanged, this, &FindPopup::typedChanged);
}

void FindPopup::makeList()
{
    m_list->setObjectName(Part::finderList);
    m_list->setModel(m_model);
    m_list->setItemDelegate(m_delegate);
    m_list->setUniformItemSizes(true);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setMouseTracking(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    connect(m_list, &QListView::entered, this, [this](const QModelIndex &index) {
        // A list that appears or scrolls below a pointer at rest is entered, too.
        if (QCursor::pos() != m_pointer)
            m_list->setCurrentIndex(index);
    });
    connect(m_list, &QListView::clicked, this, [this](const QModelIndex &index) {
        const bool isToBeShown = QApplication::keyboardModifiers() & Qt::ControlModifier;
        choose(index, isToBeShown ? Wish::Show : Wish::Run);
    });
}

void FindPopup::retranslate()
{
    m_field->setPlaceholderText(tr("查找命令"));
    m_field->setAccessibleName(tr("查找命令"));
    m_list->setAccessibleName(tr("找到的命令"));
    refresh();
}

void FindPopup::setLook(const FindLook &look)
{
    m_look = look;
    m_delegate->setLook(look);
    setStyleSheet(look.sheet());
    setFont(look.font);
    for (QWidget *widget : {static_cast<QWidget *>(m_field), static_cast<QWidget *>(m_hint)})
        widget->setFont(look.font);
    m_hint->setAlignment(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)
                         | Qt::AlignAbsolute | Qt::AlignVCenter);
    const int around = shadow() + look.length(padding);
    m_layout->setContentsMargins(around, around, around, around);
    m_layout->setSpacing(look.length(padding));
    m_list->verticalScrollBar()->setSingleStep(m_delegate->sizeHint({}, {}).height());
    // The delegate has another size for the lines.
    Q_EMIT m_delegate->sizeHintChanged({});
    place();
}

void FindPopup::setAnchor(QWidget *topLine, QWidget *opener)
{
    m_topLine = topLine;
    m_opener = opener;
    place();
}

void FindPopup::setFound(std::vector<std::size_t> commands, bool keepsLine)
{
    m_pointer = QCursor::pos();
    const QModelIndex former = m_list->currentIndex();
    int line = 0;
    if (keepsLine && former.isValid()) {
        const auto same =
            std::find(commands.begin(), commands.end(), m_model->command(former.row()));
        line = same == commands.end() ? 0 : static_cast<int>(same - commands.begin());
    }
    m_model->setCommands(std::move(commands));
    m_list->setCurrentIndex(m_model->index(line));
    if (line == 0)
        m_list->scrollToTop();
    refresh();
    place();
}

void FindPopup::refresh()
{
    const bool isNothingFound = m_model->rowCount() == 0;
    m_hint->setText(isNothingFound ? tr("没有找到命令") : tr("回车执行，Ctrl+回车显示位置"));
    m_list->setVisible(!isNothingFound);
    m_list->viewport()->update();
}

QString FindPopup::typed() const
{
    return m_field->text();
}

void FindPopup::clear()
{
    m_field->clear();
}

void FindPopup::enter()
{
    if (!isVisible()) {
        m_formerFocus = window()->focusWidget();
        m_pointer = QCursor::pos();
        qApp->installEventFilter(this);
        connect(qApp, &QApplication::focusChanged, this, &FindPopup::followFocus);
        show();
        // What is shown for the first time has its lengths only now.
        place();
        raise();
    }
    m_field->setFocus(Qt::PopupFocusReason);
    m_field->selectAll();
}

void FindPopup::leave()
{
    qApp->removeEventFilter(this);
    disconnect(qApp, &QApplication::focusChanged, this, &FindPopup::followFocus);
    // Before it is hidden: Qt would pass the focus on to whatever comes next.
    const QWidget *focused = window()->focusWidget();
    if (focused && isAncestorOf(focused)) {
        const QPointer<FindPopup> self(this);
        if (m_formerFocus)
            m_formerFocus->setFocus(Qt::PopupFocusReason);
        else
            m_field->clearFocus();
        // The host may hear of the focus and delete the window.
        if (!self)
            return;
    }
    hide();
}

bool FindPopup::isOwn(const QObject *object) const
{
    // Also the menu of the field, which is a window.
    for (; object; object = object->parent()) {
        if (object == this)
            return true;
    }
    return false;
}

void FindPopup::followFocus(QWidget *, QWidget *now)
{
    // Without a focus the window is not the active one any more, or something hidden has had it.
    const bool isElsewhere = now ? !isOwn(now) : !window()->isActiveWindow();
    if (isVisible() && isElsewhere)
        Q_EMIT dismissed();
}

bool FindPopup::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == window() && event->type() == QEvent::Resize)
        place();
    if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType() && !isOwn(watched)
        && watched != m_opener) {
        Q_EMIT dismissed();
        return false;
    }
    if (watched != m_field)
        return false;
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
        return false;
    const auto *press = static_cast<QKeyEvent *>(event);
    if (!isHandled(press->key(), press->modifiers()))
        return false;
    event->accept();
    // The host may have shortcuts of these keys; here they are the finder's.
    return event->type() == QEvent::ShortcutOverride || handleKey(press->key(), press->modifiers());
}

bool FindPopup::isHandled(int key, Qt::KeyboardModifiers modifiers) const
{
    const auto held = modifiers & ~Qt::KeypadModifier;
    if (isReturn(key))
        return held == Qt::NoModifier || held == Qt::ControlModifier;
    if (key == Qt::Key_Backtab)
        return true;
    constexpr int keys[] = {Qt::Key_Escape,   Qt::Key_Up,   Qt::Key_Down, Qt::Key_PageUp,
                            Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End,  Qt::Key_Tab};
    return held == Qt::NoModifier
           && std::find(std::begin(keys), std::end(keys), key) != std::end(keys);
}

bool FindPopup::handleKey(int key, Qt::KeyboardModifiers modifiers)
{
    if (key == Qt::Key_Escape)
        Q_EMIT dismissed();
    else if (isReturn(key))
        choose(m_list->currentIndex(), modifiers & Qt::ControlModifier ? Wish::Show : Wish::Run);
    else
        moveCurrent(key);
    return true;
}

void FindPopup::moveCurrent(int key)
{
    m_pointer = QCursor::pos();
    const int count = m_model->rowCount();
    if (count == 0)
        return;
    const int page =
        std::max(1, m_list->viewport()->height() / m_delegate->sizeHint({}, {}).height());
    const int now = m_list->currentIndex().row();
    int row = now;
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Backtab:
        // Round the ends, as menus do.
        row = (now + count - 1) % count;
        break;
    case Qt::Key_Down:
    case Qt::Key_Tab:
        row = (now + 1) % count;
        break;
    case Qt::Key_PageUp:
        row = std::max(0, now - page);
        break;
    case Qt::Key_PageDown:
        row = std::min(count - 1, now + page);
        break;
    default:
        row = key == Qt::Key_Home ? 0 : count - 1;
    }
    m_list->setCurrentIndex(m_model->index(row));
}

void FindPopup::choose(const QModelIndex &index, Wish wish)
{
    if (index.isValid())
        Q_EMIT chosen(m_model->command(index.row()), wish);
}

int FindPopup::shadow() const
{
    return m_look.length(shadowWidth);
}

void FindPopup::place()
{
    const QWidget *anchor = m_opener ? m_opener.data() : m_topLine.data();
    const QRect room = window()->rect();
    const bool isAnchored = anchor && anchor->isVisible() && window()->isAncestorOf(anchor);
    const QRect below = isAnchored ? QRect(anchor->mapTo(window(), QPoint()), anchor->size())
                                   : QRect(room.left(), room.top() - 1, room.width(), 1);
    const int wide = std::min(m_look.length(mostWidth) + 2 * shadow(), room.width());
    const int top = below.bottom() + 1 + m_look.length(padding) / 2 - shadow();

    const int line = std::max(1, m_delegate->sizeHint({}, {}).height());
    const QMargins margins = m_layout->contentsMargins();
    const int besideList = margins.top() + margins.bottom() + m_field->sizeHint().height()
                           + m_hint->sizeHint().height() + 2 * m_layout->spacing();
    const int fitting = std::max(1, (room.bottom() - top - besideList) / line);
    const int lines = std::min({m_model->rowCount(), mostLines, fitting});
    const int high = besideList + lines * line - (lines == 0 ? m_layout->spacing() : 0);

    int left = below.center().x() - wide / 2;
    if (m_opener)
        left = isRightToLeft() ? below.left() - shadow() : below.right() + 1 + shadow() - wide;
    left = std::clamp(left, room.left(), room.right() + 1 - wide);
    setGeometry(left, top, wide, high);
    m_layout->activate();
}

void FindPopup::paintEvent(QPaintEvent *)
{
    const int around = shadow();
    const QRectF ground = QRectF(rect()).adjusted(around, around, -around, -around);
    const double radius = m_look.length(corner);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintShadow(painter, ground, around * 0.75, radius);
    painter.setPen(m_look.colours.frame);
    painter.setBrush(m_look.colours.raised);
    painter.drawRoundedRect(ground.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}
