// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/assist/KeyTipTargets.h"
#include "toolbar/widgets/Panel.h"

#include <QPointer>

class QKeyEvent;

/**
 * Shows key tips above a window, and takes the keys while they are shown. It has the focus then, as
 * a menu bar has while it is used by keys; so no field types the letters, no input method composes
 * them and no shortcut acts on them, and a screen reader reads them as the name of the focus.
 */
class KeyTipLayer : public Panel
{
    Q_OBJECT

public:
    /** @param toolBar whose scale, font and colours the tips have */
    KeyTipLayer(QWidget *window, const QWidget *toolBar);

    /** Takes the focus, which runs the host's code if it listens to the focus. */
    void takeFocus();
    /** Shows these tips instead of those before. */
    void present(const QList<KeyTip> &tips);
    /** Leaves only those that begin with what has been typed. */
    void narrow(const QString &typed);

    /** Gives the focus back and goes. */
    void dismiss();

    /** Where the tip of a control is; empty if nothing of the control is to be seen. */
    QRect badge(const KeyTip &tip) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void typed(QChar letter);
    void steppedBack();
    /** Something else is done now. */
    void left();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    bool takeShortcutKey(QKeyEvent *key);
    bool takeKey(QKeyEvent *key);
    void speak();

    const QWidget *m_toolBar;
    QPointer<QWidget> m_focusBefore;
    QList<KeyTip> m_tips;
    QString m_typed;
    bool m_isDismissed = false;
};
