// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/TopLine.h"

#include "toolbar/description/Names.h"
#include "toolbar/skin/Skin.h"

#include <QAbstractButton>
#include <QFrame>
#include <QHBoxLayout>
#include <QToolBar>

namespace {

/** Room between two groups of the top line. */
void addSpacer(QHBoxLayout *layout, int width)
{
    constexpr int height = 20;
    layout->addItem(new QSpacerItem(width, height, QSizePolicy::Minimum, QSizePolicy::Minimum));
}

void addPresent(QHBoxLayout *layout, QWidget *widget, Qt::Alignment alignment)
{
    if (widget)
        layout->addWidget(widget, 0, alignment);
}

QFrame *makeSeparatorLine()
{
    auto *line = new QFrame;
    line->setObjectName(Part::topSeparator);
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Plain);
    return line;
}

} // namespace

QHBoxLayout *TopLine::makeCommands(const QList<QWidget *> &appButtons, QToolBar *quickAccessBar,
                                   QWidget *customiseButton)
{
    const bool isCompact = Skin::isLum();
    auto *layout = new QHBoxLayout;
    layout->setContentsMargins(isCompact ? 7 : 0, 0, 0, 0);
    layout->setSpacing(isCompact ? 0 : 4);
    for (QWidget *button : appButtons)
        layout->addWidget(button, 0, Qt::AlignLeft);
    if (isCompact) {
        addSpacer(layout, 6);
        layout->addWidget(makeSeparatorLine());
        addSpacer(layout, 6);
    } else {
        addSpacer(layout, 8);
    }

    addPresent(layout, quickAccessBar, Qt::AlignHCenter);
    if (isCompact)
        addSpacer(layout, 2);
    addPresent(layout, customiseButton, Qt::AlignLeft);
    if (isCompact)
        addSpacer(layout, 16);
    else
        layout->addStretch();
    return layout;
}

QHBoxLayout *TopLine::makeTabs(const QList<QAbstractButton *> &tabs)
{
    auto *layout = new QHBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Skin::isLum() ? 4 : 0);
    for (QAbstractButton *tab : tabs)
        layout->addWidget(tab, 0, Qt::AlignCenter);
    return layout;
}

QHBoxLayout *TopLine::makeSearch(QWidget *searchField, QWidget *setButton,
                                 const QList<QWidget *> &additionalControls)
{
    auto *layout = new QHBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(3);
    layout->addStretch();
    addPresent(layout, searchField, Qt::AlignHCenter);
    addPresent(layout, setButton, Qt::AlignRight);
    for (QWidget *control : additionalControls)
        layout->addWidget(control, 0, Qt::AlignRight);
    addSpacer(layout, 5);
    return layout;
}
