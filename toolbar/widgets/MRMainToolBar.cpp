#include "toolbar/widgets/MRMainToolBar.h"

MRMainToolBar::MRMainToolBar(QWidget *parent)
    : QToolBar(parent)
{
    setProperty("intoolbar", "true");
}

QSize MRMainToolBar::sizeHint() const
{
    return m_filled ? QToolBar::sizeHint() : QSize(0, 0);
}

QSize MRMainToolBar::minimumSizeHint() const
{
    return m_filled ? QToolBar::minimumSizeHint() : QSize(0, 0);
}
