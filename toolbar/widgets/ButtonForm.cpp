// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/ButtonForm.h"

#include <QHelpEvent>
#include <QMenu>
#include <QStyleOptionToolButton>
#include <QToolBar>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>

namespace {

QSize iconSizeOf(const QToolButton *button)
{
    const auto *row = qobject_cast<QToolBar *>(button->parentWidget());
    return row ? row->iconSize() : button->iconSize();
}

/** What the style is asked about a button that shows its text, whatever it shows now. */
QStyleOptionToolButton optionOf(const QToolButton *button, Qt::ToolButtonStyle style)
{
    QStyleOptionToolButton option;
    option.initFrom(button);
    option.text = button->text();
    option.icon = button->icon();
    option.iconSize = iconSizeOf(button);
    option.toolButtonStyle = style;
    option.features = QStyleOptionToolButton::None;
    if (button->menu())
        option.features |= QStyleOptionToolButton::HasMenu;
    if (button->popupMode() == QToolButton::MenuButtonPopup)
        option.features |= QStyleOptionToolButton::MenuButtonPopup;
    return option;
}

} // namespace

ButtonForm *ButtonForm::give(QToolButton *button)
{
    ButtonForm *form = of(button);
    return form ? form : new ButtonForm(button);
}

ButtonForm *ButtonForm::of(const QWidget *button)
{
    const QObjectList &children = button->children();
    for (QObject *child : children) {
        if (auto *form = dynamic_cast<ButtonForm *>(child))
            return form;
    }
    return nullptr;
}

void ButtonForm::setFullWidth(QWidget *button, int width)
{
    ButtonForm *form = of(button);
    if (!form) {
        button->setFixedWidth(width);
        return;
    }
    form->m_fullWidth = width;
    form->apply();
}

ButtonForm::ButtonForm(QToolButton *button)
    : QObject(button)
    , m_button(button)
    , m_fullStyle(button->toolButtonStyle())
{
    if (button->minimumWidth() == button->maximumWidth())
        m_fullWidth = button->minimumWidth();
    button->installEventFilter(this);
}

void ButtonForm::setBareWidth(int width)
{
    m_bareWidth = width;
    apply();
}

bool ButtonForm::hasForms() const
{
    return !m_button->icon().isNull() && !m_button->text().trimmed().isEmpty();
}

int ButtonForm::width(bool isBare) const
{
    if (!hasForms())
        return m_fullWidth ? m_fullWidth
                           : m_button->sizeHint()
                                 .boundedTo(m_button->maximumSize())
                                 .expandedTo(m_button->minimumSize())
                                 .width();
    if (isBare)
        return m_bareWidth;
    return m_fullWidth ? m_fullWidth : naturalWidth();
}

int ButtonForm::naturalWidth() const
{
    // Not asked of the button: it would have to show its text for that.
    m_button->ensurePolished();
    const QStyleOptionToolButton option = optionOf(m_button, m_fullStyle);
    const QFontMetrics &metrics = option.fontMetrics;
    const int text = metrics.size(Qt::TextShowMnemonic, option.text).width()
                     + 2 * metrics.horizontalAdvance(QLatin1Char(' '));
    constexpr int betweenIconAndText = 4;
    int width = m_fullStyle == Qt::ToolButtonTextBesideIcon
                    ? option.iconSize.width() + betweenIconAndText + text
                    : std::max(option.iconSize.width(), text);
    const QStyle *style = m_button->style();
    if (option.features.testFlag(QStyleOptionToolButton::MenuButtonPopup))
        width += style->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, m_button);
    const QSize content(width, option.iconSize.height() + metrics.height());
    return style->sizeFromContents(QStyle::CT_ToolButton, &option, content, m_button).width();
}

void ButtonForm::take(bool isBare)
{
    m_isBare = isBare;
    apply();
}

void ButtonForm::apply()
{
    const bool hasBoth = hasForms();
    m_button->setToolButtonStyle(hasBoth && m_isBare ? Qt::ToolButtonIconOnly : m_fullStyle);
    if (!hasBoth && !m_fullWidth)
        return;
    // A width by the text waits for the fonts of the sheet.
    if (!m_isBare && !m_fullWidth && !m_button->testAttribute(Qt::WA_WState_Polished))
        return;
    const int width = this->width(m_isBare);
    if (m_button->minimumWidth() != width || m_button->maximumWidth() != width)
        m_button->setFixedWidth(width);
}

bool ButtonForm::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !m_isBare || !m_button->toolTip().isEmpty())
        return false;
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), m_button->text().trimmed(),
                       m_button);
    return true;
}
