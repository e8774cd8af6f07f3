// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

// How the parts of the window are connected with each other.

#include "pages/PageView.h"
#include "panels/HostPanel.h"
#include "panels/NavigationPanel.h"
#include "panels/SearchPanel.h"
#include "reach/ToolBarReach.h"
#include "shell/BodyChooser.h"
#include "shell/HostDock.h"
#include "shell/KeyboardReach.h"
#include "shell/PageFieldWatcher.h"
#include "shell/PageMenu.h"
#include "shell/ReaderWindow.h"
#include "shell/StartPage.h"

#include <toolbar/MRToolBar.h>

#include <QComboBox>
#include <QInputDialog>

#include <algorithm>
#include <optional>

namespace {

/** Nothing if the user has cancelled, or without a document. */
std::optional<int> askForNumber(ReaderWindow *window, const QString &label, int least, int now,
                                int most)
{
    bool isGiven = false;
    const int number = window->hasDocument() ? QInputDialog::getInt(window, QString(), label, now,
                                                                    least, most, 1, &isGiven)
                                             : 0;
    return isGiven ? std::make_optional(number) : std::nullopt;
}

} // namespace

void ReaderWindow::addHostPanel()
{
    m_host = new HostDock(this);
    addDockWidget(Qt::RightDockWidgetArea, m_host);
    m_host->listenTo(*m_toolBar);
    HostPanel *panel = m_host->panel();
    panel->showScheme(m_settings->scheme());
    connect(m_settings.get(), &ReaderSettings::schemeChanged, panel, &HostPanel::showScheme);
    connect(panel, &HostPanel::schemeChosen, m_settings.get(), &ReaderSettings::setScheme);
    connect(panel, &HostPanel::skinChosen, this, [this](const ToolBarSkinStyle &colours) {
        m_colours = colours;
        m_toolBar->DoSetSkinStyleSlot(colours);
    });
    connect(panel, &HostPanel::scaleChosen, this, [this](const QString &scale) {
        m_toolBar->DoSetSkinStyleSlot({{QStringLiteral("scalefactor"), scale}});
    });
    connect(panel, &HostPanel::handwritingAsked, this, [this] {
        m_editCommands.editHandwriting();
        stateChanged();
    });
}

void ReaderWindow::connectKeys()
{
    const auto *keys =
        new KeyboardReach(this, [this](const QString &name) { return focusControl(name); });
    connect(keys, &KeyboardReach::commandAsked, this,
            [this](const QString &name) { m_commands.run(name); });
    connect(keys, &KeyboardReach::pageAsked, this, [this] {
        const int count = m_document.pageCount();
        const auto page = askForNumber(this, tr("转到第几页（共 %1 页）").arg(count), 1,
                                       m_view->currentPage() + 1, count);
        if (!page)
            return;
        m_view->rememberPlace();
        m_view->setCurrentPage(*page - 1);
    });
    connect(keys, &KeyboardReach::zoomAsked, this, [this] {
        if (const auto percent =
                askForNumber(this, tr("显示比例（%）"), 10, qRound(m_view->percent()), 6400))
            m_view->setZoomMode(ZoomMode(*percent));
    });
    connect(keys, &KeyboardReach::finderAsked, this, [this] { m_toolBar->DoFindCommandSlot(); });
    connect(keys, &KeyboardReach::escapePressed, this, &ReaderWindow::returnToPages);
}

void ReaderWindow::connectParts()
{
    connect(&m_document, &Document::pagesChanged, this, &ReaderWindow::showPagesOrStart);
    connect(&m_document, &Document::pagesChanged, this, &ReaderWindow::stateChanged);
    connect(&m_document, &Document::learnt, this, &ReaderWindow::tellWhatIsMissing);
    connect(m_bodies, &BodyChooser::bodyChosen, this, [this](int body) {
        m_fileCommands.openBody(body);
        m_bodies->refresh();
    });
    connect(&m_document.undoStack(), &QUndoStack::indexChanged, this, &ReaderWindow::stateChanged);
    connect(&m_document.undoStack(), &QUndoStack::cleanChanged, this, &ReaderWindow::stateChanged);
    connect(m_navigation, &NavigationPanel::pageChosen, this, [this](int page) {
        m_view->rememberPlace();
        m_view->setCurrentPage(page);
    });
    connect(m_navigation, &NavigationPanel::placeChosen, this, [this](const PagePlace &place) {
        m_view->rememberPlace();
        m_view->showPlace(place);
    });
    connect(m_navigation, &NavigationPanel::wordChosen, m_search, &SearchPanel::searchWord);
    connect(m_navigation, &NavigationPanel::shownPanelChanged, this, &ReaderWindow::stateChanged);
    connect(m_search, &SearchPanel::found, this,
            [this](const QString &message) { parts().say(message); });
    connect(m_settings.get(), &ReaderSettings::schemeChanged, this, &ReaderWindow::setScheme);
}

void ReaderWindow::connectView()
{
    connect(m_view, &PageView::currentPageChanged, m_navigation, &NavigationPanel::setCurrentPage);
    connect(m_view, &PageView::currentPageChanged, this, &ReaderWindow::stateChanged);
    connect(m_view, &PageView::currentPageChanged, this, &ReaderWindow::tellWhatIsMissing);
    connect(m_view, &PageView::zoomChanged, this, &ReaderWindow::stateChanged);
    connect(m_view, &PageView::selectionChanged, this, &ReaderWindow::stateChanged);
    connect(m_view, &PageView::menuAsked, this, [this](QPoint place) {
        PageMenu::show(m_view, place, m_commands, !m_view->selection().isEmpty());
    });
    connect(m_view, &PageView::copyAsked, this, [this] { m_editCommands.copySelection(); });
    connect(m_view, &PageView::zoomStepAsked, this, [this](bool larger) {
        if (m_document.isOpen())
            m_viewCommands.stepZoom(larger);
    });
    connect(m_view, &PageView::markDrawn, this,
            [this](const Mark &mark) { m_editCommands.addDrawn(mark); });
    connect(m_view, &PageView::inkRubbed, this, [this](int page, QPointF point, qreal radius) {
        m_editCommands.eraseInk(page, point, radius);
    });
    connect(m_view, &PageView::signatureAsked, this,
            [this](int signature) { m_fileCommands.showSignatures(signature); });
}

