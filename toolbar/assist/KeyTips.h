// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/assist/AltKey.h"
#include "toolbar/assist/KeyTipTargets.h"

#include <QObject>
#include <QPointer>

class KeyTipLayer;
class TabButton;

/**
 * The use of the toolbar by letters: Alt shows one at each control of the top line, that of a tab
 * opens it and shows those of its row, and that of any other control uses it.
 */
class KeyTips : public QObject
{
    Q_OBJECT

public:
    /** @param records of the toolbar; they must outlive this, as must what the lists refer to */
    KeyTips(QWidget *toolBar, QWidget *window, const QList<Controller *> &records,
            const ControlLists &lists);
    ~KeyTips() override;

private:
    void toggle();
    void showTopLine();
    void showRow();
    void show(const QList<KeyTip> &tips);
    void type(QChar letter);
    void stepBack();
    void end();
    void use(const KeyTip &tip);
    void open(TabButton *tab);

    QWidget *m_toolBar;
    QWidget *m_window;
    KeyTipTargets m_targets;
    AltKey m_key;
    QPointer<KeyTipLayer> m_layer; ///< While tips are shown.
    QList<KeyTip> m_tips;
    QString m_typed;
    bool m_isInRow = false;
};
