#include "toolbar/NewToolBar.h"

#include "toolbar/ActionData.h"
#include "toolbar/description/Controller.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRGroupButton.h"
#include "toolbar/widgets/MRSearchBar.h"
#include "toolbar/widgets/PlaceholderTint.h"

#include <QAction>
#include <QActionGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolBar>

#include <algorithm>

namespace {

constexpr int buttonsPerColumn = 2;

void setGroupButtonModule(QToolButton *button, const QString &text)
{
    button->setProperty("module", text.isEmpty() ? "groupbutton_withouttext" : "groupbutton");
}

qsizetype longestText(const QString &text, const QMenu &menu)
{
    qsizetype longest = text.size();
    const QList<QAction *> actions = menu.actions();
    for (const QAction *action : actions)
        longest = std::max<qsizetype>(longest, action->text().size());
    return longest;
}

} // namespace

QWidget *NewToolBar::CreateExtraGroup(const QList<Controller *> &children)
{
    auto *panel = new QWidget;
    auto *layout = new QHBoxLayout(panel);
    for (const Controller *group : children) {
        if (!group || group->type != QLatin1String("extra"))
            continue;
        for (const Controller *record : group->children) {
            if (QWidget *widget = createExtraControl(panel, *record)) {
                widget->setEnabled(group->usable);
                layout->addWidget(widget);
            }
        }
    }
    return panel;
}

QWidget *NewToolBar::createExtraControl(QWidget *panel, const Controller &record)
{
    if (record.type == QLatin1String("label")) {
        auto *label = new QLabel(record.text);
        label->setObjectName(record.name);
        return label;
    }
    if (record.type != QLatin1String("lineedit"))
        return nullptr;
    if (!record.children.isEmpty())
        return createExtraSearchField(panel, record);

    auto *field = new QLineEdit;
    field->setObjectName(record.name);
    field->setProperty("module", "toolbarinput");
    field->setPlaceholderText(record.tooltip);
    new PlaceholderTint(field);
    return field;
}

MRSearchBar *NewToolBar::createExtraSearchField(QWidget *panel, const Controller &record)
{
    QList<QPushButton *> buttons;
    for (const Controller *child : record.children) {
        if (child->type == QLatin1String("button"))
            buttons.append(createExtraButton(panel, *child));
    }
    if (buttons.isEmpty() || buttons.size() > 2)
        return nullptr;

    QPushButton *previous = buttons.size() == 2 ? buttons.first() : nullptr;
    auto *field = new MRSearchBar(this, nullptr, previous, buttons.last(), false);
    if (record.name.contains(QLatin1String("gis")))
        m_extraSearchEdit = field;
    field->SetResizable(false);
    field->SetRelational(false);
    field->setObjectName(record.name);
    field->setPlaceholderText(record.tooltip);
    connect(field, &MRSearchBar::returnPressed, this, &NewToolBar::Inner_DoSearchBarActionSlot);
    return field;
}

QPushButton *NewToolBar::createExtraButton(QWidget *panel, const Controller &record)
{
    // Hidden until a field takes it in, which shows it: a field takes one or two.
    QPushButton *button = createTopLineButton(record, panel);
    button->setFlat(false);
    button->hide();
    connect(button, &QPushButton::clicked, this, &NewToolBar::Inner_DoSearchBarActionSlot);
    return button;
}

void NewToolBar::CreateActionGroup(const QString &name, QObject *row)
{
    if (name.isEmpty() || GetActionGroup(name))
        return;

    auto *group = new QActionGroup(row);
    group->setObjectName(name);
    group->setExclusive(true);
    m_actionGroups.append(group);
}

QWidget *NewToolBar::CreateButtonGroupWidget(const QList<Controller *> &children, QToolBar *row)
{
    auto *panel = new QWidget;
    panel->setObjectName(QStringLiteral("groupwidget"));
    auto *grid = new QGridLayout(panel);
    grid->setSpacing(0);
    grid->setVerticalSpacing(2);
    grid->setContentsMargins(0, 0, 0, 0);

    int line = 0;
    for (int index = 0; index < children.size(); ++index) {
        if (index % buttonsPerColumn == 0)
            line = 0;
        const Controller *record = children.at(index);
        if (!record)
            continue;
        CreateActionGroup(record->group, row);
        if (QToolButton *button = createGroupButton(*record)) {
            grid->addWidget(button, line++, index / buttonsPerColumn);
            m_groupButtons.append(button);
        }
    }
    return panel;
}

QToolButton *NewToolBar::createGroupButton(const Controller &record)
{
    QToolButton *button = nullptr;
    if (record.type == QLatin1String("menu"))
        button = createGroupMenuButton(record);
    else if (record.type == QLatin1String("button"))
        button = createGroupPlainButton(record);
    else
        return nullptr;

    setGroupButtonModule(button, record.text);
    button->setObjectName(record.name);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    button->setIconSize(scaledIconSize(16.0));
    return button;
}

MRGroupButton *NewToolBar::createGroupMenuButton(const Controller &record)
{
    auto *button = new MRGroupButton(nullptr);
    button->setPopupMode(record.checkable ? QToolButton::MenuButtonPopup
                                          : QToolButton::InstantPopup);
    button->setText(record.text);
    button->SetIcon(icon(record.icon));
    SetWidgetToolTip(button, record.tooltip);

    const auto *action = qobject_cast<MRDropButtonAction *>(GetActionInTotal(record.name));
    if (!action)
        return button;
    if (!record.checkable)
        button->setText(record.text + QStringLiteral("  "));
    QMenu *menu = action->GetMenu();
    if (!menu)
        return button;

    menu->setProperty("toolbar", "true");
    button->setMenu(menu);
    if (!record.checkable)
        return button;
    const double width = static_cast<double>(longestText(record.text, *menu)) * 24.0 + 12.0;
    button->setFixedWidth(static_cast<int>(width * static_cast<double>(m_scale)));
    if (record.index > 0)
        button->SetDefaultAction(menu->actions().value(record.index - 1));
    if (record.switchable)
        connect(menu, &QMenu::triggered, button, &MRGroupButton::SetDefaultAction);
    return button;
}

QToolButton *NewToolBar::createGroupPlainButton(const Controller &record)
{
    auto *button = new QToolButton;
    button->setProperty("usable", record.available ? "true" : "false");
    button->setEnabled(record.usable);

    QAction *action = GetActionInTotal(record.name);
    if (!action) {
        action = new QAction(record.text, this);
        action->setIcon(icon(record.icon));
        if (QActionGroup *group = GetActionGroup(record.group)) {
            group->addAction(action);
            action->setIconVisibleInMenu(true);
        }
        action->setEnabled(record.available && record.usable);
        ActionData::set(action, record.available);
    }
    button->setDefaultAction(action);
    // Shown, it would be a window of its own until the panel takes it in.
    if (!record.visible)
        button->hide();
    return button;
}
