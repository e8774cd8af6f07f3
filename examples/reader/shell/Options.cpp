// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/Options.h"

#include "shell/Description.h"
#include "shell/ReaderScheme.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QImageWriter>
#include <QUrl>

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
        QStringLiteral(
            "Language of the reader: zh_CN or en (as chosen in the menu, or else that of "
            "the system)."),
        QStringLiteral("name"));
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
        QStringLiteral("Save a picture of the window to this file and end; its suffix, such as "
                       ".png or .jpg, says how."),
        QStringLiteral("file"));
    return option;
}

const QCommandLineOption &printToOption()
{
    static const QCommandLineOption option(
        QStringLiteral("print-to"),
        QStringLiteral("Write the pages of the document to this .pdf file and end."),
        QStringLiteral("file"));
    return option;
}

const QCommandLineOption &sampleOption()
{
    static const QCommandLineOption option(
        QStringLiteral("sample"), QStringLiteral("Show generated pages instead of a file."));
    return option;
}

const QCommandLineOption &hostPanelOption()
{
    static const QCommandLineOption option(
        QStringLiteral("host-panel"),
        QStringLiteral("Show the panel with the skin's colours and the signals of the toolbar."));
    return option;
}

const QCommandLineOption &clearHistoryOption()
{
    static const QCommandLineOption option(
        QStringLiteral("clear-history"),
        QStringLiteral("Add the entry that clears the recent files to the menu of a description "
                       "that lacks it, and shows none without it."));
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

/** Those of the kinds of pictures that can be written, the usual ones first. */
QList<QByteArray> pictureSuffixes()
{
    QList<QByteArray> suffixes{"png", "jpg"};
    const QList<QByteArray> others = QImageWriter::supportedImageFormats();
    for (const QByteArray &suffix : others) {
        if (!suffixes.contains(suffix))
            suffixes.append(suffix);
    }
    return suffixes;
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

/** Why no file of that kind can be written. */
QString suffixFaultOf(const QCommandLineParser &parser, const QCommandLineOption &option,
                      const QList<QByteArray> &suffixes)
{
    if (!parser.isSet(option))
        return QString();
    const QByteArray suffix = QFileInfo(parser.value(option)).suffix().toLower().toLatin1();
    if (suffixes.contains(suffix))
        return QString();
    return QStringLiteral("--%1 takes a file name ending in .%2, not '%3'")
        .arg(option.names().first(), QString::fromLatin1(suffixes.join(", .")),
             parser.value(option));
}

/** What is wrong with the documents for what is to be done with them. */
QString documentFaultOf(const QCommandLineParser &parser)
{
    const auto count = parser.positionalArguments().size();
    const bool hasSample = parser.isSet(sampleOption());
    if (hasSample && count > 0)
        return QStringLiteral("--sample takes no file");
    if (parser.positionalArguments().count(QStringLiteral("-")) > 1)
        return QStringLiteral("the standard input can be read only once");
    if (parser.isSet(printToOption()) && parser.isSet(screenshotOption()))
        return QStringLiteral("--print-to and --screenshot cannot be used together");
    if (parser.isSet(printToOption()) && count != 1 && !hasSample)
        return QStringLiteral("--print-to takes one document");
    const bool hasOneWindow = parser.isSet(screenshotOption()) || parser.isSet(watchOption());
    if (hasOneWindow && count > 1)
        return QStringLiteral("--screenshot and --watch take one document");
    return QString();
}

QString faultOf(const QCommandLineParser &parser)
{
    const QString skin = parser.value(skinOption());
    if (!skins.contains(skin))
        return QStringLiteral("--skin takes marodi or lum, not '%1'").arg(skin);
    const QString language = parser.value(languageOption());
    if (parser.isSet(languageOption()) && !languages.contains(language))
        return QStringLiteral("--language takes zh_CN or en, not '%1'").arg(language);
    const QString scheme = parser.value(schemeOption());
    if (parser.isSet(schemeOption()) && !ReaderScheme::names().contains(scheme))
        return QStringLiteral("--scheme takes light, dark, contrast or system, not '%1'")
            .arg(scheme);
    for (const QString &fault :
         {suffixFaultOf(parser, screenshotOption(), pictureSuffixes()),
          suffixFaultOf(parser, printToOption(), {"pdf"}), documentFaultOf(parser)}) {
        if (!fault.isEmpty())
            return fault;
    }
    return parser.isSet(watchOption()) ? watchFaultOf(parser.value(descriptionOption()))
                                       : QString();
}

/** The path of a document, which may be given as an address of a file. */
QString pathOf(const QString &argument, QString *error)
{
    if (!argument.startsWith(QLatin1String("file:"), Qt::CaseInsensitive))
        return QFileInfo(argument).absoluteFilePath();
    const QUrl address(argument);
    const QString host = address.host();
    const bool isHere = host.isEmpty() || host == QLatin1String("localhost");
    if (!isHere || address.path().isEmpty())
        *error = QStringLiteral("'%1' is not the address of a file of this computer").arg(argument);
    return address.path(QUrl::FullyDecoded);
}

void takeDocuments(const QStringList &arguments, Options *options, QString *error)
{
    for (const QString &argument : arguments) {
        if (argument == QLatin1String("-"))
            options->readsInput = true;
        else
            options->files.append(pathOf(argument, error));
    }
}

/** Whether an argument begins with one of these options; "--name=value" does, too. */
bool haveOneOf(int count, char *const *arguments, const QStringList &names)
{
    return std::any_of(arguments, arguments + count, [&names](const char *argument) {
        return names.contains(QString::fromLocal8Bit(argument).section(QChar(u'='), 0, 0));
    });
}

} // namespace

bool Options::askForText(int count, char *const *arguments)
{
    return haveOneOf(count, arguments,
                     {QStringLiteral("-h"), QStringLiteral("--help"), QStringLiteral("-v"),
                      QStringLiteral("--version")});
}

bool Options::askForFile(int count, char *const *arguments)
{
    return haveOneOf(count, arguments,
                     {QStringLiteral("--screenshot"), QStringLiteral("--print-to")});
}

QString Options::look() const
{
    QStringList look{skin, language, scheme, description, resources.join(QChar(u'\n'))};
    look << QString::number(int(hostPanel)) << QString::number(int(clearHistory));
    return look.join(QChar(u'\n'));
}

Options Options::of(const QStringList &arguments, QString *error)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A small OFD reader."));
    parser.addPositionalArgument(
        QStringLiteral("file"),
        QStringLiteral("OFD files or their file:// addresses; - for the standard input."),
        QStringLiteral("[file...]"));
    parser.addOptions({skinOption(), languageOption(), schemeOption(), descriptionOption(),
                       watchOption(), resourcesOption(), screenshotOption(), printToOption(),
                       sampleOption(), hostPanelOption(), clearHistoryOption()});
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
    options.printTo = parser.value(printToOption());
    options.sample = parser.isSet(sampleOption());
    options.hostPanel = parser.isSet(hostPanelOption());
    options.watch = parser.isSet(watchOption());
    options.clearHistory = parser.isSet(clearHistoryOption());
    if (error->isEmpty())
        takeDocuments(parser.positionalArguments(), &options, error);
    return options;
}
