// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/monkey/RandomSource.h"
#include "tests/monkey/Witness.h"
#include "tests/support/MarkedLanguage.h"
#include "toolbar/MRToolBar.h"

#include <QMainWindow>
#include <QPushButton>
#include <QStringList>

inline const QStringList reservedNames =
    words("toolbar_appbutton toolbar_toptoolbar toolbar_quickaccessbar toolbar_searchbar "
          "toolbar_addtional toolbar_maintoolbar toolbar_tabbar toolbar_quickaccessbar/set");

inline const QStringList hostileNames =
    QStringList{"", " ", "no such control", QString(5000, 'x'), QString(3, QChar(QChar::Null))}
    + words("/ : a:b:c menu_ menu_menu_file toolbar_ toolbar_none toolbar_quickaccessbar/ "
            "toolbar_quickaccessbar/a/b v_zoom d_gotopage f_ %1%2 \"};QWidget{ <b> mrtoolbar "
            "tabwidget top_widget");

/** A host that makes any call at any time. */
class RandomHost
{
public:
    RandomHost(RandomSource &random, QStringList names, Witness &witness)
        : m_random(random)
        , m_names(std::move(names))
        , m_witness(witness)
    {
    }

    /** Gives the host another window. */
    void setWindow(MRToolBar *facade, QMainWindow *window)
    {
        m_facade = facade;
        m_window = window;
    }

    /** Makes one call of the facade and returns its name. */
    QString step()
    {
        using Act = QString (RandomHost::*)();
        static const QList<Act> acts{
            &RandomHost::setPages, &RandomHost::setZoom,          &RandomHost::setRecentFiles,
            &RandomHost::setSkin,  &RandomHost::setBackground,    &RandomHost::reset,
            &RandomHost::resize,   &RandomHost::enableEverything, &RandomHost::setLook,
            &RandomHost::setTexts, &RandomHost::selectSomething,  &RandomHost::findCommand,
            &RandomHost::restore,  &RandomHost::openTab};
        const int kind = m_random.below(22);
        if (kind < acts.size())
            return (this->*acts.at(kind))();
        return kind < 14 ? ask() : setState();
    }

    /** Reports every control as usable, as hosts do on DoRequestAuthority(). */
    QString enableEverything()
    {
        for (QString name : std::as_const(m_names))
            m_facade->DoSetControlUsableStateSlot(name, true);
        return "enable everything";
    }

    /** Shows or hides a tab, most often the one on show, which opens the next one. */
    QString showTab()
    {
        const auto tabs = m_window->findChildren<QPushButton *>();
        QStringList names;
        for (const QPushButton *tab : tabs) {
            if (tab->property("module") == "tabbutton" && (tab->isChecked() || m_random.oneIn(2)))
                names.append(tab->objectName());
        }
        if (names.isEmpty())
            return "no tab to show";
        QString name = m_random.oneOf<QString>(names);
        const bool isShown = m_random.oneIn(2);
        m_facade->DoSetControlVisibleStateSlot(name, isShown);
        return QStringLiteral("tab %1 %2").arg(name).arg(isShown);
    }

private:
    QString anyName()
    {
        const QString known = m_random.oneOf<QString>(m_names);
        switch (m_random.below(12)) {
        case 0:
            return m_random.oneOf<QString>(hostileNames);
        case 1:
            return m_random.oneOf<QString>(reservedNames);
        case 2:
            return "toolbar_quickaccessbar/" + known;
        case 3:
            return known + ":1";
        default:
            return known;
        }
    }

    QString setState()
    {
        // Rare, because no state by name enables a toolbar again that is disabled as a whole.
        QString name = m_random.oneIn(120) ? "toolbar_whole" : anyName();
        // More controls are enabled and shown than not, or soon few would be left to use.
        const bool state = m_random.below(3) > 0;
        const QString told = QStringLiteral(" %1 %2").arg(name.left(40)).arg(state);
        switch (m_random.below(3)) {
        case 0:
            m_facade->DoSetControlUsableStateSlot(name, state);
            return "usable" + told;
        case 1:
            m_witness.noteVisibleCall(name);
            m_facade->DoSetControlVisibleStateSlot(name, state);
            return "visible" + told;
        default:
            m_witness.expectChecked(*m_facade, name, state);
            return "checked" + told;
        }
    }

    QString setPages()
    {
        static const QList<int> numbers{0, 1, 2, 7, 25, 120, -1, 2147483647};
        const int page = m_random.oneOf(numbers);
        const int total = m_random.oneOf(numbers);
        m_witness.notePages(page, total);
        m_facade->DoSetPageInfoSlot(page, total);
        return QStringLiteral("pages %1 %2").arg(page).arg(total);
    }

    QString setZoom()
    {
        static const QStringList modes =
            words("vzmode_original vzmode_fitpage vzmode_fitwidth vzmode_100p vzmode_37p "
                  "vzmode_37.5p "
                  "vzmode_6400p vzmode_99999p vzmode_-3p vzmode_ vzmode p vzmode_xp VZMODE_100P")
            << QString();
        const QString mode = m_random.oneOf<QString>(modes);
        m_facade->DoSetZoomModeSlot(mode);
        return "zoom " + mode;
    }

