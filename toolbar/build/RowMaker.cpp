// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/RowMaker.h"

#include "toolbar/build/CaptionRoom.h"
#include "toolbar/build/ControlFactory.h"
#include "toolbar/build/ControlReceiver.h"
#include "toolbar/build/ControlWidth.h"
#include "toolbar/build/GroupPanelMaker.h"
#include "toolbar/build/MenuMaker.h"
#include "toolbar/build/Presentation.h"
#include "toolbar/commands/ActionData.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Names.h"
#include "toolbar/fields/EntryTexts.h"
#include "toolbar/fields/TotalLabel.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/widgets/ButtonForm.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRGroupButton.h"
#include "toolbar/widgets/ToolTipCard.h"

#include <QAction>
#include <QComboBox>
#include <QLayout>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QRegularExpressionValidator>
#include <QToolBar>

#include <algorithm>

namespace {

/** The skins show no scroll bar in a list, so that all of a usual one is to be seen. */
constexpr int mostShownChoices = 20;

/** Whether a separator that waits is to be placed before this control. */
bool endsSeparatorWait(const Controller &record)
{
    if (!record.visible)
        return false;
    return record.type != Tag::buttonGroup
           || std::any_of(record.children.begin(), record.children.end(),
                          [](const Controller *child) { return child && child->visible; });
}

void showLabel(TotalLabel *label, const Controller &record, const Presentation &how)
{
    label->describe(how.text(record));
    showToolTipByName(label, record, how);
}

TotalLabel *addCaption(QWidget *container, const Controller &record, Presentation &presentation)
{
    auto *caption = new TotalLabel;
    presentation.show<&showLabel>(caption, record);
    caption->setObjectName(Part::caption);
    caption->setAlignment(Qt::AlignCenter);
    container->layout()->addWidget(caption);
    return caption;
}

void showRowButton(QWidget *button, const Controller &record, const Presentation &how)
{
    button->setAccessibleName(how.text(record));
}

void fitRowButton(QWidget *button, const Controller &record, const Presentation &how)
{
    if (Skin::isLum())
        return;
    const QString text = how.text(record);
    ButtonForm::setFullWidth(button, how.buttonWidth(ControlWidth::ofButton(text), {text}, 0.0));
}

/** The button of a command that a panel shows: the row has it, but no room for it. */
void fitHiddenButton(QWidget *button, const Presentation &)
{
    button->setFixedWidth(0);
}

/** What a field is called for those who cannot see where it stands. */
void showSpokenName(QWidget *field, const Controller &record, const Presentation &how)
{
    const QString tip = how.toolTip(record);
    field->setAccessibleName(tip.isEmpty() ? how.text(record) : toolTipTitle(tip));
}

void showEntries(QComboBox *box, const Controller &record, const Presentation &how)
{
    QStringList texts;
    for (const Controller *item : record.children)
        texts.append(how.text(*item));
    setEntryTexts(box, texts);
}

/** Makes the described entry of the menu, if there is one, the button's own. */
void takeEntry(MRDropButtonAction *button, QMenu *menu, const Controller &record)
{
    QAction *entry = menu->actions().value(record.index - 1);
    if (record.index < 1 || !entry)
        return;

    button->SetAction(entry);
    if (record.withaction)
        menu->removeAction(entry);
}

void showMenu(MRDropButtonAction *action, const Controller &record, const Presentation &how)
{
    // The blanks are room for the arrow.
    const QAction *entry = action->GetAction();
    const QString text = how.text(record);
    action->showFace(entry               ? entry->text()
                     : record.switchable ? text
                                         : text + QStringLiteral("  "),
                     how.icon(record));
}

int menuWidth(const QMenu *menu, const Controller &record, const Presentation &how)
{
    // As the buttons show them, with blanks as room for the arrow.
    const QString blanks = QStringLiteral("    ");
    const QString text = how.text(record);
    if (!menu)
        return how.buttonWidth(ControlWidth::ofEmptyMenu(text), {text + blanks},
                               ControlWidth::arrow);

    QStringList entryTexts;
    QStringList shownTexts{text + blanks};
    const QList<QAction *> entries = menu->actions();
    for (const QAction *entry : entries) {
        entryTexts.append(entry->text());
        if (record.index >= 1 || record.switchable)
            shownTexts.append(entry->text() + blanks);
    }
    return how.buttonWidth(ControlWidth::ofMenu(text, entryTexts, record.index), shownTexts,
                           ControlWidth::arrow);
}

void showMenuButton(MRDropButtonAction *action, const Controller &record, const Presentation &how)
{
    MRDropButton *button = action->GetWidget();
    if (!button)
        return;
    showToolTip(button, record, how);
    if (record.withaction && action->GetAction() && how.toolTip(record).isEmpty())
        setToolTipCard(button, action->GetAction()->text(), how.cardLines());
}

void fitMenuButton(MRDropButtonAction *action, const Controller &record, const Presentation &how)
{
    if (MRDropButton *button = action->GetWidget())
        ButtonForm::setFullWidth(button, menuWidth(action->GetMenu(), record, how));
    action->fitMenuCopies();
}

} // namespace

