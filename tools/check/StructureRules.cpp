// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/Rules.h"
#include "tools/check/Spelling.h"
#include "tools/check/Vocabulary.h"

namespace {

QString quoted(const QStringList &names)
{
    return QLatin1Char('\'') + names.join(QStringLiteral("', '")) + QLatin1Char('\'');
}

/** What the library makes from an element in a wrong place. */
QString fate(const SourceElement &element)
{
    return Vocabulary::isLeftOut(element.role)
               ? QStringLiteral("nothing is built from it or its children")
               : QStringLiteral("it becomes %1 all the same").arg(Vocabulary::noun(element.role));
}

Severity severityOf(const SourceElement &element)
{
    return Vocabulary::isLeftOut(element.role) ? Severity::Error : Severity::Warning;
}

void checkSection(const SourceElement &element, Findings &findings)
{
    if (element.role != Role::Nothing)
        return;
    const QStringList sections = Vocabulary::sections();
    const QString hint = Spelling::hint(element.tag, sections);
    findings.fail(
        "unknown-section", element.position,
        QStringLiteral("'%1' is no section, so everything in it is left out%2")
            .arg(element.tag, hint.isEmpty()
                                  ? QStringLiteral("; the sections are %1").arg(quoted(sections))
                                  : hint));
}

/** Reports an element in a place where the format has no such element. */
void checkPlace(const SourceElement &element, const SourceElement &parent, Findings &findings)
{
    const QStringList expected = Vocabulary::elementsBelow(parent.role);
    if (!Vocabulary::elements().contains(element.tag)) {
        const QString hint = Spelling::hint(element.tag, Vocabulary::elements());
        findings.add(
            severityOf(element), "unknown-element", element.position,
            QStringLiteral("there is no element '%1': %2%3").arg(element.tag, fate(element), hint));
        return;
    }
    const QString mend = expected.isEmpty() ? QStringLiteral("it holds no elements")
                                            : QStringLiteral("it holds %1").arg(quoted(expected));
    findings.add(severityOf(element), "misplaced-element", element.position,
                 QStringLiteral("'%1' has no place in '%2' (%3): %4")
                     .arg(element.tag, parent.tag, mend, fate(element)));
}

/** Reports an element in its place from which nothing, or something else, is built. */
void checkOutcome(const SourceElement &element, Findings &findings)
{
    if (element.role == Role::SurplusAppButton)
        findings.fail("third-app-menu", element.position,
                      QStringLiteral("only the first two menus of 'toolbar_appbutton' become "
                                     "buttons; this one and its entries are left out"));
    else if (element.role == Role::IdleExtra)
        findings.fail("idle-extra", element.position,
                      QStringLiteral("the tab shows no extra groups; give its 'tabbutton' "
                                     "scalable=\"true\" or remove the group"));
    else if (element.role == Role::NamelessSearchButton)
        findings.fail("search-button-name", element.position,
                      QStringLiteral("nothing is built from a search button whose name contains "
                                     "neither 'prev' nor 'next' nor 'st_set'"));
    else if (element.role == Role::MenuEntry && element.tag == QLatin1String("menu"))
        findings.warn("empty-menu", element.position,
                      QStringLiteral("a sub-menu without entries becomes a plain entry; fill it or "
                                     "write 'menuitem'"));
    else if (element.role == Role::SubMenu && element.tag == QLatin1String("menuitem"))
        findings.warn("entry-with-children", element.position,
                      QStringLiteral("an entry that holds others becomes a sub-menu and triggers "
                                     "nothing itself; write 'menu'"));
}

/** Reports an element that lacks the attributes or children that the library needs. */
void checkBareness(const SourceElement &element, Findings &findings)
{
    const QString outcome = Vocabulary::isLeftOut(element.role)
                                ? fate(element)
                                : QStringLiteral("it becomes %1 without text and name")
                                      .arg(Vocabulary::noun(element.role));
    findings.add(severityOf(element), "no-attributes", element.position,
                 QStringLiteral("'%1' has no attributes, so the library cannot determine what it "
                                "is: %2; give it an 'action' or a 'name'")
                     .arg(element.tag, outcome));
}

void checkElement(const SourceElement &element, const SourceElement &parent, Findings &findings)
{
    if (!Vocabulary::elementsBelow(parent.role).contains(element.tag))
        checkPlace(element, parent, findings);
    else if (element.record.type.isEmpty())
        checkBareness(element, findings);
    else
        checkOutcome(element, findings);
}

} // namespace

void Rules::checkStructure(const SourceDocument &document, Findings &findings)
{
    for (const SourceElement &element : document.elements) {
        if (element.strayText)
            findings.warn("stray-text", *element.strayText,
                          QStringLiteral("text between elements is ignored; write texts into the "
                                         "attribute 'text', remarks into comments"));
        if (element.role == Role::Root)
            continue;
        const SourceElement &parent = document.parentOf(element);
        if (parent.role == Role::Root)
            checkSection(element, findings);
        else if (!Vocabulary::isLeftOut(parent.role))
            checkElement(element, parent, findings);
    }
}
