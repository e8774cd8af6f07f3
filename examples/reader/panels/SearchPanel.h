// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "panels/TextSearch.h"

#include <QDockWidget>
#include <QElapsedTimer>

class PageView;
class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QPushButton;

/**
 * Searches the document in the background and shows the hits on the pages and in a list as they
 * are found.
 */
class SearchPanel : public QDockWidget
{
    Q_OBJECT

public:
    SearchPanel(const Document &document, PageView &view, QWidget *parent = nullptr);

    /** Goes to the first or next hit without showing or hiding the dock. */
    void search(const SearchOption &option);
    void searchWord(const QString &word);
    /** Shows the dock and focuses its field. */
    void open();

Q_SIGNALS:
    /** Emitted with one line about the hits. */
    void found(const QString &message);

private:
    void buildContent();
    void goToHit(int index);
    void showHits();
    void listHits(int index, const QStringList &surroundings);
    void showProgress();
    void say();
    QString resultText() const;
    void forget();

    const Document &m_document;
    PageView &m_view;
    TextSearch m_search{this};
    QElapsedTimer m_clock;    ///< Since the search began.
    bool m_hasOpened = false; ///< By itself for this search, or before it.
    QLineEdit *m_field;
    QLabel *m_label;
    QProgressBar *m_progress;
    QPushButton *m_stopButton;
    QListWidget *m_list;
};
