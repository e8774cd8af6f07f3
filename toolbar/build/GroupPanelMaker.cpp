// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/GroupPanelMaker.h"

#include "toolbar/build/ControlFactory.h"
#include "toolbar/build/ControlReceiver.h"
#include "toolbar/build/ControlWidth.h"
#include "toolbar/build/Presentation.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Names.h"
#include "toolbar/widgets/ButtonForm.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRGroupButton.h"
#include "toolbar/widgets/MRSearchBar.h"
#include "toolbar/widgets/Panel.h"
#include "toolbar/widgets/PlaceholderTint.h"

#include <QAction>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStyle>
#include <QToolBar>

#include <algorithm>

namespace {

constexpr int buttonsPerColumn = 2;

void showLabel(QLabel *label, const Controller &record, const Presentation &how)
{
    label->setText(how.text(record));
    showToolTipByName(label, record, how);
}

template <typename Field>
void showField(Field *field, const Controller &record, const Presentation &how)
{
    field->setPlaceholderText(how.toolTip(record));
}

/** The sheets give a button room for a text, or none. */
void showKind(QToolButton *button, const Controller &record, const Presentation &how)
{
    const char *kind = how.text(record).isEmpty() ? Module::plainGroupButton : Module::groupButton;
    if (button->property(Property::module).toString() == QLatin1String(kind))
        return;
    button->setProperty(Property::module, kind);
    if (button->testAttribute(Qt::WA_WState_Polished)) {
        button->style()->unpolish(button);
        button->style()->polish(button);
    }
}

/** A button that shows an entry of its menu by now goes on to show that. */
template <bool isAllMenu>
void showMenuButton(MRGroupButton *button, const Controller &record, const Presentation &how)
{
    const QAction *entry = button->defaultAction();
    if (!entry || entry->icon().isNull())
        button->SetIcon(how.icon(record));
    if (entry)
        return;
    // The blanks are room for the arrow.
    button->setText(isAllMenu ? how.text(record) + QStringLiteral("  ") : how.text(record));
    showToolTip(button, record, how);
}

void fitMenuButton(MRGroupButton *button, const Controller &record, const Presentation &how)
{
    QStringList texts{how.text(record)};
    const QList<QAction *> entries =
        button->menu() ? button->menu()->actions() : QList<QAction *>();
    for (const QAction *entry : entries)
        texts.append(entry->text());
    constexpr double icon = 16.0;
    ButtonForm::setFullWidth(button, how.buttonWidth(ControlWidth::ofGroupMenu(texts), texts,
                                                     icon + ControlWidth::arrow));
}

} // namespace

GroupPanelMaker::GroupPanelMaker(ControlFactory &factory, ControlReceiver &receiver)
    : m_factory(factory)
    , m_receiver(receiver)
{
}

QWidget *GroupPanelMaker::makeExtraGroup(const QList<Controller *> &children)
{
    auto *panel = new Panel;
    auto *layout = new QHBoxLayout(panel);
    for (const Controller *group : children) {
        if (!group || group->type != Tag::extra)
            continue;
        for (const Controller *record : group->children) {
            if (QWidget *widget = makeExtraControl(panel, *record)) {
                widget->setEnabled(group->usable);
                layout->addWidget(widget);
            }
        }
    }
    return panel;
}

QWidget *GroupPanelMaker::makeExtraControl(QWidget *panel, const Controller &record)
{
    if (record.type == Tag::label)
        return makeLabel(record);
    if (record.type != Tag::lineEdit)
        return nullptr;
    if (record.children.isEmpty())
        return makePlainField(record);
    return makeExtraSearchField(panel, record);
}

QLabel *GroupPanelMaker::makeLabel(const Controller &record) const
{
    auto *label = new QLabel;
    label->setObjectName(record.name);
    m_factory.presentation().show<&showLabel>(label, record);
    addDisabledTip(label, record, m_factory.presentation());
    return label;
}

QLineEdit *GroupPanelMaker::makePlainField(const Controller &record) const
{
    auto *field = new QLineEdit;
    field->setObjectName(record.name);
    field->setProperty(Property::module, Module::input);
    m_factory.presentation().show<&showField<QLineEdit>>(field, record);
    addDisabledTip(field, record, m_factory.presentation());
    new PlaceholderTint(field);
    return field;
}

