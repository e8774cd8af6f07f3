// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ViewerWindow.h"

#include <toolbar/MRToolBar.h>

#include <QtWidgets>
#include <QtXml>

ViewerWindow::ViewerWindow(const QString &fileName)
{
    QFile file(":/imageviewer/description.xml");
    QDomDocument description;
    if (file.open(QIODevice::ReadOnly))
        description.setContent(file.readAll());
    QDomElement root = description.documentElement();
    const QMap<QString, QString> skin{{"keytips", "true"}, {"tooltipwords", "true"}};
    auto *toolBar = MRToolBar::InitToolBar(this, root, skin, ToolBarLeft);
    toolBar->setParent(this);
    setCentralWidget(m_view);
    addCommands();
    m_commands.setToolBar(toolBar);
    m_commands.keepIn(&m_settings);
    connect(m_view, &PictureView::changed, &m_commands, &MRToolBarCommands::update);
    if (!fileName.isEmpty())
        open(fileName);
}

void ViewerWindow::addCommands()
{
    MRToolBarCommands &add = m_commands;
    PictureView *view = m_view;
    const auto isOpen = [view] { return view->isOpen(); };

    add.add("f_open", [this] { open(QFileDialog::getOpenFileName(this)); });
    add.add("f_exit", [this] { close(); });
    auto copy = add.add("e_copy", [view] { qApp->clipboard()->setImage(view->picture()); });
    copy.usableWhen(isOpen);
    add.add("v_zoomin", [view] { view->zoomBy(1.25); }).usableWhen(isOpen);
    add.add("v_zoomout", [view] { view->zoomBy(0.8); }).usableWhen(isOpen);
    add.add("v_turnleft", [view] { view->turn(-90); }).usableWhen(isOpen);
    add.add("v_turnright", [view] { view->turn(90); }).usableWhen(isOpen);
    auto mirror = add.add("v_mirror", [view] { view->mirror(); });
    mirror.usableWhen(isOpen).checkedWhen([view] { return view->isMirrored(); });
    auto full =
        add.add("v_fullscreen", [this] { isFullScreen() ? showNormal() : showFullScreen(); });
    full.checkedWhen([this] { return isFullScreen(); });
    auto dark = add.add("a_dark", [this] { setDark(!isDark()); });
    dark.checkedWhen([this] { return isDark(); });
    auto english = add.add("a_english", [this] { setEnglish(!m_isEnglish); });
    english.checkedWhen([this] { return m_isEnglish; });
    add.setPages([view] { return view->number(); }, [view] { return view->count(); },
                 [view](int number) { view->goTo(number); });
    add.setZoom([view] { return view->zoomMode(); },
                [view](const QString &mode) { view->setZoomMode(mode); });
    add.setBackground([view] { return view->ground(); },
                      [view](BackgroundStyle ground) { view->setGround(ground); });
    add.setSearch([this](const SearchOption &option) { find(option); });
    add.setRecentFiles([this](const QString &fileName) { open(fileName); });
}

void ViewerWindow::open(const QString &fileName)
{
    if (!m_view->open(fileName))
        return statusBar()->showMessage(tr("无法打开：%1").arg(fileName));
    m_commands.addRecentFile(fileName);
    statusBar()->clearMessage();
}

void ViewerWindow::find(const SearchOption &option)
{
    // The text of the option "nocase" is "match case".
    const auto sensitivity = option.noCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
    const bool isFound = m_view->find(option.content, option.direction == 1 ? 1 : -1, sensitivity);
    statusBar()->showMessage(isFound ? "" : tr("没有名称含“%1”的图片").arg(option.content));
}

void ViewerWindow::setDark(bool isDark)
{
    m_settings.setValue("dark", isDark);
    findChild<MRToolBar *>()->DoSetSkinStyleSlot({{"scheme", isDark ? "dark" : "light"}});
    m_view->setGround(isDark ? Background_Nighttime : Background_Default);
}

void ViewerWindow::setEnglish(bool isEnglish)
{
    m_isEnglish = isEnglish && m_english[0].load(":/mr_toolbar/translations/mrtoolbar_en.qm")
                  && m_english[1].load(":/imageviewer/translations/imageviewer_en.qm");
    for (QTranslator &translator : m_english)
        m_isEnglish ? qApp->installTranslator(&translator) : qApp->removeTranslator(&translator);
}
