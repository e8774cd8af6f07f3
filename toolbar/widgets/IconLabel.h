// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QLabel>

/** A label that may show an icon, which it paints as that is at the moment. */
class IconLabel : public QLabel
{
public:
    using QLabel::QLabel;

    /** The label's pixmap is what the icon is now. Whatever replaces that is shown in its place. */
    void setIcon(const QIcon &icon, const QSize &size);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    qint64 pixmapKey() const;

    QIcon m_icon;
    QSize m_size;
    qint64 m_pixmapKey = 0; ///< Of the icon's.
};
