#include "toolbar/widgets/MRMainToolBar.h"

MRMainToolBar::MRMainToolBar(QWidget *parent)
    : QToolBar(parent)
{
    setProperty("intoolbar", "true");
}
