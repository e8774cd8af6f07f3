#include "toolbar/ControlVisitor.h"

#include <QAbstractButton>
#include <QAction>

#include <utility>

StateSetter::StateSetter(Operation operation)
    : m_operation(std::move(operation))
{
}

VisitResult StateSetter::visit(ControlPlace place, QObject *control)
{
    const bool isAnswered = m_isHit && place >= ControlPlace::DropButton;
    if (isAnswered || (m_hasLeftTab && place > ControlPlace::Tab))
        return VisitResult::Stop;
    if (place == ControlPlace::GroupButton && !m_operation.acceptsGroupButton(control))
        return VisitResult::Next;

    if (auto *action = qobject_cast<QAction *>(control))
        m_operation.setAction(place, action);
    else
        m_operation.setWidget(static_cast<QWidget *>(control));

    switch (place) {
    case ControlPlace::Additional:
    case ControlPlace::GroupButton:
        m_isHit = true;
        return m_operation.isFirstOfPlaceOnly ? VisitResult::NextPlace : VisitResult::Next;
    case ControlPlace::QuickEntry:
    case ControlPlace::QuickSetButton:
        m_isHit = true;
        return VisitResult::NextPlace;
    case ControlPlace::Tab:
        if (m_operation.leaveTab(static_cast<QAbstractButton *>(control)))
            m_hasLeftTab = true;
        return VisitResult::Next;
    case ControlPlace::DropButton:
    case ControlPlace::AppMenu:
        return VisitResult::Stop;
    case ControlPlace::Field:
    case ControlPlace::Action:
    case ControlPlace::AppButton:
        break;
    }
    return VisitResult::Next;
}

StateReporter::StateReporter(const QString &name, ControlReport report)
    : m_name(name)
    , m_report(report)
{
}

VisitResult StateReporter::visit(ControlPlace place, QObject *control)
{
    switch (place) {
    case ControlPlace::Additional:
    case ControlPlace::GroupButton:
    case ControlPlace::QuickEntry:
    case ControlPlace::QuickSetButton:
        // Set by name, but not asked for by name, deliberately.
        return VisitResult::NextPlace;
    case ControlPlace::Action:
        // A name with "/" sets actions by a part of their names and asks for none of them.
        if (control->objectName() != m_name
            && control->objectName() != QLatin1String("menu_") + m_name)
            return VisitResult::Next;
        break;
    case ControlPlace::Tab:
        // Of several tabs of one name the last one answers.
        m_isTab = true;
        m_result = read(control, m_report);
        return VisitResult::Next;
    case ControlPlace::Field:
    case ControlPlace::DropButton:
    case ControlPlace::AppButton:
    case ControlPlace::AppMenu:
        break;
    }
    if (!m_isTab)
        m_result = read(control, m_report);
    return VisitResult::Stop;
}

bool StateReporter::read(const QObject *control, ControlReport report)
{
    const bool isAboutEnabled = report == ControlReport::Enabled;
    if (const auto *action = qobject_cast<const QAction *>(control))
        return isAboutEnabled ? action->isEnabled() : action->isVisible();
    const auto *widget = qobject_cast<const QWidget *>(control);
    return widget && (isAboutEnabled ? widget->isEnabled() : widget->isVisible());
}
