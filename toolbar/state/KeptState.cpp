// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/state/KeptState.h"

#include "toolbar/Latin1.h"

#include <QUrl>

#include <algorithm>

namespace {

constexpr QLatin1String heading = latin1("mrtoolbar/"); ///< Before the number of the version.
constexpr int version = 1;
constexpr QLatin1Char fieldEnd(';');
constexpr QLatin1Char valueBegin('=');
constexpr QLatin1Char nameEnd(',');
constexpr QLatin1Char entryBegin(':');

constexpr int mostNames = 100;
constexpr int mostCharacters = 100; ///< Of a name.
/** More than six lists of such names, each character of which may take nine. */
constexpr int mostOfText = 1 << 20;

constexpr QLatin1String yes = latin1("1");
constexpr QLatin1String no = latin1("0");

bool isFit(const QString &name)
{
    return !name.isEmpty() && name.size() <= mostCharacters;
}

QString encoded(const QString &name)
{
    return isFit(name) ? QString::fromLatin1(QUrl::toPercentEncoding(name)) : QString();
}

/** Empty for what is no name, or too long a one. */
QString decoded(const QString &text)
{
    const QString name = QUrl::fromPercentEncoding(text.toUtf8());
    return isFit(name) ? name : QString();
}

QString encoded(const QStringList &names)
{
    QStringList texts;
    for (const QString &name : names) {
        if (isFit(name) && texts.size() < mostNames)
            texts.append(encoded(name));
    }
    return texts.join(nameEnd);
}

void decode(const QString &text, QStringList &names)
{
    names.clear();
    const QStringList texts = text.split(nameEnd, Qt::SkipEmptyParts).mid(0, mostNames);
    for (const QString &part : texts) {
        const QString name = decoded(part);
        if (!name.isEmpty())
            names.append(name);
    }
    names.removeDuplicates();
}

void decode(const QString &text, std::optional<QStringList> &names)
{
    decode(text, names.emplace());
}

QString encoded(const QMap<QString, QString> &faces)
{
    QStringList texts;
    for (auto face = faces.cbegin(); face != faces.cend(); ++face) {
        if (isFit(face.key()) && isFit(face.value()) && texts.size() < mostNames)
            texts.append(encoded(face.key()) + entryBegin + encoded(face.value()));
    }
    return texts.join(nameEnd);
}

void decode(const QString &text, QMap<QString, QString> &faces)
{
    faces.clear();
    const QStringList texts = text.split(nameEnd, Qt::SkipEmptyParts).mid(0, mostNames);
    for (const QString &part : texts) {
        const QString button = decoded(part.section(entryBegin, 0, 0));
        const QString entry = decoded(part.section(entryBegin, 1));
        if (!button.isEmpty() && !entry.isEmpty())
            faces.insert(button, entry);
    }
}

QString encoded(bool isTrue)
{
    return isTrue ? yes : no;
}

template <typename Value>
QString encoded(const std::optional<Value> &value)
{
    return value ? encoded(*value) : QString();
}

template <typename Value>
bool isSaid(const Value &)
{
    return true;
}

template <typename Value>
bool isSaid(const std::optional<Value> &value)
{
    return value.has_value();
}

void decode(const QString &text, QString &value)
{
    value = decoded(text);
}

void decode(const QString &text, std::optional<bool> &value)
{
    value.reset();
    if (text == yes || text == no)
        value = text == yes;
}

/** Calls @p visit with the key and the value of each field, in the order of the text. */
template <typename State, typename Visitor>
void visitFields(State &state, const Visitor &visit)
{
    visit(latin1("tab"), state.tab);
    visit(latin1("folded"), state.isFolded);
    visit(latin1("shown"), state.shown);
    visit(latin1("hidden"), state.hidden);
    visit(latin1("added"), state.added);
    visit(latin1("found"), state.found);
    visit(latin1("faces"), state.faces);
    visit(latin1("scale"), state.scale);
    visit(latin1("scheme"), state.scheme);
}

bool isHeading(const QString &text)
{
    bool isNumber = false;
    const int number = text.mid(heading.size()).toInt(&isNumber);
    return text.startsWith(heading) && isNumber && number > 0;
}

} // namespace

QString KeptState::toText() const
{
    QString text = heading + QString::number(version);
    visitFields(*this, [&text](QLatin1String key, const auto &value) {
        if (isSaid(value))
            text += fieldEnd + key + valueBegin + encoded(value);
    });
    return text;
}

std::optional<KeptState> KeptState::fromText(const QString &text)
{
    if (text.size() > mostOfText || !text.startsWith(heading))
        return std::nullopt;

    const QStringList fields = text.split(fieldEnd);
    if (!isHeading(fields.first()))
        return std::nullopt;
    KeptState state;
    for (const QString &field : fields.mid(1)) {
        const QString name = field.section(valueBegin, 0, 0);
        visitFields(state, [&](QLatin1String key, auto &value) {
            if (key == name)
                decode(field.section(valueBegin, 1), value);
        });
    }
    return state;
}
