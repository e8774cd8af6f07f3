// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QToolButton;
class QWidget;

/**
 * The two forms of a button on a row that fits: with its text, or bare, as its icon alone. A button
 * without a text or without an icon has but one.
 */
class ButtonForm : public QObject
{
public:
    /** Gives a button its forms; it shows its text at first. The button owns the object. */
    static ButtonForm *give(QToolButton *button);
    /** That of the button; null if it never gives up its text. */
    static ButtonForm *of(const QWidget *button);
    /** The width of a button with its text, in pixels, whether it has forms or not. */
    static void setFullWidth(QWidget *button, int width);

    void setBareWidth(int width);
    /** What the button takes in that form, in pixels, whichever it has now. */
    int width(bool isBare) const;
    void take(bool isBare);

    /** Shows the text that the button has given up as its tooltip, if it has none. */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit ButtonForm(QToolButton *button);

    bool hasForms() const;
    int naturalWidth() const;
    void apply();

    QToolButton *m_button;
    Qt::ToolButtonStyle m_fullStyle;
    int m_fullWidth = 0; ///< 0 where the text decides.
    int m_bareWidth = 0;
    bool m_isBare = false;
};
