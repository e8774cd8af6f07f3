// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/IconLabel.h"

#include <QPainter>
#include <QStyleOption>

void IconLabel::setIcon(const QIcon &icon, const QSize &size)
{
    m_icon = icon;
    m_size = size;
    setPixmap(m_icon.pixmap(m_size));
    m_pixmapKey = pixmapKey();
}

qint64 IconLabel::pixmapKey() const
{
    return pixmap(Qt::ReturnByValue).cacheKey();
}

void IconLabel::paintEvent(QPaintEvent *event)
{
    if (m_icon.isNull() || pixmapKey() != m_pixmapKey) {
        QLabel::paintEvent(event);
        return;
    }

    QPixmap picture = m_icon.pixmap(m_size);
    if (!isEnabled()) {
        QStyleOption option;
        option.initFrom(this);
        picture = style()->generatedIconPixmap(QIcon::Disabled, picture, &option);
    }
    QPainter painter(this);
    drawFrame(&painter);
    style()->drawItemPixmap(&painter, contentsRect(),
                            QStyle::visualAlignment(layoutDirection(), alignment()), picture);
}
