// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

// Prints the findings about descriptions, because the library ignores mistakes without a message.

#include "toolbar/skin/StaticResources.h"
#include "tools/check/Catalogue.h"
#include "tools/check/DescribedTexts.h"
#include "tools/check/DescriptionCheck.h"
#include "tools/check/HostResources.h"
#include "tools/check/NamesHeader.h"
#include "tools/check/Report.h"
#include "tools/check/RoleAssignment.h"
#include "tools/check/SkinIcons.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cstdio>

namespace {

enum ExitCode
{
    Clean = 0,
    Found = 1,
    Failed = 2
};

int fail(const QString &message)
{
    std::fprintf(stderr, "mrtoolbar-check: %s\n", qPrintable(message));
    return Failed;
}

QString explanation()
{
    return QStringLiteral(
        "Reports what the library would make from a toolbar description. The library ignores "
        "mistakes without a message; this tool lists each of them with its effect and a "
        "correction.\n\n"
        "Each finding is a line \"file:line:column: severity: sentence [id]\".\n"
        "  error    something described will be missing in the toolbar\n"
        "  warning  the control exists, but probably not as intended\n"
        "  note     harmless, such as an unused attribute (only with --notes)\n\n"
        "Exit status: 0 if nothing was reported, 1 if something was, 2 if a file cannot be read "
        "or the command line is wrong.\n\n"
        "With --texts it writes the texts of descriptions into a catalogue for Qt Linguist "
        "instead; "
        "a catalogue that there is keeps its translations. With --names it writes their names as "
        "constants into a C++ header, which keeps its time if nothing changes.\n\n"
        "Examples:\n"
        "  mrtoolbar-check --skin lum my_toolbar.xml\n"
        "  mrtoolbar-check --texts my_toolbar.xml -o my_toolbar_en.ts --target-language en\n"
        "  mrtoolbar-check --names my_toolbar.xml -o names.h");
}

void addCheckOptions(QCommandLineParser &parser)
{
    parser.addOptions({
        {QStringLiteral("skin"),
         QStringLiteral("Look up icons in this skin, marodi or lum; without it those of both "
                        "skins are accepted."),
         QStringLiteral("skin")},
        {QStringLiteral("resources"),
         QStringLiteral("Load the resources of a host first, for icons of its own below the "
                        "skin's: a .qrc file, one made with rcc --binary, or a folder of icons, in "
                        "which folders marodi and lum are for that skin only."),
         QStringLiteral("file or folder")},
        {QStringLiteral("tooltipwords"),
         QStringLiteral("The host sets the skin key of this name, so no tooltip cuts a word.")},
        {QStringLiteral("notes"), QStringLiteral("Report notes, too; they count like the rest.")},
        {QStringLiteral("werror"), QStringLiteral("Report warnings as errors.")},
        {QStringLiteral("errors-fail"), QStringLiteral("Exit with 1 for errors only.")},
        {QStringLiteral("json"), QStringLiteral("Write the findings as a JSON array.")},
    });
}

void addOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(explanation());
    parser.addHelpOption();
    parser.addVersionOption();
    addCheckOptions(parser);
    parser.addOptions({
        {QStringLiteral("texts"), QStringLiteral("Write the texts into the catalogue of -o.")},
        {QStringLiteral("names"),
         QStringLiteral("Write the names as constants of C++ into the header of -o.")},
        {QStringLiteral("o"), QStringLiteral("With --texts or --names: the file to write."),
         QStringLiteral("file")},
        {QStringLiteral("source-language"),
         QStringLiteral(
             "With --texts: the language of the descriptions, zh_CN unless the catalogue "
             "says something else."),
         QStringLiteral("language")},
        {QStringLiteral("target-language"),
         QStringLiteral("With --texts: the language of the catalogue."),
         QStringLiteral("language")},
        {QStringLiteral("no-locations"),
         QStringLiteral("With --texts: leave out where the texts stand.")},
    });
    parser.addPositionalArgument(QStringLiteral("file"),
                                 QStringLiteral("Descriptions to check; - is standard input."),
                                 QStringLiteral("file..."));
}

bool read(const QString &path, QByteArray *content, QString *error)
{
    QFile file(path);
    const bool isOpen = path == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly)
                                                   : file.open(QIODevice::ReadOnly);
    if (isOpen)
        *content = file.readAll();
    if (isOpen && file.error() == QFileDevice::NoError)
        return true;
    *error = QStringLiteral("cannot read '%1': %2").arg(path, file.errorString());
    return false;
}

/** The findings that the options select, with the severity that the options set. */
QVector<Finding> reported(QVector<Finding> findings, const QCommandLineParser &parser)
{
    if (!parser.isSet(QStringLiteral("notes")))
        findings.erase(std::remove_if(findings.begin(), findings.end(),
                                      [](const Finding &finding) {
                                          return finding.severity == Severity::Note;
                                      }),
                       findings.end());
    if (parser.isSet(QStringLiteral("werror"))) {
        for (Finding &finding : findings) {
            if (finding.severity == Severity::Warning)
                finding.severity = Severity::Error;
        }
    }
    return findings;
}

/** Whether the findings are told by the exit status. */
bool counts(const QVector<Finding> &findings, const QCommandLineParser &parser)
{
    const bool isStrict = !parser.isSet(QStringLiteral("errors-fail"));
    return std::any_of(findings.begin(), findings.end(), [isStrict](const Finding &finding) {
        return isStrict || finding.severity == Severity::Error;
    });
}

