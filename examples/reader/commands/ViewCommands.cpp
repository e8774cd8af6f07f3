// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "commands/ViewCommands.h"

#include "commands/CommandTable.h"
#include "document/Document.h"
#include "pages/PageView.h"
#include "panels/NavigationPanel.h"
#include "panels/SearchPanel.h"

#include <QMainWindow>
#include <QMap>
#include <QMessageBox>
#include <QStatusBar>

namespace {

const QMap<QString, LayoutMode> &layouts()
{
    static const QMap<QString, LayoutMode> layouts = {
        {QStringLiteral("vpmode_singlepage"), LayoutMode::SinglePage},
        {QStringLiteral("vpmode_doublepage"), LayoutMode::DoublePage},
        {QStringLiteral("vpmode_singleflow"), LayoutMode::SingleFlow},
        {QStringLiteral("vpmode_doubleflow"), LayoutMode::DoubleFlow},
    };
    return layouts;
}

QStringList name(const char *text)
{
    return {QLatin1String(text)};
}

} // namespace

ViewCommands::ViewCommands(const ReaderParts &parts)
    : m_parts(parts)
{
}

QString ViewCommands::nameOf(LayoutMode mode)
{
    return layouts().key(mode);
}

void ViewCommands::addTo(CommandTable &table)
{
    addPages(table);
    addZoom(table);
    addLayouts(table);
    addPanels(table);
}

void ViewCommands::addPages(CommandTable &table)
{
    PageView *view = m_parts.view;
    table.add(name("d_firstpage"), Needs::EarlierPage,
              [view](const QString &) { view->setCurrentPage(0); });
    table.add(name("d_prevpage"), Needs::EarlierPage, [this](const QString &) { turnPages(-1); });
    table.add(name("d_nextpage"), Needs::LaterPage, [this](const QString &) { turnPages(1); });
    table.add(name("d_lastpage"), Needs::LaterPage, [this](const QString &) {
        m_parts.view->setCurrentPage(m_parts.document->pageCount() - 1);
    });
    // The names of the page field in the shipped descriptions.
    table.addControl({QStringLiteral("d_gotopage"), QStringLiteral("d_gotopageinput")},
                     Needs::Document);
}

void ViewCommands::addZoom(CommandTable &table)
{
    PageView *view = m_parts.view;
    table.add({QStringLiteral("vzmode_original"), QStringLiteral("vzmode_fitwidth"),
               QStringLiteral("vzmode_fitheight"), QStringLiteral("vzmode_fitpage")},
              Needs::Document,
              [view](const QString &mode) { view->setZoomMode(ZoomMode::fromName(mode)); });
    table.add(name("v_zoomin"), Needs::Document, [this](const QString &) { stepZoom(true); });
    table.add(name("v_zoomout"), Needs::Document, [this](const QString &) { stepZoom(false); });
    table.addControl({QStringLiteral("v_zoom"), QStringLiteral("v_zoomlist")}, Needs::Document);
    Document *document = m_parts.document;
    table.add(name("v_rotateclock"), Needs::Document,
              [document](const QString &) { document->turn(1, tr("顺时针旋转")); });
    table.add(name("v_rotateanti"), Needs::Document,
              [document](const QString &) { document->turn(-1, tr("逆时针旋转")); });
}

void ViewCommands::addLayouts(CommandTable &table)
{
    table.add(layouts().keys(), Needs::Document, [this](const QString &layout) {
        m_parts.view->setLayoutMode(layouts().value(layout));
    });
    table.add(name("v_fullscreen"), Needs::Nothing,
              [this](const QString &) { toggleFullScreen(); });
    table.addControl({QStringLiteral("v_foreground"), QStringLiteral("background_default"),
                      QStringLiteral("background_daytime"), QStringLiteral("background_nighttime"),
                      QStringLiteral("background_eyeguard"),
                      QStringLiteral("background_parchment")},
                     Needs::Document);
    table.add(name("v_revision"), Needs::Document, [this](const QString &) { showRevisions(); });
    table.add(name("v_trackinfo"), Needs::Document, [this](const QString &) { showInk(); });
}

void ViewCommands::addPanels(CommandTable &table)
{
    table.add(NavigationPanel::names(), Needs::Document,
              [this](const QString &panel) { m_parts.navigation->toggle(panel); });
    table.add(name("e_find"), Needs::Document, [this](const QString &) { findInToolBar(); });
    table.add(name("e_search"), Needs::Document,
              [this](const QString &) { m_parts.search->open(); });
    table.addControl({QStringLiteral("toolbar_searchbar")}, Needs::Document);
}

void ViewCommands::turnPages(int direction)
{
    PageView *view = m_parts.view;
    const int perRow = pagesPerRow(view->layoutMode());
    const int firstOfRow = view->currentPage() - view->currentPage() % perRow;
    view->setCurrentPage(firstOfRow + direction * perRow);
}

void ViewCommands::stepZoom(bool larger)
{
    m_parts.view->setZoomMode(ZoomMode::next(m_parts.view->percent(), larger));
}

void ViewCommands::toggleFullScreen()
{
    QMainWindow *window = m_parts.window;
    window->setWindowState(window->windowState() ^ Qt::WindowFullScreen);
    if (window->isFullScreen())
        m_parts.say(tr("按 Esc 退出全屏"));
    else
        window->statusBar()->clearMessage();
}

void ViewCommands::showRevisions()
{
    PageView *view = m_parts.view;
    view->setRevisionsVisible(!view->areRevisionsVisible());
    m_parts.say(view->areRevisionsVisible() ? tr("显示修订标记") : tr("隐藏修订标记"));
}

void ViewCommands::showInk() const
{
    QStringList lines;
    for (const Mark &mark : m_parts.document->marks()) {
        if (mark.kind != MarkKind::Ink)
            continue;
        lines.append(tr("第 %1 页：%2 个点，线宽 %3，颜色 %4")
                         .arg(mark.page + 1)
                         .arg(mark.points.size())
                         .arg(mark.width)
                         .arg(mark.colour.name()));
    }
    if (lines.isEmpty())
        lines.append(tr("还没有手写痕迹"));
    QMessageBox::information(m_parts.window, tr("痕迹信息"), lines.join(QChar(u'\n')));
}

void ViewCommands::findInToolBar()
{
    if (!m_parts.focusControl(QStringLiteral("st_input")))
        m_parts.search->open();
}
