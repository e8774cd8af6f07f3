// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/RowFit.h"

#include "toolbar/widgets/ButtonForm.h"
#include "toolbar/widgets/MoreButton.h"
#include "toolbar/widgets/MovedEntries.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QMap>
#include <QMenu>
#include <QToolBar>
#include <QWidgetAction>

#include <algorithm>
#include <utility>

using Form = RowPlan::Form;

namespace {

/** Where a button of a panel stands; 0 for one on the row itself. */
int columnOf(QToolButton *button)
{
    auto *grid = qobject_cast<QGridLayout *>(button->parentWidget()->layout());
    if (!grid)
        return 0;
    int line = 0;
    int column = 0;
    int span = 0;
    grid->getItemPosition(grid->indexOf(button), &line, &column, &span, &span);
    return column;
}

/** The buttons of a panel stand in columns, each as wide as its widest. */
int widthOf(const QList<QToolButton *> &buttons, bool isBare)
{
    QMap<int, int> columns;
    for (QToolButton *button : buttons) {
        int &column = columns[columnOf(button)];
        column = std::max(column, ButtonForm::of(button)->width(isBare));
    }
    int width = 0;
    for (const int column : std::as_const(columns))
        width += column;
    return width;
}

/** A widget on a row is enabled or disabled with its action, which is disabled while hidden. */
void setShown(QWidgetAction *place, bool isShown)
{
    if (place->isVisible() == isShown)
        return;
    QWidget *widget = place->defaultWidget();
    // The host may have deleted it.
    if (!widget)
        return;
    const bool isEnabled = widget->isEnabledTo(widget->parentWidget());
    place->setVisible(isShown);
    widget->setEnabled(isEnabled);
}

} // namespace

QList<QToolButton *> RowFit::Held::givenButtons() const
{
    QList<QToolButton *> given;
    for (const QPointer<QToolButton> &button : buttons) {
        if (!button)
            continue;
        // A panel is hidden with what has moved, and so are its buttons, but not by the host.
        const bool isHidden =
            command ? !command->isVisible()
                    : button->isHidden() && button->testAttribute(Qt::WA_WState_ExplicitShowHide);
        if (!isHidden)
            given.append(button);
    }
    return given;
}

bool RowFit::Held::holdsFocus() const
{
    return std::any_of(buttons.begin(), buttons.end(), [](const QPointer<QToolButton> &button) {
        return button && button->hasFocus();
    });
}

RowFit *RowFit::of(const QToolBar *row)
{
    return row->findChild<RowFit *>(QString(), Qt::FindDirectChildrenOnly);
}

RowFit::RowFit(QToolBar *row, QMenu *menu)
    : QObject(row)
    , m_row(row)
    , m_area(row->parentWidget())
    , m_menu(menu)
    , m_more(new MoreButton(menu, row))
    , m_morePlace(new QWidgetAction(row))
{
    m_morePlace->setDefaultWidget(m_more);
    m_morePlace->setObjectName(m_more->objectName());
    m_morePlace->setVisible(false);
    row->installEventFilter(this);
    m_area->installEventFilter(this);
    // The faces of drop buttons change while they are in the menu.
    connect(menu, &QMenu::aboutToShow, this, &RowFit::fillMenu);
}

void RowFit::add(const Seat &seat)
{
    Held held{seat.place, seat.command, {}, seat.order};
    for (QToolButton *button : seat.buttons)
        held.buttons.append(button);
    m_seats.push_back(held);
    if (!seat.command) {
        // A panel that is hidden itself does not tell the row.
        for (QToolButton *button : seat.buttons)
            button->installEventFilter(this);
        return;
    }
    connect(seat.command, &QAction::changed, this, [this] {
        // Equal events that wait are one, however many states the host reports.
        QCoreApplication::postEvent(m_row, new QEvent(QEvent::LayoutRequest));
    });
}

void RowFit::close()
{
    m_row->removeAction(m_morePlace);
    m_row->addAction(m_morePlace);
}

bool RowFit::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_area && watched != m_row) {
        const bool isShownOrHidden =
            event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent;
        if (isShownOrHidden && !m_isArranging)
            QCoreApplication::postEvent(m_row, new QEvent(QEvent::LayoutRequest));
        return false;
    }
    const bool isOther = watched == m_area
                             ? event->type() == QEvent::Resize || event->type() == QEvent::Show
                             : event->type() == QEvent::LayoutRequest;
    // Before the area and the row look at it, so that they lay out once. A row that nobody sees
    // waits until it is shown.
    if (isOther && !m_isArranging && m_area->isVisible())
        arrange();
    return false;
}

void RowFit::arrange()
{
    const QPointer<RowFit> self(this);
    m_isArranging = true;
    RowPlan plan = this->plan();
    if (QWidget *focus = newFocus(plan)) {
        passFocus(focus);
        // Whoever hears of it may change or delete the row.
        if (!self)
            return;
        plan = this->plan();
    }
    apply(plan);
    layOut();
    if (self)
        m_isArranging = false;
}

/** Before what has it is hidden: Qt would let it go to whatever comes next, and tell of that. */
void RowFit::passFocus(QWidget *focus)
{
    if (focus == m_more)
        m_morePlace->setVisible(true);
    for (const Held &seat : m_seats) {
        if (seat.buttons.contains(qobject_cast<QToolButton *>(focus)))
            setShown(seat.place, true);
    }
    for (QWidget *widget = focus; widget != m_row; widget = widget->parentWidget())
        widget->show();
    focus->setFocus(Qt::OtherFocusReason);
}

