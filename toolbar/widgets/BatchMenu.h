// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMenu>
#include <QPointer>

/**
 * A menu whose entries can be changed many at a time while it is open. Qt lays an open menu out
 * after each change, so that n changes measure n times n texts.
 */
class BatchMenu : public QMenu
{
public:
    using QMenu::QMenu;

    /** While one of these exists the menu keeps its size; then it is laid out once. */
    class Changes
    {
    public:
        explicit Changes(BatchMenu *menu);
        ~Changes();
        Q_DISABLE_COPY_MOVE(Changes)

    private:
        QPointer<BatchMenu> m_menu;
    };

    /** Qt gives an open menu this size after each change. */
    QSize sizeHint() const override;

private:
    int m_openChanges = 0;
};
