// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/Presentation.h"

#include "toolbar/description/CommandPlaces.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/DescriptionLog.h"
#include "toolbar/description/Names.h"
#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/GivenIcon.h"
#include "toolbar/skin/IconColours.h"
#include "toolbar/skin/Scale.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/skin/SkinIcon.h"
#include "toolbar/skin/TopLineIcon.h"
#include "toolbar/widgets/CustomMenuStyle.h"

#include <QApplication>
#include <QFile>
#include <QFontMetrics>
#include <QImageReader>
#include <QMenu>

#include <algorithm>

namespace {

/** A resource of the host may be anything. */
bool isPicture(const QString &file)
{
    return IconColours::isSvg(file) ? QFile::exists(file)
                                    : !QImageReader::imageFormat(file).isEmpty();
}

} // namespace

Presentation::Presentation(const QString &directory, Appearance &appearance, const Scale &scale)
    : m_directory(directory)
    , m_appearance(appearance)
    , m_scale(scale)
{
}

void Presentation::showAgain()
{
    giveAgain(false);
}

void Presentation::fitAgain()
{
    giveAgain(true);
}

void Presentation::giveAgain(bool lengthsAlone)
{
    // By position: what hears of a change may open a row, whose controls are added at the end.
    for (std::size_t i = 0; i < m_given.size(); ++i) {
        if (m_given[i].isLength || !lengthsAlone)
            give(i);
    }
}

void Presentation::give(std::size_t position)
{
    const Given given = m_given[position];
    if (given.control)
        given.call(given.control, given.record, *this);
}

void Presentation::setText(const QString &name, const QString &text)
{
    m_byName.setText(name, text);
    // The tooltip may be the text.
    if (text.isEmpty())
        giveToolTipsAgain(name);
    else
        giveAgain(name);
}

void Presentation::setToolTip(const QString &name, const QString &tip)
{
    m_byName.setToolTip(name, tip);
    if (tip.isEmpty())
        giveToolTipsAgain(name);
    else
        giveAgain(name);
}

void Presentation::setIcon(const QString &name, const QIcon &icon)
{
    m_byName.setIcon(name, icon.isNull() ? icon : givenIcon(icon, m_appearance));
    giveAgain(name);
}

void Presentation::giveToolTipsAgain(const QString &name)
{
    // Apart from giving: several records may describe one action, and each may give it its tooltip.
    m_takesToolTips = true;
    giveAgain(name);
    m_takesToolTips = false;
    giveAgain(name);
}

void Presentation::giveAgain(const QString &name)
{
    findNames();
    // In the order in which they were given: a button that shows an entry comes after the entry.
    const QList<qsizetype> positions = m_positions.value(name);
    for (const qsizetype position : positions)
        give(static_cast<std::size_t>(position));
}

void Presentation::findNames()
{
    for (; m_filed < m_given.size(); ++m_filed) {
        const Given &given = m_given[m_filed];
        // A record that does not outlive its control has gone with it.
        if (given.record && given.control)
            fileUnder(*given.record, static_cast<qsizetype>(m_filed), given.shows);
    }
}

void Presentation::fileUnder(const Controller &record, qsizetype position, Shows shows)
{
    for (const QString &name : {record.name, commandOf(record.name)}) {
        QList<qsizetype> &positions = m_positions[name];
        if (positions.isEmpty() || positions.last() != position)
            positions.append(position);
    }
    if (shows == Itself)
        return;
    for (const Controller *entry : record.children)
        fileUnder(*entry, position, shows);
}

bool Presentation::chooseCardLines(const QString &betweenWords)
{
    const CardLines former = m_cardLines;
    if (betweenWords == QLatin1String("true"))
        m_cardLines = CardLines::Words;
    else if (betweenWords == QLatin1String("false"))
        m_cardLines = CardLines::Characters;
    return m_cardLines != former;
}

QString Presentation::translated(const QString &source)
{
    if (source.isEmpty())
        return source;
    const QString text = QCoreApplication::translate("description", source.toUtf8().constData());
    // What is the same shares its characters with the record.
    return text == source ? source : text;
}

