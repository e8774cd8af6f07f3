// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/assist/KeyTips.h"

#include "toolbar/assist/KeyTipLayer.h"
#include "toolbar/widgets/FocusEntry.h"
#include "toolbar/widgets/MRMenuButton.h"
#include "toolbar/widgets/TabButton.h"

#include <QAction>
#include <QMenu>
#include <QTimer>
#include <QToolButton>

#include <algorithm>

namespace {

/** A menu that is opened by keys has its first entry selected. It runs an event loop meanwhile. */
void selectFirstWhenOpen(QMenu *menu)
{
    QTimer::singleShot(0, menu, [menu] {
        const QList<QAction *> entries = menu->actions();
        const auto first = std::find_if(entries.begin(), entries.end(), [](const QAction *entry) {
            return entry->isVisible() && entry->isEnabled() && !entry->isSeparator();
        });
        if (menu->isVisible() && !menu->activeAction() && first != entries.end())
            menu->setActiveAction(*first);
    });
}

void useButton(QAbstractButton *button)
{
    auto *toolButton = qobject_cast<QToolButton *>(button);
    auto *pushButton = qobject_cast<QPushButton *>(button);
    auto *menuButton = qobject_cast<MRMenuButton *>(button);
    if (menuButton && menuButton->GetMenu()) {
        selectFirstWhenOpen(menuButton->GetMenu());
        menuButton->click();
    } else if (toolButton && toolButton->menu()) {
        selectFirstWhenOpen(toolButton->menu());
        toolButton->showMenu();
    } else if (pushButton && pushButton->menu()) {
        selectFirstWhenOpen(pushButton->menu());
        pushButton->showMenu();
    } else {
        button->click();
    }
}

} // namespace

KeyTips::KeyTips(QWidget *toolBar, QWidget *window, const QList<Controller *> &records,
                 const ControlLists &lists)
    : m_toolBar(toolBar)
    , m_window(window)
    , m_targets(records, lists)
    , m_key(window, nullptr)
{
    connect(&m_key, &AltKey::pressed, this, &KeyTips::toggle);
}

KeyTips::~KeyTips()
{
    end();
}

void KeyTips::toggle()
{
    if (m_layer)
        end();
    else if (m_toolBar->isVisible() && m_toolBar->isEnabled())
        showTopLine();
}

void KeyTips::showTopLine()
{
    m_isInRow = false;
    show(m_targets.ofTopLine());
}

void KeyTips::showRow()
{
    m_isInRow = true;
    show(m_targets.ofRow());
}

void KeyTips::show(const QList<KeyTip> &tips)
{
    m_tips = tips;
    m_typed.clear();
    if (tips.isEmpty()) {
        end();
        return;
    }
    if (!m_layer) {
        m_layer = new KeyTipLayer(m_window->window(), m_toolBar);
        connect(m_layer, &KeyTipLayer::typed, this, &KeyTips::type);
        connect(m_layer, &KeyTipLayer::steppedBack, this, &KeyTips::stepBack);
        connect(m_layer, &KeyTipLayer::left, this, &KeyTips::end);
    }
    // First, so that the name is there when the focus is read out.
    m_layer->present(tips);
    m_layer->takeFocus();
}

void KeyTips::type(QChar letter)
{
    const QString typed = m_typed + letter;
    const auto isMeant = [&typed](const KeyTip &tip) { return tip.letters.startsWith(typed); };
    const auto found = std::find_if(m_tips.begin(), m_tips.end(), isMeant);
    if (found == m_tips.end()) {
        end();
    } else if (found->letters == typed) {
        const KeyTip tip = *found;
        use(tip);
    } else {
        m_typed = typed;
        m_layer->narrow(typed);
    }
}

void KeyTips::stepBack()
{
    if (!m_typed.isEmpty()) {
        m_typed.clear();
        m_layer->narrow({});
    } else if (m_isInRow) {
        showTopLine();
    } else {
        end();
    }
}

void KeyTips::end()
{
    if (!m_layer)
        return;
    KeyTipLayer *layer = m_layer;
    m_layer = nullptr;
    m_tips.clear();
    layer->disconnect(this);
    layer->dismiss();
}

void KeyTips::use(const KeyTip &tip)
{
    const QPointer<QWidget> control = tip.control;
    if (!control || !control->isEnabled() || !control->isVisible()) {
        m_typed.clear();
        m_layer->narrow({});
        return;
    }
    if (auto *tab = dynamic_cast<TabButton *>(control.data())) {
        open(tab);
        return;
    }

    const QPointer<QWidget> page = m_targets.page();
    // The focus goes back first; whoever hears of it may delete any of these.
    end();
    auto *button = qobject_cast<QAbstractButton *>(control);
    // Not within the key, as a menu and a command may run an event loop.
    if (button)
        QTimer::singleShot(0, button, [button] { useButton(button); });
    else if (page && control)
        FocusEntry::enterControl(page, control->objectName());
}

void KeyTips::open(TabButton *tab)
{
    const QPointer<KeyTips> self(this);
    // A click on the tab on show would fold the rows.
    if (!tab->areRowsShown() || !tab->isOnShow())
        tab->click();
    // The host may have deleted the toolbar, or done something that ends the tips.
    if (self && m_layer)
        showRow();
}
