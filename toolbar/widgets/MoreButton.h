// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QToolButton>

/** The button at the end of a row that opens the menu of what has moved there. */
class MoreButton : public QToolButton
{
    Q_OBJECT

public:
    /** @param menu stays its owner's */
    MoreButton(QMenu *menu, QWidget *parent);

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void showTexts();
};
