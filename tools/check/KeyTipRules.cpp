// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/description/KeyTipLetters.h"
#include "tools/check/Rules.h"
#include "tools/check/Vocabulary.h"

#include <QHash>

namespace {

/** The tab whose row the element stands on; null for what is on the top line. */
const SourceElement *tabOf(const SourceDocument &document, const SourceElement &element)
{
    const SourceElement *above = &element;
    while (above->parent >= 0 && above->role != Role::TabSection) {
        const SourceElement *parent = &document.parentOf(*above);
        if (parent->role == Role::Tab)
            return parent;
        above = parent;
    }
    return nullptr;
}

} // namespace

void Rules::checkKeyTips(const SourceDocument &document, Findings &findings)
{
    // Those of the top line are shown together, and those of each row.
    QHash<const SourceElement *, QVector<const SourceElement *>> shownTogether;
    for (const SourceElement &element : document.elements) {
        if (element.record.optIn().keytip.isEmpty()
            || !Vocabulary::usesAttribute(element.role, QStringLiteral("keytip")))
            continue;

        const SourcePosition position = element.positionOf("keytip");
        const QString letters = KeyTipLetters::described(element.record);
        if (letters.isEmpty()) {
            findings.warn("keytip-letters", position,
                          QStringLiteral("'%1' cannot be typed as a key tip and is ignored; only "
                                         "Latin letters and digits can")
                              .arg(element.record.optIn().keytip));
            continue;
        }
        QVector<const SourceElement *> &others = shownTogether[tabOf(document, element)];
        for (const SourceElement *other : others) {
            if (KeyTipLetters::collide(letters, KeyTipLetters::described(other->record)))
                findings.warn("keytip-collision", position,
                              QStringLiteral("'%1' cannot be told from the key tip of '%2' in line "
                                             "%3, so it is ignored")
                                  .arg(letters, other->record.name)
                                  .arg(other->position.line));
        }
        others.append(&element);
    }
}
