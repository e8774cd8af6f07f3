// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

// A small OFD reader whose commands are all on the toolbar.

#include "commands/FileCommands.h"
#include "document/Document.h"
#include "pages/Export.h"
#include "shell/Description.h"
#include "shell/Language.h"
#include "shell/LivePreview.h"
#include "shell/Options.h"
#include "shell/ReaderSettings.h"
#include "shell/ReaderWindow.h"
#include "shell/Screenshot.h"
#include "shell/SingleInstance.h"
#include "shell/StandardInput.h"
#include "shell/WindowList.h"

#include <toolbar/NewToolBar.h>

#include <QApplication>
#include <QIcon>
#include <QTextStream>

#include <optional>

namespace {

constexpr int lumStyle = 1;

int fail(const QString &reason)
{
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << reason << '\n';
    return 1;
}

/**
 * The first description of the toolbar, whose icons are loaded, too; empty with --watch, where the
 * file is read later.
 */
QDomDocument describedToolBar(const Options &options, QString *error)
{
    *error = LivePreview::loadResources(options.resources);
    if (!error->isEmpty() || options.watch)
        return QDomDocument();
    QDomDocument description = Description::read(options.description, options.skin, error);
    if (error->isEmpty() && options.clearHistory)
        Description::addClearHistory(description);
    if (error->isEmpty())
        Language::addTo(description);
    return description;
}

int print(const Options &options)
{
    Document document;
    QString error;
    if (options.sample)
        document.openGenerated(ReaderWindow::sampleName());
    else if (!document.open(options.files.first(), &error))
        return fail(FileCommands::refusalOf(options.files.first(), error));
    error = document.refusalOf(Act::Export);
    if (!error.isEmpty() || !Export::write(document, options.printTo, &error))
        return fail(error);
    return 0;
}

int takeScreenshot(ReaderWindow &window, const Options &options)
{
    // Nobody would answer a message.
    QString refusal;
    if (!options.files.isEmpty())
        window.openOrExplain(options.files.first(), &refusal);
    if (!refusal.isEmpty())
        return fail(refusal);
    window.show();
    Screenshot screenshot(&window, options.screenshot);
    QObject::connect(&screenshot, &Screenshot::saved, qApp, [] { QCoreApplication::exit(0); });
    QObject::connect(&screenshot, &Screenshot::failed, qApp,
                     [](const QString &reason) { QCoreApplication::exit(fail(reason)); });
    return QApplication::exec();
}

/** Shows the one window that a preview, a picture or the sample has. */
int showOne(WindowList &windows, const Options &options)
{
    ReaderWindow *window = windows.create();
    std::optional<LivePreview> preview;
    if (options.watch)
        preview.emplace(*window, options);
    if (options.sample)
        window->openSample();
    if (!options.screenshot.isEmpty()) {
        const std::unique_ptr<ReaderWindow> owner(window);
        return takeScreenshot(*window, options);
    }
    for (const QString &fileName : options.files)
        window->open(fileName);
    window->show();
    return QApplication::exec();
}

int show(const Options &options, const QDomDocument &description)
{
    const std::shared_ptr<ReaderSettings> settings = ReaderSettings::shared();
    if (!options.screenshot.isEmpty())
        settings->keepNothing();
    if (options.readsInput)
        settings->setPassing(options.files.last());
    if (!options.scheme.isEmpty())
        settings->useScheme(options.scheme);
    WindowList windows(description, options);
    if (options.watch || options.sample || !options.screenshot.isEmpty())
        return showOne(windows, options);

    SingleInstance instance(options.look());
    if (options.mayHandOver() && instance.handOver(options.files))
        return 0;
    QObject::connect(&instance, &SingleInstance::filesHandedOver, &windows,
                     [&windows](const QStringList &fileNames) { windows.open(fileNames); });
    windows.open(options.files);
    return QApplication::exec();
}

int run(Options options)
{
    std::optional<StandardInput> input;
    QString error;
    if (options.readsInput)
        options.files.append(input.emplace().save(&error));
    if (!error.isEmpty())
        return fail(error);
    if (!options.printTo.isEmpty())
        return print(options);
    const QDomDocument description = describedToolBar(options, &error);
    if (!error.isEmpty())
        return fail(error);

    // The skin belongs to the process and must be chosen before the first toolbar is created.
    NewToolBar::uiStyle = options.skin == QLatin1String("lum") ? lumStyle : 0;
    return show(options, description);
}

QString languageOf(const Options &options)
{
    if (!options.language.isEmpty())
        return options.language;
    const QString chosen = ReaderSettings::shared()->language();
    return chosen.isEmpty() ? Language::ofSystem() : chosen;
}

/** A file can be made without a display; then everything is as on one. */
void chooseDisplay(int count, char *const *arguments)
{
    const bool hasDisplay = qEnvironmentVariableIsSet("DISPLAY")
                            || qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
                            || qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    if (!hasDisplay && Options::askForFile(count, arguments))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("mrtoolbar-reader"));
    QCoreApplication::setApplicationVersion(QStringLiteral(MRTOOLBAR_VERSION));
    QString error;
    if (Options::askForText(argc, argv)) {
        const QCoreApplication application(argc, argv);
        Options::of(QCoreApplication::arguments(), &error);
        return fail(error); // Only a wrong command line gets here.
    }
    chooseDisplay(argc, argv);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Qt 6 always uses pixmaps of the density of the screen.
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    const QApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(QCoreApplication::applicationName());
    QGuiApplication::setWindowIcon(QIcon::fromTheme(QCoreApplication::applicationName()));
    const Options options = Options::of(QCoreApplication::arguments(), &error);
    if (!error.isEmpty())
        return fail(error);
    Language::install(languageOf(options));
    return run(options);
}