RowMaker::RowMaker(ControlFactory &factory, ControlReceiver &receiver, MenuMaker &menus,
                   GroupPanelMaker &panels)
    : m_factory(factory)
    , m_receiver(receiver)
    , m_menus(menus)
    , m_panels(panels)
    , m_seats(factory)
{
}

bool RowMaker::fill(QToolBar *row, const QList<Controller *> &records, bool addToRow)
{
    if (records.isEmpty() || !row)
        return false;

    addControls(row, records, addToRow);
    if (addToRow)
        RowSeats::close(row);
    return true;
}

void RowMaker::addControls(QToolBar *row, const QList<Controller *> &records, bool addToRow)
{
    bool isSeparatorPending = false;
    for (const Controller *record : records) {
        if (!record)
            continue;
        m_factory.makeGroup(record->group, row);
        if (record->type == Tag::separator) {
            isSeparatorPending = true;
            continue;
        }
        if (isSeparatorPending && endsSeparatorWait(*record)) {
            row->addSeparator();
            isSeparatorPending = false;
        }
        addControl(*record, row, addToRow);
    }
}

void RowMaker::addControl(const Controller &record, QToolBar *row, bool addToRow)
{
    if (record.type == Tag::buttonGroup)
        addButtonGroup(record, row);
    else if (record.type == Tag::button)
        addButton(record, row, addToRow);
    else if (record.type == Tag::menu)
        addMenu(record, row, addToRow);
    else if (record.type == Tag::comboBox)
        addComboBox(record, row);
    else if (record.type == Tag::label)
        addLabel(record, row);
    else if (record.type == Tag::lineEdit)
        addLineEdit(record, row);
}

void RowMaker::addButton(const Controller &record, QToolBar *row, bool addToRow)
{
    // One action serves every place where the command stands.
    QAction *action = m_factory.action(record.name);
    const bool isNew = !action;
    if (isNew)
        action = makeButtonAction(record);

    m_factory.joinGroup(action, record.group);
    m_factory.presentation().show<&showToolTip>(action, record);
    action->setCheckable(record.checkable);
    action->setChecked(record.checked);
    action->setVisible(record.visible);
    QWidget *button =
        addToRow ? m_seats.addButton(row, action, record) : row->widgetForAction(action);
    if (record.doubleclick)
        ActionData::addDoubleClick(action);
    if (button) {
        Presentation &presentation = m_factory.presentation();
        presentation.show<&showRowButton>(button, record);
        addDisabledTip(button, record, presentation);
        if (addToRow)
            presentation.fit<&fitRowButton>(button, record);
        else
            presentation.fit<&fitHiddenButton>(button);
    }
    m_factory.addAction(action);
    if (isNew)
        m_receiver.takeCommand(action);
}

QAction *RowMaker::makeButtonAction(const Controller &record)
{
    QAction *action =
        m_factory.makeAction(record, m_factory.owner(), record.available && record.usable);
    action->setObjectName(record.name);
    action->setIconVisibleInMenu(true);
    return action;
}

