// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/description/Names.h"
#include "tools/check/Rules.h"
#include "tools/check/Spelling.h"
#include "tools/check/Vocabulary.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

/** A name that makes something special of the controls of a role. */
struct Reserved
{
    QLatin1String name;
    Role role;            ///< A row's button or menu stands for all commands or drop buttons.
    const char *meaning;  ///< Ends the question whether this name is meant.
    QLatin1String enough; ///< A name with this word in it is special, too; may be empty.
};

constexpr Reserved reservedNames[]{
    {Name::customise, Role::QuickButton, "the button that customises the bar", {}},
    {Name::fold, Role::AdditionalButton, "the button that folds the rows", {}},
    {Name::findCommand, Role::AdditionalButton, "the button that finds commands", {}},
    {Name::zoomBox, Role::ComboBox, "the zoom box", Word::zoom},
    {Name::pageField, Role::RowField, "the page field", Word::goToPage},
    {Name::totalPageLabel, Role::RowLabel, "the label with the number of pages", {}},
    {Name::recentFiles, Role::SubMenu, "the menu of recent files", {}},
    {Name::noFile, Role::RowButton, "the entry for no recent files", {}},
    {Name::clearHistory, Role::RowButton, "the entry that clears the recent files", {}},
    {Name::shapes, Role::RowMenu, "the drop button that other tools release", {}},
    {Name::actualSize, Role::RowButton, "which follows a zoom of 100 percent", {}},
    {Name::customZoom, Role::RowButton, "which follows any other percentage", {}},
    {Name::flowMode, Role::RowButton, "which the single and double page release", {}},
    {Name::singlePage, Role::RowButton, "which ends the flow mode", {}},
    {Name::doublePage, Role::RowButton, "which ends the flow mode", {}},
    {Name::background, Role::RowButton, "a page background", {}},
    {Name::backgroundDay, Role::RowButton, "a page background", {}},
    {Name::backgroundNight, Role::RowButton, "a page background", {}},
    {Name::backgroundEyeCare, Role::RowButton, "a page background", {}},
    {Name::backgroundParchment, Role::RowButton, "a page background", {}},
};

bool mentions(const QString &name, QLatin1String word)
{
    return name.contains(word, Qt::CaseInsensitive);
}

/** The role that stands for this one in the table of reserved names. */
Role kindOf(Role role)
{
    if (role == Role::GroupButton || role == Role::MenuEntry)
        return Role::RowButton;
    if (role == Role::QuickSet)
        return Role::QuickButton;
    return role == Role::GroupMenu ? Role::RowMenu : role;
}

QStringList backgrounds()
{
    return {Name::background, Name::backgroundDay, Name::backgroundNight, Name::backgroundEyeCare,
            Name::backgroundParchment};
}

/** The finding for an element's name, with what all rules ask of the document. */
class ReservedNameCheck
{
public:
    ReservedNameCheck(const SourceDocument &document, Findings &findings)
        : m_document(document)
        , m_findings(findings)
    {
        for (const SourceElement &element : document.elements) {
            m_used.insert(element.record.name);
            m_hasQuickPrefix = m_hasQuickPrefix
                               || (element.role == Role::QuickButton
                                   && element.record.name.startsWith(Prefix::quick));
        }
    }

    /** Reports the first thing that applies: what follows from a slip is none of its own. */
    void check(const SourceElement &element)
    {
        using Rule = bool (ReservedNameCheck::*)(const SourceElement &);
        for (const Rule rule :
             {&ReservedNameCheck::isBlankAround, &ReservedNameCheck::isArea,
              &ReservedNameCheck::isMisspelt, &ReservedNameCheck::isFolding,
              &ReservedNameCheck::isBackground, &ReservedNameCheck::isUnknownZoomBox,
              &ReservedNameCheck::isUnknownZoomMode, &ReservedNameCheck::isOutsideSetting}) {
            if ((this->*rule)(element))
                return;
        }
    }

private:
    bool warn(const char *id, const SourceElement &element, const QString &message)
    {
        m_findings.warn(id, element.namePosition(), message);
        return true;
    }

    bool isBlankAround(const SourceElement &element)
    {
        const QString name = element.record.name;
        return name != name.trimmed()
               && warn("blank-around-name", element,
                       QStringLiteral("the blanks around '%1' are part of the name, which is "
                                      "another one than '%2'; remove them")
                           .arg(name, name.trimmed()));
    }

    bool isArea(const SourceElement &element)
    {
        return element.role != Role::Item && element.record.name.contains(Area::prefix)
               && warn("area-name", element,
                       QStringLiteral("a name with 'toolbar_' in it means an area, so the host "
                                      "cannot set the state of '%1'; rename it")
                           .arg(element.record.name));
    }

