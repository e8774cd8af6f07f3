// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <toolbar/ToolBarTypes.h>

#include <QWidget>

class QHBoxLayout;

/** The host's own controls beside the toolbar: the colours of the skin, and the pen settings. */
class HostPanel : public QWidget
{
    Q_OBJECT

public:
    explicit HostPanel(QWidget *parent = nullptr);

    /** The settings that a toolbar is constructed with. */
    static ToolBarSkinStyle firstSkin();

Q_SIGNALS:
    void skinChosen(const ToolBarSkinStyle &skin);
    void handwritingAsked();

private:
    void addSkinButton(QHBoxLayout *row, const QString &text, const QColor &colour,
                       const ToolBarSkinStyle &skin);
};
