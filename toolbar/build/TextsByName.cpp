// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/TextsByName.h"

#include "toolbar/description/CommandPlaces.h"
#include "toolbar/description/Controller.h"

namespace {

template <typename Value>
const Value *lookUp(const QHash<QString, Value> &values, const QString &name)
{
    const auto found = values.constFind(name);
    return found == values.cend() ? nullptr : &*found;
}

/** By the record's own name, or else by that of the command that it stands for. */
template <typename Value>
const Value *lookUpCommand(const QHash<QString, Value> &values, const QString &name)
{
    if (values.isEmpty())
        return nullptr;
    const Value *own = lookUp(values, name);
    return own ? own : lookUp(values, commandOf(name));
}

/** No control is found by an empty name, though many may have none. */
template <typename Value>
void set(QHash<QString, Value> &values, const QString &name, const Value &value, bool isNothing)
{
    if (isNothing)
        values.remove(name);
    else if (!name.isEmpty())
        values.insert(name, value);
}

} // namespace

void TextsByName::setText(const QString &name, const QString &text)
{
    set(m_texts, name, text, text.isEmpty());
}

void TextsByName::setToolTip(const QString &name, const QString &tip)
{
    set(m_toolTips, name, tip, tip.isEmpty());
}

void TextsByName::setIcon(const QString &name, const QIcon &icon)
{
    set(m_icons, name, icon, icon.isNull());
}

const QString *TextsByName::text(const Controller &record) const
{
    return lookUp(m_texts, record.name);
}

const QString *TextsByName::toolTip(const Controller &record) const
{
    if (const QString *own = lookUp(m_toolTips, record.name))
        return own;
    if (const QString *text = textAsToolTip(record))
        return text;
    return ownToolTip(record);
}

const QString *TextsByName::ownToolTip(const Controller &record) const
{
    return lookUpCommand(m_toolTips, record.name);
}

const QString *TextsByName::textAsToolTip(const Controller &record) const
{
    const QString *text = lookUp(m_texts, record.name);
    return text && record.tooltip == record.text ? text : nullptr;
}

const QIcon *TextsByName::icon(const Controller &record) const
{
    return lookUpCommand(m_icons, record.name);
}
