// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/widgets/TabButton.h"

#include <QColor>

class Appearance;
class QStyleOptionButton;

/**
 * The tab of a context: the host shows it while something is selected. It is visible while its
 * context is shown, unless it is hidden itself, and it is tinted.
 */
class ContextTab : public TabButton
{
public:
    /**
     * @param page       see TabButton
     * @param context    the name that the host shows it by
     * @param colour     what it is tinted with; an invalid one stands for the accent
     * @param appearance of the toolbar, which has the accent
     */
    ContextTab(const Page &page, const QString &context, const QColor &colour,
               const Appearance &appearance);

    const QString &context() const { return m_context; }
    bool isContextShown() const { return m_isContextShown; }
    void setContextShown(bool isShown);

    QSize sizeHint() const override;

    /** Shows or hides the tab itself; it stays hidden while its context is. */
    void setVisible(bool isVisible) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Colours
    {
        QColor ground;
        QColor line;
        QColor text;
    };

    Colours colours(const QStyleOptionButton &option) const;
    /** The ground of the line of the tabs. */
    QColor ground() const;
    void drawLine(QPainter &painter, const QRectF &bevel, const QColor &colour) const;
    void drawLabel(QPainter &painter, const QRect &bevel, const QPalette &palette);

    const QString m_context;
    const QColor m_colour;
    const Appearance &m_appearance;
    bool m_isContextShown = false;
    bool m_isWanted = false; ///< As it would be shown without a context.
};
