// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/CaptionRoom.h"

#include "toolbar/widgets/Panel.h"

#include <QFontMetrics>
#include <QVBoxLayout>

#include <algorithm>

QWidget *makeCaptionedContainer(QWidget *control)
{
    auto *container = new Panel;
    auto *layout = new QVBoxLayout(container);
    layout->setSpacing(1);
    layout->setContentsMargins(0, 2, 0, 0);
    layout->addWidget(control);
    container->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
    return container;
}

CaptionRoom::CaptionRoom(const QWidget *field)
    : QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Fixed)
    , m_field(field)
{
}

QSize CaptionRoom::sizeHint() const
{
    // Lines are higher in some languages, and the field's name is in that of the captions.
    const QFontMetrics metrics = m_field->fontMetrics();
    const QSize line = metrics.size(Qt::TextSingleLine, m_field->accessibleName());
    return {0, std::max(metrics.height(), line.height())};
}

QSize CaptionRoom::minimumSize() const
{
    return sizeHint();
}

QSize CaptionRoom::maximumSize() const
{
    return {QLAYOUTSIZE_MAX, sizeHint().height()};
}
