// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/NewToolBar.h"

#include "toolbar/NewToolBarParts.h"
#include "toolbar/build/SearchMaker.h"
#include "toolbar/description/Sections.h"
#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/widgets/MRSearchBar.h"

#include <QPushButton>

namespace {

constexpr QLatin1String noIndicatorRule = latin1("QPushButton::menu-indicator{image:none;}");

QString activeSetButtonSheet(const QString &textColour, const QString &ground)
{
    return noIndicatorRule
           + QStringLiteral(
                 "QPushButton{color:%1;background-color:%2;border: none;border-radius:4px;}")
                 .arg(textColour, ground);
}

QString idleSetButtonSheet(const QString &textColour, const QString &hover, const QString &pressed)
{
    return noIndicatorRule
           + QStringLiteral("QPushButton{   background:transparent;}"
                            "QPushButton:hover{ background-color:%2;}"
                            "QPushButton:pressed{color:%1;background-color:%3;border: "
                            "none;border-radius:4px;}")
                 .arg(textColour, hover, pressed);
}

} // namespace

MRSearchBar *NewToolBar::CreateSearchBar()
{
    SearchMaker maker(m_parts->factory, m_parts->receiver,
                      sectionRecords(m_controllers, Section::searchBar));
    MRSearchBar *field = maker.makeField();
    if (field) {
        connect(field, &MRSearchBar::returnPressed, this, &NewToolBar::Inner_DoSearchBarActionSlot);
        connect(field, &MRSearchBar::DoActiveSetButton, this,
                &NewToolBar::Inner_DoActiveSetButtonSlot);
    }
    return field;
}

QPushButton *NewToolBar::CreateSearchSetButton()
{
    SearchMaker maker(m_parts->factory, m_parts->receiver,
                      sectionRecords(m_controllers, Section::searchBar));
    return maker.makeSetButton(m_parts->menus);
}

void NewToolBar::Inner_DoActiveSetButtonSlot(bool active)
{
    if (!m_searchSetButton)
        return;

    if (const SchemeColours *colours = m_appearance->colours()) {
        const QString text = colours->text.name();
        const QString hover = colours->hover.name();
        m_searchSetButton->setStyleSheet(
            active ? activeSetButtonSheet(text, hover)
                   : idleSetButtonSheet(text, hover, colours->pressed.name()));
        return;
    }
    const bool isCompact = Skin::isLum();
    const QString textColour = isCompact ? QStringLiteral("#000000") : QStringLiteral("#333333");
    const QString pressed = isCompact ? QStringLiteral("#1368AD") : QStringLiteral("#1460AB");
    const QString ground =
        isCompact ? QStringLiteral("rgb(219,222,227)") : QStringLiteral("#1460AB");
    if (active)
        m_searchSetButton->setStyleSheet(activeSetButtonSheet(textColour, ground));
    else if (isCompact)
        m_searchSetButton->setStyleSheet(QString()); // Back to the toolbar's own sheet.
    else
        m_searchSetButton->setStyleSheet(idleSetButtonSheet(textColour, ground, pressed));
}

void NewToolBar::Inner_DoUpdateSearchContentSlot(QString content)
{
    m_searchText = content;
}

void NewToolBar::Inner_DoSearchBarActionSlot()
{
    if (const QObject *control = sender())
        m_parts->search.use(control, m_searchBar, m_extraSearchEdit);
}
