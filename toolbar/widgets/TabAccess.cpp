// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/TabAccess.h"

#include "toolbar/widgets/Mnemonic.h"
#include "toolbar/widgets/TabButton.h"

#include <QAccessibleWidget>

namespace {

/** A tab. Its name, its focus and its actions are those of the button that it is. */
class AccessibleTab : public QAccessibleWidget
{
public:
    explicit AccessibleTab(TabButton *tab)
        : QAccessibleWidget(tab, QAccessible::PageTab)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        if (kind == QAccessible::Name && text.isEmpty())
            return withoutMnemonic(tab()->text());
        if (kind == QAccessible::Accelerator && text.isEmpty())
            return tab()->shortcut().toString(QKeySequence::NativeText);
        return text;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = true;
        state.selected = tab()->isOnShow();
        state.pressed = tab()->isDown();
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names;
        if (tab()->isEnabled())
            names.append(tab()->isCheckable() ? toggleAction() : pressAction());
        return names + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &name) override
    {
        if (name != toggleAction() && name != pressAction())
            QAccessibleWidget::doAction(name);
        else if (tab()->isEnabled())
            tab()->animateClick(); // A toggle alone would leave the row as it is.
    }

private:
    TabButton *tab() const { return static_cast<TabButton *>(widget()); }
};

QAccessibleInterface *describe(const QString &className, QObject *object)
{
    // Qt asks about every object, once for each class that it is of.
    if (className == QLatin1String("QPushButton")) {
        auto *tab = dynamic_cast<TabButton *>(object);
        return tab ? new AccessibleTab(tab) : nullptr;
    }
    if (className == QLatin1String("Panel")) {
        auto *list = dynamic_cast<TabList *>(object);
        return list ? new QAccessibleWidget(list, QAccessible::PageTabList) : nullptr;
    }
    return nullptr;
}

} // namespace

void TabAccess::install()
{
    QAccessible::installFactory(&describe);
}
