// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "commands/ViewCommands.h"

#include "document/Document.h"
#include "pages/PageView.h"
#include "panels/NavigationPanel.h"
#include "panels/SearchPanel.h"

#include <toolbar/MRToolBarCommands.h>

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

} // namespace

ViewCommands::ViewCommands(const ReaderParts &parts)
    : m_parts(parts)
{
}

void ViewCommands::addTo(MRToolBarCommands &commands)
{
    addPages(commands);
    addZoom(commands);
    addLayouts(commands);
    addPanels(commands);
}

void ViewCommands::addPages(MRToolBarCommands &commands)
{
    PageView *view = m_parts.view;
    const auto page = [this] {
        return m_parts.document->isOpen() ? m_parts.view->currentPage() + 1 : 0;
    };
    const auto count = [document = m_parts.document] { return document->pageCount(); };
    commands.setPages(page, count, [view](int number) {
        view->rememberPlace();
        view->setCurrentPage(number - 1);
        view->setFocus();
    });
    // Those that keep the focus where it is, and turn over two pages where two are side by side.
    const auto hasEarlier = [page] { return page() > 1; };
    const auto hasLater = [page, count] { return page() < count(); };
    commands.add("d_firstpage", [view] { view->setCurrentPage(0); }).usableWhen(hasEarlier);
    commands.add("d_prevpage", [this] { turnPages(-1); }).usableWhen(hasEarlier);
    commands.add("d_nextpage", [this] { turnPages(1); }).usableWhen(hasLater);
    commands
        .add("d_lastpage",
             [this] { m_parts.view->setCurrentPage(m_parts.document->pageCount() - 1); })
        .usableWhen(hasLater);
    commands.add("v_prevview", [view] { view->goBack(); }).usableWhen([view] {
        return view->hasEarlierPlace();
    });
    commands.add("v_nextview", [view] { view->goForward(); }).usableWhen([view] {
        return view->hasLaterPlace();
    });
}

void ViewCommands::addZoom(MRToolBarCommands &commands)
{
    m_parts.addForDocument(commands, "v_zoomin", [this] { stepZoom(true); });
    m_parts.addForDocument(commands, "v_zoomout", [this] { stepZoom(false); });
    Document *document = m_parts.document;
    m_parts.addForDocument(commands, "v_rotateclock",
                           [document] { document->turn(1, tr("顺时针旋转")); });
    m_parts.addForDocument(commands, "v_rotateanti",
                           [document] { document->turn(-1, tr("逆时针旋转")); });
}

void ViewCommands::addLayouts(MRToolBarCommands &commands)
{
    auto modes = m_parts.addForDocument(commands, layouts().keys(), [this](const QString &layout) {
        m_parts.view->setLayoutMode(layouts().value(layout));
    });
    modes.checkedWhen([view = m_parts.view](const QString &layout) {
        return view->layoutMode() == layouts().value(layout);
    });
    commands.add("v_fullscreen", [this] { toggleFullScreen(); }).withText([this] {
        return m_parts.window->isFullScreen() ? tr("退出全屏") : QString();
    });
    m_parts.addForDocument(commands, "v_foreground", {});
    commands.addPrefix("background_", {}).usableWhen([document = m_parts.document] {
        return document->isOpen();
    });
    commands.setBackground(
        [view = m_parts.view] { return view->background(); },
        [view = m_parts.view](BackgroundStyle style) { view->setBackground(style); });
    m_parts.addForDocument(commands, "v_revision", [this] { showRevisions(); });
    m_parts.addForDocument(commands, "v_trackinfo", [this] { showInk(); });
}

void ViewCommands::addPanels(MRToolBarCommands &commands)
{
    m_parts
        .addForDocument(commands, NavigationPanel::names(),
                        [this](const QString &panel) { m_parts.navigation->toggle(panel); })
        .checkedWhen(
            [this](const QString &panel) { return m_parts.navigation->shownPanel() == panel; });
    m_parts.addForDocument(commands, "e_find", [this] { findInToolBar(); });
    m_parts.addForDocument(commands, "e_search", [this] { m_parts.search->open(); });
    m_parts.addForDocument(commands, "toolbar_searchbar", {});
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
