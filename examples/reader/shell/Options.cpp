// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/Options.h"

#include "shell/Description.h"
#include "shell/ReaderScheme.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <algorithm>

namespace {

const QStringList skins = {QStringLiteral("marodi"), QStringLiteral("lum")};
const QStringList languages = {QStringLiteral("zh_CN"), QStringLiteral("en")};

const QCommandLineOption &skinOption()
{
    static const QCommandLineOption option(QStringLiteral("skin"),
                                           QStringLiteral("Skin to show: marodi or lum (marodi)."),
                                           QStringLiteral("name"), skins.first());
    return option;
}

const QCommandLineOption &descriptionOption()
{
    static const QCommandLineOption option(
        QStringLiteral("description"),
        QStringLiteral(
            "Toolbar description: a file, reader for that of this program, or release or "
            "debug for one of the skin's own (reader)."),
        QStringLiteral("file"), QStringLiteral("reader"));
    return option;
}

const QCommandLineOption &languageOption()
{
    static const QCommandLineOption option(
        QStringLiteral("language"),
        QStringLiteral("Language of the reader: zh_CN or en (zh_CN). The menu has it, too."),
        QStringLiteral("name"), languages.first());
    return option;
}

const QCommandLineOption &schemeOption()
{
    static const QCommandLineOption option(
        QStringLiteral("scheme"),
        QStringLiteral("How light the reader is: light, dark, contrast, or system for what the "
                       "system has (as in the last run)."),
        QStringLiteral("name"));
    return option;
}

const QCommandLineOption &screenshotOption()
{
    static const QCommandLineOption option(
        QStringLiteral("screenshot"),
        QStringLiteral("Save a picture of the window to this .png file and end."),
        QStringLiteral("file"));
    return option;
}

const QCommandLineOption &clearHistoryOption()
{
    static const QCommandLineOption option(
        QStringLiteral("clear-history"),
        QStringLiteral("Add the entry that clears the recent files to their menu; without it the "
                       "menu stays empty."));
    return option;
}

const QCommandLineOption &watchOption()
{
    static const QCommandLineOption option(
        QStringLiteral("watch"),
        QStringLiteral("Rebuild the toolbar whenever the file of the description is saved, and "
                       "list what is wrong with it."));
    return option;
}

const QCommandLineOption &resourcesOption()
{
    static const QCommandLineOption option(
        QStringLiteral("resources"),
        QStringLiteral("Load resources with icons for the description: a .qrc file, one made with "
                       "rcc --binary, or a folder of icons."),
        QStringLiteral("file or folder"));
    return option;
}

/** Why a description cannot be watched, such as those that are resources. */
QString watchFaultOf(const QString &description)
{
    if (Description::isBuiltIn(description))
        return QStringLiteral("--watch needs a file of your own, as --description FILE");
    if (!QFileInfo(description).isFile())
        return QStringLiteral("--watch: there is no file '%1'").arg(description);
    return QString();
}

QString faultOf(const QCommandLineParser &parser)
{
    const QString skin = parser.value(skinOption());
    if (!skins.contains(skin))
        return QStringLiteral("--skin takes marodi or lum, not '%1'").arg(skin);
    const QString language = parser.value(languageOption());
    if (!languages.contains(language))
        return QStringLiteral("--language takes zh_CN or en, not '%1'").arg(language);
    const QString scheme = parser.value(schemeOption());
    if (parser.isSet(schemeOption()) && !ReaderScheme::names().contains(scheme))
        return QStringLiteral("--scheme takes light, dark, contrast or system, not '%1'")
            .arg(scheme);
    if (parser.positionalArguments().size() > 1)
        return QStringLiteral("only one file can be opened at a time");
    if (parser.isSet(screenshotOption()) && parser.value(screenshotOption()).isEmpty())
        return QStringLiteral("--screenshot takes a file name");
    if (parser.isSet(watchOption()))
        return watchFaultOf(parser.value(descriptionOption()));
    return QString();
}

} // namespace

bool Options::askForText(int count, char *const *arguments)
{
    static const QStringList names = {QStringLiteral("-h"), QStringLiteral("--help"),
                                      QStringLiteral("-v"), QStringLiteral("--version")};
    return std::any_of(arguments, arguments + count, [](const char *argument) {
        return names.contains(QString::fromLocal8Bit(argument));
    });
}

Options Options::of(const QStringList &arguments, QString *error)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A small OFD reader."));
    parser.addPositionalArgument(
        QStringLiteral("file"), QStringLiteral("An OFD file; without one the pages are generated."),
        QStringLiteral("[file]"));
    parser.addOptions({skinOption(), languageOption(), schemeOption(), descriptionOption(),
                       watchOption(), resourcesOption(), screenshotOption(), clearHistoryOption()});
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this text and end."));
    parser.addOption(help);
    const QCommandLineOption version = parser.addVersionOption();

    Options options;
    if (!parser.parse(arguments)) {
        *error = parser.errorText();
        return options;
    }
    if (parser.isSet(help))
        parser.showHelp();
    if (parser.isSet(version))
        parser.showVersion();
    *error = faultOf(parser);
    options.skin = parser.value(skinOption());
    options.language = parser.value(languageOption());
    options.scheme = parser.value(schemeOption());
    options.description = parser.value(descriptionOption());
    options.resources = parser.values(resourcesOption());
    options.screenshot = parser.value(screenshotOption());
    options.file = parser.positionalArguments().value(0);
    options.watch = parser.isSet(watchOption());
    options.clearHistory = parser.isSet(clearHistoryOption());
    return options;
}