int checkFiles(const QCommandLineParser &parser, const CheckOptions &options)
{
    ExitCode code = Clean;
    QVector<FileReport> reports;
    const QStringList paths = parser.positionalArguments();
    for (const QString &path : paths) {
        QByteArray content;
        QString error;
        if (!read(path, &content, &error)) {
            code = static_cast<ExitCode>(fail(error));
            continue;
        }
        reports.append({path, reported(checkDescription(content, options), parser)});
        if (code == Clean && counts(reports.last().findings, parser))
            code = Found;
    }
    const QByteArray output = parser.isSet(QStringLiteral("json")) ? Report::json(reports)
                                                                   : Report::text(reports).toUtf8();
    std::fwrite(output.constData(), 1, static_cast<std::size_t>(output.size()), stdout);
    return code;
}

/** Writes the file unless it has that content already. */
int write(const QString &path, const QByteArray &content)
{
    QFile present(path);
    if (present.open(QIODevice::ReadOnly) && present.readAll() == content)
        return Clean;
    present.close();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) < 0 || !file.commit())
        return fail(QStringLiteral("cannot write '%1': %2").arg(path, file.errorString()));
    return Clean;
}

/** The catalogue as it is so far, or a new one. */
bool readCatalogue(const QString &path, Catalogue *catalogue, QString *error)
{
    if (!QFileInfo::exists(path))
        return true;
    QByteArray content;
    if (!read(path, &content, error))
        return false;
    if (!catalogue->read(content))
        *error = QStringLiteral("'%1' is no catalogue of translations").arg(path);
    return error->isEmpty();
}

int writeTexts(const QCommandLineParser &parser)
{
    const QString path = parser.value(QStringLiteral("o"));
    DescribedTexts texts;
    QString error;
    const QStringList descriptions = parser.positionalArguments();
    for (const QString &file : descriptions) {
        QByteArray content;
        if (!read(file, &content, &error))
            return fail(error);
        const QString place = file == QLatin1String("-") ? QString() : file;
        if (const auto fault = texts.add(content, place))
            return fail(file + QLatin1Char(':') + *fault);
    }
    Catalogue catalogue;
    if (!readCatalogue(path, &catalogue, &error))
        return fail(error);
    catalogue.setLanguages(parser.value(QStringLiteral("source-language")),
                           parser.value(QStringLiteral("target-language")));
    const bool hasPlaces = !parser.isSet(QStringLiteral("no-locations"));
    catalogue.update(texts.all(), hasPlaces ? QFileInfo(path).absolutePath() : QString());

    return write(path, catalogue.content());
}

int writeNames(const QCommandLineParser &parser)
{
    NamesHeader header;
    QStringList origin;
    const QStringList descriptions = parser.positionalArguments();
    for (const QString &path : descriptions) {
        QByteArray content;
        QString error;
        if (!read(path, &content, &error))
            return fail(error);
        SourceDocument document = readDocument(content);
        if (document.fault)
            return fail(QStringLiteral("'%1' cannot be read; check it").arg(path));
        assignRoles(document);
        header.add(document);
        origin.append(QFileInfo(path).fileName());
    }
    return write(parser.value(QStringLiteral("o")),
                 header.content(origin.join(QLatin1String(", "))));
}

/** What is wrong with the options together; empty if nothing is. */
QString faultOf(const QCommandLineParser &parser)
{
    const bool writesTexts = parser.isSet(QStringLiteral("texts"));
    const bool writesNames = parser.isSet(QStringLiteral("names"));
    if (writesTexts && writesNames)
        return QStringLiteral("--texts and --names write different files; call it twice");
    if ((writesTexts || writesNames) && parser.value(QStringLiteral("o")).isEmpty())
        return writesTexts ? QStringLiteral("--texts needs a catalogue to write to: -o FILE.ts")
                           : QStringLiteral("--names needs a header to write to: -o FILE.h");
    if (parser.isSet(QStringLiteral("o")) && !writesTexts && !writesNames)
        return QStringLiteral("-o needs --texts or --names");
    const QString skin = parser.value(QStringLiteral("skin"));
    if (parser.isSet(QStringLiteral("skin")) && !SkinIcons::skins().contains(skin))
        return QStringLiteral("there is no skin '%1', only marodi and lum").arg(skin);
    if (parser.positionalArguments().isEmpty())
        return QStringLiteral("no file to check; --help lists the options");
    return QString();
}

} // namespace

int main(int argc, char *argv[])
{
    keepStaticResources();
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("mrtoolbar-check"));
    QCoreApplication::setApplicationVersion(QStringLiteral(MRTOOLBAR_VERSION));

    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(QCoreApplication::arguments()))
        return fail(parser.errorText());
    if (parser.isSet(QStringLiteral("help")) || parser.isSet(QStringLiteral("help-all")))
        parser.showHelp(Clean);
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();

    const QString fault = faultOf(parser);
    if (!fault.isEmpty())
        return fail(fault);
    CheckOptions options;
    options.skin = parser.value(QStringLiteral("skin"));
    options.hasToolTipWords = parser.isSet(QStringLiteral("tooltipwords"));
    const QStringList resources = parser.values(QStringLiteral("resources"));
    for (const QString &path : resources) {
        const QString error = HostResources::load(path);
        if (!error.isEmpty())
            return fail(error);
    }
    if (parser.isSet(QStringLiteral("names")))
        return writeNames(parser);
    return parser.isSet(QStringLiteral("texts")) ? writeTexts(parser) : checkFiles(parser, options);
}
