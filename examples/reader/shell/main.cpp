// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

// A small OFD reader whose commands are all on the toolbar.

#include "shell/Description.h"
#include "shell/Language.h"
#include "shell/LivePreview.h"
#include "shell/Options.h"
#include "shell/ReaderWindow.h"
#include "shell/Screenshot.h"

#include <toolbar/NewToolBar.h>

#include <QApplication>
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

/** Opens the document of the command line, or the sample; returns what is wrong with it. */
QString openDocument(ReaderWindow &window, const Options &options)
{
    QString refusal;
    if (options.file.isEmpty())
        window.openSample();
    else if (options.screenshot.isEmpty())
        window.open(options.file);
    else // Nobody would answer a message.
        window.openOrExplain(options.file, &refusal);
    return refusal;
}

int show(const Options &options, const QDomDocument &description)
{
    // With --watch the description decides about the quick access buttons, not the user's setting.
    ReaderWindow window(description, options.watch ? QString() : options.skin);
    if (!options.scheme.isEmpty())
        window.setScheme(options.scheme);
    std::optional<LivePreview> preview;
    if (options.watch)
        preview.emplace(window, options);
    const QString refusal = openDocument(window, options);
    if (!refusal.isEmpty())
        return fail(refusal);
    window.show();
    if (options.screenshot.isEmpty())
        return QApplication::exec();

    Screenshot screenshot(&window, options.screenshot);
    QObject::connect(&screenshot, &Screenshot::saved, qApp, [] { QCoreApplication::exit(0); });
    QObject::connect(&screenshot, &Screenshot::failed, qApp,
                     [](const QString &reason) { QCoreApplication::exit(fail(reason)); });
    return QApplication::exec();
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
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Qt 6 always uses pixmaps of the density of the screen.
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    const QApplication application(argc, argv);
    const Options options = Options::of(QCoreApplication::arguments(), &error);
    if (!error.isEmpty())
        return fail(error);
    Language::install(options.language);
    const QDomDocument description = describedToolBar(options, &error);
    if (!error.isEmpty())
        return fail(error);

    // The skin belongs to the process and must be chosen before the first toolbar is created.
    NewToolBar::uiStyle = options.skin == QLatin1String("lum") ? lumStyle : 0;
    return show(options, description);
}
