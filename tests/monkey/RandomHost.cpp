#include "tests/monkey/RandomHost.h"

#include "tests/monkey/Witness.h"
#include "tests/support/Words.h"
#include "toolbar/MRToolBar.h"

#include <QMainWindow>

namespace {

const QStringList &reservedNames()
{
    static const QStringList names =
        words("toolbar_appbutton toolbar_toptoolbar toolbar_quickaccessbar toolbar_searchbar "
              "toolbar_addtional toolbar_maintoolbar toolbar_tabbar toolbar_quickaccessbar/set");
    return names;
}

const QStringList &hostileNames()
{
    static const QStringList names =
        QStringList{"", " ", "no such control", QString(5000, QLatin1Char('x')),
                    QString(3, QChar(QChar::Null))}
        + words("/ : a:b:c menu_ menu_menu_file toolbar_ toolbar_none toolbar_quickaccessbar/ "
                "toolbar_quickaccessbar/a/b v_zoom d_gotopage f_ %1%2 \"};QWidget{ <b> mrtoolbar "
                "tabwidget top_widget");
    return names;
}

} // namespace

RandomHost::RandomHost(RandomSource &random, QStringList names, Witness &witness)
    : m_random(random)
    , m_names(std::move(names))
    , m_witness(witness)
{
}

QString RandomHost::anyName()
{
    constexpr int kinds = 12;
    switch (m_random.below(kinds)) {
    case 0:
        return m_random.oneOf<QString>(hostileNames());
    case 1:
        return m_random.oneOf<QString>(reservedNames());
    case 2:
        return QStringLiteral("toolbar_quickaccessbar/") + m_random.oneOf<QString>(m_names);
    case 3:
        return m_random.oneOf<QString>(m_names) + QStringLiteral(":1");
    default:
        return m_random.oneOf<QString>(m_names);
    }
}

QString RandomHost::step(MRToolBar &facade, QMainWindow &window)
{
    constexpr int kinds = 16;
    switch (m_random.below(kinds)) {
    case 0:
        return setPages(facade);
    case 1:
        return setZoom(facade);
    case 2:
        return setRecentFiles(facade);
    case 3:
        return setSkin(facade);
    case 4:
        return resize(window);
    case 5:
        m_witness.expectReset(facade);
        return QStringLiteral("reset");
    case 6:
        facade.DoSetBackgroundSlot(static_cast<BackgroundStyle>(m_random.between(-1, 5)));
        return QStringLiteral("background");
    case 7:
        enableEverything(facade);
        return QStringLiteral("enable everything");
    case 8:
    case 9:
    case 10:
        return ask(facade);
    default:
        return setState(facade);
    }
}

void RandomHost::enableEverything(MRToolBar &facade) const
{
    for (QString name : m_names)
        facade.DoSetControlUsableStateSlot(name, true);
}

QString RandomHost::setState(MRToolBar &facade)
{
    // Nothing comes back from a toolbar that has been disabled as a whole.
    constexpr int seldom = 120;
    QString name = m_random.oneIn(seldom) ? QStringLiteral("toolbar_whole") : anyName();
    // More is given than is taken, or little would be left to use.
    const bool state = m_random.below(3) > 0;
    const QString told = name.left(40);
    switch (m_random.below(3)) {
    case 0:
        facade.DoSetControlUsableStateSlot(name, state);
        return QStringLiteral("usable %1 %2").arg(told).arg(state);
    case 1:
        m_witness.noteVisibleCall(name);
        facade.DoSetControlVisibleStateSlot(name, state);
        return QStringLiteral("visible %1 %2").arg(told).arg(state);
    default:
        m_witness.expectChecked(facade, name, state);
        return QStringLiteral("checked %1 %2").arg(told).arg(state);
    }
}

QString RandomHost::setPages(MRToolBar &facade)
{
    static const QList<int> numbers{0, 1, 2, 7, 25, 120, -1, 2147483647};
    const int page = m_random.oneOf(numbers);
    const int total = m_random.oneOf(numbers);
    m_witness.notePages(page, total);
    facade.DoSetPageInfoSlot(page, total);
    return QStringLiteral("pages %1 %2").arg(page).arg(total);
}

QString RandomHost::setZoom(MRToolBar &facade)
{
    static const QStringList modes =
        words("vzmode_original vzmode_fitpage vzmode_fitwidth vzmode_100p vzmode_37p vzmode_37.5p "
              "vzmode_6400p vzmode_99999p vzmode_-3p vzmode_ vzmode p vzmode_xp VZMODE_100P")
        << QString();
    const QString mode = m_random.oneOf<QString>(modes);
    facade.DoSetZoomModeSlot(mode);
    return QStringLiteral("zoom ") + mode;
}

QString RandomHost::setRecentFiles(MRToolBar &facade)
{
    static const QStringList paths =
        words("/a/b.ofd b.ofd / .. /a/&b%1%2.ofd /a/<b>;c.ofd /a/\n.ofd")
        << QString() << QStringLiteral("/文件/报告.ofd")
        << QLatin1Char('/') + QString(3000, QLatin1Char('y'));
    QStringList list;
    for (int i = m_random.below(6); i > 0; --i)
        list.append(m_random.oneOf<QString>(paths));
    m_witness.noteRecentFiles(list);
    facade.DoUpdateRecentFileSlot(list);
    return QStringLiteral("%1 recent files").arg(list.size());
}

QString RandomHost::setSkin(MRToolBar &facade)
{
    static const QStringList keys{"[MainColor]", "[LightColor]", "[ToolBarBgColor]",     "",
                                  "unknown",     "externalqss",  "quickaccessbarbuttons"};
    static const QStringList values{"#102030", "red", "", "no colour", "}", "url(nowhere.png)"};
    ToolBarSkinStyle skin;
    for (int i = m_random.below(3); i > 0; --i)
        skin.insert(m_random.oneOf<QString>(keys), m_random.oneOf<QString>(values));
    facade.DoSetSkinStyleSlot(skin);
    return QStringLiteral("skin");
}

QString RandomHost::ask(MRToolBar &facade)
{
    const QString name = anyName();
    facade.GetCompositeEnable(name);
    facade.GetCompositeVisible(name);
    facade.GetControlCheckedState(name);
    facade.GetControlGeometry(name);
    facade.IsSupportByToolBar(name);
    facade.GetQuickAccessButtonList();
    facade.GetToolBarStyleSheet();
    return QStringLiteral("ask ") + name.left(40);
}

QString RandomHost::resize(QMainWindow &window)
{
    static const QList<int> widths{1, 40, 200, 500, 900, 1300, 1600};
    window.resize(m_random.oneOf(widths), m_random.between(1, 600));
    return QStringLiteral("resize");
}
