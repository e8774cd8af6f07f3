// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

class QObject;

/** Whether @p object is somewhere below @p ancestor. An object is not below itself. */
bool isChildren(QObject *ancestor, QObject *object);
