// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/state/ControlLists.h"

#include <QList>
#include <QPointer>
#include <QString>

class QWidget;
class TabButton;
struct Controller;

/** A control on show and the letters that lead to it. */
struct KeyTip
{
    QString letters;
    QPointer<QWidget> control;
    QPointer<QWidget> place; ///< Where the letters are shown: a field has its caption below it.
};

/** Finds the controls of the records that have key tips. */
class KeyTipTargets
{
public:
    KeyTipTargets(const QList<Controller *> &records, const ControlLists &lists);

    /** Of the top line: menus, quick access buttons, tabs and additional controls. */
    QList<KeyTip> ofTopLine() const;
    /** Of the row on show. */
    QList<KeyTip> ofRow() const;

    /** The page of the row on show; null if the tab has none. */
    QWidget *page() const;

private:
    /** A record of a row and whether it stands in a panel, whose buttons are other ones. */
    struct RowRecord
    {
        const Controller *record;
        bool isInGroup;
    };

    QWidget *topLineControl(const Controller &record, int position) const;
    QList<RowRecord> rowRecords(const QString &tab) const;
    QWidget *rowControl(const RowRecord &record, const QString &tab) const;
    const TabButton *tabOnShow() const;

    const QList<Controller *> &m_records;
    const ControlLists m_lists;
};
