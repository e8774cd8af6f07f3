// Takes a picture of everything that a toolbar shows: every tab, state and menu of a description.

#include "PictureHost.h"

#include <toolbar/NewToolBar.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>

#include <cstdio>

namespace {

int fail(const QString &message)
{
    std::fprintf(stderr, "mrtoolbar-pictures: %s\n", qPrintable(message));
    return 1;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Takes a picture of every tab, state and menu of a toolbar."));
    parser.addHelpOption();
    parser.addOptions({
        {QStringLiteral("skin"), QStringLiteral("marodi or lum"), QStringLiteral("skin"),
         QStringLiteral("marodi")},
        {QStringLiteral("description"), QStringLiteral("release, debug or a file"),
         QStringLiteral("description"), QStringLiteral("release")},
        {QStringLiteral("width"), QStringLiteral("width of the window"), QStringLiteral("pixels"),
         QStringLiteral("1280")},
        {QStringLiteral("prefix"), QStringLiteral("how the files' names begin"),
         QStringLiteral("text"), QStringLiteral("toolbar")},
        {QStringLiteral("out"), QStringLiteral("folder of the pictures"), QStringLiteral("folder"),
         QStringLiteral(".")},
    });
    parser.process(application);

    const QString skin = parser.value(QStringLiteral("skin"));
    if (skin != QLatin1String("marodi") && skin != QLatin1String("lum"))
        return fail(QStringLiteral("there is no skin '%1'").arg(skin));
    NewToolBar::uiStyle = skin == QLatin1String("lum") ? 1 : 0;

    const QString description = parser.value(QStringLiteral("description"));
    const bool isShipped =
        description == QLatin1String("release") || description == QLatin1String("debug");
    QFile file(
        isShipped
            ? QStringLiteral(":/mr_toolbar/Resources/%1/mr_toolbar.%2.xml").arg(skin, description)
            : description);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(file.readAll()))
        return fail(QStringLiteral("cannot read '%1'").arg(description));
    const QDir folder(parser.value(QStringLiteral("out")));
    if (!folder.mkpath(QStringLiteral(".")))
        return fail(QStringLiteral("cannot make the folder '%1'").arg(folder.path()));

    PictureHost host(document, folder, parser.value(QStringLiteral("prefix")),
                     parser.value(QStringLiteral("width")).toInt());
    return host.takeAll() ? 0 : 1;
}