MRSearchBar *GroupPanelMaker::makeExtraSearchField(QWidget *panel, const Controller &record)
{
    QList<QPushButton *> buttons;
    for (const Controller *child : record.children) {
        if (child->type == Tag::button)
            buttons.append(makeExtraButton(panel, *child));
    }
    if (buttons.isEmpty() || buttons.size() > 2)
        return nullptr;

    QPushButton *previous = buttons.size() == 2 ? buttons.first() : nullptr;
    auto *field = new MRSearchBar(m_factory.owner(), nullptr, previous, buttons.last(), false);
    m_factory.presentation().fit<&fitSearchBar>(field);
    field->SetResizable(false);
    field->SetRelational(false);
    field->setObjectName(record.name);
    m_factory.presentation().show<&showField<MRSearchBar>>(field, record);
    addDisabledTip(field, record, m_factory.presentation());
    m_receiver.takeExtraSearchField(field);
    return field;
}

QPushButton *GroupPanelMaker::makeExtraButton(QWidget *panel, const Controller &record)
{
    // Hidden until a field takes it in, which shows it: a field takes one or two.
    QPushButton *button = m_factory.makeTopLineButton(record, panel);
    button->setFlat(false);
    button->hide();
    m_receiver.takeSearchButton(button);
    return button;
}

QWidget *GroupPanelMaker::makeButtonGroup(const QList<Controller *> &children, QToolBar *row)
{
    auto *panel = new Panel;
    panel->setObjectName(Part::groupPanel);
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
        m_factory.makeGroup(record->group, row);
        if (QToolButton *button = makeGroupButton(*record)) {
            grid->addWidget(button, line++, index / buttonsPerColumn);
            m_receiver.takeGroupButton(button, *record);
        }
    }
    return panel;
}

QToolButton *GroupPanelMaker::makeGroupButton(const Controller &record)
{
    QToolButton *button = nullptr;
    if (record.type == Tag::menu)
        button = makeMenuButton(record);
    else if (record.type == Tag::button)
        button = makePlainButton(record);
    else
        return nullptr;

    button->setObjectName(record.name);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    Presentation &presentation = m_factory.presentation();
    presentation.show<&showKind>(button, record);
    presentation.fit<&fitSmallIcon<QToolButton>>(button);
    addDisabledTip(button, record, presentation);
    return button;
}

QToolButton *GroupPanelMaker::makeMenuButton(const Controller &record)
{
    auto *button = new MRGroupButton(nullptr);
    button->setPopupMode(record.checkable ? QToolButton::MenuButtonPopup
                                          : QToolButton::InstantPopup);
    Presentation &presentation = m_factory.presentation();
    const auto *action = qobject_cast<MRDropButtonAction *>(m_factory.action(record.name));
    if (action && !record.checkable)
        presentation.show<&showMenuButton<true>>(button, record);
    else
        presentation.show<&showMenuButton<false>>(button, record);
    if (action && action->GetMenu())
        giveMenu(button, record, action->GetMenu());
    return button;
}

void GroupPanelMaker::giveMenu(MRGroupButton *button, const Controller &record, QMenu *menu)
{
    menu->setProperty(Property::rowMenu, "true");
    button->setMenu(menu);
    if (!record.checkable)
        return;
    m_factory.presentation().fit<&fitMenuButton>(button, record, Presentation::ItsEntries);
    if (record.index > 0)
        button->SetDefaultAction(menu->actions().value(record.index - 1));
    if (record.switchable)
        QObject::connect(menu, &QMenu::triggered, button, &MRGroupButton::SetDefaultAction);
}

QToolButton *GroupPanelMaker::makePlainButton(const Controller &record)
{
    auto *button = new QToolButton;
    button->setProperty(Property::usable, record.available ? "true" : "false");
    button->setEnabled(record.usable);

    QAction *action = m_factory.action(record.name);
    if (!action) {
        action = m_factory.makeAction(record, m_factory.owner(), record.available && record.usable);
        if (m_factory.joinGroup(action, record.group))
            action->setIconVisibleInMenu(true);
    }
    button->setDefaultAction(action);
    // Shown, it would be a window of its own until the panel takes it in.
    if (!record.visible)
        button->hide();
    return button;
}
