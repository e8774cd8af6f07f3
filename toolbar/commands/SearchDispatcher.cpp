// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/commands/SearchDispatcher.h"

#include "toolbar/description/Names.h"

#include <QAction>
#include <QLineEdit>
#include <QPointer>

namespace {

constexpr int backwards = 0;
constexpr int forwards = 1;

bool mentions(const QString &name, QLatin1String word)
{
    return name.contains(word, Qt::CaseInsensitive);
}

} // namespace

SearchDispatcher::SearchDispatcher(const Members &members)
    : m_members(members)
{
}

void SearchDispatcher::use(const QObject *control, const QLineEdit *mainField,
                           const QLineEdit *extraField)
{
    const QString name = control->objectName();
    const auto *option = qobject_cast<const QAction *>(control);
    if (name.contains(Word::extraSearch))
        searchFrom(extraField, control, true);
    else if (mentions(name, Word::wholeWord))
        m_members.wholeWord = option && option->isChecked();
    else if (mentions(name, Word::noCase))
        m_members.noCase = option && option->isChecked();
    else
        searchFrom(mainField, control, false);
}

void SearchDispatcher::searchFrom(const QLineEdit *field, const QObject *control,
                                  bool isFromExtraGroup)
{
    if (!field || field->text().isEmpty())
        return;

    // The host may delete the toolbar while it searches, or search for something else.
    const QPointer<SearchDispatcher> self(this);
    const QPointer<const QObject> guarded(control);
    const QString name = control->objectName();
    QString text = field->text();
    m_members.text = text;
    if (mentions(name, Word::previous))
        request(text, backwards, isFromExtraGroup);
    else if (mentions(name, Word::next))
        request(text, forwards, isFromExtraGroup);
    if (!self || !mentions(name, Word::searchInput))
        return;

    // The field in which Return was pressed need not be the one that allowed the search.
    if (const auto *ownField = qobject_cast<const QLineEdit *>(guarded.data()))
        text = ownField->text();
    m_members.text = text;
    if (!text.isEmpty())
        request(text, forwards, isFromExtraGroup);
}

void SearchDispatcher::request(const QString &text, int direction, bool isFromExtraGroup)
{
    const QPointer<SearchDispatcher> self(this);
    m_members.direction = direction;
    m_members.isFromExtraGroup = isFromExtraGroup;
    SearchOption option;
    option.content = text;
    option.direction = m_members.direction;
    option.wholeWord = m_members.wholeWord;
    option.noCase = m_members.noCase;
    option.newSearch = m_members.isFromExtraGroup;
    Q_EMIT requested(option);
    if (self) {
        m_members.direction = forwards;
        m_members.isFromExtraGroup = false;
    }
}
