// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/MRToolBarExport.h"

#include <QPainterPath>
#include <QTimer>
#include <QWidget>

class QLabel;

/**
 * A speech bubble with a pointer, which closes itself two seconds after it was made.
 *
 * The host creates it, gives it its size, then its text, and places and shows it. Shown again
 * later, it closes at the next two-second tick.
 *
 * It takes the colours of a dark scheme from the toolbar in its window, or else from the one that
 * was last given a scheme; see ToolBarSkinStyle.
 */
class MRTOOLBAR_EXPORT CCR_ToolTipWidget : public QWidget
{
    Q_OBJECT

public:
    /** The shape of the pointer; any other value is drawn like the first. */
    enum Derection : int
    {
        DerectionDefault = 0,  ///< Upright on its left side, slanted on its right.
        DerectionMirrored = 1, ///< Upright on its right side, slanted on its left.
        DerectionUpright = 4   ///< A triangle that stands on the upper edge of the body.
    };
    Q_ENUM(Derection)

    /** Starts the two seconds. */
    explicit CCR_ToolTipWidget(QWidget *parent);

    /** Sets the text and fits the label to the bubble, which must have its final size by now. */
    void setLabelText(QString text);

    /** Chooses the shape of the pointer. */
    void setDerection(Derection derection);
    /** Where along the bubble's upper edge the pointer begins, in pixels. */
    void setStartPos(int startPos);
    /** Size of the pointer, in pixels. */
    void setTriangleInfo(int width, int height);

public Q_SLOTS:
    /** Closes the bubble. */
    void TimeOutCloseWidget();

protected:
    /** Draws the bubble. */
    void paintEvent(QPaintEvent *event) override;

private:
    QPainterPath slantedPath() const;
    QPainterPath uprightPath() const;

    QLabel *m_label;
    int m_startPos = 0;
    int m_triangleWidth = 0;
    int m_triangleHeight = 0;
    Derection m_derection = DerectionDefault;
    QTimer m_closeTimer;
};
