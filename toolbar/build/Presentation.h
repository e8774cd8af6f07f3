// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/build/TextsByName.h"
#include "toolbar/widgets/ToolTipCard.h"

#include <QHash>
#include <QIcon>
#include <QList>
#include <QPointer>
#include <QSize>
#include <QStringList>

#include <memory>
#include <vector>

class Appearance;
class CustomMenuStyle;
class QMenu;
class Scale;
struct Controller;

/**
 * What the controls show: their texts and icons, and their lengths. Each control is given them by a
 * function of its kind, which is kept and called again when they mean something else.
 *
 * Such a function is called any number of times. It leaves alone what the host or the user sets: it
 * neither enables nor checks, shows nor hides.
 */
class Presentation
{
public:
    /** Whose texts and icons a control shows. */
    enum Shows
    {
        Itself,
        ItsEntries ///< Those of the records below its own, too, as a drop button does.
    };

    /**
     * @param directory the skin's directory of resources
     * @param scale     of the toolbar; lengths at 96 dpi are multiplied by it
     */
    Presentation(const QString &directory, Appearance &appearance, const Scale &scale);
    Q_DISABLE_COPY_MOVE(Presentation)

    /** Gives a control its texts and its icon, from now on. @param how a function of its kind */
    template <auto how, typename Control>
    void show(Control *control, const Controller &record, Shows shows = Itself)
    {
        how(control, record, *this);
        m_given.push_back({control, &record, &callAgain<how, Control>, false, shows});
    }

    /** Gives a control its lengths, from now on; they may follow from its text. */
    template <auto how, typename Control>
    void fit(Control *control, const Controller &record, Shows shows = Itself)
    {
        how(control, record, *this);
        m_given.push_back({control, &record, &callAgain<how, Control>, true, shows});
    }

    /** The same for lengths that no record has a say in. */
    template <auto how, typename Control>
    void fit(Control *control)
    {
        how(control, *this);
        m_given.push_back({control, nullptr, &callAgainWithout<how, Control>, true, Itself});
    }

    /** Gives all controls everything again, in the order in which they were given it. */
    void showAgain();
    /** Gives all controls their lengths again. */
    void fitAgain();

    /**
     * Gives the controls of that name another text, tooltip or icon than is described, those that
     * are made later too; nothing gives the described one back.
     */
    void setText(const QString &name, const QString &text);
    void setToolTip(const QString &name, const QString &tip);
    void setIcon(const QString &name, const QIcon &icon);

    /** Whether the lines of tooltip cards end between words: "true" or "false"; anything else
     *  changes nothing. Returns whether it is different now. */
    bool chooseCardLines(const QString &betweenWords);
    CardLines cardLines() const { return m_cardLines; }

    /** The texts, in the language of the translators that the host has installed. */
    QString text(const Controller &record) const;
    /** The tooltip as described; what is to be seen of it, SetWidgetToolTip() knows. */
    QString toolTip(const Controller &record) const;
    QString prompt(const Controller &record) const;
    /** What a disabled control has for a tooltip; empty if that is its usual one. */
    QString disabledToolTip(const Controller &record) const;
    /** Empty if the skin has no such icon. */
    QIcon icon(const Controller &record) const;
    /** The same for the top line, which may be coloured; a letter where there is no icon. */
    QIcon topLineIcon(const Controller &record, const QString &letter) const;

    const Appearance &appearance() const { return m_appearance; }

    /** What is set by name, for controls that do not show what is described; else nothing. */
    QString textByName(const Controller &record) const;
    QString toolTipByName(const Controller &record) const;
    QIcon iconByName(const Controller &record) const;
    /** Whether controls are to give up the tooltips that they have, before they are given others:
     *  a described tooltip may be empty, and that replaces none. */
    bool takesToolTips() const { return m_takesToolTips; }

    /** A length at 96 dpi in pixels of this screen, truncated. */
    int length(double designLength) const;
    /**
     * The width of a button that shows one of these texts, in pixels.
     * @param byRule what it is by the number of characters, at 96 dpi
     * @param beside room for what stands beside the text, at 96 dpi
     */
    int buttonWidth(double byRule, const QStringList &texts, double beside) const;
    /** The width of a button without a text, in pixels. */
    int bareWidth(double designWidth) const;
    /** Has the icons of a menu follow the scale; they follow the screen by themselves. */
    void fitIcons(QMenu *menu) const;
    /** The same for the menus of a style. */
    void fitIcons(CustomMenuStyle *style) const;
    /** The size of a square icon. */
    QSize iconSize(double designSide) const;

private:
    using Call = void (*)(QObject *control, const Controller *record, Presentation &self);

    struct Given
    {
        QPointer<QObject> control;
        const Controller *record;
        Call call;
        bool isLength;
        Shows shows;
    };

    template <auto how, typename Control>
    static void callAgain(QObject *control, const Controller *record, Presentation &self)
    {
        how(static_cast<Control *>(control), *record, self);
    }

    template <auto how, typename Control>
    static void callAgainWithout(QObject *control, const Controller *, Presentation &self)
    {
        how(static_cast<Control *>(control), self);
    }

    /** The file of an icon: one of the skin, or a resource of the host as it is described. */
    QString iconFile(const QString &name) const;
    QIcon themeIcon(const QString &name) const;
    static QString translated(const QString &source);
    void giveAgain(bool lengthsAlone);
    void give(std::size_t position);
    void giveAgain(const QString &name);
    void giveToolTipsAgain(const QString &name);
    void findNames();
    void fileUnder(const Controller &record, qsizetype position, Shows shows);

    const QString &m_directory;
    Appearance &m_appearance;
    const Scale &m_scale;
    mutable std::shared_ptr<CustomMenuStyle> m_menuStyle; ///< None while menus follow the screen.
    CardLines m_cardLines = CardLines::Characters;
    std::vector<Given> m_given;
    TextsByName m_byName;
    QHash<QString, QList<qsizetype>> m_positions; ///< In m_given; not before a name is asked for.
    std::size_t m_filed = 0;                      ///< How many of m_given they are of.
    bool m_takesToolTips = false;
    mutable QHash<QString, QIcon> m_themeIcons; ///< As described, with their prefix.
};

/** Gives a button or an action its icon, unless it has that already: all that shows it is measured
 *  anew for another one. */
template <typename Control>
void showIcon(Control *control, const QIcon &icon)
{
    if (control->icon().cacheKey() != icon.cacheKey())
        control->setIcon(icon);
}

/** The icons of the top line and of menus and panels are of this size. */
template <typename Control>
void fitSmallIcon(Control *control, const Presentation &how)
{
    control->setIconSize(how.iconSize(16.0));
}

/** See Presentation::fitIcons(). */
template <typename MenuOrStyle>
void fitMenuIcons(MenuOrStyle *menuOrStyle, const Presentation &how)
{
    how.fitIcons(menuOrStyle);
}
