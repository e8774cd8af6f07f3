#pragma once

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPointer>

#include <utility>

class QAction;
class QWidget;

/**
 * Gives actions their key sequences: those that act, and those that a menu only shows beside its
 * entry.
 *
 * The toolkit lets an action act by its sequence wherever the action stands, on a tool row for
 * instance, or has it make a shortcut of the host ambiguous, so that neither acts. It can be held
 * back to a button of the action that has the focus, and there this object sees to the rest.
 */
class ShownShortcuts : public QObject
{
public:
    /** @param toolBar holds all buttons of the actions; becomes the owner */
    explicit ShownShortcuts(QWidget *toolBar);

    /** Gives the action a sequence that acts where the action stands. */
    void activate(QAction *action, const QKeySequence &sequence);

    /** Gives the action a sequence that is only shown, unless it is the one that acts already. */
    void show(QAction *action, const QKeySequence &sequence);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void keepFromActing(QAction *action);
    void setAside(const QWidget *focused);
    void putBack();

    QList<std::pair<QPointer<QAction>, QKeySequence>> m_setAside; ///< While a key is handled.
};
