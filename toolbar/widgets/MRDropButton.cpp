// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/MRDropButton.h"

#include "toolbar/description/Names.h"
#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/widgets/ExtendMenuOwner.h"
#include "toolbar/widgets/HoverSheets.h"

#include <QFontMetricsF>
#include <QMenu>

namespace {

// The texts are kept to the letter, deliberately; see HoverSheets.cpp.

constexpr char extendMenuLum[] = "QMenu:item{padding-left:%1px;margin-top:2px;margin-bottom:2px;} "
                                 "QMenu::icon{left:%2em;}";

constexpr char extendMenuMarodi[] = "QMenu:item{padding-left:%1em;} QMenu::icon{left:%2em}";

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

QString extendMenuSheet(double scale)
{
    constexpr int paddingInPixels = 40;
    constexpr double paddingInEms = 3.5;
    constexpr double iconOffsetInEms = 0.6;
    if (Skin::isLum())
        return QString::fromLatin1(extendMenuLum).arg(paddingInPixels).arg(iconOffsetInEms);
    return QString::fromLatin1(extendMenuMarodi).arg(scale * paddingInEms).arg(iconOffsetInEms);
}

QString menuCopySheet(double scale, const SchemeColours *colours)
{
    const bool isLum = Skin::isLum();
    // One marker each: the first text has only a %1, the second only a %2.
    const QString sheet = isLum ? QString::fromLatin1(menuCopyLum).arg(scale * 1.75)
                                : QString::fromLatin1(menuCopyMarodi).arg(scale * 2.0);
    return HoverSheets::filled(sheet, isLum, colours);
}

} // namespace

