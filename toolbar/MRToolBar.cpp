// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/MRToolBar.h"

#include "toolbar/Latin1.h"
#include "toolbar/NewToolBar.h"

#include <QDomNode>
#include <QMainWindow>

namespace {

/** What the page slots take for "no document is open". */
constexpr QLatin1String clearedText = latin1(" ");

void registerBoundaryTypes()
{
    qRegisterMetaType<SearchOption>("SearchOption");
    qRegisterMetaType<BackgroundStyle>("BackgroundStyle");
    qRegisterMetaType<ToolBarSkinStyle>("ToolBarSkinStyle");
}

} // namespace

MRToolBar::MRToolBar(QMainWindow *mainWindow, QDomNode &description, QMap<QString, QString> skin,
                     ToolBarAlignment alignment)
{
    registerBoundaryTypes();
    // Without a window nobody would own the toolbar.
    if (!mainWindow)
        return;

    m_toolBar = new NewToolBar(mainWindow, description, skin, alignment);
    connectToolBar();
}

MRToolBar::~MRToolBar() = default;

MRToolBar *MRToolBar::InitToolBar(QMainWindow *mainWindow, QDomNode &description,
                                  QMap<QString, QString> skin, ToolBarAlignment alignment)
{
    return new MRToolBar(mainWindow, description, skin, alignment);
}

void MRToolBar::connectToolBar()
{
    connect(this, &MRToolBar::Inner_DoSetControlUsableState, m_toolBar,
            &NewToolBar::DoSetControlUsableStateSlot);
    connect(this, &MRToolBar::Inner_DoSetControlCheckedState, m_toolBar,
            &NewToolBar::DoSetControlCheckedStateSlot);
    connect(this, &MRToolBar::Inner_DoSetControlVisibleState, m_toolBar,
            &NewToolBar::DoSetControlVisibleStateSlot);
    connect(this, &MRToolBar::Inner_DoSetTotalPage, m_toolBar, &NewToolBar::DoSetTotalPageSlot);
    connect(this, &MRToolBar::Inner_DoSetPageNum, m_toolBar, &NewToolBar::DoSetPageNumSlot);
    connect(this, &MRToolBar::Inner_DoSetZoomMode, m_toolBar, &NewToolBar::DoSetZoomModeSlot);
    connect(this, &MRToolBar::Inner_DoUpdateRecentFile, m_toolBar,
            &NewToolBar::DoUpdateRecentFileSlot);
    connect(this, &MRToolBar::Inner_DoSetBackgound, m_toolBar, &NewToolBar::DoSetBackgoundSlot);
    connect(this, &MRToolBar::Inner_DoSetSkinStyle, m_toolBar, &NewToolBar::DoSetSkinStyleSlot);

    connect(m_toolBar, &NewToolBar::DoGotoPage, this, &MRToolBar::DoGotoPage);
    connect(m_toolBar, &NewToolBar::DoActive, this, &MRToolBar::DoActive);
    connect(m_toolBar, &NewToolBar::DoDoubleActive, this, &MRToolBar::DoDoubleActive);
    connect(m_toolBar, &NewToolBar::DoOpenFile, this, &MRToolBar::DoOpenFile);
    connect(m_toolBar, &NewToolBar::DoSetZoomMode, this, &MRToolBar::DoSetZoomMode);
    connect(m_toolBar, &NewToolBar::DoSearchContent, this, &MRToolBar::DoSearchContent);
    connect(m_toolBar, &NewToolBar::DoSetBackground, this, &MRToolBar::DoSetBackground);
    connect(m_toolBar, &NewToolBar::DoRequestAuthority, this, &MRToolBar::DoRequestAuthority);
    connect(m_toolBar, &NewToolBar::DoTabShown, this, &MRToolBar::DoTabShown);
    connect(m_toolBar, &NewToolBar::DoStateChanged, this, &MRToolBar::DoStateChanged);
}

bool MRToolBar::GetCompositeVisible(QString objName)
{
    return m_toolBar && m_toolBar->GetCompositeVisible(objName);
}

bool MRToolBar::IsSupportByToolBar(QString objName)
{
    return m_toolBar && !objName.isEmpty() && m_toolBar->IsSupportByToolBar(objName);
}

bool MRToolBar::GetControlCheckedState(QString objName)
{
    return m_toolBar && m_toolBar->GetControlCheckState(objName);
}

QString MRToolBar::GetQuickAccessButtonList()
{
    return m_toolBar ? m_toolBar->GetQuickAccessButtonList() : QString();
}

