// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/MRMainToolBar.h"

#include "toolbar/description/Names.h"
#include "toolbar/widgets/RoundedMenu.h"

#include <QEvent>
#include <QLayout>
#include <QStyle>
#include <QToolButton>

#include <algorithm>

MRMainToolBar::MRMainToolBar(QWidget *parent)
    : QToolBar(parent)
    , m_extension(findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly))
    , m_extensionName(m_extension ? m_extension->objectName() : QString())
{
    setProperty(Property::inToolBar, "true");
    RoundedMenu::prepareExtensionOf(this);
    nameExtension();
}

void MRMainToolBar::nameExtension()
{
    if (m_extension)
        m_extension->setAccessibleName(tr("更多"));
}

void MRMainToolBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        nameExtension();
    QToolBar::changeEvent(event);
}

bool MRMainToolBar::event(QEvent *event)
{
    const bool isHandled = QToolBar::event(event);
    if (event->type() == QEvent::LayoutRequest)
        showWhatHasRoom();
    return isHandled;
}

void MRMainToolBar::showWhatHasRoom()
{
    if (!m_extension || m_extension->isHidden() || layout()->sizeHint().width() > width())
        return;

    // Qt has hidden a control by widths that it took before they had changed, and does not
    // look again while the row keeps its own.
    layout()->invalidate();
    layout()->setGeometry(rect());
}

void MRMainToolBar::setFilled(bool filled)
{
    m_filled = filled;
    if (!m_extension)
        return;

    // Sheets address Qt's button for what has no room by its name, and Qt reads
    // the image of such a rule anew for each button and state. A row without controls needs none.
    m_extension->setObjectName(filled ? m_extensionName : QString());
    if (filled && m_extension->testAttribute(Qt::WA_WState_Polished)) {
        m_extension->style()->unpolish(m_extension);
        m_extension->style()->polish(m_extension);
    }
}

QAction *actionOn(const QToolBar *bar, const QString &name)
{
    const QList<QAction *> actions = bar ? bar->actions() : QList<QAction *>();
    const auto found = std::find_if(actions.begin(), actions.end(), [&name](const QAction *action) {
        return action->objectName() == name;
    });
    return found == actions.end() ? nullptr : *found;
}

QWidget *buttonOn(const QToolBar *bar, const QString &name)
{
    QAction *action = actionOn(bar, name);
    return action ? bar->widgetForAction(action) : nullptr;
}
