// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

class ControlFactory;
class CustomMenuStyle;
class MRMenuButton;
struct Controller;

/** Makes the application button and the set button beside it, with their menus still empty. */
class AppButtonMaker
{
public:
    /** @param styles takes the styles of the menus, one for each button that has a menu */
    AppButtonMaker(const ControlFactory &factory, QList<CustomMenuStyle *> &styles);

    /** @param record null for a button that shows nothing and has no menu */
    MRMenuButton *makeAppButton(const Controller *record);

    /**
     * The set button. With a record without children it is a second face of the application
     * button; without a record it shows nothing.
     */
    MRMenuButton *makeSetButton(MRMenuButton *appButton, const Controller *record);

private:
    MRMenuButton *makeButton(MRMenuButton *anchor) const;
    template <auto how>
    void describe(MRMenuButton *button, const Controller &record) const;
    void makeMenu(MRMenuButton *button, const Controller &record, CustomMenuStyle *style) const;

    const ControlFactory &m_factory;
    QList<CustomMenuStyle *> &m_styles;
};
