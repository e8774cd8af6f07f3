// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/description/Names.h"
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

/** Whether the shortcut of the element acts in the whole window. */
bool actsInWindow(const SourceDocument &document, const SourceElement &element)
{
    const SourceAttribute *ofRoot = document.at(0).find("shortcutscope");
    const bool isAsked = element.record.optIn().shortcutscope == Word::windowScope
                         || (ofRoot && ofRoot->value == Word::windowScope);
    return isAsked && !document.isBelow(element, Role::SearchSet);
}

void checkScope(const SourceElement &element, Findings &findings)
{
    const SourceAttribute *scope = element.find("shortcutscope");
    if (scope && scope->value != Word::windowScope)
        findings.warn("shortcut-scope", scope->position,
                      QStringLiteral("the only scope of a shortcut is 'window'; '%1' is ignored")
                          .arg(scope->value));
    else if (scope && element.role != Role::Root && element.record.shortcut.isEmpty()
             && Vocabulary::usesAttribute(element.role, QStringLiteral("shortcut")))
        findings.warn("scope-without-shortcut", scope->position,
                      QStringLiteral("there is no 'shortcut' for 'shortcutscope' to act on; add "
                                     "one or remove this"));
}

void checkCollision(const SourceDocument &document, const SourceElement &owner,
                    const SourceElement &element, const QString &keys, Findings &findings)
{
    if (owner.record.name == element.record.name)
        return;
    const bool isInWindow = actsInWindow(document, owner) && actsInWindow(document, element);
    const SourcePosition first = owner.positionOf("shortcut");
    findings.warn(
        isInWindow ? "shortcut-taken" : "shortcut-collision", element.positionOf("shortcut"),
        isInWindow ? QStringLiteral("'%1' already belongs to '%2' in line %3, column %4, and "
                                    "triggers that one alone in the whole window")
                         .arg(keys, owner.record.name)
                         .arg(first.line)
                         .arg(first.column)
                   : QStringLiteral("'%1' already belongs to '%2' in line %3; while both are "
                                    "usable the keys trigger neither")
                         .arg(keys, owner.record.name)
                         .arg(owner.position.line));
}

/** Whether the keys trigger the control itself; reports it if they do not. */
bool checkReach(const SourceDocument &document, const SourceElement &element, Findings &findings)
{
    if (actsInWindow(document, element))
        return true;
    const SourcePosition position = element.positionOf("shortcut");
    if (element.role == Role::RowButton || element.role == Role::GroupButton)
        findings.warn("shortcut-without-scope", position,
                      QStringLiteral("on %1 a shortcut acts only with shortcutscope=\"window\"")
                          .arg(Vocabulary::noun(element.role)));
    else if (document.isBelow(element, Role::AppSection))
        findings.warn("shortcut-only-shown", position,
                      QStringLiteral("an entry of the application menus only shows its shortcut; "
                                     "add shortcutscope=\"window\", which leaves the keys to the "
                                     "host if that has them, too"));
    else
        return true;
    return false;
}

} // namespace

void Rules::checkShortcuts(const SourceDocument &document, Findings &findings)
{
    QHash<QString, const SourceElement *> ownersByScope[2]; ///< Those of the window are the second.
    for (const SourceElement &element : document.elements) {
        checkScope(element, findings);
        const QString shortcut = element.record.shortcut;
        if (shortcut.isEmpty()
            || !Vocabulary::usesAttribute(element.role, QStringLiteral("shortcut")))
            continue;

        const QString keys = spelledOut(shortcut);
        if (keys.isEmpty()) {
            findings.warn("shortcut-unreadable", element.positionOf("shortcut"),
                          QStringLiteral("'%1' names no keys, so the entry gets no shortcut; write "
                                         "it like 'Ctrl+Shift+S'")
                              .arg(shortcut));
            continue;
        }
        if (!checkReach(document, element, findings))
            continue;
        auto &owners = ownersByScope[actsInWindow(document, element) ? 1 : 0];
        if (const SourceElement *owner = owners.value(keys))
            checkCollision(document, *owner, element, keys, findings);
        else
            owners.insert(keys, &element);
    }
}
