// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class QWidget;

/**
 * Gives a widget that is on no toolbar the palette of the scheme that is meant for it, from now on
 * and whenever that changes; see Appearance::coloursFor(). Light, the widget keeps its own palette.
 */
class SchemePalette : public QObject
{
    Q_OBJECT

public:
    /** @param widget owns it */
    explicit SchemePalette(QWidget *widget);

    /** A widget may be given another parent, and with it another toolbar. */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /** A style sheet of the widget or of a child as it was written. */
    struct Sheet
    {
        QPointer<QWidget> widget;
        QString text;
    };

    void apply();
    void collectSheets();

    QWidget *m_widget;
    QList<Sheet> m_sheets;
    bool m_isApplied = false;
};
