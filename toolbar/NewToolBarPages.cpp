#include "toolbar/NewToolBar.h"

#include "toolbar/PageText.h"
#include "toolbar/QtCompat.h"
#include "toolbar/ZoomText.h"
#include "toolbar/widgets/HostAnswer.h"

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QToolTip>

namespace {

constexpr QLatin1String zoomGroupName = QtCompat::latin1("zmode");
constexpr QLatin1String actualSizeName = QtCompat::latin1("vzmode_original");
constexpr QLatin1String customZoomName = QtCompat::latin1("vzmode_custom");

QString backgroundName(BackgroundStyle style)
{
    switch (style) {
    case Background_Daytime:
        return QStringLiteral("background_daytime");
    case Background_Nighttime:
        return QStringLiteral("background_nighttime");
    case Background_Eyeguard:
        return QStringLiteral("background_eyeguard");
    case Background_Parchment:
        return QStringLiteral("background_parchment");
    case Background_Default:
        break;
    }
    return QStringLiteral("background_default");
}

bool isReturn(const QEvent &event)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent &>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

void NewToolBar::DoSetPageNumSlot(QString pageNum)
{
    if (!m_pageNumberEdit)
        return;

    const bool isCleared = pageNum == QLatin1String(PageText::cleared);
    m_pageNumberEdit->setText(isCleared ? QString() : pageNum);
    m_currentPage = isCleared ? 0 : pageNum.toInt();
}

void NewToolBar::DoSetTotalPageSlot(QString totalPage)
{
    QLabel *label = m_totalPageLabel ? m_totalPageLabel : m_pagePromptLabel;
    if (!label)
        return;

    if (totalPage == QLatin1String(PageText::cleared)) {
        label->setText(PageText::withoutTotal(label->text(), m_totalPages));
        m_totalPages = 0;
    } else if (const auto text = PageText::totalText(totalPage)) {
        label->setText(PageText::withTotal(label->text(), m_totalPages, *text));
        m_totalPages = text->toInt();
    }
}

void NewToolBar::Inner_DoGotoPageSlot()
{
    auto *field = qobject_cast<QLineEdit *>(sender());
    if (!field)
        return;

    const int page = PageText::entered(field->text());
    if (page < 1 || page > m_totalPages) {
        field->setText(PageText::pageOfTotal(m_currentPage, m_totalPages));
        return;
    }
    m_currentPage = page;
    Q_EMIT DoGotoPage(page);
}

void NewToolBar::DoSetZoomModeSlot(QString mode)
{
    const QPointer<NewToolBar> self(this);
    const int known = static_cast<int>(m_zoomModes.indexOf(mode));
    if (known >= 0) {
        m_zoomIndex = known;
        if (m_zoomBox)
            showZoomEntry(known);
    } else if (m_zoomBox) {
        setTypable(m_zoomBox, true);
        showCustomZoom(ZoomText::entry(ZoomText::numberOfMode(mode)));
    }
    // The host may have answered the move with another zoom, whose button is checked by now.
    if (self && (known < 0 || m_zoomIndex == known))
        checkZoomButton(mode);
}

void NewToolBar::showZoomEntry(int index)
{
    // The move is reported from here and not by the box, which does not survive a host that ends
    // the toolbar when it hears of it.
    const bool hasMoved = m_zoomBox->currentIndex() != index;
    {
        const QSignalBlocker blocker(m_zoomBox);
        m_zoomBox->setCurrentIndex(index);
    }
    m_zoomBox->clearFocus();
    if (hasMoved)
        Inner_DoSetZoomModeSlot(m_zoomBox->currentText());
}

void NewToolBar::setTypable(QComboBox *box, bool isTypable)
{
    box->setEditable(isTypable);
    // What is typed counts, not what the box would make of its beginning.
    if (isTypable)
        box->setCompleter(nullptr);
}

void NewToolBar::showCustomZoom(const QString &text)
{
    // The box must not stay at an entry that it does not show: choosing that would be no change,
    // and the host would not hear of it.
    const QSignalBlocker blocker(m_zoomBox);
    m_zoomBox->setCurrentIndex(m_zoomBox->findText(text));
    m_zoomBox->setEditText(text);
    m_customZoomText = text;
    m_zoomIndex = static_cast<int>(m_zoomModes.size()) + 1;
}

void NewToolBar::checkZoomButton(const QString &mode)
{
    const auto percent = ZoomText::percentage(mode);
    const QActionGroup *group = GetActionGroup(zoomGroupName);
    if (!percent || !group || group->actions().isEmpty())
        return;

    const QList<QAction *> actions = group->actions();
    if (*percent != 100.0F) {
        if (actions.last()->objectName() == customZoomName)
            actions.last()->setChecked(true);
        return;
    }
    for (QAction *action : actions) {
        if (action->objectName() == actualSizeName)
            action->setChecked(true);
    }
}

void NewToolBar::Inner_DoSetZoomModeSlot(QString text)
{
    if (!m_zoomBox)
        return;

    const HostAnswer answer;
    m_zoomBox->clearFocus();
    const int index = m_zoomBox->currentIndex();
    if (index >= 0 && index < m_zoomModes.size())
        chooseZoomEntry(index, text);
    else
        applyTypedZoom(text);
}

void NewToolBar::chooseZoomEntry(int index, const QString &text)
{
    if (text.isEmpty() && m_zoomBox->currentText().isEmpty())
        return;

    QString mode;
    if (!text.isEmpty()) {
        setTypable(m_zoomBox, text.endsWith(QLatin1Char('%')));
        mode = m_zoomBox->itemData(index).toString();
    }
    m_zoomIndex = index;
    Q_EMIT DoSetZoomMode(mode);
}

void NewToolBar::applyTypedZoom(const QString &text)
{
    const auto typed = ZoomText::number(text);
    if (!typed) {
        dropTypedZoom();
        return;
    }

    const QString number = ZoomText::clamped(*typed);
    const QString entry = ZoomText::entry(number);
    const int predefined = m_zoomBox->findText(entry, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (predefined >= 0 && predefined < m_zoomModes.size()) {
        // The user asked for what the box already offers; nothing is reported, deliberately.
        m_zoomIndex = predefined;
        dropTypedZoom();
        return;
    }
    keepCustomZoom(entry);
    Q_EMIT DoSetZoomMode(ZoomText::mode(number));
}

void NewToolBar::keepCustomZoom(const QString &entry)
{
    const QSignalBlocker blocker(m_zoomBox);
    while (m_zoomBox->count() > m_zoomModes.size())
        m_zoomBox->removeItem(m_zoomBox->count() - 1);
    m_zoomBox->addItem(entry);
    showCustomZoom(entry);
}

void NewToolBar::dropTypedZoom()
{
    // The box inserted the text at its end when Return was pressed.
    const QSignalBlocker blocker(m_zoomBox);
    if (m_zoomBox->count() > m_zoomModes.size())
        m_zoomBox->removeItem(m_zoomBox->count() - 1);
    showLastZoom();
}

void NewToolBar::showLastZoom()
{
    if (m_zoomIndex >= m_zoomModes.size()) {
        showCustomZoom(m_customZoomText);
        return;
    }
    const QSignalBlocker blocker(m_zoomBox);
    m_zoomBox->setCurrentIndex(m_zoomIndex);
    m_zoomBox->setEditText(m_zoomBox->itemText(m_zoomIndex));
}

bool NewToolBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_zoomBox) {
        // Of nothing at all the box would make no entry, and tell nobody.
        if (isReturn(*event) && m_zoomBox->currentText().isEmpty()) {
            m_zoomBox->clearFocus();
            showLastZoom();
        }
        // Whatever was typed stands in the box by now; nothing is kept from it.
        if (event->type() == QEvent::KeyRelease)
            showZoomHint();
        else if (event->type() == QEvent::InputMethod)
            QMetaObject::invokeMethod(this, &NewToolBar::showZoomHint, Qt::QueuedConnection);
    }
    if (event->type() == QEvent::ActionAdded)
        markExtensionMenu(watched);
    return QWidget::eventFilter(watched, event);
}

void NewToolBar::showZoomHint()
{
    if (!m_zoomBox || !m_zoomBox->isEditable() || !m_zoomBox->isVisible())
        return;

    if (ZoomText::isInvalid(m_zoomBox->currentText()))
        QToolTip::showText(m_zoomBox->mapToGlobal(QPoint(0, m_zoomBox->height())),
                           m_zoomBox->toolTip(), m_zoomBox);
    else if (QToolTip::text() == m_zoomBox->toolTip())
        QToolTip::hideText();
}

void NewToolBar::DoSetBackgoundSlot(BackgroundStyle style)
{
    // Checked, not triggered: the host is not told of its own choice.
    if (QAction *action = GetActionInTotal(backgroundName(style)))
        action->setChecked(true);
}
