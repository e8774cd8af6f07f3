// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace {

/** The folder of the translations of Qt's own dialogs. */
QString qtFolder()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}

void installFrom(const QString &folder, const QString &catalogue, const QLocale &locale)
{
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    // Without a catalogue the texts of the sources are shown.
    if (translator->load(locale, catalogue, QStringLiteral("_"), folder))
        QCoreApplication::installTranslator(translator.release());
}

} // namespace

void Language::install(const QString &name)
{
    const QLocale locale(name);
    QLocale::setDefault(locale);
    installFrom(qtFolder(), QStringLiteral("qtbase"), locale);
    installFrom(QStringLiteral(":/mr_toolbar/translations"), QStringLiteral("mrtoolbar"), locale);
    installFrom(QStringLiteral(":/reader/translations"), QStringLiteral("reader"), locale);
}
