// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/description/Names.h"
#include "tools/check/Rules.h"
#include "tools/check/SkinIcons.h"
#include "tools/check/Vocabulary.h"

#include <QHash>

#include <algorithm>

namespace {

bool sharesActions(Role role)
{
    return role == Role::RowButton || role == Role::GroupButton || role == Role::MenuEntry;
}

/** Whether the toolbar builds the element at construction, not when a tab or menu is opened. */
bool isBuiltAtStart(const SourceDocument &document, const SourceElement &element)
{
    for (const SourceElement *above = &element; above->parent >= 0;
         above = &document.parentOf(*above)) {
        if (above->role == Role::Tab)
            return above->record.checked;
        if (above->role == Role::SearchSet)
            return true;
    }
    return false;
}

/** Whether the icon is a resource of the host or one of the desktop's theme, which are not here. */
bool isFromElsewhere(const QString &icon)
{
    return icon.startsWith(Prefix::resource) || icon.startsWith(Prefix::themeIcon);
}

/** Looks up the icons of a document in the skins that are checked. */
class IconCheck
{
public:
    IconCheck(const SourceDocument &document, const CheckOptions &options, Findings &findings)
        : m_document(document)
        , m_skins(options.skin.isEmpty() ? SkinIcons::skins() : QStringList(options.skin))
        , m_findings(findings)
    {
        findLenders();
    }

    void check(const SourceElement &element)
    {
        const QString icon = element.record.icon;
        const SourcePosition position = element.positionOf("icon");
        if (!isFound(icon)) {
            reportMissing(element, position);
            return;
        }
        if (icon.startsWith(QLatin1Char('/')))
            m_findings.note(
                "icon-leading-slash", position,
                QStringLiteral("the leading '/' is ignored; write '%1'").arg(icon.mid(1)));
        for (const QString &skin : m_skins) {
            if (!SkinIcons::exists(skin, icon))
                m_findings.note("icon-in-one-skin", position,
                                QStringLiteral("the skin '%1' has no icon '%2', so in that skin "
                                               "the control has none")
                                    .arg(skin, icon));
        }
    }

private:
    bool isFound(const QString &icon) const
    {
        return std::any_of(m_skins.begin(), m_skins.end(),
                           [&icon](const QString &skin) { return SkinIcons::exists(skin, icon); });
    }

    /** The element whose icon the shared action gets: the first one of its name to be built. */
    const SourceElement *lender(const SourceElement &element) const
    {
        const bool borrows = sharesActions(element.role) && !isBuiltAtStart(m_document, element);
        return borrows ? m_lenders.value(element.record.name) : nullptr;
    }

    void findLenders()
    {
        for (const SourceElement &element : m_document.elements) {
            const QString name = element.record.name;
            if (sharesActions(element.role) && !m_lenders.contains(name)
                && isBuiltAtStart(m_document, element) && isFound(element.record.icon))
                m_lenders.insert(name, &element);
        }
    }

    void reportMissing(const SourceElement &element, SourcePosition position)
    {
        const QString icon = element.record.icon;
        const QString where =
            m_skins.size() == 1
                ? QStringLiteral("the skin '%1' has no icon '%2'").arg(m_skins.first(), icon)
                : QStringLiteral("no skin has an icon '%1'").arg(icon);
        if (const SourceElement *other = lender(element)) {
            m_findings.note("icon-missing-shared", position,
                            where
                                + QStringLiteral("; the one in line %1 shows here, as the two "
                                                 "share an action")
                                      .arg(other->position.line));
            return;
        }
        QString meant = SkinIcons::elsewhere(m_skins.first(), icon);
        if (meant.isEmpty())
            meant = SkinIcons::elsewhere(m_skins.last(), icon);
        m_findings.warn("icon-missing", position,
                        where + QStringLiteral(", so the control has none")
                            + (meant.isEmpty()
                                   ? QString()
                                   : QStringLiteral("; did you mean '%1'?").arg(meant)));
    }

    const SourceDocument &m_document;
    const QStringList m_skins;
    Findings &m_findings;
    QHash<QString, const SourceElement *> m_lenders;
};

} // namespace

void Rules::checkIcons(const SourceDocument &document, const CheckOptions &options,
                       Findings &findings)
{
    IconCheck icons(document, options, findings);
    for (const SourceElement &element : document.elements) {
        if (!element.record.icon.isEmpty() && !isFromElsewhere(element.record.icon)
            && Vocabulary::usesAttribute(element.role, QStringLiteral("icon")))
            icons.check(element);
    }
}
