// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>

class PeekShadow;
class QVBoxLayout;
class RowsItem;

/**
 * Lays the rows, while they are folded, over what is below the toolbar, until the user is done with
 * them. For that time the tool bar of the main window is higher than its place in the window's
 * layout, which hears nothing of it: the pages stay where they are.
 */
class RowPeek : public QObject
{
    Q_OBJECT

public:
    /**
     * @param toolBar owns it
     * @param layout  of the toolbar, with @p rows at its end
     */
    RowPeek(QWidget *toolBar, QVBoxLayout *layout, QWidget *rows);
    ~RowPeek() override;

    /** Shows the rows; returns false where there is no room below the toolbar. */
    bool begin();
    /** Hides them again; the focus goes back to where it was. */
    void end();
    bool isActive() const { return m_isActive; }

    /** Watches, meanwhile, for what ends it. */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool handleKey(QWidget *target, QEvent *event);
    void follow(QObject *watched, QEvent::Type type);
    bool endsPeek(const QWidget *hit) const;
    int wantedHeight() const;
    void place();
    void returnFocus();

    QWidget *m_toolBar;
    QPointer<QVBoxLayout> m_layout;
    QPointer<QWidget> m_rows;
    RowsItem *m_item;        ///< Owned by the layout; do not use it without.
    QPointer<QWidget> m_top; ///< The child of the window that the toolbar is in.
    QPointer<PeekShadow> m_shadow;
    QPointer<QWidget> m_previousFocus;
    int m_height = 0; ///< Of m_top as its window has laid it out.
    int m_number = 0; ///< Of peeks so far.
    bool m_isActive = false;
};
