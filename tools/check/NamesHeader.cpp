// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/NamesHeader.h"

#include "toolbar/description/Names.h"
#include "tools/check/Vocabulary.h"

#include <QMap>

#include <algorithm>

namespace {

/** What is no identifier in C++17, or a macro in a program that uses Qt. */
bool isTaken(const QByteArray &word)
{
    static const QList<QByteArray> words =
        QByteArrayLiteral(
            "alignas alignof and and_eq asm auto bitand bitor bool break case catch char char16_t "
            "char32_t char8_t class co_await co_return co_yield compl concept const const_cast "
            "consteval constexpr constinit continue decltype default delete do double dynamic_cast "
            "else enum explicit export extern false float for friend goto if inline int long "
            "mutable namespace new noexcept not not_eq nullptr operator or or_eq private protected "
            "public register reinterpret_cast requires return short signed sizeof static "
            "static_assert static_cast struct switch template this thread_local throw true try "
            "typedef typeid typename union unsigned using virtual void volatile wchar_t while xor "
            "xor_eq emit foreach forever signals slots linux unix EOF NULL")
            .split(' ');
    return words.contains(word);
}

bool isOfIdentifier(QChar character)
{
    const ushort code = character.unicode();
    return code < 0x80 && (character.isLetterOrNumber() || code == '_');
}

QByteArray literal(const QString &name)
{
    QByteArray text;
    const QByteArray bytes = name.toUtf8();
    for (const char byte : bytes) {
        const auto code = static_cast<uchar>(byte);
        if (code < 0x20 || code >= 0x7f || byte == '"' || byte == '\\')
            text += '\\' + QByteArray::number(code, 8).rightJustified(3, '0');
        else
            text += byte;
    }
    return '"' + text + '"';
}

/** The name under which DoActive() reports the control; empty if that is its own. */
QString reportedName(const SourceElement &element)
{
    const QString name = element.record.name;
    const auto prefix = name.indexOf(Prefix::quick);
    if (element.role == Role::QuickButton && prefix >= 0)
        return name.mid(prefix + Prefix::quick.size());
    const bool isCommand = element.role == Role::MenuEntry || element.role == Role::RowButton
                           || element.role == Role::GroupButton;
    return isCommand && name.startsWith(Prefix::menu) ? name.mid(Prefix::menu.size()) : QString();
}

} // namespace

QString NamesHeader::identifier(const QString &name)
{
    QString text;
    for (const QChar character : name) {
        if (isOfIdentifier(character))
            text += character;
        else if (character.unicode() < 0x80)
            text += QLatin1Char('_');
        else
            text += QStringLiteral("_u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
    }
    // Two underscores are reserved for the compiler, and so is one with a capital after it.
    while (text.contains(QLatin1String("__")))
        text.replace(QLatin1String("__"), QLatin1String("_"));
    if (text.isEmpty() || text.at(0).isDigit() || text.at(0) == QLatin1Char('_'))
        text.prepend(QLatin1Char('n'));
    return isTaken(text.toLatin1()) ? text + QLatin1Char('_') : text;
}

void NamesHeader::add(const SourceDocument &document)
{
    for (const SourceElement &element : document.elements) {
        if (Vocabulary::isLeftOut(element.role)
            || !Vocabulary::usesAttribute(element.role, QStringLiteral("name")))
            continue;
        for (const QString &name : {element.record.name, reportedName(element)}) {
            if (!name.isEmpty())
                m_names.insert(name);
        }
    }
}

QByteArray NamesHeader::content(const QString &origin) const
{
    QStringList names = m_names.values();
    // A name that is an identifier by itself keeps it.
    std::sort(names.begin(), names.end(), [](const QString &one, const QString &other) {
        const bool isPlain = identifier(one) == one;
        const bool isOtherPlain = identifier(other) == other;
        return isPlain != isOtherPlain ? isPlain : one < other;
    });
    QMap<QString, QString> byIdentifier;
    for (const QString &name : std::as_const(names)) {
        const QString wanted = identifier(name);
        QString free = wanted;
        for (int number = 2; byIdentifier.contains(free); ++number)
            free = wanted + QStringLiteral("_%1").arg(number);
        byIdentifier.insert(free, name);
    }

    QByteArray text = "// Made by mrtoolbar-check from " + origin.toUtf8()
                      + "; what is changed here is lost.\n\n#pragma once\n\n"
                        "/** The names of the controls of the toolbar. */\nnamespace Names {\n";
    for (auto entry = byIdentifier.cbegin(); entry != byIdentifier.cend(); ++entry)
        text += "inline constexpr char " + entry.key().toLatin1() + "[] = " + literal(entry.value())
                + ";\n";
    return text + "} // namespace Names\n";
}
