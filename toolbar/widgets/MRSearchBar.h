// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/QtCompat.h"

#include <QLineEdit>
#include <QPointer>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QSpacerItem;

/**
 * A search field with buttons for both directions inside its right edge. The buttons appear with
 * the focus and stay while there is text; the field widens when it is clicked.
 */
class MRSearchBar : public QLineEdit
{
    Q_OBJECT

public:
    /**
     * @param label, previous, next stand inside the field; each may be null
     * @param mainBar whether this is the toolbar's main field: it then has the skin's margins, and
     *                its buttons come and go
     */
    MRSearchBar(QWidget *parent, QLabel *label, QPushButton *previous, QPushButton *next,
                bool mainBar);

    /** Sets the text shown while the field is empty, and a width in keeping with its length. */
    void setPlaceholderText(const QString &text);

    /** Sets another such text; a field that is in use stays as wide as that makes it. */
    void showPrompt(const QString &text);

    /** Whether the field changes its width; one that does not, and is no main bar, always shows
     *  its buttons. */
    void SetResizable(bool resizable);

    /** Whether DoActiveSetButton() reports the pointer; it does not unless set. */
    void SetRelational(bool relational);

    /** As wide as the skin or the placeholder allows. */
    QSize sizeHint() const override;

    /** Gives the field and what is inside it the lengths that the scale asks for. */
    void fitLengths();

    /** By how many pixels the field is wider at the moment than at rest. */
    int widening() const;

    /** Sets a dynamic property on the buttons, for the style sheet to select by. */
    void SetButtonProperty(const char *name, QString value);

Q_SIGNALS:
    /** The pointer has come over the field (true) or has left it. */
    void DoActiveSetButton(bool active);
    void DoShowSearchDirection(bool show); // Never emitted; kept for hosts that connect to it.

protected:
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void enterEvent(QtCompat::EnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    QList<QPushButton *> buttons() const;
    void fillLayout(QLabel *label);
    void setButtonsVisible(bool visible);
    void applyWidth(int pixelsPerCharacter);
    void applyRoomForButtons();
    int scaledLength(int designPixels) const;

    QHBoxLayout *m_layout;
    QSpacerItem *m_indent; ///< Before the first thing inside the field.
    QPointer<QPushButton> m_next;
    QPointer<QPushButton> m_previous;
    bool m_hovered = false;
    bool m_resizable = true;
    bool m_relational = false;
    float m_scale;
    bool m_mainBar;
    int m_pixelsPerCharacter = 0; ///< That the width was set by; 0 until it is.
    bool m_hasRoomForButtons = false;
    bool m_hasRestingMargin = false;
};
