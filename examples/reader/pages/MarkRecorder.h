// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Mark.h"
#include "ofd/AnnotationWriter.h"

/**
 * What is painted for a mark as paths in page units, so that a file shows it as the screen does.
 * Text becomes outlines, which need no font.
 */
QVector<Ofd::DrawnPath> recordedMark(const Mark &mark);
