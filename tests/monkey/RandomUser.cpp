#include "tests/monkey/RandomUser.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QWheelEvent>

namespace {

template <typename Widget>
QList<QWidget *> shown(const QWidget &window)
{
    QList<QWidget *> widgets;
    const QList<Widget *> children = window.findChildren<Widget *>();
    for (Widget *child : children) {
        if (child->isVisible() && !child->isWindow() && !child->size().isEmpty())
            widgets.append(child);
    }
    return widgets;
}

int modifierKey(Qt::KeyboardModifier modifier)
{
    if (modifier == Qt::AltModifier)
        return Qt::Key_Alt;
    return modifier == Qt::ControlModifier ? Qt::Key_Control : 0;
}

} // namespace

RandomUser::RandomUser(RandomSource &random)
    : m_random(random)
{
}

QWidget *RandomUser::anyWidget(const QWidget &window)
{
    const int kind = m_random.below(8);
    QList<QWidget *> widgets;
    if (kind == 0)
        widgets = shown<QWidget>(window);
    else if (kind == 1)
        widgets = shown<QLineEdit>(window);
    else
        widgets = shown<QAbstractButton>(window);
    return widgets.isEmpty() ? nullptr : m_random.oneOf(widgets);
}

QPoint RandomUser::anyPlace(const QWidget &widget)
{
    return {m_random.below(widget.width()), m_random.below(widget.height())};
}

QString RandomUser::step(QWidget &window)
{
    constexpr int kinds = 10;
    const int kind = m_random.below(kinds);
    if (kind == 0)
        return pressKey(window);

    QWidget *widget = anyWidget(window);
    if (!widget)
        return QStringLiteral("nothing to use");
    const QString target = QLatin1Char(' ') + QLatin1String(widget->metaObject()->className())
                           + QLatin1Char(' ') + widget->objectName();
    switch (kind) {
    case 1:
        drag(widget);
        return QStringLiteral("drag") + target;
    case 2:
        turnWheel(*widget);
        return QStringLiteral("wheel") + target;
    case 3:
        hover(*widget);
        return QStringLiteral("hover") + target;
    case 4:
        type(window);
        return QStringLiteral("type");
    default:
        click(widget);
        return QStringLiteral("click") + target;
    }
}

void RandomUser::click(QPointer<QWidget> widget)
{
    // A menu may open in the first half, and the widget may be gone before the second.
    const QPoint place = anyPlace(*widget);
    QTest::mousePress(widget.data(), Qt::LeftButton, {}, place);
    if (widget)
        QTest::mouseRelease(widget.data(), Qt::LeftButton, {}, place);
    if (widget && m_random.oneIn(6)) {
        QTest::mousePress(widget.data(), Qt::LeftButton, {}, place);
        if (widget)
            QTest::mouseRelease(widget.data(), Qt::LeftButton, {}, place);
    }
}

void RandomUser::drag(QPointer<QWidget> widget)
{
    QTest::mousePress(widget.data(), Qt::LeftButton, {}, anyPlace(*widget));
    if (widget && !widget->size().isEmpty())
        QTest::mouseMove(widget.data(), anyPlace(*widget));
    if (widget && !widget->size().isEmpty())
        QTest::mouseRelease(widget.data(), Qt::LeftButton, {}, anyPlace(*widget));
}

void RandomUser::turnWheel(QWidget &widget)
{
    const QPoint place = anyPlace(widget);
    const int delta = m_random.oneIn(2) ? 120 : -120;
    const bool isSideways = m_random.oneIn(4);
    QWheelEvent event(place, widget.mapToGlobal(place), QPoint(),
                      isSideways ? QPoint(delta, 0) : QPoint(0, delta), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCursor::setPos(widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &event);
}

void RandomUser::hover(QWidget &widget)
{
    const QPoint place = anyPlace(widget);
    QCursor::setPos(widget.mapToGlobal(place));
    QTest::mouseMove(&widget, place);
}

QString RandomUser::pressKey(QWidget &window)
{
    static const QList<Qt::Key> keys{Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Space,
                                     Qt::Key_Escape, Qt::Key_Down,    Qt::Key_Up,     Qt::Key_Left,
                                     Qt::Key_Right,  Qt::Key_O,       Qt::Key_F10};
    static const QList<Qt::KeyboardModifier> modifiers{Qt::NoModifier, Qt::NoModifier,
                                                       Qt::AltModifier, Qt::ControlModifier};
    QPointer<QWidget> focused = QApplication::focusWidget();
    if (!focused || !window.isAncestorOf(focused))
        focused = &window;
    const Qt::Key key = m_random.oneOf(keys);
    const Qt::KeyboardModifier modifier = m_random.oneOf(modifiers);
    QTest::keyPress(focused.data(), key, modifier);
    // QTest would go on to release the modifier on a widget that the key has ended.
    for (const int released : {int(key), modifierKey(modifier)}) {
        QKeyEvent event(QEvent::KeyRelease, released, modifier);
        if (focused && released != 0)
            QApplication::sendEvent(focused, &event);
    }
    return QStringLiteral("key %1 %2").arg(key).arg(modifier);
}

void RandomUser::type(QWidget &window)
{
    static const QStringList texts{"7", "0", "12/9", "37.5", "5", "9000%", "abc", "..", "文字", ""};
    const QList<QWidget *> fields = shown<QLineEdit>(window);
    if (fields.isEmpty())
        return;
    const QPointer<QLineEdit> field = qobject_cast<QLineEdit *>(m_random.oneOf(fields));
    field->setFocus();
    field->setText(m_random.oneOf<QString>(texts));
    QTest::keyPress(field.data(), Qt::Key_Return);
    if (field)
        QTest::keyRelease(field.data(), Qt::Key_Return);
}

QString RandomUser::stepInPopup(QWidget &popup)
{
    auto *menu = qobject_cast<QMenu *>(&popup);
    if (!menu) {
        popup.close();
        return QStringLiteral("close list");
    }
    return stepInMenu(*menu);
}

QString RandomUser::stepInMenu(QMenu &menu)
{
    static const QList<Qt::Key> keys{Qt::Key_Down, Qt::Key_Up,     Qt::Key_Right,
                                     Qt::Key_Left, Qt::Key_Return, Qt::Key_Escape};
    const QList<QAction *> entries = menu.actions();
    QAction *entry = entries.isEmpty() ? nullptr : m_random.oneOf(entries);
    const QRect place = entry ? menu.actionGeometry(entry) : QRect();
    const int kind = m_random.below(6);
    if (kind < 2) {
        QTest::keyClick(&menu, m_random.oneOf(keys));
        return QStringLiteral("key in menu");
    }
    if (kind == 2 && place.isValid()) {
        QTest::mouseMove(&menu, place.center());
        return QStringLiteral("hover in menu");
    }
    if (kind == 3 && place.isValid()) {
        // The toolkit keeps a menu alive in its own events.
        QTest::mouseClick(&menu, Qt::LeftButton, {}, place.center());
        return QStringLiteral("choose ") + entry->objectName();
    }
    menu.close();
    return QStringLiteral("close menu");
}
