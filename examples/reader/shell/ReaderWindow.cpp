// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/ReaderWindow.h"

#include "pages/PageView.h"
#include "panels/HandwritingSettings.h"
#include "panels/HostPanel.h"
#include "panels/NavigationPanel.h"
#include "panels/SearchPanel.h"
#include "reach/ToolBarReach.h"
#include "shell/BodyChooser.h"
#include "shell/Description.h"
#include "shell/HostDock.h"
#include "shell/KeyboardReach.h"
#include "shell/Language.h"
#include "shell/PageFieldWatcher.h"
#include "shell/ReaderScheme.h"
#include "shell/StartPage.h"

#include <toolbar/MRToolBar.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>
#include <QUrl>

namespace {

const QString toolBarStateKey = QStringLiteral("toolbarstate");
const QString schemeKey = QStringLiteral("scheme");
constexpr QSize windowSize(1280, 800);
constexpr int referenceDpi = 96;

/** The local files that are dragged. */
QStringList droppedFiles(const QMimeData &data)
{
    QStringList files;
    const QList<QUrl> urls = data.urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            files.append(url.toLocalFile());
    }
    return files;
}

} // namespace

ReaderWindow::ReaderWindow(const QDomDocument &description, const QString &skin)
    : m_skin(skin)
    , m_colours(HostPanel::firstSkin())
    , m_view(new PageView(m_document, this))
    , m_start(new StartPage)
    , m_centre(new QStackedWidget)
    , m_navigation(new NavigationPanel(m_document, this))
    , m_search(new SearchPanel(m_document, *m_view, this))
    , m_handwriting(new HandwritingSettings(this))
    , m_pageField(new PageFieldWatcher(this))
    , m_bodies(new BodyChooser(m_document))
    , m_place(new QLabel)
    , m_session({*this, m_document, *m_view, *m_navigation, *m_search}, *m_settings)
    , m_fileCommands(parts())
    , m_viewCommands(parts())
    , m_editCommands(parts())
    , m_linkCommands(parts())
{
    createCentre();
    statusBar()->addPermanentWidget(m_bodies);
    addDockWidget(Qt::LeftDockWidgetArea, m_navigation);
    addDockWidget(Qt::LeftDockWidgetArea, m_search);
    createToolBar(description);
    createCommands();
    connectKeys();
    connectToolBar();
    connectParts();
    connectView();
    connectLinks();
    connectStartPage();
    connectPageField();
    updateTitle();
    ReaderScheme::applyPalette(m_settings->scheme());
    m_commands.refreshAll();
    setAcceptDrops(true);
    resize(windowSize * logicalDpiX() / referenceDpi);
    if (m_skin.isEmpty())
        m_session.turnOff();
    m_session.restoreWindow();
    m_centre->setFocus();
}

ReaderWindow::~ReaderWindow()
{
    // The docks are deleted after the document, whose signals must not reach them any more.
    m_document.disconnect();
    m_document.undoStack().disconnect();
    m_navigation->disconnect(this);
}

ReaderParts ReaderWindow::parts()
{
    return {this,
            &m_document,
            m_view,
            m_navigation,
            m_search,
            m_handwriting,
            m_settings.get(),
            [this](const QString &name) { return focusControl(name); },
            [this](const QStringList &fileNames) { openFiles(fileNames); },
            [this] { m_session.keepPlace(); },
            [] { return all().size() < 2; }};
}

bool ReaderWindow::focusControl(const QString &name)
{
    // A new description replaces the toolbar, so callers must not keep a pointer to it.
    return m_toolBar->DoSetFocusSlot(name);
}

void ReaderWindow::createCentre()
{
    m_centre->addWidget(m_start);
    m_centre->addWidget(m_view);
    m_centre->setFocusProxy(m_start);
    setCentralWidget(m_centre);
    statusBar()->addPermanentWidget(m_place);
}

