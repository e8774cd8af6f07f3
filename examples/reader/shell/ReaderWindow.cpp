// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/ReaderWindow.h"

#include "pages/PageView.h"
#include "panels/HandwritingSettings.h"
#include "panels/HostPanel.h"
#include "panels/LanguageFollower.h"
#include "panels/NavigationPanel.h"
#include "panels/SearchPanel.h"
#include "panels/SignalLog.h"
#include "reach/ToolBarReach.h"
#include "shell/Description.h"
#include "shell/KeyboardReach.h"
#include "shell/Language.h"
#include "shell/ReaderScheme.h"

#include <toolbar/MRToolBar.h>

#include <QCloseEvent>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QStatusBar>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

namespace {

const QString toolBarStateKey = QStringLiteral("toolbarstate");
const QString schemeKey = QStringLiteral("scheme");
const QString sampleName = QStringLiteral("示例文档.ofd");
constexpr int logWidth = 300;
constexpr QSize windowSize(1280, 800);
constexpr int referenceDpi = 96;

/** The local file that is dragged; empty unless it is exactly one. */
QString droppedFile(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

} // namespace

ReaderWindow::ReaderWindow(const QDomDocument &description, const QString &skin)
    : m_skin(skin)
    , m_colours(HostPanel::firstSkin())
    , m_scheme(m_settings.scheme())
    , m_view(new PageView(m_document, this))
    , m_navigation(new NavigationPanel(m_document, this))
    , m_search(new SearchPanel(m_document, *m_view, this))
    , m_handwriting(new HandwritingSettings(this))
    , m_hostPanel(new HostPanel)
    , m_log(new SignalLog)
    , m_place(new QLabel)
    , m_fileCommands(parts())
    , m_viewCommands(parts())
    , m_editCommands(parts())
    , m_linkCommands(parts())
{
    setCentralWidget(m_view);
    statusBar()->addPermanentWidget(m_place);
    createDocks();
    createToolBar(description);
    createCommands();
    connectKeys();
    connectToolBar();
    connectParts();
    connectLinks();
    updateTitle();
    setScheme(m_scheme);
    m_commands.refreshAll();
    setAcceptDrops(true);
    resize(windowSize * logicalDpiX() / referenceDpi);
    m_view->setFocus();
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
    return {this,        &m_document,
            m_view,      m_navigation,
            m_search,    m_handwriting,
            &m_settings, [this](const QString &name) { return focusControl(name); }};
}

bool ReaderWindow::focusControl(const QString &name)
{
    // A new description replaces the toolbar, so callers must not keep a pointer to it.
    return m_toolBar->DoSetFocusSlot(name);
}

void ReaderWindow::createDocks()
{
    addDockWidget(Qt::LeftDockWidgetArea, m_navigation);
    addDockWidget(Qt::LeftDockWidgetArea, m_search);

    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->addWidget(m_hostPanel);
    layout->addWidget(m_log);
    content->setMinimumWidth(logWidth * logicalDpiX() / referenceDpi);
    auto *dock = new QDockWidget(this);
    LanguageFollower::attach(dock, [dock] { dock->setWindowTitle(tr("宿主")); });
    dock->setObjectName(QStringLiteral("host"));
    dock->setWidget(content);
    addDockWidget(Qt::RightDockWidgetArea, dock);
}

void ReaderWindow::createToolBar(const QDomDocument &description)
{
    ToolBarSkinStyle skin = m_colours;
    if (!m_skin.isEmpty())
        skin.insert(toolBarStateKey, m_settings.toolBarState(m_skin));
    skin.insert(schemeKey, m_scheme);
    // In English the tips would break within words otherwise.
    skin.insert(QStringLiteral("tooltipwords"), QStringLiteral("true"));
    skin.insert(QStringLiteral("keytips"), QStringLiteral("true"));
    m_description = description;
    QDomNode root = m_description.documentElement();
    m_toolBar = std::make_unique<MRToolBar>(this, root, skin, ToolBarLeft);
    m_commands.setToolBar(m_toolBar.get());
    m_log->listenTo(*m_toolBar);
}

void ReaderWindow::setScheme(const QString &scheme)
{
    m_scheme = scheme;
    // A map without colours keeps those that there are.
    m_toolBar->DoSetSkinStyleSlot({{schemeKey, scheme}});
    ReaderScheme::applyPalette(scheme);
    m_hostPanel->showScheme(scheme);
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
        m_view->setFocus();
    m_toolBar.reset();
    // Not deleteLater(): the next toolbar has the same object names, so this one must not exist.
    delete bar;
}

void ReaderWindow::createCommands()
{
    m_fileCommands.addTo(m_commands);
    m_viewCommands.addTo(m_commands);
    m_editCommands.addTo(m_commands);
    m_commands.add(Language::commands(), &Language::choose);
    m_commands.setZoom([this] { return m_document.isOpen() ? shownZoom().name() : QString(); },
                       [this](const QString &name) {
                           const ZoomMode mode = ZoomMode::fromName(name);
                           if (m_document.isOpen() && mode.isValid())
                               m_view->setZoomMode(mode);
                       });
    m_commands.setSearch([this](const SearchOption &option) { m_search->search(option); });
    connect(&m_commands, &MRToolBarCommands::triggered, this, &ReaderWindow::stateChanged);
    connect(&m_commands, &MRToolBarCommands::unhandled, this,
            [this](const QString &name) { parts().say(tr("没有实现的命令：%1").arg(name)); });
}

void ReaderWindow::connectKeys()
{
    const auto *keys =
        new KeyboardReach(this, [this](const QString &name) { return focusControl(name); });
    connect(keys, &KeyboardReach::commandAsked, this,
            [this](const QString &name) { m_commands.run(name); });
    connect(keys, &KeyboardReach::finderAsked, this, [this] { m_toolBar->DoFindCommandSlot(); });
    connect(keys, &KeyboardReach::escapePressed, this, &ReaderWindow::returnToPages);
}

void ReaderWindow::returnToPages()
{
    if (isFullScreen() && !KeyboardReach::isField(focusWidget()))
        m_viewCommands.toggleFullScreen();
    // The close button of a dock cannot be reached by the keyboard.
    if (m_search->isAncestorOf(focusWidget()))
        m_search->hide();
    // What is typed into a field is discarded.
    m_commands.refreshAll();
    m_view->setFocus();
}

void ReaderWindow::connectToolBar()
{
    const MRToolBar *toolBar = m_toolBar.get();
    connect(toolBar, &MRToolBar::DoStateChanged, this, [this] {
        if (!m_skin.isEmpty())
            m_settings.setToolBarState(m_skin, m_toolBar->GetToolBarState());
    });
    connect(toolBar, &MRToolBar::DoRequestAuthority, this, &ReaderWindow::followZoomBox);
    followZoomBox();
}

void ReaderWindow::connectParts()
{
    connect(&m_document, &Document::pagesChanged, this, &ReaderWindow::stateChanged);
    connect(&m_document.undoStack(), &QUndoStack::indexChanged, this, &ReaderWindow::stateChanged);
    connect(&m_document.undoStack(), &QUndoStack::cleanChanged, this, &ReaderWindow::stateChanged);
    connect(m_view, &PageView::currentPageChanged, m_navigation, &NavigationPanel::setCurrentPage);
    connect(m_view, &PageView::currentPageChanged, this, &ReaderWindow::stateChanged);
    connect(m_view, &PageView::zoomChanged, this, &ReaderWindow::stateChanged);
    connect(m_view, &PageView::selectionChanged, this, &ReaderWindow::stateChanged);
    connect(m_view, &PageView::zoomStepAsked, this, [this](bool larger) {
        if (m_document.isOpen())
            m_viewCommands.stepZoom(larger);
    });
    connect(m_view, &PageView::markDrawn, this,
            [this](const Mark &mark) { m_editCommands.addDrawn(mark); });
    connect(m_view, &PageView::inkRubbed, this, [this](int page, QPointF point, qreal radius) {
        m_editCommands.eraseInk(page, point, radius);
    });

    connect(m_navigation, &NavigationPanel::pageChosen, m_view, &PageView::setCurrentPage);
    connect(m_navigation, &NavigationPanel::wordChosen, m_search, &SearchPanel::searchWord);
    connect(m_navigation, &NavigationPanel::shownPanelChanged, this, &ReaderWindow::stateChanged);
    connect(m_search, &SearchPanel::found, this,
            [this](const QString &message) { parts().say(message); });

    connect(m_hostPanel, &HostPanel::skinChosen, this, [this](const ToolBarSkinStyle &colours) {
        m_colours = colours;
        m_toolBar->DoSetSkinStyleSlot(colours);
    });
    connect(m_hostPanel, &HostPanel::scaleChosen, this, [this](const QString &scale) {
        m_toolBar->DoSetSkinStyleSlot({{QStringLiteral("scalefactor"), scale}});
    });
    connect(m_hostPanel, &HostPanel::schemeChosen, this, [this](const QString &scheme) {
        m_settings.setScheme(scheme);
        setScheme(scheme);
    });
    connect(m_hostPanel, &HostPanel::handwritingAsked, this, [this] {
        m_editCommands.editHandwriting();
        stateChanged();
    });
}

void ReaderWindow::connectLinks()
{
    connect(m_view, &PageView::linkClicked, this,
            [this](const PageLink &link) { m_linkCommands.follow(link); });
    connect(m_navigation, &NavigationPanel::markChosen, this,
            [this](int id) { m_linkCommands.showMark(id); });
    connect(m_navigation, &NavigationPanel::markEditAsked, this,
            [this](int id) { m_editCommands.editMark(id); });
    connect(m_navigation, &NavigationPanel::markRemovalAsked, this,
            [this](int id) { m_editCommands.removeMark(id); });
    connect(m_navigation, &NavigationPanel::attachmentOpenAsked, this,
            [this](int index) { m_linkCommands.openAttachment(index); });
    connect(m_navigation, &NavigationPanel::attachmentSaveAsked, this,
            [this](int index) { m_linkCommands.saveAttachment(index); });
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

void ReaderWindow::openOrExplain(const QString &fileName, QString *refusal)
{
    m_fileCommands.open(fileName, refusal);
    stateChanged();
}

void ReaderWindow::openSample()
{
    m_document.openGenerated(sampleName);
    m_view->setCurrentPage(0);
}

ZoomMode ReaderWindow::shownZoom() const
{
    // For a mode without an entry, the zoom box would show parts of the name of the mode.
    const ZoomMode mode = m_view->zoomMode();
    const bool isFitted = mode.isValid() && mode.kind() != ZoomMode::Percent;
    return isFitted && !Description::offers(m_description, mode.name())
               ? ZoomMode(qRound(m_view->percent()))
               : mode;
}

void ReaderWindow::stateChanged()
{
    m_commands.update();
    updateTitle();
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

void ReaderWindow::closeEvent(QCloseEvent *event)
{
    if (!m_fileCommands.mayLeaveDocument()) {
        event->ignore();
        return;
    }
    QMainWindow::closeEvent(event);
}

void ReaderWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!droppedFile(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void ReaderWindow::dropEvent(QDropEvent *event)
{
    const QString fileName = droppedFile(*event->mimeData());
    if (fileName.isEmpty())
        return;
    event->acceptProposedAction();
    open(fileName);
}

void ReaderWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::WindowStateChange)
        stateChanged();
    if (event->type() == QEvent::LanguageChange)
        stateChanged();
    QMainWindow::changeEvent(event);
}
