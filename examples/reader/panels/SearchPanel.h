// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "panels/TextSearch.h"

#include <QDockWidget>

class PageView;
class QLabel;
class QLineEdit;
class QListWidget;

/** Searches the document, shows the hits on the pages and, in its dock, as a list. */
class SearchPanel : public QDockWidget
{
    Q_OBJECT

public:
    SearchPanel(const Document &document, PageView &view, QWidget *parent = nullptr);

    /** Goes to a hit; the dock stays as it is. */
    void search(const SearchOption &option);
    void searchWord(const QString &word);
    /** Shows the dock with the cursor in its field. */
    void open();

Q_SIGNALS:
    /** One line about what was found. */
    void found(const QString &message);

private:
    void buildContent();
    void goToHit(int index);
    void showHits();
    void fillList();
    void forget();

    const Document &m_document;
    PageView &m_view;
    TextSearch m_search;
    QLineEdit *m_field;
    QLabel *m_label;
    QListWidget *m_list;
};
