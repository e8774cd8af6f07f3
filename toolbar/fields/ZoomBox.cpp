// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/fields/ZoomBox.h"

#include "toolbar/description/Names.h"
#include "toolbar/fields/ZoomText.h"
#include "toolbar/widgets/FieldKeyFilter.h"
#include "toolbar/widgets/HostAnswer.h"

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QToolTip>

namespace {

QString hint()
{
    return QStringLiteral("<font style='font-family:Microsoft YaHei; font-size:10pt;"
                          "background-color:transparent;color:blue;'>%1</font>")
               .arg(QObject::tr("Invalid Char"))
           + QStringLiteral("<br><font style='font-family:Microsoft YaHei;font-size:8pt; "
                            "background-color:transparent;color:black;'>%1</font>")
                 .arg(QObject::tr("Please Input a Number or Point"));
}

} // namespace

void checkZoomButton(const QActionGroup *buttons, const QString &mode)
{
    const auto percent = ZoomText::percentage(mode);
    if (!percent || !buttons || buttons->actions().isEmpty())
        return;

    const QList<QAction *> actions = buttons->actions();
    if (*percent != 100.0F) {
        if (actions.last()->objectName() == Name::customZoom)
            actions.last()->setChecked(true);
        return;
    }
    for (QAction *action : actions) {
        if (action->objectName() == Name::actualSize)
            action->setChecked(true);
    }
}

const QPointer<QComboBox> &ZoomBox::box() const
{
    return m_box;
}

void ZoomBox::take(QComboBox *box, const QStringList &modes, const QStringList &texts)
{
    m_box = box;
    m_identity = box;
    m_index = box->currentIndex();
    m_modes = modes;
    m_texts = texts;
    setTypable(box, box->isEditable() || isPercentage(m_index, box->currentText()));
    box->setToolTip(hint());
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this, box](int index) { choose(box->itemText(index)); });
}

bool ZoomBox::isPercentage(int index, const QString &text) const
{
    const bool isEntry = index >= 0 && text == m_box->itemText(index);
    return m_texts.value(isEntry ? index : -1, text).endsWith(QLatin1Char('%'));
}

void ZoomBox::retranslate()
{
    if (m_box)
        m_box->setToolTip(hint());
}

void ZoomBox::showMode(const QString &mode)
{
    const QPointer<ZoomBox> self(this);
    const int known = static_cast<int>(m_modes.indexOf(mode));
    if (known >= 0) {
        m_index = known;
        if (m_box)
            showEntry(known);
    } else if (m_box) {
        setTypable(m_box, true);
        showCustom(ZoomText::entry(ZoomText::numberOfMode(mode)));
    }
    // The host may have answered the move with another zoom, whose button is checked by now.
    if (self && (known < 0 || m_index == known))
        Q_EMIT shown(mode);
}

void ZoomBox::showEntry(int index)
{
    const bool hasMoved = m_box->currentIndex() != index;
    {
        const QSignalBlocker blocker(m_box);
        m_box->setCurrentIndex(index);
    }
    m_box->clearFocus();
    if (!hasMoved)
        return;
    const QPointer<ZoomBox> self(this);
    m_isReportingBack = true;
    choose(m_box->currentText());
    if (self)
        m_isReportingBack = false;
}

void ZoomBox::setTypable(QComboBox *box, bool isTypable)
{
    QLineEdit *field = box->lineEdit();
    box->setEditable(isTypable);
    // The host may be answering what was entered in this very field.
    if (!isTypable && field)
        HostAnswer::postponeDeletion(field);
    // What is typed counts, not what the box would make of its beginning.
    if (isTypable)
        box->setCompleter(nullptr);
}

void ZoomBox::showCustom(const QString &text)
{
    // The box must not stay at an entry that it does not show: choosing that would be no change,
    // and the host would not hear of it.
    const QSignalBlocker blocker(m_box);
    m_box->setCurrentIndex(m_box->findText(text));
    m_box->setEditText(text);
    m_customText = text;
    m_index = static_cast<int>(m_modes.size()) + 1;
}

void ZoomBox::choose(const QString &text)
{
    if (!m_box)
        return;

    const HostAnswer answer;
    m_box->clearFocus();
    const int index = m_box->currentIndex();
    if (index >= 0 && index < m_modes.size())
        chooseEntry(index, text);
    else
        applyTyped(text);
}

void ZoomBox::chooseEntry(int index, const QString &text)
{
    if (text.isEmpty() && m_box->currentText().isEmpty())
        return;

    QString mode;
    if (!text.isEmpty()) {
        setTypable(m_box, isPercentage(index, text));
        mode = m_box->itemData(index).toString();
    }
    m_index = index;
    Q_EMIT chosen(mode);
}

void ZoomBox::applyTyped(const QString &text)
{
    const auto typed = ZoomText::number(text);
    if (!typed) {
        dropTyped();
        return;
    }

    const QString number = ZoomText::clamped(*typed);
    const QString entry = ZoomText::entry(number);
    const int predefined = static_cast<int>(m_texts.indexOf(entry));
    if (predefined >= 0) {
        // The user asked for what the box already offers; nothing is reported, deliberately.
        m_index = predefined;
        dropTyped();
        return;
    }
    keepCustom(entry);
    Q_EMIT chosen(ZoomText::mode(number));
}

void ZoomBox::keepCustom(const QString &entry)
{
    const QSignalBlocker blocker(m_box);
    while (m_box->count() > m_modes.size())
        m_box->removeItem(m_box->count() - 1);
    m_box->addItem(entry);
    showCustom(entry);
}

void ZoomBox::dropTyped()
{
    // The box inserted the text at its end when Return was pressed.
    const QSignalBlocker blocker(m_box);
    if (m_box->count() > m_modes.size())
        m_box->removeItem(m_box->count() - 1);
    showLast();
}

void ZoomBox::showLast()
{
    if (m_index >= m_modes.size()) {
        showCustom(m_customText);
        return;
    }
    const QSignalBlocker blocker(m_box);
    m_box->setCurrentIndex(m_index);
    m_box->setEditText(m_box->itemText(m_index));
}

void ZoomBox::watch(const QEvent &event)
{
    // For an empty text the box adds no entry and emits no signal.
    if (FieldKeyFilter::isReturn(event) && m_box->currentText().isEmpty()) {
        m_box->clearFocus();
        showLast();
    }
    // Whatever was typed stands in the box by now; nothing is kept from it.
    if (event.type() == QEvent::KeyRelease)
        showHint();
    else if (event.type() == QEvent::InputMethod)
        QMetaObject::invokeMethod(this, &ZoomBox::showHint, Qt::QueuedConnection);
}

void ZoomBox::showHint()
{
    if (!m_box || !m_box->isEditable() || !m_box->isVisible())
        return;

    if (ZoomText::isInvalid(m_box->currentText()))
        QToolTip::showText(m_box->mapToGlobal(QPoint(0, m_box->height())), m_box->toolTip(), m_box);
    else if (QToolTip::text() == m_box->toolTip())
        QToolTip::hideText();
}
