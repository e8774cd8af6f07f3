// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/PageMenu.h"

#include <toolbar/MRToolBarCommands.h>

#include <QCoreApplication>
#include <QMenu>

namespace {

/** An entry, or a line without a command. */
struct Entry
{
    QString command;
    QString text;
    QString key;
};

struct PageMenuTexts
{
    Q_DECLARE_TR_FUNCTIONS(PageMenu)

public:
    static QVector<Entry> ofSelection()
    {
        return {{QStringLiteral("e_copy"), tr("复制"), QStringLiteral("Ctrl+C")},
                {},
                {QStringLiteral("tt_highlight"), tr("高亮"), {}},
                {QStringLiteral("tt_underline"), tr("下划线"), {}},
                {QStringLiteral("tt_deleteline"), tr("删除线"), {}},
                {},
                {QStringLiteral("e_unselect"), tr("取消选择"), QStringLiteral("Esc")}};
    }
    static QVector<Entry> ofView()
    {
        return {{QStringLiteral("v_prevview"), tr("后退"), QStringLiteral("Alt+Left")},
                {QStringLiteral("v_nextview"), tr("前进"), QStringLiteral("Alt+Right")},
                {},
                {QStringLiteral("e_selectall"), tr("全选"), QStringLiteral("Ctrl+A")},
                {},
                {QStringLiteral("v_zoomin"), tr("放大"), QStringLiteral("Ctrl++")},
                {QStringLiteral("v_zoomout"), tr("缩小"), QStringLiteral("Ctrl+-")},
                {QStringLiteral("vzmode_fitwidth"), tr("适合宽度"), {}},
                {QStringLiteral("vzmode_fitpage"), tr("适合页面"), {}},
                {},
                {QStringLiteral("f_property"), tr("属性"), {}}};
    }
};

} // namespace

void PageMenu::show(QWidget *parent, QPoint place, MRToolBarCommands &commands, bool hasSelection)
{
    auto *menu = new QMenu(parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto entries = hasSelection ? PageMenuTexts::ofSelection() : PageMenuTexts::ofView();
    for (const Entry &entry : entries) {
        if (entry.command.isEmpty()) {
            menu->addSeparator();
            continue;
        }
        // Only shown: the key is a shortcut of the window already.
        QAction *action = menu->addAction(entry.text + QChar(u'\t') + entry.key);
        action->setEnabled(commands.isUsable(entry.command));
        QObject::connect(action, &QAction::triggered, &commands,
                         [&commands, name = entry.command] { commands.run(name); });
    }
    menu->popup(place);
}
