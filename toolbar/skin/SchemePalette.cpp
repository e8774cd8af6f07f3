// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/SchemePalette.h"

#include "toolbar/Latin1.h"
#include "toolbar/skin/Appearance.h"

#include <QEvent>
#include <QWidget>

#include <utility>

namespace {

struct NamedRole
{
    QLatin1String name;
    QPalette::ColorRole role;
};

constexpr NamedRole namedRoles[] = {
    {latin1("palette(base)"), QPalette::Base},
    {latin1("palette(text)"), QPalette::Text},
    {latin1("palette(window)"), QPalette::Window},
    {latin1("palette(window-text)"), QPalette::WindowText},
    {latin1("palette(button)"), QPalette::Button},
    {latin1("palette(button-text)"), QPalette::ButtonText},
    {latin1("palette(midlight)"), QPalette::Midlight},
    {latin1("palette(highlight)"), QPalette::Highlight},
    {latin1("palette(highlighted-text)"), QPalette::HighlightedText},
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
    // Polishing, which a sheet waits for, would discard it again.
    m_widget->ensurePolished();
    m_widget->setPalette(colours ? schemePalette(*colours) : QPalette());
}

void SchemePalette::collectSheets()
{
    m_sheets.clear();
    const QList<QWidget *> widgets =
        QList<QWidget *>{m_widget} + m_widget->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (!widget->styleSheet().isEmpty())
            m_sheets.append({widget, widget->styleSheet()});
    }
}
