// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/description/Names.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/widgets/MRDropButton.h"

#include <QFontMetricsF>
#include <QMenu>

namespace {

// The texts are kept to the letter, deliberately; see HoverSheets.cpp.

constexpr char extendMenuLum[] = "QMenu:item{padding-left:%1px;margin-top:2px;margin-bottom:2px;} "
                                 "QMenu::icon{left:%2em;}";

constexpr char extendMenuMarodi[] = "QMenu:item{padding-left:%1em;} QMenu::icon{left:%2em}";

QString extendMenuSheet(double scale)
{
    constexpr int paddingInPixels = 40;
    constexpr double paddingInEms = 3.5;
    constexpr double iconOffsetInEms = 0.6;
    if (Skin::isLum())
        return QString::fromLatin1(extendMenuLum).arg(paddingInPixels).arg(iconOffsetInEms);
    return QString::fromLatin1(extendMenuMarodi).arg(scale * paddingInEms).arg(iconOffsetInEms);
}

} // namespace

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
    button->setAccessibleName(m_text.trimmed());
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
