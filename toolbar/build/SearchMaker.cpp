// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/SearchMaker.h"

#include "toolbar/build/ControlFactory.h"
#include "toolbar/build/ControlReceiver.h"
#include "toolbar/build/MenuMaker.h"
#include "toolbar/build/Presentation.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Names.h"
#include "toolbar/widgets/IconLabel.h"
#include "toolbar/widgets/MRSearchBar.h"

#include <QMenu>
#include <QPushButton>

#include <algorithm>

namespace {

bool mentions(const Controller &record, QLatin1String word)
{
    return record.name.contains(word, Qt::CaseInsensitive);
}

/** The elements of the search section that the field is made of; each may be absent. */
struct FieldRecords
{
    const Controller *label = nullptr;
    const Controller *field = nullptr;
    const Controller *previous = nullptr;
    const Controller *next = nullptr;
};

FieldRecords fieldRecords(const QList<Controller *> &records)
{
    FieldRecords found;
    for (const Controller *record : records) {
        if (record->type == Tag::label)
            found.label = record;
        else if (record->type == Tag::lineEdit)
            found.field = record;
        else if (record->type != Tag::button)
            continue;
        else if (mentions(*record, Word::next))
            found.next = record;
        else if (mentions(*record, Word::previous))
            found.previous = record;
    }
    return found;
}

void showLabel(IconLabel *label, const Controller &record, const Presentation &how)
{
    const QIcon icon = how.icon(record);
    if (icon.isNull())
        label->setText(how.text(record));
    else
        label->setIcon(icon, how.iconSize(16.0));
    showToolTipByName(label, record, how);
}

void showField(MRSearchBar *field, const Controller &record, const Presentation &how)
{
    field->showPrompt(how.prompt(record));
}

} // namespace

SearchMaker::SearchMaker(const ControlFactory &factory, ControlReceiver &receiver,
                         const QList<Controller *> &records)
    : m_factory(factory)
    , m_receiver(receiver)
    , m_records(records)
{
}

MRSearchBar *SearchMaker::makeField()
{
    const FieldRecords records = fieldRecords(m_records);
    if (!records.previous && !records.next)
        return nullptr;

    QLabel *label = records.label ? makeLabel(*records.label) : nullptr;
    QPushButton *previous = records.previous ? makeDirectionButton(*records.previous) : nullptr;
    QPushButton *next = records.next ? makeDirectionButton(*records.next) : nullptr;
    auto *field = new MRSearchBar(m_factory.owner(), label, previous, next, true);
    m_factory.presentation().fit<&fitSearchBar>(field);
    field->SetButtonProperty(Property::module, QLatin1String(Module::searchButton));
    if (records.field) {
        field->setObjectName(records.field->name);
        m_factory.presentation().show<&showField>(field, *records.field);
        addDisabledTip(field, *records.field, m_factory.presentation());
    }
    return field;
}

QLabel *SearchMaker::makeLabel(const Controller &record) const
{
    auto *label = new IconLabel;
    label->setObjectName(record.name);
    m_factory.presentation().fit<&showLabel>(label, record);
    return label;
}

QPushButton *SearchMaker::makeDirectionButton(const Controller &record)
{
    QPushButton *button = m_factory.makeTopLineButton(record, nullptr);
    button->setEnabled(record.usable);
    m_receiver.takeSearchButton(button);
    return button;
}

QPushButton *SearchMaker::makeSetButton(MenuMaker &menus)
{
    const auto found =
        std::find_if(m_records.begin(), m_records.end(), [](const Controller *record) {
            return record->type == Tag::button && mentions(*record, Word::searchSet);
        });
    if (found == m_records.end())
        return nullptr;

    const Controller &record = **found;
    QPushButton *button = m_factory.makeTopLineButton(record, m_factory.owner());
    button->setProperty(Property::module, Module::button);
    button->setCheckable(record.checkable);

    QMenu *menu = m_factory.makeMenu(button, true);
    menus.append(menu, record.children, nullptr);
    menu->setProperty(Property::module, Module::menu);
    menu->setObjectName(record.name);
    button->setMenu(menu);
    button->setStyleSheet(QStringLiteral("QPushButton::menu-indicator{image:none;}"));
    return button;
}
