// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/ToolBarReport.h"

#include <toolbar/MRToolBar.h>

#include <QCoreApplication>

namespace {

/** The context of descriptions with tabs for the text that is selected. */
const QString textContext = QStringLiteral("text");

const QString originalMode = QStringLiteral("vzmode_original");

QStringList panelNames()
{
    return {QStringLiteral("vn_outline"),    QStringLiteral("vn_thumbnail"),
            QStringLiteral("vn_customtag"),  QStringLiteral("vn_bookmark"),
            QStringLiteral("vn_annotation"), QStringLiteral("vn_attachment")};
}

QStringList zoomButtonNames()
{
    return {originalMode, QStringLiteral("vzmode_fitwidth"), QStringLiteral("vzmode_fitheight"),
            QStringLiteral("vzmode_fitpage")};
}

/** Empty, which is the described tooltip, when there is nothing to tell. */
QString tellingWhat(const QString &tip, const QString &what)
{
    return what.isEmpty() ? QString() : tip.arg(what);
}

} // namespace

ToolBarReport::ToolBarReport(MRToolBar &toolBar, const CommandTable &commands)
    : m_toolBar(toolBar)
    , m_commands(commands)
{
}

void ToolBarReport::tellAll(const ReaderState &state)
{
    m_told = state;
    tellUsable(state);
    m_toolBar.DoShowContextSlot(textContext, state.hasSelection);
    tellTexts();
    tellPage();
    tellZoom();
    m_toolBar.DoSetBackgroundSlot(state.background);
    m_toolBar.DoUpdateRecentFileSlot(state.recentFiles);
    tellChecked(state);
}

void ToolBarReport::tellChanges(const ReaderState &state)
{
    const ReaderState before = m_told;
    m_told = state;
    tellUsable(state);
    if (before.undoText != state.undoText || before.redoText != state.redoText
        || before.isFullScreen != state.isFullScreen)
        tellTexts();
    if (before.hasSelection != state.hasSelection)
        m_toolBar.DoShowContextSlot(textContext, state.hasSelection);
    // A report replaces text that the user is typing, so it is sent only after a change.
    if (before.page != state.page || before.pageCount != state.pageCount)
        tellPage();
    if (before.zoomMode != state.zoomMode)
        tellZoom();
    if (before.background != state.background)
        m_toolBar.DoSetBackgroundSlot(state.background);
    if (before.recentFiles != state.recentFiles)
        m_toolBar.DoUpdateRecentFileSlot(state.recentFiles);
    tellChecked(state);
}

void ToolBarReport::tellFields()
{
    tellPage();
    tellZoom();
}

void ToolBarReport::tellUsable(const ReaderState &state)
{
    const QStringList names = m_commands.names();
    for (const QString &name : names) {
        QString target = name;
        m_toolBar.DoSetControlUsableStateSlot(target, m_commands.isUsable(name, state));
    }
}

void ToolBarReport::tellTexts()
{
    const QString undo = QCoreApplication::translate("ToolBarReport", "撤销：%1 (Ctrl+Z)");
    const QString redo = QCoreApplication::translate("ToolBarReport", "恢复：%1 (Ctrl+Y)");
    const QString leave = QCoreApplication::translate("ToolBarReport", "退出全屏");
    QString name = QStringLiteral("e_undo");
    m_toolBar.DoSetControlToolTipSlot(name, tellingWhat(undo, m_told.undoText));
    name = QStringLiteral("e_redo");
    m_toolBar.DoSetControlToolTipSlot(name, tellingWhat(redo, m_told.redoText));
    name = QStringLiteral("v_fullscreen");
    m_toolBar.DoSetControlTextSlot(name, m_told.isFullScreen ? leave : QString());
}

void ToolBarReport::tellChecked(const ReaderState &state)
{
    // Checking by name triggers the action, which works only while it is enabled.
    if (!state.isOpen)
        return;
    for (const QString &name : panelNames()) {
        if (name != state.panel)
            setChecked(name, false);
    }
    if (!state.panel.isEmpty())
        setChecked(state.panel, true);

    const bool isOriginal = state.zoomMode == QLatin1String("vzmode_100p");
    const QString zoomButton = isOriginal ? originalMode : state.zoomMode;
    for (const QString &name : zoomButtonNames()) {
        if (name != zoomButton)
            setChecked(name, false);
    }
    setChecked(zoomButton, true);
    setChecked(state.layoutMode, true);
    // Last, because checking any other control by name unchecks the shape button.
    setChecked(state.tool, true);
}

void ToolBarReport::tellPage()
{
    m_toolBar.DoSetPageInfoSlot(m_told.page, m_told.pageCount);
}

void ToolBarReport::tellZoom()
{
    m_toolBar.DoSetZoomModeSlot(m_told.zoomMode);
}

void ToolBarReport::setChecked(QString name, bool checked)
{
    m_toolBar.DoSetControlCheckedStateSlot(name, checked);
}
