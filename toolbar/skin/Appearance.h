// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/skin/SchemeColours.h"

#include <QHash>
#include <QIcon>
#include <QObject>

#include <optional>

class QWidget;

/** What a toolbar looks like at the moment: its scheme and the colours of that. */
class Appearance : public QObject
{
    Q_OBJECT

public:
    /** Light, until something else is chosen. @param toolBar owns it */
    explicit Appearance(QWidget *toolBar);
    ~Appearance() override;

    /**
     * Takes over what the host says; what it does not say, or says in words that mean nothing,
     * stays.
     * @param scheme see schemeNamed()
     * @param mainColour what the accents follow, as a style sheet calls it
     */
    void set(const QString &scheme, const QString &mainColour);

    const SchemeLook &look() const { return m_look; }
    /** The same for one that may be gone; light then. */
    static SchemeLook lookOf(const Appearance *appearance);
    /** The colours of the scheme; null while it is light. */
    const SchemeColours *colours() const { return m_colours ? &*m_colours : nullptr; }

    /** The colour of the accents: that of the scheme, or the main colour while it is light. */
    QColor accent() const;
    /** What the accents follow, and what the strip of a skin with a coloured one is made of. */
    QColor mainColour() const;

    /** The icon of a file or resource, which follows the scheme; see followingIcon(). */
    QIcon icon(const QString &path);

    /**
     * The colours for a widget: those of the toolbar that it is on, or else of one in its window or
     * in a window that it belongs to, or else of the toolbar that was last given a scheme. Null if
     * these are light, or if no toolbar has a scheme.
     */
    static const SchemeColours *coloursFor(const QWidget *widget);
    /** What these colours follow from. */
    static SchemeLook lookFor(const QWidget *widget);

    /** Sees to it that the system's scheme follows the palette of the application. */
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /** The colours are different ones now. */
    void changed();

private:
    static const Appearance *nearestTo(const QWidget *widget);
    void choose(Scheme choice);
    void update();

    const QWidget *m_toolBar;
    Scheme m_choice = Scheme::Light;
    QString m_mainColour; ///< Not parsed until a scheme needs it.
    SchemeLook m_look;
    std::optional<SchemeColours> m_colours;
    QHash<QString, QIcon> m_icons; ///< Many controls share one.
};

/** Tells who is on no toolbar that coloursFor() may have another answer. */
class SchemeNotifier : public QObject
{
    Q_OBJECT

public:
    static SchemeNotifier *instance();

Q_SIGNALS:
    void changed();
};
