// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/Rules.h"
#include "tools/check/Spelling.h"
#include "tools/check/Vocabulary.h"

namespace {

using Kind = Vocabulary::AttributeKind;

void checkSwitch(const SourceAttribute &attribute, bool byDefault, Findings &findings)
{
    const QString yes = QStringLiteral("true");
    const QString no = QStringLiteral("false");
    if (attribute.value == yes || attribute.value == no)
        return;
    findings.warn(
        "boolean-text", attribute.position,
        QStringLiteral("%1=\"%2\" changes nothing and leaves it %3; the only text that "
                       "counts here is \"%4\", in small letters")
            .arg(attribute.name, attribute.value, byDefault ? yes : no, byDefault ? no : yes));
}

void checkUnknown(const SourceElement &element, const SourceAttribute &attribute,
                  Findings &findings)
{
    QString hint = Spelling::hint(attribute.name, Vocabulary::usedAttributes(element.role));
    if (hint.isEmpty())
        hint = Spelling::hint(attribute.name, Vocabulary::attributes());
    findings.warn(
        "unknown-attribute", attribute.position,
        QStringLiteral("there is no attribute '%1', so it is ignored%2").arg(attribute.name, hint));
}

void checkAttribute(const SourceElement &element, const SourceAttribute &attribute,
                    Findings &findings)
{
    if (Vocabulary::isForeignAttribute(element.role, attribute.name))
        return;
    const Kind kind = Vocabulary::attributeKind(attribute.name);
    if (Vocabulary::usesAttribute(element.role, attribute.name)) {
        if (kind == Kind::TrueOnly || kind == Kind::FalseOnly)
            checkSwitch(attribute, kind == Kind::FalseOnly, findings);
        return;
    }
    if (kind == Kind::Unknown && !Vocabulary::isFormerAttribute(attribute.name)) {
        checkUnknown(element, attribute, findings);
        return;
    }
    // Those of quick access buttons are common in existing descriptions.
    if (attribute.name == QLatin1String("shortcut") && element.role != Role::QuickButton) {
        findings.warn("shortcut-unused", attribute.position,
                      QStringLiteral("%1 has no shortcut, so '%2' does nothing; describe it on a "
                                     "button of a row or on a menu entry")
                          .arg(Vocabulary::noun(element.role), attribute.value));
        return;
    }
    findings.note("unused-attribute", attribute.position,
                  QStringLiteral("the library does not use '%1' on %2; remove it")
                      .arg(attribute.name, Vocabulary::noun(element.role)));
}

bool isCommand(Role role)
{
    return role == Role::RowButton || role == Role::GroupButton || role == Role::MenuEntry
           || role == Role::QuickButton || role == Role::AdditionalButton;
}

/** Whether a control needs a name; labels and separators do not. */
bool needsName(Role role)
{
    return isCommand(role) || role == Role::Tab || role == Role::RowMenu || role == Role::GroupMenu
           || role == Role::ComboBox || role == Role::Item || role == Role::RowField
           || role == Role::SearchField;
}

void checkName(const SourceElement &element, Findings &findings)
{
    if (element.has("name") && element.has("action"))
        findings.warn("name-and-action", element.positionOf("action"),
                      QStringLiteral("'name' and 'action' mean the same, and it is undefined "
                                     "which of the two is used; remove one"));
    if (needsName(element.role) && element.record.name.isEmpty())
        findings.warn("no-name", element.position,
                      QStringLiteral("without an 'action' or a 'name' the host can neither set the "
                                     "state of %1 nor tell what was chosen")
                          .arg(Vocabulary::noun(element.role)));
}

void checkCheckable(const SourceElement &element, Findings &findings)
{
    if (element.record.checkable)
        return;
    const QString mend = QStringLiteral("add checkable=\"true\" or remove it");
    if (element.record.checked
        && Vocabulary::usesAttribute(element.role, QStringLiteral("checked")))
        findings.warn("checked-not-checkable", element.positionOf("checked"),
                      QStringLiteral("'checked' is lost on %1 that is not checkable; %2")
                          .arg(Vocabulary::noun(element.role), mend));
    if (!element.record.group.isEmpty()
        && Vocabulary::usesAttribute(element.role, QStringLiteral("group")))
        findings.warn("group-not-checkable", element.positionOf("group"),
                      QStringLiteral("the group '%1' does nothing for %2 that is not checkable; %3")
                          .arg(element.record.group, Vocabulary::noun(element.role), mend));
}

} // namespace

void Rules::checkAttributes(const SourceDocument &document, Findings &findings)
{
    for (const SourceElement &element : document.elements) {
        if (Vocabulary::isLeftOut(element.role))
            continue;
        for (const SourceAttribute &attribute : element.attributes)
            checkAttribute(element, attribute, findings);
        if (element.record.type.isEmpty())
            continue; // checkStructure() reports the whole element.
        checkName(element, findings);
        checkCheckable(element, findings);
    }
}
