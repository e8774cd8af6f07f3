// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Mark.h"
#include "ofd/AnnotationWriter.h"
#include "ofd/DocumentRoot.h"

/** Marks as annotations of a file, whose parameters keep what the appearance does not tell. */
namespace MarkAnnotation {

/** The length of a page unit in millimetres. */
constexpr qreal millimetres = 25.4 / 96;

/** All but the appearance of the annotation for a mark. */
Ofd::AnnotationDraft draftOf(const Mark &mark);
/** Adds an appearance, which is in page units. @p corner is that of the page in millimetres. */
void setAppearance(Ofd::AnnotationDraft &draft, const QVector<Ofd::DrawnPath> &paths,
                   QPointF corner);

/**
 * The marks of a document by its annotations. What this program has drawn is such a mark again,
 * unless another program has moved it; the others have the kind Annotation.
 */
QList<Mark> marksOf(const Ofd::Document &document, const Ofd::DocumentRoot &root);

} // namespace MarkAnnotation
