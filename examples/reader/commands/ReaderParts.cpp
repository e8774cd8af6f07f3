// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "commands/ReaderParts.h"

#include <QMainWindow>
#include <QStatusBar>

namespace {

constexpr int messageTime = 6000;

} // namespace

void ReaderParts::say(const QString &message) const
{
    window->statusBar()->showMessage(message, messageTime);
}
