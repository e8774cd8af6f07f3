// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/DescribedTexts.h"

#include "tools/check/RoleAssignment.h"
#include "tools/check/SourceDocument.h"
#include "tools/check/Vocabulary.h"

namespace {

/** Whether a tooltip is at least spoken: the name of a field for those who cannot see it. */
bool usesToolTip(Role role)
{
    return role == Role::ComboBox || role == Role::RowField
           || Vocabulary::usesAttribute(role, QStringLiteral("tooltip"));
}

/** The attributes of an element that hold texts for people. */
QVector<const char *> textAttributes(Role role)
{
    QVector<const char *> attributes;
    if (Vocabulary::usesAttribute(role, QStringLiteral("text")))
        attributes.append("text");
    if (usesToolTip(role))
        attributes += {"tooltip", "disabletip"};
    return attributes;
}

QString sentence(const SourceFault &fault)
{
    const QString reason = fault.isEncoding
                               ? QStringLiteral("the text is not UTF-8")
                               : QStringLiteral("the XML is not well-formed: ") + fault.message;
    return QStringLiteral("%1:%2: ").arg(fault.position.line).arg(fault.position.column)
           + reason.simplified();
}

} // namespace

std::optional<QString> DescribedTexts::add(const QByteArray &description, const QString &file)
{
    SourceDocument document = readDocument(description);
    if (document.fault)
        return sentence(*document.fault);
    const SourceElement &root = document.elements.front();
    if (root.tag != QLatin1String("uiconfig"))
        return QStringLiteral("%1:%2: the root element is '%3', not 'uiconfig'")
            .arg(root.position.line)
            .arg(root.position.column)
            .arg(root.tag);

    assignRoles(document);
    for (const SourceElement &element : document.elements) {
        if (Vocabulary::isLeftOut(element.role))
            continue;
        for (const char *attribute : textAttributes(element.role)) {
            if (const SourceAttribute *found = element.find(attribute))
                add(found->value, {file, found->position.line});
        }
    }
    return std::nullopt;
}

void DescribedTexts::add(const QString &text, const DescribedText::Place &place)
{
    if (text.isEmpty())
        return;
    const auto known = m_positions.constFind(text);
    if (known == m_positions.cend()) {
        m_positions.insert(text, static_cast<int>(m_all.size()));
        m_all.append({text, {place}});
        return;
    }
    QVector<DescribedText::Place> &places = m_all[*known].places;
    // A tooltip often says what the text in the same line does.
    if (places.last().file != place.file || places.last().line != place.line)
        places.append(place);
}