    QString setRecentFiles()
    {
        static const QStringList paths =
            words("/a/b.ofd b.ofd / .. /a/&b%1%2.ofd /a/<b>;c.ofd /a/\n.ofd /文件/报告.ofd")
            << QString() << '/' + QString(3000, 'y');
        QStringList list;
        for (int i = m_random.below(6); i > 0; --i)
            list.append(m_random.oneOf<QString>(paths));
        m_witness.noteRecentFiles(list);
        m_facade->DoUpdateRecentFileSlot(list);
        return QStringLiteral("%1 recent files").arg(list.size());
    }

    QString setSkin()
    {
        static const QStringList keys{
            "[MainColor]", "[LightColor]", "[ToolBarBgColor]",     "", "unknown", "externalqss",
            "scheme",      "scheme",       "quickaccessbarbuttons"};
        static const QStringList values =
            words("#102030 red no_colour } url(nowhere.png) light dark contrast system") << "";
        ToolBarSkinStyle skin;
        for (int i = m_random.below(3); i > 0; --i)
            skin.insert(m_random.oneOf<QString>(keys), m_random.oneOf<QString>(values));
        m_facade->DoSetSkinStyleSlot(skin);
        return "skin";
    }

    /** Another scale, font, language or direction. */
    QString setLook()
    {
        static const QList<double> scales{0.5, 0.9, 1, 1.5, 2, 4, 0, -1};
        static const QStringList keys =
            words("scalefactor touchmode fontfromapplication tooltipwords keytips");
        static const QStringList values = words("screen 1.25 true false 0 x");
        switch (m_random.below(4)) {
        case 0:
            m_facade->DoSetScaleSlot(m_random.oneOf(scales));
            return "scale";
        case 1:
            if (m_random.oneIn(2))
                QCoreApplication::installTranslator(&m_language);
            else
                QCoreApplication::removeTranslator(&m_language);
            return "language";
        default:
            const QString key = m_random.oneOf<QString>(keys);
            const QString value = m_random.oneOf<QString>(values);
            m_facade->DoSetSkinStyleSlot({{key, value}});
            return key + ' ' + value;
        }
    }

    QString setTexts()
    {
        static const QStringList texts = words("Play a;b;c & %1 <b> ;") << "" << QString(300, 'z');
        QString name = anyName();
        const QString text = m_random.oneOf<QString>(texts);
        switch (m_random.below(3)) {
        case 0:
            m_facade->DoSetControlTextSlot(name, text);
            break;
        case 1:
            m_facade->DoSetControlToolTipSlot(name, text);
            break;
        default:
            m_facade->DoSetControlIconSlot(name, m_random.oneIn(2) ? m_icon : QIcon());
        }
        return "texts of " + name.left(40);
    }

    QString findCommand()
    {
        m_facade->DoFindCommandSlot();
        return "find a command";
    }

    QString restore()
    {
        static const QStringList damaged{"x", "mrtoolbar/2;new=1;folded=1",
                                         "mrtoolbar/1;tab=tb_none;folded=x;faces=a:b,:,c",
                                         "mrtoolbar/1;shown=%zz;added=,,;found="};
        if (m_kept.isEmpty() || m_random.oneIn(3))
            m_kept = m_facade->GetToolBarState();
        const QString state = m_random.oneIn(4) ? m_random.oneOf(damaged) : m_kept;
        m_facade->DoSetSkinStyleSlot({{"toolbarstate", state}});
        return "restore " + state.left(80);
    }

    QString openTab()
    {
        QStringList names;
        const QList<QPushButton *> buttons = m_window->findChildren<QPushButton *>();
        for (const QPushButton *button : buttons) {
            if (button->property("module") == "tabbutton")
                names.append(button->objectName());
        }
        if (names.isEmpty())
            return "no tab to open";
        QString name = m_random.oneOf(names);
        m_facade->DoShowTabSlot(name);
        return "open tab " + name;
    }

    QString selectSomething()
    {
        static const QStringList contexts{"", "text", "unknown"};
        const QString context = m_random.oneOf<QString>(contexts);
        m_facade->DoShowContextSlot(context, m_random.oneIn(2));
        QString name = anyName();
        if (m_random.oneIn(3))
            m_facade->DoShowTabSlot(name);
        return "context " + context;
    }

    QString setBackground()
    {
        m_facade->DoSetBackgroundSlot(static_cast<BackgroundStyle>(m_random.between(-1, 5)));
        return "background";
    }

    QString reset()
    {
        m_witness.expectReset(*m_facade);
        return "reset";
    }

    QString ask()
    {
        const QString name = anyName();
        m_facade->GetCompositeEnable(name);
        m_facade->GetCompositeVisible(name);
        m_facade->GetControlCheckedState(name);
        m_facade->GetControlGeometry(name);
        m_facade->IsSupportByToolBar(name);
        m_facade->GetQuickAccessButtonList();
        m_facade->GetToolBarState();
        m_facade->GetToolBarStyleSheet();
        return "ask " + name.left(40);
    }

    QString resize()
    {
        static const QList<int> widths{1, 40, 200, 500, 900, 1300, 1600};
        m_window->resize(m_random.oneOf(widths), m_random.between(1, 600));
        return "resize";
    }

    RandomSource &m_random;
    MarkedLanguage m_language;
    QString m_kept; ///< A state that the toolbar had.
    QIcon m_icon{":/mr_toolbar/Resources/marodi/icons/icon16/Print.svg"};
    QStringList m_names;
    Witness &m_witness;
    MRToolBar *m_facade = nullptr;
    QMainWindow *m_window = nullptr;
};
