// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/AnnotationWriter.h"
#include "ofd/XmlCopy.h"

namespace Ofd {

/** Writes an annotation with its appearance. Counts up the last identifier that is in use. */
void writeAnnotation(XmlCopy &copy, const AnnotationDraft &draft, qint64 &lastId);

} // namespace Ofd
