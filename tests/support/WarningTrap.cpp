// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/WarningTrap.h"

namespace {

QStringList trapped;

void note(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (!message.contains(QLatin1String("This plugin does not support")))
        trapped.append(message);
}

} // namespace

WarningTrap::WarningTrap()
    : m_previous(qInstallMessageHandler(note))
{
    trapped.clear();
}

WarningTrap::~WarningTrap()
{
    qInstallMessageHandler(m_previous);
}

QStringList WarningTrap::warnings()
{
    return trapped;
}