QRect MRToolBar::GetControlGeometry(QString objName)
{
    return m_toolBar ? m_toolBar->GetControlGeometry(objName) : QRect();
}

QString MRToolBar::GetToolBarStyleSheet()
{
    return m_toolBar ? m_toolBar->GetToolBarStyleSheet() : QString();
}

bool MRToolBar::GetCompositeEnable(QString objName)
{
    return m_toolBar && m_toolBar->GetCompositeEnable(objName);
}

QString MRToolBar::GetToolBarState() const
{
    return m_toolBar ? m_toolBar->GetToolBarState() : QString();
}

void MRToolBar::Inner_DoGotoPageSlot(int pageNum)
{
    Q_EMIT DoGotoPage(pageNum);
}

void MRToolBar::Inner_DoActiveSlot(QString objName)
{
    Q_EMIT DoActive(objName);
}

void MRToolBar::Inner_DoDoubleActionSlot(QString objName)
{
    Q_EMIT DoDoubleActive(objName);
}

void MRToolBar::Inner_DoOpenFileSlot(QString fileName)
{
    Q_EMIT DoOpenFile(fileName);
}

void MRToolBar::Inner_DoSetZoomModeSlot(QString zmode)
{
    Q_EMIT DoSetZoomMode(zmode);
}

void MRToolBar::Inner_DoSearchContentSlot(SearchOption opt)
{
    Q_EMIT DoSearchContent(opt);
}

void MRToolBar::Inner_DoSetBackgroundSlot(BackgroundStyle style)
{
    Q_EMIT DoSetBackground(style);
}

void MRToolBar::DoSetControlUsableStateSlot(QString &objName, bool usable)
{
    Q_EMIT Inner_DoSetControlUsableState(objName, usable);
}

void MRToolBar::DoSetControlCheckedStateSlot(QString &objName, bool checked)
{
    Q_EMIT Inner_DoSetControlCheckedState(objName, checked);
}

void MRToolBar::DoSetZoomModeSlot(QString zmode)
{
    Q_EMIT Inner_DoSetZoomMode(zmode);
}

void MRToolBar::DoSetPageInfoSlot(int pageNum, int totalPage)
{
    const bool isDocumentOpen = pageNum != 0 && totalPage != 0;
    Q_EMIT Inner_DoSetTotalPage(isDocumentOpen ? QStringLiteral("/ %1").arg(totalPage)
                                               : clearedText);
    Q_EMIT Inner_DoSetPageNum(isDocumentOpen ? QString::number(pageNum) : clearedText);
}

void MRToolBar::DoUpdateRecentFileSlot(QStringList list)
{
    list.detach();
    Q_EMIT Inner_DoUpdateRecentFile(list);
}

void MRToolBar::DoSetControlVisibleStateSlot(QString &objName, bool visible)
{
    Q_EMIT Inner_DoSetControlVisibleState(objName, visible);
}

void MRToolBar::DoSetBackgroundSlot(BackgroundStyle style)
{
    Q_EMIT Inner_DoSetBackgound(style);
}

void MRToolBar::DoSetSkinStyleSlot(ToolBarSkinStyle style)
{
    style.detach();
    Q_EMIT Inner_DoSetSkinStyle(style);
}

void MRToolBar::DoResetToolbarSlot()
{
    if (m_toolBar)
        m_toolBar->ResetToolbarState();
}

bool MRToolBar::DoSetFocusSlot(const QString &objName)
{
    return m_toolBar && m_toolBar->SetControlFocus(objName);
}

void MRToolBar::DoSetScaleSlot(double factor)
{
    if (m_toolBar)
        m_toolBar->SetScale(factor);
}

void MRToolBar::DoSetControlTextSlot(QString &objName, QString text)
{
    if (m_toolBar)
        m_toolBar->SetControlText(objName, text);
}

void MRToolBar::DoSetControlToolTipSlot(QString &objName, QString tip)
{
    if (m_toolBar)
        m_toolBar->SetControlToolTip(objName, tip);
}

void MRToolBar::DoSetControlIconSlot(QString &objName, QIcon icon)
{
    if (m_toolBar)
        m_toolBar->SetControlIcon(objName, icon);
}

void MRToolBar::DoShowContextSlot(QString name, bool shown)
{
    if (m_toolBar)
        m_toolBar->ShowContext(name, shown);
}

void MRToolBar::DoShowTabSlot(QString &objName)
{
    if (m_toolBar)
        m_toolBar->ShowTab(objName);
}

void MRToolBar::DoFindCommandSlot()
{
    if (m_toolBar)
        m_toolBar->FindCommand();
}
