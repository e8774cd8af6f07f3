// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/AppButtonMaker.h"

#include "toolbar/build/ControlFactory.h"
#include "toolbar/build/Presentation.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Names.h"
#include "toolbar/widgets/CustomMenuStyle.h"
#include "toolbar/widgets/MRMenuButton.h"
#include "toolbar/widgets/ToolTipCard.h"

#include <QMenu>

namespace {

constexpr int appMenuIconSize = 20;
constexpr int setMenuIconSize = 16;

constexpr QLatin1String noIndicatorSheet =
    latin1("QPushButton::menu-indicator{image:none;height:0px;width:0px;}");

void showSetButton(MRMenuButton *button, const Controller &record, const Presentation &how)
{
    showIcon(button, how.icon(record));
    showToolTip(button, record, how);
    button->setAccessibleName(toolTipTitle(how.toolTip(record)));
}

void showAppButton(MRMenuButton *button, const Controller &record, const Presentation &how)
{
    showSetButton(button, record, how);
    button->setText(how.text(record));
}

} // namespace

AppButtonMaker::AppButtonMaker(const ControlFactory &factory, QList<CustomMenuStyle *> &styles)
    : m_factory(factory)
    , m_styles(styles)
{
}

template <auto how>
void AppButtonMaker::describe(MRMenuButton *button, const Controller &record) const
{
    m_factory.presentation().show<how>(button, record);
    m_factory.presentation().fit<&fitSmallIcon<MRMenuButton>>(button);
    addDisabledTip(button, record, m_factory.presentation());
}

MRMenuButton *AppButtonMaker::makeAppButton(const Controller *record)
{
    MRMenuButton *button = makeButton(nullptr);
    button->setProperty(Property::module, Module::button);
    m_styles.append(new CustomMenuStyle(appMenuIconSize));
    if (!record)
        return button;

    button->setObjectName(record->name);
    button->setProperty(Property::loaded, "false");
    button->setStyleSheet(noIndicatorSheet);
    describe<&showAppButton>(button, *record);
    if (!record->children.isEmpty())
        makeMenu(button, *record, m_styles.last());
    return button;
}

MRMenuButton *AppButtonMaker::makeSetButton(MRMenuButton *appButton, const Controller *record)
{
    MRMenuButton *button = makeButton(appButton);
    button->setObjectName(Name::setButton);
    if (!record) {
        button->setFocusPolicy(Qt::NoFocus); // There is nothing to see of it, or to do.
        return button;
    }

    describe<&showSetButton>(button, *record);
    if (!record->children.isEmpty()) {
        m_styles.append(new CustomMenuStyle(setMenuIconSize));
        makeMenu(button, *record, m_styles.last());
        return button;
    }
    button->setCheckable(true);
    button->setStyleSheet(noIndicatorSheet);
    QObject::connect(button, &QPushButton::clicked, appButton, &QPushButton::click);
    return button;
}

MRMenuButton *AppButtonMaker::makeButton(MRMenuButton *anchor) const
{
    auto *button = new MRMenuButton(m_factory.owner(), 0, 0, anchor);
    button->setFlat(true);
    return button;
}

void AppButtonMaker::makeMenu(MRMenuButton *button, const Controller &record,
                              CustomMenuStyle *style) const
{
    QMenu *menu = m_factory.makeMenu(button, false);
    m_factory.presentation().show<&showTitle>(menu, record);
    menu->setObjectName(record.name);
    menu->setProperty(Property::module, Module::menu);
    m_factory.presentation().fit<&fitMenuIcons<CustomMenuStyle>>(style);
    menu->setStyle(style);
    button->SetMenu(menu);
}
