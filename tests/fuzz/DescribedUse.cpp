// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/fuzz/DescribedUse.h"

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

class DescribedToolBar
{
public:
    DescribedToolBar(const QDomDocument &document, ToolBarAlignment alignment)
    {
        QDomElement root = document.documentElement();
        m_window.resize(700, 300);
        m_facade = std::make_unique<MRToolBar>(&m_window, root, ToolBarSkinStyle(), alignment);
        m_toolBar = m_window.findChild<NewToolBar *>();
        setUsable("any", true);
        m_window.show();
        QCoreApplication::processEvents();
    }

    void use()
    {
        m_toolBar->Inner_DoDelayLoadMenuSlot();
        m_facade->DoUpdateRecentFileSlot({"/a/b.ofd", QString()});
        m_facade->DoSetPageInfoSlot(2, 30);
        click();
        openMenus();
        fire();
        type();
        setStates();
        m_window.resize(1, 1);
        m_facade->DoSetSkinStyleSlot({{"[MainColor]", "#123456"}});
        QCoreApplication::processEvents();
        m_facade->DoResetToolbarSlot();
    }

private:
    void setUsable(QString name, bool usable)
    {
        m_facade->DoSetControlUsableStateSlot(name, usable);
    }

    void click()
    {
        for (const auto &button : guarded<QAbstractButton>(m_toolBar)) {
            if (button && !opensMenu(button))
                button->click();
        }
    }

    void openMenus()
    {
        for (const auto &menu : guarded<QMenu>(m_toolBar)) {
            if (!menu)
                continue;
            menu->popup(QPoint());
            QTest::keyClick(menu, Qt::Key_Down);
            menu->close();
        }
    }

    void fire()
    {
        for (const auto &action : guarded<QAction>(m_toolBar)) {
            if (!action)
                continue;
            setUsable(action->objectName(), true);
            action->activate(QAction::Hover);
            // Twice: the first trigger of an unavailable control is not reported, and the second
            // trigger may complete a double click.
            action->activate(QAction::Trigger);
            action->activate(QAction::Trigger);
        }
    }

    void type()
    {
        for (const auto &field : guarded<QLineEdit>(m_toolBar)) {
            for (const char *text : {"", "7", "37.5%", "99999999999999999999"}) {
                field->setText(text);
                QTest::keyClick(field, Qt::Key_Return);
                if (!field)
                    break;
            }
        }
        for (const auto &box : guarded<QComboBox>(m_toolBar)) {
            for (int i = 0; i < std::min(box->count(), 4); ++i)
                box->setCurrentIndex(i);
        }
    }

    void setStates()
    {
        for (const auto &object : guarded<QObject>(m_toolBar)) {
            if (!object || object->objectName().isEmpty())
                continue;
            QString name = object->objectName();
            for (const bool state : {false, true}) {
                m_facade->DoSetControlVisibleStateSlot(name, state);
                m_facade->DoSetControlCheckedStateSlot(name, state);
                setUsable(name, state);
            }
            m_facade->GetCompositeEnable(name);
            m_facade->GetControlGeometry(name);
        }
    }

    QMainWindow m_window;
    std::unique_ptr<MRToolBar> m_facade;
    QPointer<NewToolBar> m_toolBar;
};

} // namespace

void useDescription(const QByteArray &xml)
{
    QDomDocument document;
    if (!document.setContent(xml))
        return;

    NewToolBar::uiStyle = static_cast<int>(xml.size() % 2);
    {
        DescribedToolBar toolBar(document, static_cast<ToolBarAlignment>(xml.size() % 3));
        toolBar.use();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}
