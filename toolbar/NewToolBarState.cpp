#include "toolbar/NewToolBar.h"

#include "toolbar/ActionData.h"
#include "toolbar/ActionTrigger.h"
#include "toolbar/ControlVisitor.h"
#include "toolbar/QtCompat.h"
#include "toolbar/widgets/DropMenuIndex.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRScrollWidget.h"
#include "toolbar/widgets/MRSearchBar.h"

#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolBar>
#include <QWidgetAction>

#include <algorithm>

namespace {

constexpr QLatin1String rowsArea = QtCompat::latin1("toolbar_maintoolbar");
constexpr QLatin1String additionalArea = QtCompat::latin1("toolbar_addtional");
constexpr QLatin1String quickAccessArea = QtCompat::latin1("toolbar_quickaccessbar");

/** Names with this in them are looked up as areas, never as single controls. */
bool isAreaName(const QString &name)
{
    return name.contains(QLatin1String("toolbar_"));
}

/** Names of actions that are shown and hidden together with the field of that name. */
QString companionName(const QString &name)
{
    if (name == QLatin1String("d_gotopage"))
        return QStringLiteral("d_gotopageinput");
    if (name == QLatin1String("v_zoom"))
        return QStringLiteral("v_zoomlist");
    return QString();
}

void enableAction(QAction *action, bool usable)
{
    // A drop button's action has copies of its own to take along.
    if (auto *dropAction = qobject_cast<MRDropButtonAction *>(action))
        dropAction->setEnabled(usable);
    else
        action->setEnabled(usable);
}

void enableIfAvailable(QAction *action, bool usable)
{
    if (ActionData::isAvailable(action))
        enableAction(action, usable);
}

/** Triggers the action without a report to the host. */
void triggerSilently(QAction *action)
{
    const QPointer<QAction> guarded(action);
    const QVariant data = action->data();
    ActionData::silence(action);
    triggerAction(action);
    // Nobody but the dispatcher ends the silence, and not every action is connected to that.
    if (guarded && ActionData::isSilent(action))
        action->setData(data);
}

/** A widget on a tool row takes its enabled state from its action whenever that is shown. */
void showRowWidget(QWidgetAction *action, bool visible)
{
    QWidget *widget = action->defaultWidget();
    const bool isEnabled = widget->isEnabledTo(widget->parentWidget());
    action->setVisible(visible);
    widget->setEnabled(isEnabled);
}

bool hasCheckedAction(const QMenu *menu)
{
    if (!menu)
        return false;
    const QList<QAction *> actions = menu->actions();
    return std::any_of(actions.begin(), actions.end(),
                       [](const QAction *action) { return action->isChecked(); });
}

} // namespace

void NewToolBar::DoSetControlUsableStateSlot(QString &objName, bool usable)
{
    if (m_isFirstUsableCall && m_toolRowStack)
        m_toolRowStack->setEnabled(true);
    m_isFirstUsableCall = false;

    // Once the whole toolbar is disabled, this slot enables nothing any more, deliberately.
    if (m_hostToolBar && !m_hostToolBar->isEnabled())
        return;
    if (m_currentScrollWidget && !m_currentScrollWidget->isEnabled()) {
        const QList<QObject *> actions = matchingActions(objName);
        if (!actions.isEmpty())
            enableIfAvailable(qobject_cast<QAction *>(actions.first()), usable);
        return;
    }
    if (isAreaName(objName)) {
        enableArea(objName, usable);
        return;
    }

    StateSetter setter({[usable](ControlPlace place, QAction *action) {
                            // An entry that opens a menu has no data to go by.
                            if (place == ControlPlace::AppMenu)
                                action->setEnabled(usable);
                            else
                                enableIfAvailable(action, usable);
                        },
                        [usable](QWidget *widget) { widget->setEnabled(usable); },
                        [](QObject *button) {
                            return button->property("usable").toString() == QLatin1String("true");
                        },
                        false, [this](const QAbstractButton *tab) { return leaveTab(tab); }});
    visitControls(objName, setter);
}

