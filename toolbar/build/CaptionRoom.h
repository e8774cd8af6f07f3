// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSpacerItem>

class QWidget;

/** A control of a row with room for a caption below it. */
QWidget *makeCaptionedContainer(QWidget *control);

/** As much room as a caption takes: a field without one stands level with those that have one. */
class CaptionRoom : public QSpacerItem
{
public:
    explicit CaptionRoom(const QWidget *field);

    // Asked anew each time: the field has its font only when the sheet has been applied.
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    QSize maximumSize() const override;

private:
    const QWidget *m_field;
};
