// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/TabMaker.h"

#include "toolbar/build/ControlFactory.h"
#include "toolbar/build/Presentation.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Names.h"
#include "toolbar/widgets/ContextTab.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/MRScrollWidget.h"
#include "toolbar/widgets/TabButton.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>

namespace {

Qt::Alignment rowAlignment(ToolBarAlignment alignment)
{
    switch (alignment) {
    case ToolBarLeft:
        return Qt::AlignLeft;
    case ToolBarRight:
        return Qt::AlignRight;
    case ToolBarCenter:
        break;
    }
    return Qt::AlignCenter;
}

TabButton *makeBareButton(const Controller &tab, const TabButton::Page &page,
                          const Appearance &appearance)
{
    if (tab.optIn().context.isEmpty())
        return new TabButton(page);
    // As it is described; a colour by another notation is none.
    const bool isColour =
        tab.optIn().contextcolour.size() == 7 && tab.optIn().contextcolour.startsWith('#');
    const QColor colour = isColour ? QColor(tab.optIn().contextcolour) : QColor();
    return new ContextTab(page, tab.optIn().context, colour, appearance);
}

void showTab(QPushButton *button, const Controller &tab, const Presentation &how)
{
    button->setText(how.text(tab));
    showIcon(button, how.iconByName(tab));
    showToolTipByName(button, tab, how);
}

void fitRow(MRMainToolBar *row, const Presentation &how)
{
    row->setIconSize(how.iconSize(24.0));
}

void fitArrows(MRScrollWidget *holder, const Presentation &)
{
    holder->fitArrows();
}

} // namespace

TabMaker::TabMaker(const ControlFactory &factory, ToolBarAlignment alignment)
    : m_factory(factory)
    , m_alignment(alignment)
{
}

bool TabMaker::isOpenAtFirst(const Controller &tab)
{
    return tab.checked && tab.optIn().context.isEmpty();
}

QPushButton *TabMaker::makeButton(const Controller &tab, const TabButton::Page &page,
                                  bool isOpen) const
{
    TabButton *button = makeBareButton(tab, page, m_factory.presentation().appearance());
    button->setProperty(Property::inToolBar, "true");
    m_factory.presentation().show<&showTab>(button, tab);
    addDisabledTip(button, tab, m_factory.presentation());
    button->setObjectName(tab.name);
    button->setProperty(Property::tabIndex, QByteArray::number(page.position).constData());
    button->setCheckable(tab.checkable);
    button->setChecked(isOpen);
    button->hide();
    button->setFlat(true);
    button->setProperty(Property::module, Module::tabButton);

    // The library has no use for it; it is there for hosts that look for a menu below the tab.
    m_factory.makeMenu(button, false);
    return button;
}

MRMainToolBar *TabMaker::makeRow(const Controller &tab, bool isOpen) const
{
    auto *row = new MRMainToolBar;
    row->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    row->setContextMenuPolicy(Qt::NoContextMenu);
    row->setObjectName(tab.name);
    row->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_factory.presentation().fit<&fitRow>(row);
    row->setAcceptDrops(false);
    row->setProperty(Property::module, Module::toolRow);
    row->setFilled(isOpen);
    return row;
}

QStackedWidget *TabMaker::makeStack(QWidget *parent)
{
    auto *stack = new QStackedWidget(parent);
    stack->setObjectName(Part::rowStack);
    stack->setEnabled(false);
    return stack;
}

QWidget *TabMaker::addPage(QStackedWidget *stack)
{
    auto *page = new QWidget(nullptr, Qt::FramelessWindowHint);
    page->setObjectName(Part::rowPage);
    stack->addWidget(page);
    return page;
}

MRMainToolBar *TabMaker::addRow(QWidget *page, const Controller &tab, bool isOpen) const
{
    auto *layout = new QHBoxLayout(page);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    MRMainToolBar *row = makeRow(tab, isOpen);
    auto *holder = new MRScrollWidget;
    holder->SetWidget(row, rowAlignment(m_alignment));
    layout->addWidget(holder);
    m_factory.presentation().fit<&fitArrows>(holder);
    return row;
}

QWidget *TabMaker::addExtraGroup(QWidget *page, QWidget *group, const Controller &tab)
{
    group->setObjectName(tab.name);
    group->setContentsMargins(0, 0, 22, 0);
    static_cast<QBoxLayout *>(page->layout())->addWidget(group, 0, Qt::AlignRight);
    return group;
}
