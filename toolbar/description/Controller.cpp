// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/description/Controller.h"

const OptInAttributes &Controller::optIn() const
{
    static const OptInAttributes none;
    return m_optIn ? *m_optIn : none;
}

OptInAttributes &Controller::changedOptIn()
{
    if (!m_optIn)
        m_optIn = new OptInAttributes;
    return *m_optIn;
}
