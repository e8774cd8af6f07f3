// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

// Takes a picture of everything that a toolbar shows: every tab, state and menu of a description,
// on one sheet.

#include "PictureHost.h"

#include <toolbar/NewToolBar.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QPalette>

#include <cstdio>

namespace {

int fail(const QString &message)
{
    std::fprintf(stderr, "mrtoolbar-pictures: %s\n", qPrintable(message));
    return 1;
}

bool readSkinMap(const QString &path, QMap<QString, QString> *map)
{
    if (path.isEmpty())
        return true;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const auto sign = line.indexOf(QLatin1Char('='));
        if (sign > 0)
            map->insert(line.left(sign).trimmed(), line.mid(sign + 1).trimmed());
    }
    return true;
}

void addOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Takes a picture of every tab, state and menu of a toolbar."));
    parser.addHelpOption();
    parser.addOptions({
        {QStringLiteral("skin"), QStringLiteral("marodi or lum"), QStringLiteral("skin"),
         QStringLiteral("marodi")},
        {QStringLiteral("description"), QStringLiteral("release, debug or a file"),
         QStringLiteral("description"), QStringLiteral("release")},
        {QStringLiteral("width"), QStringLiteral("width of the window at 96 dpi"),
         QStringLiteral("pixels"), QStringLiteral("1280")},
        {QStringLiteral("skin-map"), QStringLiteral("file with lines key=value"),
         QStringLiteral("file")},
        {QStringLiteral("scheme"), QStringLiteral("light, dark, contrast or system"),
         QStringLiteral("scheme")},
        {QStringLiteral("font-size"), QStringLiteral("size of the application's font in points"),
         QStringLiteral("points")},
        {QStringLiteral("dark-palette"), QStringLiteral("give the application a dark palette")},
        {QStringLiteral("out"), QStringLiteral("file of the picture"), QStringLiteral("file"),
         QStringLiteral("toolbar.png")},
    });
}

/** Reads a description from a file, or the one of the skin that is called "release" or "debug". */
bool readDescription(const QString &name, const QString &skin, QDomDocument *document)
{
    const bool isShipped = name == QLatin1String("release") || name == QLatin1String("debug");
    const QString shipped = QStringLiteral(":/mr_toolbar/Resources/%1/mr_toolbar.%2.xml");
    QFile file(isShipped ? shipped.arg(skin, name) : name);
    return file.open(QIODevice::ReadOnly) && document->setContent(file.readAll());
}

} // namespace

int main(int argc, char *argv[])
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    QApplication application(argc, argv);
    QCommandLineParser parser;
    addOptions(parser);
    parser.process(application);

    const QString skin = parser.value(QStringLiteral("skin"));
    if (skin != QLatin1String("marodi") && skin != QLatin1String("lum"))
        return fail(QStringLiteral("there is no skin '%1'").arg(skin));
    NewToolBar::uiStyle = skin == QLatin1String("lum") ? 1 : 0;

    const QString description = parser.value(QStringLiteral("description"));
    QDomDocument document;
    if (!readDescription(description, skin, &document))
        return fail(QStringLiteral("cannot read '%1'").arg(description));
    QMap<QString, QString> skinMap;
    if (!readSkinMap(parser.value(QStringLiteral("skin-map")), &skinMap))
        return fail(QStringLiteral("cannot read the skin map"));
    const QString scheme = parser.value(QStringLiteral("scheme"));
    if (!scheme.isEmpty())
        skinMap.insert(QStringLiteral("scheme"), scheme);
    if (const int points = parser.value(QStringLiteral("font-size")).toInt(); points > 0) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
    }
    // Something for the scheme of the system to follow.
    if (parser.isSet(QStringLiteral("dark-palette")))
        QApplication::setPalette(QPalette(QColor(0x30, 0x30, 0x30)));

    PictureHost host(document, skinMap, parser.value(QStringLiteral("width")).toInt());
    const QString path = parser.value(QStringLiteral("out"));
    return host.takeAll(path) ? 0 : fail(QStringLiteral("cannot write '%1'").arg(path));
}
