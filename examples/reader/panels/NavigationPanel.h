// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Document.h"
#include "panels/TextWalk.h"

#include <QDockWidget>
#include <QHash>

class ListActions;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class QStackedWidget;
class ThumbnailList;

/** The dock with the navigation panels, identified by the names of their commands. */
class NavigationPanel : public QDockWidget
{
    Q_OBJECT

public:
    explicit NavigationPanel(const Document &document, QWidget *parent = nullptr);

    /** Shows the panel, or hides the dock if the panel is already shown. */
    void toggle(const QString &name);
    /** The name of the shown panel; empty while the dock is hidden. */
    QString shownPanel() const;
    /** Sets the page for new bookmarks and shows its thumbnail. */
    void setCurrentPage(int page);

    static QStringList names();

Q_SIGNALS:
    /** The user chose the page with that index. */
    void pageChosen(int page);
    /** The user chose an entry of the outline or a bookmark. */
    void placeChosen(const PagePlace &place);
    /** The user chose the mark with that identifier. */
    void markChosen(int id);
    /** The user wants a bookmark for the page with that index. */
    void bookmarkAsked(int page);
    void bookmarkRemovalAsked(int index);
    void markEditAsked(int id);
    void markRemovalAsked(int id);
    /** The user wants to open or to save the attached file with that index. */
    void attachmentOpenAsked(int index);
    void attachmentSaveAsked(int index);
    /** The user chose an indexed word. */
    void wordChosen(const QString &word);
    void shownPanelChanged();

private:
    QListWidget *addPanel(const QString &name);
    void showTexts();
    void addBookmarkButton();
    void addListActions();
    void nameListActions();
    void documentOpened();
    void refill();
    void fillOutline();
    void fillWords();
    void showWordCounts();
    void fillBookmarks();
    void fillMarks();
    void fillAttachments();
    void addPlaces(const QString &panel, const QList<NamedPlace> &places);
    void itemChosen(const QListWidgetItem *item);

    const Document &m_document;
    QStackedWidget *m_stack;
    QHash<QString, QListWidget *> m_lists; ///< Without the thumbnails.
    ThumbnailList *m_thumbnails;
    QPushButton *m_bookmarkButton;
    ListActions *m_bookmarkActions = nullptr;
    ListActions *m_markActions = nullptr;
    ListActions *m_attachmentActions = nullptr;
    QString m_panel;
    int m_currentPage = 0;
    std::shared_ptr<const QVector<int>> m_wordCounts; ///< Complete after the walk.
    TextWalk m_walk;
};