MRDropButton::MRDropButton(QWidget *, QWidget *parent, QString text, QString iconPath, QString,
                           QString)
    : SplitButton(parent)
    , m_owner(parent)
{
    setText(text);
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
    setText(faceText(action));
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
    setText(shownText);
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
        setText(m_previousText);
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

MRDropButtonAction::MRDropButtonAction(QWidget *parentWidget, QWidget *toolbarWidget)
    : QWidgetAction(parentWidget)
    , m_toolBarWidget(toolbarWidget)
{
    setIconVisibleInMenu(true);
}

QWidget *MRDropButtonAction::createWidget(QWidget *parent)
{
    adoptExtendMenu(parent);
    if (m_withAction)
        QAction::setCheckable(m_checkable);

    auto *button = new MRDropButton(m_toolBarWidget, parent, {}, {}, {}, {});
    button->setIcon(m_icon);
    setUpMenu(button);
    if (m_firstWidget)
        setUpMenuCopy(button);
    else
        setUpRowButton(button);
    button->setMouseTracking(m_switchable || m_withAction);

    if (m_extendMenu)
        fitExtendMenu(button);
    return button;
}

void MRDropButtonAction::fitExtendMenu(const MRDropButton *button)
{
    const double textWidth = QFontMetricsF(button->font()).horizontalAdvance(m_text);
    m_extendMenu->setMinimumWidth(static_cast<int>(textWidth) + 80);
}

void MRDropButtonAction::adoptExtendMenu(QWidget *parent)
{
    if (!m_extendMenu)
        m_extendMenu = qobject_cast<QMenu *>(parent);
    if (m_extendMenu)
        m_extendMenu->setStyleSheet(extendMenuSheet(ScreenDensity::scale(m_extendMenu)));
}

void MRDropButtonAction::setUpMenu(MRDropButton *button)
{
    button->setMenu(m_menu);
    button->setPopupMode(m_checkable ? QToolButton::MenuButtonPopup : QToolButton::InstantPopup);
    button->SetUpdateToolbar(m_checkable);
    if (m_switchable && m_menu)
        connect(m_menu, &QMenu::triggered, button, &MRDropButton::DoSwitchSlot);
}

void MRDropButtonAction::setUpRowButton(MRDropButton *button)
{
    button->setProperty(Property::position, "toolbar");
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setText(m_text);
    button->SetAction(m_defaultAction);
    button->setVisible(m_visible);
    button->setEnabled(m_enabled);
    m_firstWidget = button;
}

void MRDropButtonAction::setUpMenuCopy(MRDropButton *copy)
{
    copy->setProperty(Property::position, "toolbarextend");
    copy->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    copy->SetTextSwitchable(false);
    copy->setText(menuCopyText());
    if (m_menu && m_extendMenu) {
        connect(m_menu, &QMenu::triggered, this, &MRDropButtonAction::DoDelayCloseMenuSlot,
                Qt::UniqueConnection);
    }
    copy->setVisible(m_visible);
    copy->SetInHideFlag(true);
    copy->followScheme();
    linkCopy(copy);
}

void MRDropButtonAction::linkCopy(MRDropButton *copy)
{
    MRDropButton *first = m_firstWidget;
    copy->followFace(*first);
    copy->setEnabled(first->isEnabledTo(first->parentWidget()));
    connect(first, &MRDropButton::currentActionChanged, copy,
            [copy, first] { copy->followFace(*first); });
    connect(first, &MRDropButton::enabledChanged, copy, &QWidget::setEnabled);
    connect(first, &QToolButton::toggled, copy, &QToolButton::setChecked);
    connect(copy, &QToolButton::toggled, first, &QToolButton::setChecked);
}

void MRDropButtonAction::DoDelayCloseMenuSlot()
{
    if (m_extendMenu)
        m_extendMenu->close();
}

MRDropButton *MRDropButtonAction::GetWidget() const
{
    return m_firstWidget;
}

QMenu *MRDropButtonAction::GetExtendMenu() const
{
    return m_extendMenu;
}

void MRDropButtonAction::SetIcon(QIcon icon)
{
    m_icon = icon;
}

void MRDropButtonAction::SetText(QString text)
{
    m_text = text;
}

QMenu *MRDropButtonAction::GetMenu() const
{
    return m_menu;
}

void MRDropButtonAction::SetMenu(QMenu *menu)
{
    m_menu = menu;
}

void MRDropButtonAction::SetCheckable(bool checkable)
{
    m_checkable = checkable;
}

void MRDropButtonAction::SetSwichable(bool switchable)
{
    m_switchable = switchable;
    if (m_firstWidget)
        m_firstWidget->setMouseTracking(switchable);
}

void MRDropButtonAction::SetWithAction(bool withAction)
{
    m_withAction = withAction;
    if (m_firstWidget)
        m_firstWidget->setMouseTracking(withAction);
}

void MRDropButtonAction::SetAction(QAction *action)
{
    m_defaultAction = action;
}

QAction *MRDropButtonAction::GetAction() const
{
    return m_defaultAction;
}

void MRDropButtonAction::showFace(const QString &text, const QIcon &icon)
{
    m_text = text;
    m_icon = icon;
    const QList<QWidget *> buttons = createdWidgets();
    for (QWidget *widget : buttons) {
        auto *button = static_cast<MRDropButton *>(widget);
        const bool isCopy = button != m_firstWidget;
        button->showFaceAgain(isCopy ? menuCopyText() : m_text, m_icon);
    }
}

void MRDropButtonAction::fitMenuCopies()
{
    if (!m_extendMenu)
        return;
    adoptExtendMenu(nullptr);
    const QList<QWidget *> buttons = createdWidgets();
    for (QWidget *widget : buttons) {
        auto *button = static_cast<MRDropButton *>(widget);
        button->followScheme();
        if (button != m_firstWidget)
            fitExtendMenu(button);
    }
}

QString MRDropButtonAction::menuCopyText() const
{
    return QStringLiteral("   ") + m_text;
}

void MRDropButtonAction::setVisible(bool visible)
{
    m_visible = visible;
    const QList<QWidget *> buttons = createdWidgets();
    for (QWidget *button : buttons)
        button->setVisible(visible);
    // Last, for the row to have the final say on what it has no room for.
    QAction::setVisible(visible);
}

void MRDropButtonAction::setEnabled(bool enabled)
{
    m_enabled = enabled;
    QAction::setEnabled(enabled);
    const QList<QWidget *> buttons = createdWidgets();
    for (QWidget *button : buttons)
        button->setEnabled(enabled);
}
