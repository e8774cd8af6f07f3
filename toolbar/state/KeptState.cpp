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

namespace Key {
constexpr QLatin1String tab = latin1("tab");
constexpr QLatin1String folded = latin1("folded");
constexpr QLatin1String shown = latin1("shown");
constexpr QLatin1String hidden = latin1("hidden");
constexpr QLatin1String added = latin1("added");
constexpr QLatin1String found = latin1("found");
constexpr QLatin1String faces = latin1("faces");
constexpr QLatin1String scale = latin1("scale");
constexpr QLatin1String scheme = latin1("scheme");
} // namespace Key

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

QStringList decodedList(const QString &text)
{
    QStringList names;
    const QStringList texts = text.split(nameEnd, Qt::SkipEmptyParts).mid(0, mostNames);
    for (const QString &part : texts) {
        const QString name = decoded(part);
        if (!name.isEmpty())
            names.append(name);
    }
    names.removeDuplicates();
    return names;
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

QMap<QString, QString> decodedFaces(const QString &text)
{
    QMap<QString, QString> faces;
    const QStringList texts = text.split(nameEnd, Qt::SkipEmptyParts).mid(0, mostNames);
    for (const QString &part : texts) {
        const QString button = decoded(part.section(entryBegin, 0, 0));
        const QString entry = decoded(part.section(entryBegin, 1));
        if (!button.isEmpty() && !entry.isEmpty())
            faces.insert(button, entry);
    }
    return faces;
}

std::optional<bool> decodedTruth(const QString &text)
{
    if (text == yes)
        return true;
    if (text == no)
        return false;
    return std::nullopt;
}

void readField(KeptState &state, const QString &key, const QString &value)
{
    if (key == Key::tab)
        state.tab = decoded(value);
    else if (key == Key::folded)
        state.isFolded = decodedTruth(value);
    else if (key == Key::shown)
        state.shown = decodedList(value);
    else if (key == Key::hidden)
        state.hidden = decodedList(value);
    else if (key == Key::added)
        state.added = decodedList(value);
    else if (key == Key::found)
        state.found = decodedList(value);
    else if (key == Key::faces)
        state.faces = decodedFaces(value);
    else if (key == Key::scale)
        state.scale = decoded(value);
    else if (key == Key::scheme)
        state.scheme = decoded(value);
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
    const auto write = [&text](QLatin1String key, const QString &value) {
        text += fieldEnd + key + valueBegin + value;
    };
    write(Key::tab, encoded(tab));
    if (isFolded)
        write(Key::folded, *isFolded ? yes : no);
    write(Key::shown, encoded(shown));
    write(Key::hidden, encoded(hidden));
    if (added)
        write(Key::added, encoded(*added));
    if (found)
        write(Key::found, encoded(*found));
    write(Key::faces, encoded(faces));
    write(Key::scale, encoded(scale));
    write(Key::scheme, encoded(scheme));
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
    for (const QString &field : fields.mid(1))
        readField(state, field.section(valueBegin, 0, 0), field.section(valueBegin, 1));
    return state;
}
