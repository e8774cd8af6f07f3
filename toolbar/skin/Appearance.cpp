// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/Appearance.h"

#include "toolbar/skin/FollowingIcon.h"

#include <QApplication>
#include <QEvent>
#include <QRegularExpression>
#include <QWidget>

namespace {

constexpr QRgb defaultMainColour = 0xff008ad9;

/** The toolbars that were given a scheme, the last one at the end; no others are looked for. */
QList<const Appearance *> &givenSchemes()
{
    // Never destroyed: a toolbar may be, or be a child of, a static object.
    static auto &appearances = *new QList<const Appearance *>;
    return appearances;
}

/** What a style sheet calls a colour; the default for anything else, for a gradient too. */
QRgb sheetColour(const QString &text)
{
    static const QRegularExpression channels(
        QStringLiteral("^\\s*rgba?\\(\\s*(\\d+)\\s*,\\s*(\\d+)\\s*,\\s*(\\d+)\\s*[,)]"));
    const QRegularExpressionMatch match = channels.match(text);
    if (match.hasMatch())
        return qRgb(match.captured(1).toInt(), match.captured(2).toInt(),
                    match.captured(3).toInt());
    const QColor colour(text.trimmed());
    return colour.isValid() ? colour.rgb() : defaultMainColour;
}

} // namespace

Appearance::Appearance(QWidget *toolBar)
    : QObject(toolBar)
    , m_toolBar(toolBar)
{
}

Appearance::~Appearance()
{
    if (givenSchemes().removeAll(this) > 0)
        Q_EMIT SchemeNotifier::instance()->changed();
}

void Appearance::set(const QString &scheme, const QString &mainColour)
{
    if (!mainColour.isEmpty())
        m_mainColour = mainColour;
    const std::optional<Scheme> choice = schemeNamed(scheme);
    if (choice)
        choose(*choice);
    update();
    // Also if nothing has changed here: this is the last choice of all toolbars now.
    if (choice)
        Q_EMIT SchemeNotifier::instance()->changed();
}

void Appearance::choose(Scheme choice)
{
    m_choice = choice;
    givenSchemes().removeAll(this);
    givenSchemes().append(this);
    // Only while it matters: the filter sees every event of the application.
    qApp->removeEventFilter(this);
    if (m_choice == Scheme::System)
        qApp->installEventFilter(this);
}

void Appearance::update()
{
    SchemeLook look;
    look.scheme = schemeInUse(m_choice, QApplication::palette());
    if (!look.isLight())
        look.mainColour = sheetColour(m_mainColour);
    if (look == m_look)
        return;

    m_look = look;
    m_colours.reset();
    if (!look.isLight())
        m_colours = schemeColours(look);
    Q_EMIT changed();
    Q_EMIT SchemeNotifier::instance()->changed();
}

QColor Appearance::accent() const
{
    return m_colours ? m_colours->accent : QColor(sheetColour(m_mainColour));
}

QColor Appearance::mainColour() const
{
    return sheetColour(m_mainColour);
}

QIcon Appearance::icon(const QString &path)
{
    const auto known = m_icons.constFind(path);
    if (known != m_icons.cend())
        return *known;
    const QIcon icon = followingIcon(path, this);
    // One that is missing may come with resources that are loaded later.
    return icon.isNull() ? icon : *m_icons.insert(path, icon);
}

bool Appearance::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange)
        update();
    return false;
}

const Appearance *Appearance::nearestTo(const QWidget *widget)
{
    const QList<const Appearance *> &all = givenSchemes();
    for (; widget && !all.isEmpty(); widget = widget->parentWidget()) {
        for (const Appearance *appearance : all) {
            if (appearance->m_toolBar == widget || appearance->m_toolBar->window() == widget)
                return appearance;
        }
    }
    return all.isEmpty() ? nullptr : all.last();
}

const SchemeColours *Appearance::coloursFor(const QWidget *widget)
{
    const Appearance *appearance = nearestTo(widget);
    return appearance ? appearance->colours() : nullptr;
}

SchemeLook Appearance::lookOf(const Appearance *appearance)
{
    return appearance ? appearance->look() : SchemeLook();
}

SchemeLook Appearance::lookFor(const QWidget *widget)
{
    return lookOf(nearestTo(widget));
}

SchemeNotifier *SchemeNotifier::instance()
{
    // Never destroyed either.
    static auto *notifier = new SchemeNotifier;
    return notifier;
}
