// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/Rules.h"
#include "tools/check/Vocabulary.h"

#include <QHash>
#include <QKeySequence>

namespace {

/** The shortcut in the spelling of Qt; empty if Qt cannot parse the text. */
QString spelledOut(const QString &shortcut)
{
    const QKeySequence keys(shortcut);
    for (int i = 0; i < keys.count(); ++i) {
        const QKeySequence single(keys[static_cast<uint>(i)]);
        const QString text = single.toString(QKeySequence::PortableText);
        // Qt turns an invalid text into an empty sequence or into modifiers without a key.
        if (text.isEmpty() || single == QKeySequence(Qt::Key_unknown)
            || text.endsWith(QLatin1String("Unknown")))
            return QString();
    }
    return keys.toString(QKeySequence::PortableText);
}

} // namespace

void Rules::checkShortcuts(const SourceDocument &document, Findings &findings)
{
    QHash<QString, const SourceElement *> owners;
    for (const SourceElement &element : document.elements) {
        const QString shortcut = element.record.shortcut;
        if (shortcut.isEmpty()
            || !Vocabulary::usesAttribute(element.role, QStringLiteral("shortcut")))
            continue;

        const SourcePosition position = element.positionOf("shortcut");
        const QString keys = spelledOut(shortcut);
        if (keys.isEmpty()) {
            findings.warn("shortcut-unreadable", position,
                          QStringLiteral("'%1' names no keys, so the entry gets no shortcut; write "
                                         "it like 'Ctrl+Shift+S'")
                              .arg(shortcut));
            continue;
        }
        const SourceElement *owner = owners.value(keys);
        if (!owner)
            owners.insert(keys, &element);
        else if (owner->record.name != element.record.name)
            findings.warn("shortcut-collision", position,
                          QStringLiteral("'%1' already belongs to '%2' in line %3; while both are "
                                         "usable the keys trigger neither")
                              .arg(keys, owner->record.name)
                              .arg(owner->position.line));
    }
}
