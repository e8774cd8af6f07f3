// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

class QString;
class QWidget;
struct ControlLists;

/** Reserved names, each of which addresses the widgets of a whole area. */
namespace Areas {

/** Whether the name addresses an area or, if no area has it, nothing: never a single control. */
bool isArea(const QString &name);

/** The widgets that a state of the area is set of. */
QList<QWidget *> members(const ControlLists &lists, const QString &name);

/** The widgets of which one is enough for the area to be reported as enabled or visible. */
QList<QWidget *> askedMembers(const ControlLists &lists, const QString &name);

} // namespace Areas
