// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/** Collects the warnings of Qt during its lifetime. */
class WarningTrap
{
public:
    WarningTrap();
    ~WarningTrap();
    Q_DISABLE_COPY_MOVE(WarningTrap)

    static QStringList warnings();

private:
    QtMessageHandler m_previous;
};
