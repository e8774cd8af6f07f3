// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/MRDropButton.h"

#include "toolbar/description/Names.h"
#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/widgets/ExtendMenuOwner.h"
#include "toolbar/widgets/HoverSheets.h"
#include "toolbar/widgets/Mnemonic.h"

#include <QMenu>

namespace {

// The texts are kept to the letter, deliberately; see HoverSheets.cpp.

constexpr char menuCopyLum[] =
    "QToolButton{height:%1em;transparent;padding-left:3px;} QToolButton::menu-indicator{"
    "image: url(:/mr_toolbar/Resources/lum/[arrow].svg);"
    " subcontrol-position: right center;} "
    "QToolButton::menu-button{border:1px solid transparent;}";

constexpr char menuCopyMarodi[] =
    "QToolButton{height:%2em;padding-left:4px;} QToolButton::menu-arrow{"
    "image: url(:/mr_toolbar/Resources/marodi/[arrow].svg);"
    " subcontrol-position: right center;top:0.1em;} QToolButton::menu-indicator{"
    "image: url(:/mr_toolbar/Resources/marodi/[arrow].svg);"
    " subcontrol-position: right center;top:0.1em;}";

QString menuCopySheet(double scale, const SchemeColours *colours)
{
    const bool isLum = Skin::isLum();
    // One marker each: the first text has only a %1, the second only a %2.
    const QString sheet = isLum ? QString::fromLatin1(menuCopyLum).arg(scale * 1.75)
                                : QString::fromLatin1(menuCopyMarodi).arg(scale * 2.0);
    return HoverSheets::filled(sheet, isLum, colours);
}

/** The name for those who cannot see the text is it without the room for the arrow. */
void showText(QToolButton *button, const QString &text)
{
    button->setText(text);
    button->setAccessibleName(withoutMnemonic(text).trimmed());
}

} // namespace

MRDropButton::MRDropButton(QWidget *, QWidget *parent, QString text, QString iconPath, QString,
                           QString)
    : SplitButton(parent)
    , m_owner(parent)
{
    showText(this, text);
    setIcon(QIcon(iconPath));
    setAutoRaise(false);
    connect(this, &QToolButton::clicked, this, [this] {
        // Pressing a button that is all menu has opened the menu already; a click that is not the
        // mouse's, a mnemonic's for instance, would open it once more.
        if (popupMode() != InstantPopup || !menu())
            DoCurrentActionSlot();
    });
    setMouseTracking(false);
}

QString MRDropButton::faceText(const QAction *entry) const
{
    return m_textSwitchable ? entry->text() + QStringLiteral("   ")
                            : QStringLiteral("    ") + entry->text();
}

void MRDropButton::takeFace(QAction *action)
{
    m_previousFace = m_face;
    m_face = {action, false};
    m_previousIcon = icon();
    if (!action->icon().isNull())
        setIcon(action->icon());

    m_previousText = text();
    showText(this, faceText(action));
    setCheckable(true);
    m_currentAction = action;
}

void MRDropButton::showFaceAgain(const QString &ownText, const QIcon &ownIcon)
{
    const auto show = [this, &ownText, &ownIcon](const Face &face, QString &text, QIcon &icon) {
        if (face.entry)
            text = faceText(face.entry);
        else if (face.isOwn)
            text = ownText;
        if (face.isOwn)
            icon = ownIcon;
        else if (face.entry && !face.entry->icon().isNull())
            icon = face.entry->icon();
    };
    show(m_previousFace, m_previousText, m_previousIcon);
    QString shownText = text();
    QIcon shownIcon = icon();
    show(m_face, shownText, shownIcon);
    showText(this, shownText);
    if (shownIcon.cacheKey() != icon().cacheKey())
        setIcon(shownIcon);
}

void MRDropButton::SetAction(QAction *action)
{
    if (!action)
        return;

    takeFace(action);
    Q_EMIT currentActionChanged();
}

