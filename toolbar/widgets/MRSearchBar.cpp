// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/MRSearchBar.h"

#include "toolbar/description/Names.h"
#include "toolbar/skin/Scale.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/widgets/FieldKeyFilter.h"
#include "toolbar/widgets/PlaceholderTint.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int restingPixelsPerCharacter = 18;
constexpr int widenedPixelsPerCharacter = 36;

} // namespace

MRSearchBar::MRSearchBar(QWidget *parent, QLabel *label, QPushButton *previous, QPushButton *next,
                         bool mainBar)
    : QLineEdit(parent)
    , m_layout(new QHBoxLayout)
    , m_indent(new QSpacerItem(0, 2, QSizePolicy::Minimum, QSizePolicy::Minimum))
    , m_next(next)
    , m_previous(previous)
    , m_scale(ScreenDensity::factor(this))
    , m_mainBar(mainBar)
{
    setProperty(Property::inToolBar, "true");
    setButtonsVisible(false);
    fillLayout(label);
    setAlignment(Qt::AlignVCenter);
    if (m_mainBar && Skin::isLum())
        setTextMargins(0, 0, 0, 0);
    fitLengths();
    for (QPushButton *button : buttons())
        button->setCursor(Qt::ArrowCursor);
    setLayout(m_layout);
    new FieldKeyFilter(this);
    new PlaceholderTint(this);
}

QList<QPushButton *> MRSearchBar::buttons() const
{
    QList<QPushButton *> present;
    if (m_previous)
        present.append(m_previous);
    if (m_next)
        present.append(m_next);
    return present;
}

void MRSearchBar::fillLayout(QLabel *label)
{
    m_layout->setSpacing(0);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addItem(m_indent);
    if (label)
        m_layout->addWidget(label);
    m_layout->addStretch();
    for (QPushButton *button : buttons())
        m_layout->addWidget(button);
}

void MRSearchBar::setButtonsVisible(bool visible)
{
    for (QPushButton *button : buttons())
        button->setVisible(visible);
}

int MRSearchBar::scaledLength(int designPixels) const
{
    return ScreenDensity::scaled(designPixels, m_scale);
}

void MRSearchBar::applyWidth(int pixelsPerCharacter)
{
    if (!m_resizable || Skin::isLum())
        return;

    m_pixelsPerCharacter = pixelsPerCharacter;
    const int designWidth = static_cast<int>(placeholderText().size()) * pixelsPerCharacter;
    setFixedWidth(scaledLength(designWidth));
}

void MRSearchBar::fitLengths()
{
    m_scale = Scale::chosenFor(this).value_or(m_scale);
    m_indent->changeSize(scaledLength(4), 2, QSizePolicy::Minimum, QSizePolicy::Minimum);
    if (m_mainBar && Skin::isLum())
        m_layout->setContentsMargins(scaledLength(4), 0, scaledLength(6), 0);
    m_layout->invalidate();
    if (m_pixelsPerCharacter > 0)
        applyWidth(m_pixelsPerCharacter);
    if (m_hasRestingMargin)
        setTextMargins(0, 0, 0, scaledLength(3));
    // The buttons get their size from the sheet, and the layout sets it later.
    if (m_hasRoomForButtons)
        QMetaObject::invokeMethod(this, &MRSearchBar::applyRoomForButtons, Qt::QueuedConnection);
}

QSize MRSearchBar::sizeHint() const
{
    QSize size = QLineEdit::sizeHint();
    if (maximumWidth() < QWIDGETSIZE_MAX)
        size.setWidth(maximumWidth());
    return size;
}

int MRSearchBar::widening() const
{
    if (!m_resizable || Skin::isLum() || placeholderText().isEmpty())
        return 0;

    const int designWidth = static_cast<int>(placeholderText().size()) * restingPixelsPerCharacter;
    return std::max(0, minimumWidth() - scaledLength(designWidth));
}

void MRSearchBar::setPlaceholderText(const QString &text)
{
    QLineEdit::setPlaceholderText(text);
    setAccessibleName(text);
    if (!text.isEmpty())
        applyWidth(restingPixelsPerCharacter);
}

void MRSearchBar::showPrompt(const QString &text)
{
    const int pixelsPerCharacter = m_pixelsPerCharacter;
    setPlaceholderText(text);
    if (pixelsPerCharacter > 0 && !text.isEmpty())
        applyWidth(pixelsPerCharacter);
}

void MRSearchBar::SetResizable(bool resizable)
{
    m_resizable = resizable;
    if (!m_resizable && !m_mainBar)
        setButtonsVisible(true);
}

void MRSearchBar::SetRelational(bool relational)
{
    m_relational = relational;
}

void MRSearchBar::SetButtonProperty(const char *name, QString value)
{
    for (QPushButton *button : buttons())
        button->setProperty(name, value);
}

void MRSearchBar::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    // The buttons stand on the other side now.
    if (event->type() == QEvent::LayoutDirectionChange)
        applyRoomForButtons();
}

void MRSearchBar::mousePressEvent(QMouseEvent *event)
{
    // Without a placeholder there is no length to go by.
    if (!placeholderText().isEmpty())
        applyWidth(widenedPixelsPerCharacter);
    QLineEdit::mousePressEvent(event);
}

void MRSearchBar::focusInEvent(QFocusEvent *event)
{
    setButtonsVisible(true);
    m_hasRoomForButtons = true;
    m_hasRestingMargin = false;
    applyRoomForButtons();
    QLineEdit::focusInEvent(event);
}

void MRSearchBar::applyRoomForButtons()
{
    if (!m_hasRoomForButtons)
        return;
    const QList<QPushButton *> present = buttons();
    const int buttonWidth = present.isEmpty() ? 0 : present.first()->width();
    const int room = static_cast<int>(present.size()) * buttonWidth;
    const bool isMirrored = isRightToLeft();
    setTextMargins(isMirrored ? room : 0, 0, isMirrored ? 0 : room, 0);
}

void MRSearchBar::focusOutEvent(QFocusEvent *event)
{
    if (m_resizable && text().isEmpty()) {
        setButtonsVisible(false);
        if (!Skin::isLum()) {
            m_hasRoomForButtons = false;
            m_hasRestingMargin = true;
            setTextMargins(0, 0, 0, scaledLength(3));
        }
        if (!placeholderText().isEmpty())
            applyWidth(restingPixelsPerCharacter);
    }
    QLineEdit::focusOutEvent(event);
}

void MRSearchBar::enterEvent(QtCompat::EnterEvent *event)
{
    if (!m_hovered && m_relational) {
        Q_EMIT DoActiveSetButton(true);
        m_hovered = true;
    }
    QLineEdit::enterEvent(event);
}

void MRSearchBar::leaveEvent(QEvent *event)
{
    if (m_hovered && m_relational) {
        Q_EMIT DoActiveSetButton(false);
        m_hovered = false;
    }
    QLineEdit::leaveEvent(event);
}
