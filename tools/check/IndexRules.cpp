// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/Rules.h"
#include "tools/check/Vocabulary.h"

namespace {

/** The effect of an index without an entry. */
QString fate(Role role)
{
    return role == Role::ComboBox ? QStringLiteral("the box has no current entry")
                                  : QStringLiteral("the button keeps its own text and icon");
}

void checkEntry(const SourceDocument &document, const SourceElement &element, Findings &findings)
{
    const SourcePosition position = element.positionOf("index");
    const int index = element.record.index;
    const auto count = element.children.size();
    if (index < 0 || index > count) {
        findings.warn(
            "index-out-of-range", position,
            QStringLiteral("there is no entry %1 among %2, so %3; count from 1")
                .arg(index)
                .arg(count)
                .arg(index < 0 ? QStringLiteral("the number is ignored") : fate(element.role)));
        return;
    }
    if (index > 0 && document.at(element.children.at(index - 1)).role == Role::Separator)
        findings.warn("index-of-separator", position,
                      QStringLiteral("entry %1 is a separator, which the button would make its own "
                                     "entry; separators count")
                          .arg(index));
}

} // namespace

void Rules::checkIndexes(const SourceDocument &document, Findings &findings)
{
    for (const SourceElement &element : document.elements) {
        const SourceAttribute *index = element.find("index");
        if (!index || !Vocabulary::usesAttribute(element.role, index->name))
            continue;
        bool isNumber = false;
        index->value.toInt(&isNumber);
        if (isNumber)
            checkEntry(document, element, findings);
        else
            findings.warn("index-not-number", index->position,
                          QStringLiteral("index=\"%1\" is no whole number and counts as 0, which "
                                         "chooses no entry; count from 1")
                              .arg(index->value));
    }
}