void ReaderWindow::createToolBar(const QDomDocument &description)
{
    ToolBarSkinStyle skin = m_colours;
    if (!m_skin.isEmpty())
        skin.insert(toolBarStateKey, m_settings->toolBarState(m_skin));
    skin.insert(schemeKey, m_settings->scheme());
    // In English the tips would break within words otherwise.
    skin.insert(QStringLiteral("tooltipwords"), QStringLiteral("true"));
    skin.insert(QStringLiteral("keytips"), QStringLiteral("true"));
    m_description = description;
    QDomNode root = m_description.documentElement();
    m_toolBar = std::make_unique<MRToolBar>(this, root, skin, ToolBarLeft);
    m_commands.setToolBar(m_toolBar.get());
    if (m_host)
        m_host->listenTo(*m_toolBar);
}

void ReaderWindow::setScheme(const QString &scheme)
{
    // A map without colours keeps those that there are.
    m_toolBar->DoSetSkinStyleSlot({{schemeKey, scheme}});
    ReaderScheme::applyPalette(scheme);
    stateChanged();
}

void ReaderWindow::setDescription(QDomDocument description)
{
    Description::beginWithTab(description, ToolBarReach::shownTab(*this));
    removeToolBar();
    createToolBar(description);
    connectToolBar();
    m_commands.refreshAll();
}

void ReaderWindow::removeToolBar()
{
    QToolBar *bar = ToolBarReach::toolBarOf(*this);
    if (bar->isAncestorOf(focusWidget()))
        m_centre->setFocus();
    m_toolBar.reset();
    // Not deleteLater(): the next toolbar has the same object names, so this one must not exist.
    delete bar;
}

void ReaderWindow::createCommands()
{
    m_fileCommands.addTo(m_commands);
    m_viewCommands.addTo(m_commands);
    m_editCommands.addTo(m_commands);
    m_commands.add("f_exit", &ReaderWindow::quit);
    m_commands.add(Language::commands(), &Language::choose).checkedWhen(&Language::isChosen);
    m_commands
        .add(ReaderScheme::commands(),
             [this](const QString &name) { m_settings->setScheme(ReaderScheme::ofCommand(name)); })
        .checkedWhen([this](const QString &name) {
            return m_settings->scheme() == ReaderScheme::ofCommand(name);
        });
    addZoomModes();
    m_commands.setSearch([this](const SearchOption &option) { m_search->search(option); });
    connect(&m_commands, &MRToolBarCommands::triggered, this, &ReaderWindow::stateChanged);
    connect(&m_commands, &MRToolBarCommands::unhandled, this,
            [this](const QString &name) { parts().say(tr("没有实现的命令：%1").arg(name)); });
}

void ReaderWindow::returnToPages()
{
    // One thing for each press, the last to come first.
    if (m_search->isAncestorOf(focusWidget()))
        m_search->hide(); // The close button of a dock cannot be reached by the keyboard.
    else if (isFullScreen() && !KeyboardReach::isField(focusWidget()))
        m_viewCommands.toggleFullScreen();
    else if (!KeyboardReach::isField(focusWidget()))
        m_view->chooseNothing();
    // What is typed into a field is discarded.
    m_commands.refreshAll();
    m_centre->setFocus();
}

void ReaderWindow::connectToolBar()
{
    const MRToolBar *toolBar = m_toolBar.get();
    connect(toolBar, &MRToolBar::DoStateChanged, this, [this] {
        if (!m_skin.isEmpty())
            m_settings->setToolBarState(m_skin, m_toolBar->GetToolBarState());
    });
    connect(toolBar, &MRToolBar::DoRequestAuthority, this, &ReaderWindow::followZoomBox);
    connect(toolBar, &MRToolBar::DoRequestAuthority, m_pageField, &PageFieldWatcher::follow);
    followZoomBox();
    m_pageField->follow();
}