QString Presentation::text(const Controller &record) const
{
    const QString *given = m_byName.text(record);
    return given ? *given : translated(record.text);
}

QString Presentation::toolTip(const Controller &record) const
{
    const QString *given = m_byName.toolTip(record);
    return given ? *given : translated(record.tooltip);
}

QString Presentation::prompt(const Controller &record) const
{
    const QString *given = m_byName.ownToolTip(record);
    return given ? *given : translated(record.prompt);
}

QString Presentation::disabledToolTip(const Controller &record) const
{
    return translated(record.disabletip);
}

QString Presentation::textByName(const Controller &record) const
{
    const QString *given = m_byName.text(record);
    return given ? *given : QString();
}

QString Presentation::toolTipByName(const Controller &record) const
{
    const QString *given = m_byName.ownToolTip(record);
    return given ? *given : QString();
}

QIcon Presentation::iconByName(const Controller &record) const
{
    const QIcon *given = m_byName.icon(record);
    return given ? *given : QIcon();
}

QIcon Presentation::icon(const Controller &record) const
{
    if (const QIcon *given = m_byName.icon(record))
        return *given;
    if (record.icon.isEmpty())
        return QIcon();
    const QIcon icon = record.icon.startsWith(Prefix::themeIcon)
                           ? themeIcon(record.icon)
                           : m_appearance.icon(iconFile(record.icon));
    if (icon.isNull())
        qCWarning(descriptionLog, "there is no icon \"%ls\" for the control \"%ls\"",
                  qUtf16Printable(record.icon), qUtf16Printable(record.name));
    return icon;
}

QString Presentation::iconFile(const QString &name) const
{
    if (!name.startsWith(Prefix::resource))
        return skinIconFile(m_directory, name);
    return isPicture(name) ? name : QString();
}

QIcon Presentation::themeIcon(const QString &name) const
{
    QIcon &icon = m_themeIcons[name];
    if (icon.isNull()) {
        const QIcon found = QIcon::fromTheme(name.mid(Prefix::themeIcon.size()));
        icon = found.isNull() ? found : givenIcon(found, m_appearance);
    }
    return icon;
}

QIcon Presentation::topLineIcon(const Controller &record, const QString &letter) const
{
    if (const QIcon *given = m_byName.icon(record))
        return *given;
    if (record.icon.startsWith(Prefix::themeIcon) && !themeIcon(record.icon).isNull())
        return themeIcon(record.icon);
    const QString file = record.icon.isEmpty() ? QString() : iconFile(record.icon);
    return topLineIconOf(QFile::exists(file) ? file : QString(), letter, m_appearance);
}

int Presentation::length(double designLength) const
{
    return ScreenDensity::scaled(designLength, m_scale.factor());
}

int Presentation::buttonWidth(double byRule, const QStringList &texts, double beside) const
{
    constexpr double leastButton = 45.0;
    constexpr double aroundText = 8.0;
    int width = length(byRule);
    if (m_scale.usesApplicationFont()) {
        const QFontMetrics metrics(QApplication::font());
        width = length(leastButton + beside);
        for (const QString &text : texts)
            width = std::max(width, metrics.horizontalAdvance(text) + length(aroundText + beside));
    }
    return std::max(width, m_scale.leastTarget());
}

int Presentation::bareWidth(double designWidth) const
{
    return std::max(length(designWidth), m_scale.leastTarget());
}

void Presentation::fitIcons(CustomMenuStyle *style) const
{
    if (m_scale.isChosen())
        style->setScale(m_scale.factor());
}

void Presentation::fitIcons(QMenu *menu) const
{
    if (!m_scale.isChosen())
        return;
    constexpr int smallIcon = 16;
    if (!m_menuStyle)
        m_menuStyle = std::make_shared<CustomMenuStyle>(smallIcon);
    fitIcons(m_menuStyle.get());
    if (!menu->testAttribute(Qt::WA_SetStyle))
        CustomMenuStyle::share(m_menuStyle, menu);
}

QSize Presentation::iconSize(double designSide) const
{
    const int side = length(designSide);
    return {side, side};
}
