// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

class MRDropButton;
class MRSearchBar;
class QAction;
class QComboBox;
class QLineEdit;
class QMenu;
class QPushButton;
class QString;
class QToolButton;
class TotalLabel;
struct Controller;

/**
 * Takes over what the makers have made and connects it to what it does. The makers know nothing
 * of that.
 */
class ControlReceiver
{
public:
    virtual ~ControlReceiver() = default;

    /** A command that has just been made, for a button or for an entry of a menu. */
    virtual void takeCommand(QAction *command) = 0;
    /** A search option, which may have been taken before. */
    virtual void takeSearchOption(QAction *option) = 0;
    virtual void takeSearchButton(QPushButton *button) = 0;
    /** A search field of an extra group. */
    virtual void takeExtraSearchField(MRSearchBar *field) = 0;
    /** Makes the menu for the list of recent files. */
    virtual QMenu *makeRecentFilesMenu(QMenu *parent) = 0;
    /** The entry that clears that list, which its menu reports. */
    virtual void takeClearEntry(QAction *entry) = 0;
    /** A drop button with its menu and its first face. */
    virtual void takeDropButton(MRDropButton *button, const Controller &record) = 0;
    virtual void takeGroupButton(QToolButton *button, const Controller &record) = 0;
    /** A filled list that is described by @p record, with its current entry set. */
    virtual void takeZoomBox(QComboBox *box, const Controller &record) = 0;
    /** @param caption the label below the field */
    virtual void takePageField(QLineEdit *field, TotalLabel *caption) = 0;
    virtual void takeTotalPageLabel(TotalLabel *label) = 0;
};
