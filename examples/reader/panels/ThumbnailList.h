// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Document.h"
#include "pages/PageCache.h"

#include <QListView>
#include <QPixmap>

/** A list of the pages as small pictures, which are painted when they come into sight. */
class ThumbnailList : public QListView
{
    Q_OBJECT

public:
    explicit ThumbnailList(const Document &document, QWidget *parent = nullptr);

    /** Marks the page as the current one and scrolls to it. */
    void showPage(int page);

Q_SIGNALS:
    void pageChosen(int page);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    class Pages;
    class Delegate;

    /** The page with its marks; only paper until its content is painted. */
    QPixmap thumbnail(int page);

    const Document &m_document;
    PageCache m_cache;
};
