// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "commands/EditCommands.h"
#include "commands/FileCommands.h"
#include "commands/LinkCommands.h"
#include "commands/ViewCommands.h"
#include "document/Document.h"
#include "pages/ZoomMode.h"
#include "shell/ReaderSettings.h"

#include <toolbar/MRToolBarCommands.h>

#include <QDomDocument>
#include <QMainWindow>

#include <memory>

class HostPanel;
class MRToolBar;
class NavigationPanel;
class PageView;
class QLabel;
class SearchPanel;
class SignalLog;

/** The main window of the reader: a toolbar made from a description, the pages, and docks. */
class ReaderWindow : public QMainWindow
{
    Q_OBJECT

public:
    /**
     * @param skin The name under which the state of the toolbar is stored; empty to always begin
     *             as the description says.
     */
    ReaderWindow(const QDomDocument &description, const QString &skin);
    ~ReaderWindow() override;

    /** Replaces the toolbar; the document and its view are not changed. */
    void setDescription(QDomDocument description);

    /** Makes the window as light or dark as one of ReaderScheme::names(). */
    void setScheme(const QString &scheme);

    void open(const QString &fileName) { openOrExplain(fileName, nullptr); }
    /** The same, with what would be shown when a file cannot be opened in refusal instead. */
    void openOrExplain(const QString &fileName, QString *refusal);
    /** Opens a generated document, which is not added to the recent files. */
    void openSample();

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    ReaderParts parts();
    void createDocks();
    void createToolBar(const QDomDocument &description);
    void removeToolBar();
    bool focusControl(const QString &name);
    ZoomMode shownZoom() const;
    void createCommands();
    void connectKeys();
    void returnToPages();
    void connectToolBar();
    void connectParts();
    void connectLinks();
    void followZoomBox();
    void readZoomBox(int index);
    void stateChanged();
    void updateTitle();

    const QString m_skin;
    ToolBarSkinStyle m_colours;
    QDomDocument m_description;
    ReaderSettings m_settings;
    QString m_scheme;
    Document m_document;
    PageView *m_view;
    NavigationPanel *m_navigation;
    SearchPanel *m_search;
    HandwritingSettings *m_handwriting;
    HostPanel *m_hostPanel;
    SignalLog *m_log;
    QLabel *m_place;

    MRToolBarCommands m_commands{nullptr};
    FileCommands m_fileCommands;
    ViewCommands m_viewCommands;
    EditCommands m_editCommands;
    LinkCommands m_linkCommands;
    std::unique_ptr<MRToolBar> m_toolBar;
};
