// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <toolbar/ToolBarTypes.h>

#include <QWidget>

class QHBoxLayout;

/** Controls of the host outside of the toolbar: colours of the skin and settings of the pens. */
class HostPanel : public QWidget
{
    Q_OBJECT

public:
    explicit HostPanel(QWidget *parent = nullptr);

    /** The skin map for the constructor of the toolbar. */
    static ToolBarSkinStyle firstSkin();

Q_SIGNALS:
    void skinChosen(const ToolBarSkinStyle &skin);
    void handwritingAsked();

private:
    void addSkinButton(QHBoxLayout *row, const QString &text, const QColor &colour,
                       const ToolBarSkinStyle &skin);
};
