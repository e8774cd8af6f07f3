// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QToolBar>

class QToolButton;

/** The tool row of one tab. It knows whether its controls have been made yet. */
class MRMainToolBar : public QToolBar
{
    Q_OBJECT

public:
    explicit MRMainToolBar(QWidget *parent = nullptr);

    bool isFilled() const { return m_filled; }
    void setFilled(bool filled);

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void nameExtension();
    void showWhatHasRoom();

    QToolButton *m_extension;
    QString m_extensionName;
    bool m_filled = false;
};

/** The first action of that name on a bar; null without one. */
QAction *actionOn(const QToolBar *bar, const QString &name);
/** What the bar shows for it. On a row that fits, that is no action of the command's own. */
QWidget *buttonOn(const QToolBar *bar, const QString &name);
