// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/BatchMenu.h"

BatchMenu::Changes::Changes(BatchMenu *menu)
    : m_menu(menu)
{
    ++m_menu->m_openChanges;
}

BatchMenu::Changes::~Changes()
{
    if (!m_menu || --m_menu->m_openChanges > 0 || !m_menu->isVisible())
        return;
    m_menu->resize(m_menu->sizeHint());
    m_menu->update();
}

QSize BatchMenu::sizeHint() const
{
    // To work the size out is what takes the time.
    return m_openChanges > 0 && isVisible() ? size() : QMenu::sizeHint();
}