void MRDropButton::DoSwitchSlot(QAction *action)
{
    if (!action)
        return;

    takeFace(action);
    setChecked(true);
    refreshToolBar();
    // After a choice from the menu a copy switches by itself, and must not do so twice: Reset()
    // would have nothing to go back to. So it hears of this switch when it has done that.
    QMetaObject::invokeMethod(this, &MRDropButton::currentActionChanged, Qt::QueuedConnection);
}

void MRDropButton::DoCurrentActionSlot()
{
    const QPointer<QAction> action = m_currentAction;
    if (!action || !action->isEnabled()) {
        showMenu();
        return;
    }

    // The host may do anything on a command, also delete the button.
    const QPointer<MRDropButton> self(this);
    action->activate(QAction::Trigger);
    if (action)
        action->setChecked(true);
    if (self)
        refreshToolBar();
}

void MRDropButton::Reset()
{
    if (!m_previousIcon.isNull())
        setIcon(m_previousIcon);
    if (!m_previousText.isEmpty())
        showText(this, m_previousText);
    m_face = m_previousFace;
    m_currentAction = nullptr;
    Q_EMIT currentActionChanged();
}

void MRDropButton::followFace(const MRDropButton &other)
{
    QAction *action = other.GetCurrentAction();
    if (action && action != m_currentAction)
        SetAction(action);
    else if (!action && m_currentAction)
        Reset();
    setCheckable(other.isCheckable());
    setChecked(other.isChecked());
}

void MRDropButton::refreshToolBar()
{
    auto *owner = dynamic_cast<ExtendMenuOwner *>(m_owner.data());
    if (m_updateToolBar && owner)
        owner->FlushExtendMenu();
}

QAction *MRDropButton::GetCurrentAction() const
{
    return m_currentAction;
}

void MRDropButton::SetTextSwitchable(bool switchable)
{
    m_textSwitchable = switchable;
    setMouseTracking(switchable);
}

void MRDropButton::SetUpdateToolbar(bool update)
{
    m_updateToolBar = update;
}

void MRDropButton::setPlace(const QAction *place)
{
    m_place = place;
}

void MRDropButton::setVisible(bool visible)
{
    // The row would hide the button while it is being shown, which leaves it half shown.
    if (!visible || !m_place || m_place->isVisible())
        SplitButton::setVisible(visible);
}

void MRDropButton::SetInHideFlag(bool inHide)
{
    m_inHide = inHide;
    forgetHover();
}

void MRDropButton::SetName(QString name)
{
    m_name = name;
    setObjectName(name);
}

QString MRDropButton::GetName() const
{
    return m_name;
}

void MRDropButton::changeEvent(QEvent *event)
{
    SplitButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        Q_EMIT enabledChanged(isEnabledTo(parentWidget()));
}

QString MRDropButton::hoverSheet(bool isOverArrow, const SchemeColours *colours) const
{
    return HoverSheets::dropButton(m_inHide, isOverArrow, Skin::isLum(), ScreenDensity::scale(this),
                                   colours);
}

void MRDropButton::followScheme()
{
    // On a tool row the skin's own sheet applies, which has changed already.
    if (!m_inHide)
        return;
    m_savedStyleSheet.clear();
    setStyleSheet(menuCopySheet(ScreenDensity::scale(this), Appearance::coloursFor(this)));
}

// As with moves, neither this handler nor the next one lets the base class have the event.
void MRDropButton::enterEvent(QtCompat::EnterEvent *)
{
    if (m_savedStyleSheet.isEmpty())
        m_savedStyleSheet = styleSheet();
}

void MRDropButton::leaveEvent(QEvent *)
{
    // On a tool row the skin's own sheet is to apply again.
    setStyleSheet(m_inHide ? m_savedStyleSheet : QString());
    m_savedStyleSheet.clear();
}

QAction *shownCommand(const QToolButton *button)
{
    const auto *dropButton = qobject_cast<const MRDropButton *>(button);
    return dropButton ? dropButton->GetCurrentAction() : button->defaultAction();
}
