// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/SchemePalette.h"

#include "toolbar/Latin1.h"
#include "toolbar/skin/Appearance.h"

#include <QEvent>
#include <QLabel>
#include <QRegularExpression>
#include <QSlider>

#include <utility>

namespace {

struct NamedRole
{
    QLatin1String name;
    QPalette::ColorRole role;
};

constexpr NamedRole namedRoles[] = {
    {latin1("palette(base)"), QPalette::Base},
    {latin1("palette(window)"), QPalette::Window},
    {latin1("palette(midlight)"), QPalette::Midlight},
    {latin1("palette(highlight)"), QPalette::Highlight},
    {latin1("palette(highlighted-text)"), QPalette::HighlightedText},
    {latin1("palette(text)"), QPalette::Text},
    {latin1("palette(window-text)"), QPalette::WindowText},
};

/** A frame for any ground, in the sheets of the library's windows. */
constexpr QLatin1String greyFrame = latin1("rgba(128, 128, 128, 180)");

/** What a sheet says of the palette is that of the application, whatever the widget has. */
QString inScheme(QString sheet, const SchemeColours &colours)
{
    const QPalette palette = schemePalette(colours);
    for (const NamedRole &entry : namedRoles)
        sheet.replace(entry.name, palette.color(entry.role).name());
    return sheet.replace(greyFrame, colours.frame.name());
}

QList<QWidget *> withChildren(QWidget *widget)
{
    return QList<QWidget *>{widget} + widget->findChildren<QWidget *>();
}

/** Links have the colour of the application's palette unless their text names another one. */
void colourLinks(QLabel *label, const SchemeColours *colours)
{
    static const QRegularExpression link(QStringLiteral("<a (style=\"color:#[0-9a-f]+\" )?"));
    const QString text = label->text();
    const QString style =
        colours ? QStringLiteral("style=\"color:%1\" ").arg(colours->accent.name()) : QString();
    if (text.contains(link))
        label->setText(QString(text).replace(link, QStringLiteral("<a ") + style));
}

void dress(QWidget *widget, const SchemeColours *colours)
{
    QPalette palette = colours ? schemePalette(*colours) : QPalette();
    // The handle would be lost on its groove.
    if (colours && qobject_cast<QSlider *>(widget))
        palette.setColor(QPalette::Button, colours->accent);
    if (auto *label = qobject_cast<QLabel *>(widget))
        colourLinks(label, colours);
    // Below a sheet no widget inherits the palette of its parent, and polishing discards its own.
    widget->ensurePolished();
    widget->setPalette(palette);
}

} // namespace

SchemePalette::SchemePalette(QWidget *widget)
    : QObject(widget)
    , m_widget(widget)
{
    connect(SchemeNotifier::instance(), &SchemeNotifier::changed, this, &SchemePalette::apply);
    widget->installEventFilter(this);
    apply();
}

bool SchemePalette::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_widget && event->type() == QEvent::ParentChange)
        apply();
    // The widget is about to put other texts in its labels.
    if (watched == m_widget && event->type() == QEvent::LanguageChange)
        QMetaObject::invokeMethod(this, &SchemePalette::apply, Qt::QueuedConnection);
    return false;
}

void SchemePalette::apply()
{
    const SchemeColours *colours = Appearance::coloursFor(m_widget);
    // A palette that the host has given a light widget is the host's.
    if (!colours && !m_isApplied)
        return;

    if (!m_isApplied)
        collectSheets();
    m_isApplied = colours != nullptr;
    for (const Sheet &sheet : std::as_const(m_sheets)) {
        if (sheet.widget)
            sheet.widget->setStyleSheet(colours ? inScheme(sheet.text, *colours) : sheet.text);
    }
    const QList<QWidget *> widgets = withChildren(m_widget);
    for (QWidget *widget : widgets)
        dress(widget, colours);
}

void SchemePalette::collectSheets()
{
    m_sheets.clear();
    const QList<QWidget *> widgets = withChildren(m_widget);
    for (QWidget *widget : widgets) {
        if (!widget->styleSheet().isEmpty())
            m_sheets.append({widget, widget->styleSheet()});
    }
}
