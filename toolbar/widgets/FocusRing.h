// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

/**
 * Draws a ring around the button that has the keyboard focus. It lies above the button, so that
 * neither the skin's sheet nor a sheet of the button's own can hide it, and nothing is laid out
 * anew when the focus moves.
 */
class FocusRing : public QObject
{
public:
    /** Serves all buttons below @p scope, which owns the ring. */
    explicit FocusRing(QWidget *scope);

private:
    void follow(QWidget *focused);

    QWidget *m_scope;
    QPointer<QWidget> m_ring;
};
