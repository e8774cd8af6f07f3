// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QList>

class TestHost;

/** Leaves behind what a user does in some minutes: tabs, menus, a page, a zoom, drop buttons. */
void useForAWhile(TestHost &host);

/** How much the most different colour of a picture differs from its ground. */
double bestContrast(const QImage &picture, const QColor &ground);

/** The toolbar with each of its tabs open, and its menus. */
QList<QImage> picturesOf(TestHost &host);
