// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Use.h"

#include "toolbar/MRToolBar.h"
#include "toolbar/NewToolBar.h"
#include "toolbar/widgets/MRMenuButton.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDomDocument>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QTest>
#include <QToolButton>

namespace {

/** Guarded pointers, because the use of one object may delete others. */
template <typename Object>
QList<QPointer<Object>> guarded(const QObject *parent)
{
    const QList<Object *> objects = parent->findChildren<Object *>();
    return {objects.begin(), objects.end()};
}

/** Whether a click runs the event loop of a menu, which ends only when the user closes the menu. */
bool opensMenu(const QAbstractButton *button)
{
    const auto *pushButton = qobject_cast<const QPushButton *>(button);
    return qobject_cast<const MRMenuButton *>(button) || qobject_cast<const QToolButton *>(button)
           || (pushButton && pushButton->menu());
}

void clickAndOpenMenus(const QObject *toolBar)
{
    for (const auto &button : guarded<QAbstractButton>(toolBar)) {
        if (button && !opensMenu(button))
            button->click();
    }
    for (const auto &menu : guarded<QMenu>(toolBar)) {
        if (!menu)
            continue;
        menu->popup(QPoint());
        QTest::keyClick(menu, Qt::Key_Down);
        menu->close();
    }
}

void fire(MRToolBar &facade, const QObject *toolBar)
{
    for (const auto &action : guarded<QAction>(toolBar)) {
        if (!action)
            continue;
        QString name = action->objectName();
        facade.DoSetControlUsableStateSlot(name, true);
        action->activate(QAction::Hover);
        // Twice: the first trigger of an unavailable control is not reported, and the second
        // trigger may complete a double click.
        action->activate(QAction::Trigger);
        action->activate(QAction::Trigger);
    }
}

void type(const QObject *toolBar)
{
    for (const auto &field : guarded<QLineEdit>(toolBar)) {
        for (const char *text : {"", "7", "37.5%", "99999999999999999999"}) {
            field->setText(text);
            QTest::keyClick(field, Qt::Key_Return);
            if (!field)
                break;
        }
    }
    for (const auto &box : guarded<QComboBox>(toolBar)) {
        for (int i = 0; i < std::min(box->count(), 4); ++i)
            box->setCurrentIndex(i);
    }
}

void setStates(MRToolBar &facade, QStringList names)
{
    names.removeAll(QString());
    names.removeDuplicates();
    for (QString name : std::as_const(names)) {
        for (const bool state : {false, true}) {
            facade.DoSetControlVisibleStateSlot(name, state);
            facade.DoSetControlCheckedStateSlot(name, state);
            facade.DoSetControlUsableStateSlot(name, state);
        }
        facade.GetCompositeEnable(name);
        facade.GetCompositeVisible(name);
        facade.GetControlCheckedState(name);
        facade.GetControlGeometry(name);
    }
}

} // namespace

void useEverything(MRToolBar &facade, QMainWindow &window, const QStringList &names)
{
    auto *toolBar = window.findChild<NewToolBar *>();
    toolBar->Inner_DoDelayLoadMenuSlot();
    facade.DoUpdateRecentFileSlot({"/a/b.ofd", QString()});
    facade.DoSetPageInfoSlot(2, 30);
    clickAndOpenMenus(toolBar);
    fire(facade, toolBar);
    type(toolBar);
    QStringList all = names;
    for (const auto &object : guarded<QObject>(toolBar))
        all.append(object->objectName());
    setStates(facade, all);
    window.resize(1, 1);
    facade.DoSetSkinStyleSlot({{"[MainColor]", "#123456"}});
    for (const char *mode : {"vzmode_50p", "vzmode_37p", "vzmode_fitpage"})
        facade.DoSetZoomModeSlot(mode);
    facade.DoSetBackgroundSlot(Background_Eyeguard);
    facade.GetQuickAccessButtonList();
    facade.DoSetSkinStyleSlot({{"toolbarstate", facade.GetToolBarState()}});
    QCoreApplication::processEvents();
    facade.DoResetToolbarSlot();
}

void useDescription(const QByteArray &xml, int skin, ToolBarAlignment alignment)
{
    QDomDocument document;
    if (!document.setContent(xml))
        return;
    NewToolBar::uiStyle = skin;
    {
        QMainWindow window;
        window.resize(700, 300);
        QDomElement root = document.documentElement();
        MRToolBar facade(&window, root, {}, alignment);
        QString any = QStringLiteral("any");
        facade.DoSetControlUsableStateSlot(any, true);
        window.show();
        QCoreApplication::processEvents();
        useEverything(facade, window);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}
