// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/Rules.h"
#include "tools/check/Vocabulary.h"

void Rules::checkShrinking(const SourceDocument &document, Findings &findings)
{
    for (const SourceElement &element : document.elements) {
        const SourceAttribute *shrink = element.find("shrink");
        if (!shrink || !Vocabulary::usesAttribute(element.role, shrink->name)
            || element.record.optIn().shrink > 0)
            continue;
        findings.warn("shrink-out-of-range", shrink->position,
                      QStringLiteral("shrink=\"%1\" is no digit from 1 to 9, so the control never "
                                     "gives way; 1 gives way first")
                          .arg(shrink->value));
    }
}