void RowFit::layOut()
{
    // At once: in its old width the row would hide what has returned, and show Qt's own button.
    if (m_row->sizeHint().width() != m_row->width()) {
        QEvent request(QEvent::LayoutRequest);
        QCoreApplication::sendEvent(m_area, &request);
    }
    m_row->layout()->activate();
}

RowPlan RowFit::plan()
{
    RowPlan plan;
    plan.spacing = m_row->layout()->spacing();
    plan.moreWidth = m_more->minimumWidth();
    const QMargins margins = m_row->layout()->contentsMargins();
    plan.around = margins.left() + margins.right();
    const QList<QAction *> actions = m_row->actions();
    for (QAction *action : actions)
        plan.items.push_back(itemOf(action));
    plan.fit(m_area->width());
    return plan;
}

RowPlan::Item RowFit::itemOf(QAction *action)
{
    RowPlan::Item item;
    if (const Held *seat = seatOf(action)) {
        const QList<QToolButton *> given = seat->givenButtons();
        item.order = seat->order;
        item.fullWidth = widthOf(given, false);
        item.bareWidth = widthOf(given, true);
        item.form = given.isEmpty() ? Form::Absent : Form::Full;
        return item;
    }
    item.isSeparator = action->isSeparator();
    item.fullWidth = widthOfWidget(action);
    // What moves is counted apart from the items.
    const bool isThere = item.isSeparator || m_row->widgetForAction(action);
    item.form = isThere && action->isVisible() && action != m_morePlace ? Form::Full : Form::Absent;
    return item;
}

int RowFit::widthOfWidget(QAction *action) const
{
    // Its layout item says nothing while the widget is hidden.
    const QWidget *widget = m_row->widgetForAction(action);
    if (!widget)
        return 0;
    return widget->sizeHint()
        .expandedTo(widget->minimumSizeHint())
        .boundedTo(widget->maximumSize())
        .expandedTo(widget->minimumSize())
        .width();
}

RowFit::Held *RowFit::seatOf(const QAction *place)
{
    const auto found = std::find_if(m_seats.begin(), m_seats.end(),
                                    [place](const Held &seat) { return seat.place == place; });
    return found == m_seats.end() ? nullptr : &*found;
}

QWidget *RowFit::newFocus(const RowPlan &plan)
{
    QWidget *focus = nullptr;
    const QList<QAction *> actions = m_row->actions();
    for (std::size_t i = 0; i < plan.items.size(); ++i) {
        const Held *seat = seatOf(actions.at(static_cast<int>(i)));
        if (!seat)
            continue;
        const bool willMove = plan.items.at(i).form == Form::Moved;
        if (willMove && seat->holdsFocus())
            return m_more;
        if (!willMove && seat->form == Form::Moved && !seat->givenButtons().isEmpty())
            focus = seat->givenButtons().first();
    }
    return m_more->hasFocus() && !plan.hasMoved() ? focus : nullptr;
}

void RowFit::apply(const RowPlan &plan)
{
    const QList<QAction *> actions = m_row->actions();
    for (std::size_t i = 0; i < plan.items.size(); ++i) {
        QAction *action = actions.at(static_cast<int>(i));
        const RowPlan::Item &item = plan.items.at(i);
        if (item.isSeparator)
            action->setVisible(item.form != Form::Absent);
        else if (Held *seat = seatOf(action))
            applyTo(*seat, item.form);
    }
    fillMenu();
    m_morePlace->setVisible(plan.hasMoved());
}

void RowFit::applyTo(Held &seat, Form form)
{
    seat.form = form;
    for (const QPointer<QToolButton> &button : std::as_const(seat.buttons)) {
        if (!button)
            continue;
        ButtonForm::of(button)->take(form == Form::Bare || form == Form::Moved);
        if (form != Form::Moved)
            MovedEntries::release(button);
    }
    // A panel would tell the row of its new width only when it is laid out itself.
    const QWidget *widget = seat.place->defaultWidget();
    if (widget && widget->layout())
        widget->layout()->activate();
    const bool isOnRow = form == Form::Full || form == Form::Bare;
    setShown(seat.place, isOnRow);
}

void RowFit::fillMenu()
{
    QList<QAction *> entries;
    qsizetype separators = 0;
    bool isSeparatorPending = false;
    const QList<QAction *> actions = m_row->actions();
    for (const QAction *action : actions) {
        if (action->isSeparator())
            isSeparatorPending = !entries.isEmpty();
        const Held *seat = seatOf(action);
        if (!seat || seat->form != Form::Moved)
            continue;
        if (std::exchange(isSeparatorPending, false))
            entries.append(menuSeparator(separators++));
        for (const QToolButton *button : seat->givenButtons())
            entries += MovedEntries::of(button);
    }
    if (m_menu)
        MovedEntries::fill(m_menu, entries);
}

QAction *RowFit::menuSeparator(qsizetype position)
{
    while (m_menuSeparators.size() <= position) {
        auto *separator = new QAction(this);
        separator->setSeparator(true);
        m_menuSeparators.append(separator);
    }
    return m_menuSeparators.at(position);
}

QRect RowFit::geometry(const QAction *command) const
{
    for (const Held &seat : m_seats) {
        const auto isOfCommand = [command](const QPointer<QToolButton> &button) {
            return button && button->objectName() == command->objectName();
        };
        const bool isHere = seat.command ? seat.command == command
                                         : seat.form == Form::Moved
                                               && std::any_of(seat.buttons.begin(),
                                                              seat.buttons.end(), isOfCommand);
        if (!isHere || !seat.place)
            continue;
        return seat.form == Form::Moved ? m_more->geometry() : m_row->actionGeometry(seat.place);
    }
    return QRect();
}
