#pragma once

#include <QIcon>

/**
 * The icon of a file or resource: empty for a path that is no file. It is read when it is first
 * painted, shared by all toolbars of the process, and paler while its control is disabled, on dark
 * grounds as well as on light ones.
 */
QIcon skinIcon(const QString &path);
