// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/Rules.h"
#include "tools/check/Vocabulary.h"

#include <QRegularExpression>

#include <functional>

namespace {

using Elements = QVector<const SourceElement *>;
using Choice = std::function<bool(const SourceElement &)>;

Elements chosen(const SourceDocument &document, const Choice &isChosen)
{
    Elements elements;
    for (const SourceElement &element : document.elements) {
        if (isChosen(element))
            elements.append(&element);
    }
    return elements;
}

bool mentions(const SourceElement &element, const char *word)
{
    return element.record.name.contains(QLatin1String(word), Qt::CaseInsensitive);
}

bool isPageField(const SourceElement &element)
{
    return element.role == Role::RowField && mentions(element, "gotopage");
}

bool isZoomBox(const SourceElement &element)
{
    return element.role == Role::ComboBox && mentions(element, "zoom")
           && !element.children.isEmpty();
}

void checkRepeated(const Elements &elements, const char *id, const QString &consequence,
                   Findings &findings)
{
    for (auto element = elements.cbegin(); element != elements.cend(); ++element) {
        if (element != elements.cbegin())
            findings.warn(id, (*element)->position,
                          QStringLiteral("'%1' in line %2 is one already: %3")
                              .arg(elements.first()->record.name)
                              .arg(elements.first()->position.line)
                              .arg(consequence));
    }
}

/** The menu of recent files needs its first and its last entry. */
void checkRecentFiles(const SourceDocument &document, const SourceElement &menu, Findings &findings)
{
    const QString first = document.at(menu.children.first()).record.name;
    const QString last = document.at(menu.children.last()).record.name;
    if (first != QLatin1String("no_file"))
        findings.warn("recent-files-placeholder", menu.position,
                      QStringLiteral("the menu of recent files must begin with an entry 'no_file', "
                                     "or the list that the host sends is ignored"));
    else if (menu.children.size() < 2 || !last.contains(QLatin1String("f_clearhistory")))
        findings.note("recent-files-clear-history", menu.position,
                      QStringLiteral("the menu of recent files must end with an entry "
                                     "'f_clearhistory', or the list that the host sends is "
                                     "ignored; the host may add it before it makes the toolbar"));
}

bool isRecentFilesMenu(const SourceElement &element)
{
    return element.role == Role::SubMenu
           && (element.record.name == QLatin1String("f_openrecent")
               || element.record.name == QLatin1String("menu_f_openrecent"));
}

void checkTabs(const SourceDocument &document, Findings &findings)
{
    const Elements tabs =
        chosen(document, [](const SourceElement &one) { return one.role == Role::Tab; });
    const Elements checked = chosen(document, [](const SourceElement &one) {
        return one.role == Role::Tab && one.record.checked && one.record.optIn().context.isEmpty();
    });
    if (!tabs.isEmpty() && checked.isEmpty())
        findings.warn("no-checked-tab", tabs.first()->position,
                      QStringLiteral("no tab is checked, so the toolbar starts with an empty row; "
                                     "give one tab checked=\"true\""));
    for (auto tab = checked.cbegin(); tab != checked.cend(); ++tab) {
        if (tab != checked.cbegin())
            findings.warn("checked-tabs", (*tab)->positionOf("checked"),
                          QStringLiteral("'%1' in line %2 is checked already; the toolbar starts "
                                         "with the last checked tab")
                              .arg(checked.first()->record.name)
                              .arg(checked.first()->position.line));
    }
}

bool isColour(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^#[0-9A-Fa-f]{6}$"));
    return form.match(text).hasMatch();
}

void checkContext(const SourceElement &tab, Findings &findings)
{
    const QString &colour = tab.record.optIn().contextcolour;
    if (tab.record.checked && !tab.record.optIn().context.isEmpty())
        findings.warn("context-checked", tab.positionOf("checked"),
                      QStringLiteral("'checked' does nothing on the tab of a context, which is "
                                     "hidden at first; check another tab"));
    if (!colour.isEmpty() && tab.record.optIn().context.isEmpty())
        findings.warn("contextcolour-without-context", tab.positionOf("contextcolour"),
                      QStringLiteral("without 'context' a tab is not tinted"));
    else if (!colour.isEmpty() && !isColour(colour))
        findings.warn(
            "contextcolour-text", tab.positionOf("contextcolour"),
            QStringLiteral("\"%1\" is no colour such as \"#C0392B\", so the tab is tinted "
                           "with the accent")
                .arg(colour));
}

void checkPeek(const SourceElement &button, Findings &findings)
{
    if (button.record.optIn().peek && button.record.name != QLatin1String("t_fold"))
        findings.warn("peek-without-fold", button.positionOf("peek"),
                      QStringLiteral("'peek' does something on 't_fold' only"));
}

void checkSearchBar(const SourceDocument &document, Findings &findings)
{
    const Elements fields =
        chosen(document, [](const SourceElement &one) { return one.role == Role::SearchField; });
    const Elements buttons =
        chosen(document, [](const SourceElement &one) { return one.role == Role::SearchButton; });
    if (!fields.isEmpty() && buttons.isEmpty())
        findings.fail("search-without-buttons", fields.first()->position,
                      QStringLiteral("no search field is built without a button whose name "
                                     "contains 'prev' or 'next'; add at least one"));
    checkRepeated(fields, "several-search-fields",
                  QStringLiteral("the search bar is built from the last one"), findings);
}

void checkExtraField(const SourceDocument &document, const SourceElement &field, Findings &findings)
{
    int buttons = 0;
    for (const int child : field.children)
        buttons += document.at(child).role == Role::ExtraButton ? 1 : 0;
    if (buttons < 1 || buttons > 2)
        findings.fail("extra-field-buttons", field.position,
                      QStringLiteral("a field that holds elements needs one or two buttons to "
                                     "search with; with %1 no field is built")
                          .arg(buttons));
}

} // namespace

void Rules::checkSpecialControls(const SourceDocument &document, Findings &findings)
{
    checkRepeated(chosen(document, isPageField), "several-page-fields",
                  QStringLiteral("only the page field that is built last shows the page number"),
                  findings);
    checkRepeated(chosen(document, isZoomBox), "several-zoom-boxes",
                  QStringLiteral("only the zoom box that is built last follows the zoom"),
                  findings);
    checkTabs(document, findings);
    checkSearchBar(document, findings);
    for (const SourceElement &element : document.elements) {
        if (isRecentFilesMenu(element))
            checkRecentFiles(document, element, findings);
        else if (element.role == Role::ExtraField && !element.children.isEmpty())
            checkExtraField(document, element, findings);
        else if (element.role == Role::Tab)
            checkContext(element, findings);
        else if (element.role == Role::AdditionalButton)
            checkPeek(element, findings);
    }
}