void NewToolBar::enableArea(const QString &name, bool usable)
{
    const QList<QWidget *> widgets = areaWidgets(name);
    for (QWidget *widget : widgets)
        widget->setEnabled(usable);
    if (name == rowsArea)
        SetExtraGroupEnable(usable);
}

void NewToolBar::DoSetControlVisibleStateSlot(QString &objName, bool visible)
{
    if (isAreaName(objName)) {
        showArea(objName, visible);
        return;
    }

    const QString companion = companionName(objName);
    if (!companion.isEmpty()) {
        for (const qsizetype position : m_actions.positions(companion))
            showAction(m_actions.at(position), visible);
    }
    StateSetter setter(
        {[this, visible](ControlPlace, QAction *action) { showAction(action, visible); },
         [visible](QWidget *widget) { widget->setVisible(visible); },
         [](QObject *) { return true; }, true,
         [this](const QAbstractButton *tab) { return leaveTab(tab); }});
    visitControls(objName, setter);
}

void NewToolBar::showArea(const QString &name, bool visible)
{
    if (name == rowsArea) {
        showToolRows(visible);
    } else if (name == additionalArea) {
        showAdditionalControls(visible);
    } else if (name.startsWith(quickAccessArea) && name != quickAccessArea) {
        showQuickAccess(name, visible);
    } else {
        const QList<QWidget *> widgets = areaWidgets(name);
        for (QWidget *widget : widgets)
            widget->setVisible(visible);
    }
}

void NewToolBar::showToolRows(bool visible)
{
    m_toolRowsShown = visible;
    if (!m_currentScrollWidget)
        return;

    showFoldButtons(!visible);
    m_currentScrollWidget->setVisible(visible);
    SetExtraGroupVisible(visible ? currentTabName() : QStringLiteral(" "));
}

void NewToolBar::showAdditionalControls(bool visible)
{
    const bool isRowShown = m_currentScrollWidget && m_currentScrollWidget->isVisibleTo(this);
    const bool isRowHidden = m_currentScrollWidget && !isRowShown;
    for (QWidget *control : m_additionalWidgets) {
        const QString name = control->objectName();
        // Of the two fold buttons only the one that can do something comes back.
        const bool stays = visible
                           && ((name.contains(QLatin1String("extend")) && !isRowHidden)
                               || (name.contains(QLatin1String("fold")) && !isRowShown));
        if (!stays)
            control->setVisible(visible);
    }
}

void NewToolBar::showQuickAccess(const QString &name, bool visible)
{
    const QStringList parts = name.split(QLatin1Char('/'));
    if (parts.size() != 2)
        return;
    if (parts.last() == QLatin1String("set")) {
        if (m_quickAccessSetButton)
            m_quickAccessSetButton->setVisible(visible);
        return;
    }

    const QMenu *menu = m_quickAccessSetButton ? m_quickAccessSetButton->menu() : nullptr;
    const QList<QAction *> customiseEntries = menu ? menu->actions() : QList<QAction *>();
    const QList<QObject *> entries = matchingQuickEntries(parts.last());
    for (QObject *entry : entries) {
        showAction(qobject_cast<QAction *>(entry), visible);
        for (QAction *customiseEntry : customiseEntries) {
            if (customiseEntry->isCheckable()
                && customiseEntry->objectName() == entry->objectName())
                customiseEntry->setChecked(visible);
        }
    }
}

void NewToolBar::showAction(QAction *action, bool visible)
{
    if (auto *dropAction = qobject_cast<MRDropButtonAction *>(action))
        dropAction->setVisible(visible);
    else if (auto *widgetAction = qobject_cast<QWidgetAction *>(action);
             widgetAction && widgetAction->defaultWidget())
        showRowWidget(widgetAction, visible);
    else
        action->setVisible(visible);
    if (!visible)
        replaceCurrentEntry(action);
}

