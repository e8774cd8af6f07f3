// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/description/DescriptionParser.h"

#include "toolbar/description/Controller.h"
#include "toolbar/description/Names.h"

#include <QDomElement>
#include <QHash>

#include <algorithm>
#include <array>
#include <utility>

namespace {

using TextField = QString Controller::*;
using BoolField = bool Controller::*;

const QHash<QString, TextField> &textFields()
{
    static const QHash<QString, TextField> fields{
        {QStringLiteral("text"), &Controller::text},
        {QStringLiteral("icon"), &Controller::icon},
        {QStringLiteral("name"), &Controller::name},
        {QStringLiteral("action"), &Controller::name},
        {QStringLiteral("tooltip"), &Controller::tooltip},
        {QStringLiteral("disabletip"), &Controller::disabletip},
        {QStringLiteral("shortcut"), &Controller::shortcut},
        {QStringLiteral("output"), &Controller::output},
        {QStringLiteral("layout"), &Controller::layout},
        {QStringLiteral("group"), &Controller::group},
        {QStringLiteral("arrow"), &Controller::arrow},
        {QStringLiteral("dropicon"), &Controller::dropicon},
    };
    return fields;
}

const QHash<QString, BoolField> &boolFields()
{
    static const QHash<QString, BoolField> fields{
        {QStringLiteral("visible"), &Controller::visible},
        {QStringLiteral("usable"), &Controller::usable},
        {QStringLiteral("available"), &Controller::available},
        {QStringLiteral("doubleclick"), &Controller::doubleclick},
        {QStringLiteral("checkable"), &Controller::checkable},
        {QStringLiteral("editable"), &Controller::editable},
        {QStringLiteral("switchable"), &Controller::switchable},
        {QStringLiteral("withaction"), &Controller::withaction},
        {QStringLiteral("scalable"), &Controller::scalable},
        {QStringLiteral("check"), &Controller::check},
        {QStringLiteral("checked"), &Controller::checked},
    };
    return fields;
}

const QHash<QString, QString OptInAttributes::*> &optInTexts()
{
    static const QHash<QString, QString OptInAttributes::*> fields{
        {QStringLiteral("keywords"), &OptInAttributes::keywords},
        {QStringLiteral("keytip"), &OptInAttributes::keytip},
        {QStringLiteral("shortcutscope"), &OptInAttributes::shortcutscope},
        {QStringLiteral("context"), &OptInAttributes::context},
        {QStringLiteral("contextcolour"), &OptInAttributes::contextcolour},
    };
    return fields;
}

/**
 * A boolean leaves its default only on the exact text of the opposite; any other text, capitals
 * included, changes nothing. That is deliberate: descriptions in the field rely on it.
 */
void leaveDefault(bool &field, bool defaultValue, const QString &value)
{
    if (value == (defaultValue ? QLatin1String("false") : QLatin1String("true")))
        field = !defaultValue;
}

/** A digit from 1 to 9; anything else is no order. */
qint32 shrinkOrder(const QString &value)
{
    const bool isOrder =
        value.size() == 1 && value.at(0) >= QLatin1Char('1') && value.at(0) <= QLatin1Char('9');
    return isOrder ? value.toInt() : 0;
}

void storeOptIn(Controller *target, const QString &name, const QString &value)
{
    if (const auto text = optInTexts().value(name, nullptr))
        target->changedOptIn().*text = value;
    else if (name == QLatin1String("shrink"))
        target->changedOptIn().shrink = shrinkOrder(value);
    else if (name == QLatin1String("peek"))
        leaveDefault(target->changedOptIn().peek, false, value);
    else if (name == QLatin1String("quickadd"))
        leaveDefault(target->changedOptIn().quickadd, false, value);
}

void storeAttribute(Controller *target, const QString &name, const QString &value)
{
    static const Controller defaults;

    if (const TextField text = textFields().value(name, nullptr)) {
        target->*text = value;
        if (text == &Controller::tooltip && target->type == Tag::lineEdit)
            target->prompt = value;
    } else if (const BoolField flag = boolFields().value(name, nullptr)) {
        leaveDefault(target->*flag, defaults.*flag, value);
    } else if (name == QLatin1String("index")) {
        target->index = value.toInt();
    } else {
        storeOptIn(target, name, value);
    }
}

Controller *readRecord(QDomElement element, const QString &section)
{
    auto *record = new Controller;
    record->section = section;
    GetElementAttributes(&element, record);
    if (element.hasChildNodes())
        ParseDomNode(&element, record, section);
    if (record->tooltip.isEmpty())
        record->tooltip = record->text;
    return record;
}

void readChildren(const QDomNode &node, const QString &section, QList<Controller *> *out)
{
    for (QDomElement child = node.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement())
        out->append(readRecord(child, section));
}

bool isSection(const QString &name)
{
    static constexpr std::array sections{Section::appButton, Section::quickAccessBar,
                                         Section::tabBar, Section::searchBar, Section::additional};
    return std::any_of(sections.begin(), sections.end(),
                       [&name](QLatin1String section) { return name == section; });
}

} // namespace

void ParseXMLElement(QDomElement *element, QList<Controller *> *out)
{
    if (!element || !out)
        return;

    const QString section = element->nodeName();
    if (isSection(section))
        readChildren(*element, section, out);
}

void ParseDomNode(QDomNode *node, Controller *parent, QString section)
{
    if (node && parent && node->isElement())
        readChildren(*node, section, &parent->children);
}

bool GetElementAttributes(QDomElement *element, Controller *target)
{
    if (!element || !target)
        return false;

    const QDomNamedNodeMap attributes = element->attributes();
    if (attributes.isEmpty()) {
        // Any other element without attributes keeps an empty type, deliberately: nothing is
        // built from it, yet it still counts among its siblings.
        if (element->nodeName() != Tag::separator)
            return false;
        target->type = Tag::separator;
        return true;
    }

    target->type = element->nodeName();
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        storeAttribute(target, attribute.name(), attribute.value());
    }
    return true;
}

void DeleteUnitControl(QList<Controller *> *list)
{
    if (!list)
        return;

    for (Controller *record : std::as_const(*list)) {
        if (!record)
            continue;
        DeleteUnitControl(&record->children);
        delete record;
    }
}
