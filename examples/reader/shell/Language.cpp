// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/Language.h"

#include "shell/ReaderSettings.h"

#include <QCoreApplication>
#include <QDomDocument>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>
#include <vector>

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

const QString prefix = QStringLiteral("r_language_");

/** Those that are installed. */
std::vector<std::unique_ptr<QTranslator>> &installed()
{
    static std::vector<std::unique_ptr<QTranslator>> translators;
    return translators;
}

void installFrom(const QString &folder, const QString &catalogue, const QLocale &locale)
{
    auto translator = std::make_unique<QTranslator>();
    // Without a catalogue the texts of the sources are shown.
    if (!translator->load(locale, catalogue, QStringLiteral("_"), folder))
        return;
    QCoreApplication::installTranslator(translator.get());
    installed().push_back(std::move(translator));
}

QDomElement entryOf(QDomDocument &description, const QString &command, const QString &text)
{
    QDomElement entry = description.createElement(QStringLiteral("menuitem"));
    entry.setAttribute(QStringLiteral("action"), command);
    entry.setAttribute(QStringLiteral("text"), text);
    entry.setAttribute(QStringLiteral("group"), QStringLiteral("language"));
    entry.setAttribute(QStringLiteral("checkable"), QStringLiteral("true"));
    return entry;
}

} // namespace

QString Language::ofSystem()
{
    const QString first = QLocale::system().uiLanguages().value(0);
    return first.startsWith(QLatin1String("zh")) ? QStringLiteral("zh_CN") : QStringLiteral("en");
}

void Language::install(const QString &name)
{
    const QLocale locale(name);
    QLocale::setDefault(locale);
    // Their destructors take them out of the application.
    installed().clear();
    installFrom(qtFolder(), QStringLiteral("qtbase"), locale);
    installFrom(QStringLiteral(":/mr_toolbar/translations"), QStringLiteral("mrtoolbar"), locale);
    installFrom(QStringLiteral(":/reader/translations"), QStringLiteral("reader"), locale);
}

QStringList Language::commands()
{
    return {prefix + QStringLiteral("zh_CN"), prefix + QStringLiteral("en")};
}

void Language::choose(const QString &command)
{
    const QString name = command.mid(prefix.size());
    ReaderSettings::shared()->setLanguage(name);
    install(name);
}

bool Language::isChosen(const QString &command)
{
    return QLocale().name().startsWith(command.mid(prefix.size()));
}

void Language::addTo(QDomDocument &description)
{
    QDomElement menu = description.documentElement()
                           .firstChildElement(QStringLiteral("toolbar_appbutton"))
                           .firstChildElement(QStringLiteral("menu"));
    if (menu.firstChildElement().isNull())
        return;
    // The names of languages are in these languages.
    QDomElement languages = description.createElement(QStringLiteral("menu"));
    languages.setAttribute(QStringLiteral("name"), QStringLiteral("r_language"));
    languages.setAttribute(QStringLiteral("text"), QStringLiteral("语言 / Language"));
    languages.appendChild(entryOf(description, commands().first(), QStringLiteral("中文")));
    languages.appendChild(entryOf(description, commands().last(), QStringLiteral("English")));
    menu.insertBefore(languages, menu.lastChildElement());
}