void RowMaker::addMenu(const Controller &record, QToolBar *row, bool addToRow)
{
    auto *action = new MRDropButtonAction(row, m_factory.owner());
    action->SetCheckable(record.checkable);
    action->SetSwichable(record.switchable);
    action->setVisible(record.visible);
    action->setEnabled(record.available && record.usable);
    action->SetWithAction(record.withaction);
    ActionData::set(action, record.available);

    QMenu *menu = record.children.isEmpty() ? nullptr : makeDropMenu(record);
    if (menu) {
        action->SetMenu(menu);
        takeEntry(action, menu, record);
    }
    Presentation &presentation = m_factory.presentation();
    presentation.show<&showMenu>(action, record, Presentation::ItsEntries);

    if (addToRow)
        m_seats.addMenu(row, action, record);
    action->setObjectName(record.name);
    m_factory.addAction(action);
    if (MRDropButton *button = action->GetWidget()) {
        presentation.show<&showMenuButton>(action, record, Presentation::ItsEntries);
        presentation.fit<&fitMenuButton>(action, record, Presentation::ItsEntries);
        addDisabledTip(button, record, presentation);
        button->SetName(record.name);
        m_receiver.takeDropButton(button, record);
    }
}

QMenu *RowMaker::makeDropMenu(const Controller &record)
{
    QMenu *menu = m_factory.makeMenu(m_factory.owner(), true);
    m_factory.presentation().show<&showTitle>(menu, record);
    menu->setProperty(Property::module, Module::menu);
    menu->setObjectName(record.name);
    m_menus.append(menu, record.children, nullptr);
    return menu;
}

void RowMaker::addButtonGroup(const Controller &record, QToolBar *row)
{
    // The children's actions come first: the panel's buttons are made of them.
    fill(row, record.children, false);
    auto *action = new MRButtonGroup(m_factory.owner());
    action->setDefaultWidget(m_panels.makeButtonGroup(record.children, row));
    m_seats.addGroup(row, action, record);
}

void RowMaker::addComboBox(const Controller &record, QToolBar *row)
{
    auto *box = new QComboBox;
    box->setEditable(record.editable);
    box->setObjectName(record.name);
    m_factory.presentation().show<&showSpokenName>(box, record);
    box->setFocusPolicy(Qt::ClickFocus);
    for (const Controller *item : record.children) {
        box->addItem(QIcon(), item->text, item->name);
        if (!item->text.contains(QLatin1Char('%')))
            box->setEditable(false);
    }
    m_factory.presentation().show<&showEntries>(box, record, Presentation::ItsEntries);
    addDisabledTip(box, record, m_factory.presentation());
    if (box->count() > 0) {
        box->setView(new QListView);
        if (record.index > 0)
            box->setCurrentIndex(record.index - 1);
        box->setInsertPolicy(QComboBox::InsertAtBottom);
        box->setMaxVisibleItems(mostShownChoices);
        if (record.name.contains(Word::zoom, Qt::CaseInsensitive))
            m_receiver.takeZoomBox(box, record);
    }

    QWidget *container = makeCaptionedContainer(box);
    addCaption(container, record, m_factory.presentation());
    addWidget(container, record, row);
}

void RowMaker::addLabel(const Controller &record, QToolBar *row)
{
    auto *label = new TotalLabel;
    m_factory.presentation().show<&showLabel>(label, record);
    addDisabledTip(label, record, m_factory.presentation());
    label->setObjectName(record.name);
    if (record.name == Name::totalPageLabel)
        m_receiver.takeTotalPageLabel(label);
    addWidget(label, record, row);
}

void RowMaker::addLineEdit(const Controller &record, QToolBar *row)
{
    auto *field = new QLineEdit;
    field->setProperty(Property::module, Module::input);
    field->setObjectName(record.name);
    m_factory.presentation().show<&showSpokenName>(field, record);
    addDisabledTip(field, record, m_factory.presentation());
    QWidget *container = makeCaptionedContainer(field);
    if (record.name.contains(Word::goToPage, Qt::CaseInsensitive)) {
        m_receiver.takePageField(field, addCaption(container, record, m_factory.presentation()));
    } else {
        const QRegularExpression digits(QStringLiteral("^[0-9]*$"));
        field->setValidator(new QRegularExpressionValidator(digits, field));
        container->layout()->addItem(new CaptionRoom(field));
    }
    addWidget(container, record, row);
}

void RowMaker::addWidget(QWidget *widget, const Controller &record, QToolBar *row)
{
    QAction *action = row->addWidget(widget);
    action->setObjectName(record.name);
    action->setVisible(record.visible);
    m_factory.addAction(action);
}
