#pragma once

#include <QString>

#include <functional>

class QAbstractButton;
class QAction;
class QObject;
class QWidget;

/** The places where a control of some name may stand, in the order in which they are searched. */
enum class ControlPlace
{
    Field,          ///< Container of the zoom box or of the page field.
    Action,         ///< Action of a tool row or menu.
    Additional,     ///< Button at the right end of the top line.
    GroupButton,    ///< Button of a button group.
    QuickEntry,     ///< Action of the quick access bar.
    QuickSetButton, ///< Button that customises the quick access bar.
    DropButton,     ///< Split button of a tool row.
    Tab,            ///< Tab button.
    AppButton,      ///< Application button or set button.
    AppMenu         ///< Entry of the set button's menu that opens a sub-menu.
};

/** How the search for a name goes on after a control has been visited. */
enum class VisitResult
{
    Next,      ///< With the next control.
    NextPlace, ///< With the next place; the rest of this one is left out.
    Stop
};

/** What is asked of, or done to, the controls that a name addresses. */
class ControlVisitor
{
public:
    virtual ~ControlVisitor() = default;

    virtual VisitResult visit(ControlPlace place, QObject *control) = 0;
};

/** Sets one state, enabled or visible, of the controls of a name. */
class StateSetter : public ControlVisitor
{
public:
    /** What is done; the rules in which the two states differ. */
    struct Operation
    {
        std::function<void(ControlPlace, QAction *)> setAction;
        std::function<void(QWidget *)> setWidget;
        std::function<bool(QObject *)> acceptsGroupButton;
        bool isFirstOfPlaceOnly; ///< Of the additional controls and of the group buttons.
        /** Leaves the tab if it is the one on show; returns whether it was. */
        std::function<bool(const QAbstractButton *)> leaveTab;
    };

    explicit StateSetter(Operation operation);

    VisitResult visit(ControlPlace place, QObject *control) override;

private:
    Operation m_operation;
    bool m_isHit = false;
    bool m_hasLeftTab = false;
};

/** The states that can be asked for. */
enum class ControlReport
{
    Enabled,
    Visible
};

/** Reports one state of the control of a name: false if there is none. */
class StateReporter : public ControlVisitor
{
public:
    StateReporter(const QString &name, ControlReport report);

    VisitResult visit(ControlPlace place, QObject *control) override;
    bool result() const { return m_result; }

    static bool read(const QObject *control, ControlReport report);

private:
    QString m_name;
    ControlReport m_report;
    bool m_result = false;
    bool m_isTab = false;
};
