// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "commands/EditCommands.h"
#include "commands/FileCommands.h"
#include "commands/LinkCommands.h"
#include "commands/ViewCommands.h"
#include "document/Document.h"
#include "shell/ReaderSettings.h"
#include "shell/Session.h"

#include <toolbar/MRToolBarCommands.h>

#include <QDomDocument>
#include <QMainWindow>

#include <functional>
#include <memory>

class BodyChooser;
class HostDock;
class MRToolBar;
class NavigationPanel;
class PageView;
class PageFieldWatcher;
class QLabel;
class QStackedWidget;
class SearchPanel;
class StartPage;

/** The main window of the reader: a toolbar made from a description, the pages, and docks. */
class ReaderWindow : public QMainWindow
{
    Q_OBJECT

public:
    /**
     * @param skin The name under which the state of the toolbar is stored; empty to always begin
     *             as the description says, and to keep nothing of the window.
     */
    ReaderWindow(const QDomDocument &description, const QString &skin);
    ~ReaderWindow() override;

    /** Opens files that the user has chosen; without it they are opened in this window. */
    using Opener = std::function<void(const QStringList &fileNames)>;
    void setOpener(const Opener &opener) { m_opener = opener; }

    /** Shows the panel for those who write hosts. */
    void addHostPanel();
    /** Replaces the toolbar; the document and its view are not changed. */
    void setDescription(QDomDocument description);

    /** Those on the screen. */
    static QList<ReaderWindow *> all();

    bool hasDocument() const { return m_document.isOpen(); }
    QString fileName() const { return m_document.fileName(); }
    void open(const QString &fileName) { openOrExplain(fileName, nullptr); }
    /** The same, with what would be shown when a file cannot be opened in refusal instead. */
    void openOrExplain(const QString &fileName, QString *refusal);
    /** Opens a generated document, which is not added to the recent files. */
    void openSample();
    static QString sampleName();
    /** Shows why a file was not opened. */
    void explain(const QString &refusal) { m_fileCommands.showRefusal(refusal); }

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    ReaderParts parts();
    void createToolBar(const QDomDocument &description);
    void removeToolBar();
    bool focusControl(const QString &name);
    void openFiles(const QStringList &fileNames);
    static void quit();
    void setScheme(const QString &scheme);
    void createCentre();
    QString shownZoom() const;
    void createCommands();
    void addZoomModes();
    void connectKeys();
    void returnToPages();
    void connectToolBar();
    void connectParts();
    void connectView();
    void connectLinks();
    void connectStartPage();
    void connectPageField();
    void followZoomBox();
    void readZoomBox(int index);
    void stateChanged();
    void showPagesOrStart();
    void showPage() const;
    void offerPageAgain();
    void updateTitle();
    void tellWhatIsMissing();

    const QString m_skin;
    ToolBarSkinStyle m_colours;
    QDomDocument m_description;
    const std::shared_ptr<ReaderSettings> m_settings = ReaderSettings::shared();
    Opener m_opener;
    bool m_isLeft = false; ///< The user was asked already what is to become of the document.
    Document m_document;
    PageView *m_view;
    StartPage *m_start;
    QStackedWidget *m_centre;
    NavigationPanel *m_navigation;
    SearchPanel *m_search;
    HandwritingSettings *m_handwriting;
    HostDock *m_host = nullptr;
    PageFieldWatcher *m_pageField;
    BodyChooser *m_bodies;
    QLabel *m_place;
    QString m_toldFault; ///< About the current page.
    int m_toldKinds = 0; ///< How many kinds of left out parts were told.
    Session m_session;

    MRToolBarCommands m_commands{nullptr};
    FileCommands m_fileCommands;
    ViewCommands m_viewCommands;
    EditCommands m_editCommands;
    LinkCommands m_linkCommands;
    std::unique_ptr<MRToolBar> m_toolBar;
};
