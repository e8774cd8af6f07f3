// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QMainWindow;

/**
 * Watches what is typed into the page field of the toolbar, which shows the current page again for
 * a page that there is not, but reports nothing then.
 */
class PageFieldWatcher : public QObject
{
    Q_OBJECT

public:
    explicit PageFieldWatcher(QMainWindow *window);

    /** To be called when the toolbar has made controls. */
    void follow();

Q_SIGNALS:
    /** The user has entered that page; it need not exist. */
    void entered(int page);
    /** The field has lost the focus, whatever was typed into it. */
    void left();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QMainWindow *m_window;
};