void ReaderWindow::showPagesOrStart()
{
    const bool isOpen = m_document.isOpen();
    QWidget *shown = isOpen ? static_cast<QWidget *>(m_view) : m_start;
    if (isOpen)
        m_session.restorePanels();
    else
        m_session.hidePanels();
    if (shown == m_centre->currentWidget())
        return;
    const bool hadFocus = m_centre->isAncestorOf(focusWidget());
    m_centre->setCurrentWidget(shown);
    m_centre->setFocusProxy(shown);
    if (hadFocus)
        m_centre->setFocus();
}

void ReaderWindow::openOrExplain(const QString &fileName, QString *refusal)
{
    if (m_fileCommands.open(fileName, refusal))
        m_session.restorePlace();
    stateChanged();
}

void ReaderWindow::openFiles(const QStringList &fileNames)
{
    if (m_opener)
        return m_opener(fileNames);
    for (const QString &fileName : fileNames)
        open(fileName);
}

QString ReaderWindow::sampleName()
{
    // Not translated: the name decides what is generated.
    return QStringLiteral("示例文档.ofd");
}

void ReaderWindow::openSample()
{
    m_document.openGenerated(sampleName());
    m_view->setCurrentPage(0);
}

void ReaderWindow::stateChanged()
{
    m_commands.update();
    updateTitle();
}

/** Names a page that cannot be shown, and what is left out if it is of a kind not named before. */
void ReaderWindow::tellWhatIsMissing()
{
    const OfdFile &file = m_document.file();
    const int kinds = file.document ? int(file.document->unsupported.keys().size()) : 0;
    const QString fault = file.document ? m_document.faultOf(m_view->currentPage()) : QString();
    if (!fault.isEmpty() && fault != m_toldFault)
        parts().say(fault);
    else if (kinds > m_toldKinds)
        parts().say(file.leftOut());
    m_toldFault = fault;
    m_toldKinds = kinds;
}

void ReaderWindow::updateTitle()
{
    const QString application = tr("OFD阅读器");
    setWindowModified(m_document.isModified());
    if (!m_document.isOpen()) {
        setWindowTitle(application);
        m_place->clear();
        return;
    }
    const QString origin = m_document.isGenerated() ? tr("（生成的页面）") : QStringLiteral(" ");
    setWindowTitle(QStringLiteral("%1[*]%2- %3").arg(m_document.title(), origin, application));
    m_place->setText(tr("第 %1 / %2 页　%3%")
                         .arg(m_view->currentPage() + 1)
                         .arg(m_document.pageCount())
                         .arg(m_view->percent(), 0, 'f', 0));
}

QList<ReaderWindow *> ReaderWindow::all()
{
    QList<ReaderWindow *> windows;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        auto *window = qobject_cast<ReaderWindow *>(widget);
        if (window && window->isVisible())
            windows.append(window);
    }
    return windows;
}

void ReaderWindow::quit()
{
    // All are asked before the first one closes, so that nothing is changed if one of them stays.
    const QList<ReaderWindow *> windows = all();
    for (ReaderWindow *window : windows) {
        if (window->m_document.isModified())
            window->raise(); // What the question is about.
        if (!window->m_fileCommands.mayLeaveDocument())
            return;
    }
    for (ReaderWindow *window : windows) {
        window->m_isLeft = true;
        window->close();
    }
}

void ReaderWindow::closeEvent(QCloseEvent *event)
{
    if (!m_isLeft && !m_fileCommands.mayLeaveDocument()) {
        event->ignore();
        return;
    }
    m_session.keepPlace();
    m_session.keepWindow();
    QMainWindow::closeEvent(event);
}

void ReaderWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!droppedFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void ReaderWindow::dropEvent(QDropEvent *event)
{
    const QStringList fileNames = droppedFiles(*event->mimeData());
    if (fileNames.isEmpty())
        return;
    event->acceptProposedAction();
    openFiles(fileNames);
}

void ReaderWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::WindowStateChange)
        stateChanged();
    if (event->type() == QEvent::LanguageChange)
        stateChanged();
    QMainWindow::changeEvent(event);
}
