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

/** The first description of the toolbar; empty with --watch, where the file is read later. */
QDomDocument describedToolBar(const Options &options, QString *error)
{
    if (options.watch)
        return QDomDocument();
    QDomDocument description = Description::read(options.description, options.skin, error);
    if (error->isEmpty() && options.clearHistory)
        Description::addClearHistory(description);
    if (error->isEmpty())
        Language::addTo(description);
    return description;
}

} // namespace

int main(int argc, char *argv[])
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Qt 6 always uses pixmaps of the density of the screen.
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("mrtoolbar-reader"));

    QString error;
    const Options options = Options::of(QCoreApplication::arguments(), &error);
    if (!error.isEmpty())
        return fail(error);
    error = LivePreview::loadResources(options.resources);
    if (!error.isEmpty())
        return fail(error);
    Language::install(options.language);
    const QDomDocument description = describedToolBar(options, &error);
    if (!error.isEmpty())
        return fail(error);

    // The skin belongs to the process and must be chosen before the first toolbar is created.
    NewToolBar::uiStyle = options.skin == QLatin1String("lum") ? lumStyle : 0;
    // With --watch the description decides about the quick access buttons, not the user's setting.
    ReaderWindow window(description, options.watch ? QString() : options.skin);
    if (!options.scheme.isEmpty())
        window.setScheme(options.scheme);
    std::optional<LivePreview> preview;
    if (options.watch)
        preview.emplace(window, options);
    if (options.file.isEmpty())
        window.openSample();
    else
        window.open(options.file);
    window.show();
    if (options.screenshot.isEmpty())
        return QApplication::exec();

    Screenshot screenshot(&window, options.screenshot);
    QObject::connect(&screenshot, &Screenshot::saved, &application,
                     [] { QCoreApplication::exit(0); });
    QObject::connect(&screenshot, &Screenshot::failed, &application,
                     [](const QString &reason) { QCoreApplication::exit(fail(reason)); });
    return QApplication::exec();
}
