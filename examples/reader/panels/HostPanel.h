// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <toolbar/ToolBarTypes.h>

#include <QWidget>

class QComboBox;
class QHBoxLayout;
class QPushButton;

/** Controls of the host outside of the toolbar: the looks of the skin and settings of the pens. */
class HostPanel : public QWidget
{
    Q_OBJECT

public:
    explicit HostPanel(QWidget *parent = nullptr);

    /** The skin map for the constructor of the toolbar. */
    static ToolBarSkinStyle firstSkin();

    /** Shows which scheme is in force; nobody is told. */
    void showScheme(const QString &scheme);

Q_SIGNALS:
    void skinChosen(const ToolBarSkinStyle &skin);
    /** One of the skin map's words for how light the toolbar is. */
    void schemeChosen(const QString &scheme);
    /** One of the skin map's words for how large the toolbar is. */
    void scaleChosen(const QString &scale);
    void handwritingAsked();

private:
    QPushButton *addSkinButton(QHBoxLayout *row, const QColor &colour,
                               const ToolBarSkinStyle &skin);
    void fillChoices();
    void nameSchemes();

    QComboBox *m_schemes;
    QComboBox *m_scales;
};