    bool isMisspelt(const SourceElement &element)
    {
        const QString name = element.record.name;
        for (const Reserved &reserved : reservedNames) {
            const bool isSpecial =
                reserved.name == name
                || (!reserved.enough.isEmpty() && mentions(name, reserved.enough));
            if (reserved.role == kindOf(element.role) && !isSpecial
                && !m_used.contains(reserved.name) && Spelling::isSlip(name, reserved.name))
                return warn("misspelt-name", element,
                            QStringLiteral("'%1' is a name like any other; did you mean '%2', %3?")
                                .arg(name, reserved.name, QLatin1String(reserved.meaning)));
        }
        return false;
    }

    bool isFolding(const SourceElement &element)
    {
        const QString name = element.record.name;
        const bool isHiding = mentions(name, Word::fold);
        if (element.role != Role::AdditionalButton || (!isHiding && !mentions(name, Word::unfold))
            || name == Name::fold || name == Name::unfold || name == Name::findCommand)
            return false;
        return warn("folds-rows", element,
                    QStringLiteral("'%1' %2 the rows, because '%3' is in its name, and the host is "
                                   "not told of a click; rename it, or name it 't_fold' if the "
                                   "rows are meant")
                        .arg(name, isHiding ? QStringLiteral("hides") : QStringLiteral("shows"),
                             isHiding ? Word::fold : Word::unfold));
    }

    bool isBackground(const SourceElement &element)
    {
        const QString name = element.record.name;
        const QStringList known = backgrounds();
        if (kindOf(element.role) != Role::RowButton || !name.contains(Word::background)
            || known.contains(name) || m_document.isBelow(element, Role::SearchSet))
            return false;
        const auto meant = std::find_if(known.begin(), known.end(), [&name](const QString &one) {
            return name.contains(one) || Spelling::isSlip(name, one);
        });
        return warn("no-such-background", element,
                    QStringLiteral("'%1' chooses the default page background, because 'background' "
                                   "is in its name, and the host never hears the name; %2")
                        .arg(name, meant == known.end()
                                       ? QStringLiteral("rename it")
                                       : QStringLiteral("did you mean '%1'?").arg(*meant)));
    }

    bool isUnknownZoomBox(const SourceElement &element)
    {
        const auto isMode = [this](int child) {
            return m_document.at(child).record.name.startsWith(Prefix::zoomMode);
        };
        if (element.role != Role::ComboBox || mentions(element.record.name, Word::zoom)
            || std::none_of(element.children.begin(), element.children.end(), isMode))
            return false;
        return warn("zoom-box-name", element,
                    QStringLiteral("the list has zoom modes, but without 'zoom' in its name it is "
                                   "no zoom box and reports no choice; name it 'v_zoom'"));
    }

    bool isUnknownZoomMode(const SourceElement &element)
    {
        static const QRegularExpression percentage(
            QStringLiteral("^%1([0-9]+(\\.[0-9]+)?)%?$").arg(Prefix::zoomMode));
        const QRegularExpressionMatch match = percentage.match(element.record.name);
        if (!match.hasMatch())
            return false;
        return warn("zoom-mode-without-p", element,
                    QStringLiteral("without a 'p' at its end '%1' is no percentage, so the zoom "
                                   "buttons do not follow it; name it '%2%3p'")
                        .arg(element.record.name, Prefix::zoomMode, match.captured(1)));
    }

    /** A note where no button has the prefix, as in one of the skins' own descriptions. */
    bool isOutsideSetting(const SourceElement &element)
    {
        const QString name = element.record.name;
        if (element.role != Role::QuickButton || name.isEmpty() || name.startsWith(Prefix::quick))
            return false;
        m_findings.add(m_hasQuickPrefix ? Severity::Warning : Severity::Note, "quick-access-prefix",
                       element.namePosition(),
                       QStringLiteral("'%1' is not in the quick access setting, because it does "
                                      "not begin with 'qbar_'; name it 'qbar_%1', which is "
                                      "reported as '%1', too")
                           .arg(name));
        return true;
    }

    const SourceDocument &m_document;
    Findings &m_findings;
    QSet<QString> m_used;
    bool m_hasQuickPrefix = false;
};

} // namespace

void Rules::checkReservedNames(const SourceDocument &document, Findings &findings)
{
    ReservedNameCheck names(document, findings);
    for (const SourceElement &element : document.elements) {
        if (Vocabulary::usesAttribute(element.role, QStringLiteral("name"))
            && !Vocabulary::isLeftOut(element.role))
            names.check(element);
    }
}
