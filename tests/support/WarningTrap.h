#pragma once

#include <QStringList>

/** Keeps what the toolkit complains of while it lives. */
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