void ReaderWindow::connectLinks()
{
    connect(m_view, &PageView::linkClicked, this,
            [this](const PageLink &link) { m_linkCommands.follow(link); });
    connect(m_view, &PageView::remarkAsked, this, [this](int id) { m_editCommands.editMark(id); });
    connect(m_navigation, &NavigationPanel::markChosen, this,
            [this](int id) { m_linkCommands.showMark(id); });
    connect(m_navigation, &NavigationPanel::markEditAsked, this,
            [this](int id) { m_editCommands.editMark(id); });
    connect(m_navigation, &NavigationPanel::markRemovalAsked, this,
            [this](int id) { m_editCommands.removeMark(id); });
    connect(m_navigation, &NavigationPanel::bookmarkAsked, this,
            [this](int page) { m_editCommands.addBookmark(page); });
    connect(m_navigation, &NavigationPanel::bookmarkRemovalAsked, this,
            [this](int index) { m_editCommands.removeBookmark(index); });
    connect(m_navigation, &NavigationPanel::attachmentOpenAsked, this,
            [this](int index) { m_linkCommands.openAttachment(index); });
    connect(m_navigation, &NavigationPanel::attachmentSaveAsked, this,
            [this](int index) { m_linkCommands.saveAttachment(index); });
}

void ReaderWindow::connectStartPage()
{
    const auto showFiles = [this] {
        m_start->setFiles(m_settings->recentFiles());
        stateChanged();
    };
    connect(m_settings.get(), &ReaderSettings::recentFilesChanged, m_start, showFiles);
    connect(m_start, &StartPage::openAsked, this, [this] { m_commands.run("f_open"); });
    connect(m_start, &StartPage::fileChosen, this,
            [this](const QString &fileName) { m_fileCommands.openRecent(fileName); });
    connect(m_start, &StartPage::removeAsked, m_settings.get(), &ReaderSettings::removeRecentFile);
    showFiles();
}

void ReaderWindow::connectPageField()
{
    connect(m_pageField, &PageFieldWatcher::entered, this, [this](int page) {
        if (!m_document.isOpen() || (page >= 1 && page <= m_document.pageCount()))
            return;
        parts().say(tr("没有这一页：共 %1 页").arg(m_document.pageCount()));
        // Queued for the same reason as below.
        QMetaObject::invokeMethod(this, &ReaderWindow::offerPageAgain, Qt::QueuedConnection);
    });
    // Queued, because the field is left while the toolbar still answers what was typed.
    connect(m_pageField, &PageFieldWatcher::left, this, &ReaderWindow::showPage,
            Qt::QueuedConnection);
}

void ReaderWindow::showPage() const
{
    if (m_document.isOpen())
        m_toolBar->DoSetPageInfoSlot(m_view->currentPage() + 1, m_document.pageCount());
}

/** The toolbar leaves "7/12" in the field, to which further digits would be added. */
void ReaderWindow::offerPageAgain()
{
    showPage();
    const QStringList names = ToolBarReach::pageFieldNames();
    std::any_of(names.begin(), names.end(),
                [this](const QString &name) { return focusControl(name); });
}

QString ReaderWindow::shownZoom() const
{
    // Into a box that shows the name of a mode nothing can be typed: a digit would choose the first
    // entry that begins with it. What fits the pages can be seen at the buttons.
    const ZoomMode mode = m_view->zoomMode();
    const bool isFitted = mode.kind() != ZoomMode::Percent;
    return m_document.isOpen()
               ? ZoomMode(isFitted ? qRound(m_view->percent()) : mode.percent()).name()
               : QString();
}

void ReaderWindow::addZoomModes()
{
    const auto choose = [this](const QString &name) {
        const ZoomMode mode = ZoomMode::fromName(name);
        if (m_document.isOpen() && mode.isValid())
            m_view->setZoomMode(mode);
    };
    m_commands.setZoom([this] { return shownZoom(); }, choose);
    const QString custom = QStringLiteral("vzmode_custom");
    m_commands.add(ZoomMode::names() << custom, choose)
        .usableWhen([this] { return m_document.isOpen(); })
        .checkedWhen([this, custom](const QString &name) {
            return m_view->zoomMode().knownName(custom) == name;
        });
}

void ReaderWindow::followZoomBox()
{
    // DoSetZoomMode() does not report every choice in the zoom box.
    const QList<QComboBox *> boxes = ToolBarReach::zoomBoxes(*this);
    for (const QComboBox *box : boxes) {
        connect(box, QOverload<int>::of(&QComboBox::activated), this, &ReaderWindow::readZoomBox,
                Qt::UniqueConnection);
    }
}

void ReaderWindow::readZoomBox(int index)
{
    const auto *box = qobject_cast<QComboBox *>(sender());
    const ZoomMode mode = ZoomMode::fromName(box->itemData(index).toString());
    if (m_document.isOpen() && mode.isValid())
        m_view->setZoomMode(mode);
}