void NewToolBar::replaceCurrentEntry(const QAction *hidden)
{
    const QList<MRDropButton *> buttons = m_dropMenus->buttonsOf(hidden);
    for (MRDropButton *button : buttons) {
        if (button->GetCurrentAction() != hidden || !button->menu())
            continue;
        const QList<QAction *> entries = button->menu()->actions();
        const auto start = entries.indexOf(const_cast<QAction *>(hidden));
        // The button's own entry is not in the menu; the search then begins with the first.
        for (qsizetype step = 1; step <= entries.size(); ++step) {
            QAction *entry = entries.at((start + step) % entries.size());
            const bool isCommand = !entry->isSeparator() && !entry->menu();
            if (entry != hidden && isCommand && entry->isVisible()) {
                button->SetAction(entry);
                break;
            }
        }
    }
}

void NewToolBar::DoSetControlCheckedStateSlot(QString &objName, bool checked)
{
    const auto colon = objName.indexOf(QLatin1Char(':'));
    if (colon >= 0)
        objName.truncate(colon);

    // Checking may run the host's code, so nothing of the toolbar is held across it.
    const QPointer<NewToolBar> self(this);
    const QString name = objName;
    const QList<qsizetype> positions = m_actions.positions(name);
    for (const qsizetype position : positions) {
        QAction *action = m_actions.at(position);
        if (action->isChecked() == checked)
            continue;
        if (checked)
            triggerSilently(action);
        else
            action->setChecked(false);
        if (!self)
            return;
    }
    matchDropButtonsToMenus();

    // Any other control's state ends an active shape tool, whatever the state, deliberately.
    if (name != QLatin1String("tw_watermark_add") && !name.contains(QLatin1String("tp_"))) {
        if (MRDropButton *shapes = m_dropButtons.first(QStringLiteral("tp_shape")))
            shapes->setChecked(false);
    }
}

void NewToolBar::matchDropButtonsToMenus()
{
    // Those that nothing has happened to since the last time still match.
    const QSet<MRDropButton *> buttons = m_dropMenus->takeChanged();
    for (MRDropButton *button : buttons)
        button->setChecked(hasCheckedAction(button->menu()));
}

bool NewToolBar::GetCompositeEnable(QString name)
{
    return reportState(name, ControlReport::Enabled);
}

bool NewToolBar::GetCompositeVisible(QString name)
{
    return reportState(name, ControlReport::Visible);
}

bool NewToolBar::reportState(const QString &name, ControlReport report)
{
    if (isAreaName(name)) {
        const QList<QWidget *> widgets = askedAreaWidgets(name);
        return std::any_of(widgets.begin(), widgets.end(), [report](const QWidget *widget) {
            return StateReporter::read(widget, report);
        });
    }
    StateReporter reporter(name, report);
    visitControls(name, reporter);
    return reporter.result();
}

bool NewToolBar::GetControlCheckState(QString name)
{
    const QList<QObject *> actions = namedActions(name);
    for (const QObject *object : actions) {
        const auto *action = qobject_cast<const QAction *>(object);
        if (action->isCheckable())
            return action->isChecked();
    }
    return false;
}

bool NewToolBar::IsSupportByToolBar(QString name)
{
    return GetActionInTotal(name) != nullptr;
}

QRect NewToolBar::GetControlGeometry(QString name)
{
    QRect geometry;
    const QList<QObject *> actions = namedActions(name);
    for (QObject *action : actions) {
        for (const QToolBar *row : std::as_const(m_toolBars)) {
            geometry = row->actionGeometry(qobject_cast<QAction *>(action));
            if (geometry.isValid()) {
                geometry.moveTopLeft(row->mapToGlobal(geometry.topLeft()));
                return geometry;
            }
        }
    }
    return geometry;
}

void NewToolBar::ResetToolbarState()
{
    const QPointer<NewToolBar> self(this);
    DoSetZoomModeSlot(QStringLiteral("vzmode_original"));
    if (!self)
        return;
    DoSetTotalPageSlot(QStringLiteral(" "));
    DoSetPageNumSlot(QStringLiteral(" "));
    for (QAction *action : m_actions)
        action->setChecked(false);
    for (MRDropButton *button : m_dropButtons)
        button->setChecked(false);
}
