// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/StartPage.h"

#include "panels/LanguageFollower.h"
#include "shell/FileDelegate.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int columnWidth = 560;
constexpr int referenceDpi = 96;
constexpr qreal titleSize = 1.8;

} // namespace

StartPage::StartPage(QWidget *parent)
    : QWidget(parent)
    , m_column(new QWidget)
    , m_title(new QLabel)
    , m_hint(new QLabel)
    , m_openButton(new QPushButton)
    , m_caption(new QLabel)
    , m_list(new QListWidget)
    , m_removeButton(new QPushButton)
{
    setObjectName(QStringLiteral("startpage"));
    setFocusProxy(m_openButton);
    m_hint->setWordWrap(true);
    m_caption->setBuddy(m_list);
    m_list->setItemDelegate(new FileDelegate(m_list));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->installEventFilter(this);
    buildContent();
    setSizes();
    setColours();
    LanguageFollower::attach(this, [this] { showTexts(); });

    connect(m_openButton, &QPushButton::clicked, this, &StartPage::openAsked);
    connect(m_removeButton, &QPushButton::clicked, this, &StartPage::removeCurrent);
    connect(m_list, &QListWidget::itemClicked, this, &StartPage::choose);
}

void StartPage::buildContent()
{
    auto *above = new QHBoxLayout;
    above->addWidget(m_openButton);
    above->addWidget(m_hint, 1);
    auto *below = new QHBoxLayout;
    below->addWidget(m_caption, 1);
    below->addWidget(m_removeButton);

    const int line = fontMetrics().height();
    auto *column = new QVBoxLayout(m_column);
    column->addStretch(2);
    column->addWidget(m_title);
    column->addSpacing(line / 2);
    column->addLayout(above);
    column->addSpacing(2 * line);
    column->addLayout(below);
    // The list takes what it needs; the rest of the room is shared below the middle of the page.
    column->addWidget(m_list, 1000);
    column->addStretch(3);
    auto *row = new QHBoxLayout(this);
    row->addStretch(1);
    row->addWidget(m_column, 1000);
    row->addStretch(1);
}

void StartPage::showTexts()
{
    m_title->setText(tr("OFD阅读器"));
    m_openButton->setText(tr("打开…"));
    m_hint->setText(tr("也可以把 OFD 文件拖到这里"));
    m_caption->setText(tr("最近打开的文件"));
    m_list->setAccessibleName(tr("最近打开的文件"));
    m_removeButton->setText(tr("从列表中移除"));
    m_removeButton->setToolTip(tr("从列表中移除选中的文件（Delete）"));
}

void StartPage::setSizes()
{
    QFont large = font();
    large.setPointSizeF(QFontInfo(large).pointSizeF() * titleSize);
    m_title->setFont(large);
    m_column->setMaximumWidth(columnWidth * logicalDpiX() / referenceDpi);
    const int line = QFontInfo(font()).pixelSize();
    m_openButton->setMinimumSize(8 * line, 5 * line / 2);
    m_list->setMaximumHeight(std::max(1, m_list->count()) * m_list->sizeHintForRow(0)
                             + 2 * m_list->frameWidth());
}

void StartPage::setFiles(const QStringList &fileNames)
{
    const bool hadFocus = m_list->hasFocus() || m_removeButton->hasFocus();
    const int row = std::max(0, m_list->currentRow());
    m_list->clear();
    for (const QString &fileName : fileNames)
        FileDelegate::addFile(m_list, fileName);
    m_list->setCurrentRow(std::min(row, m_list->count() - 1));
    setSizes();
    const bool hasFiles = !fileNames.isEmpty();
    for (QWidget *widget : {static_cast<QWidget *>(m_caption), static_cast<QWidget *>(m_list),
                            static_cast<QWidget *>(m_removeButton)})
        widget->setVisible(hasFiles);
    setFocusProxy(hasFiles ? static_cast<QWidget *>(m_list) : m_openButton);
    if (hadFocus)
        setFocus();
}

void StartPage::setColours()
{
    // Styles draw hardly any edge of a button on a dark ground.
    QPalette colours = palette();
    if (colours.color(QPalette::Window).lightness() < colours.color(QPalette::Text).lightness()) {
        colours.setColor(QPalette::Button, colours.color(QPalette::Highlight));
        colours.setColor(QPalette::ButtonText, colours.color(QPalette::HighlightedText));
    }
    m_openButton->setPalette(colours);
}

void StartPage::choose(const QListWidgetItem *item)
{
    if (!item)
        return;
    // Later, because the list is filled anew then, and still uses the item now.
    const QString fileName = FileDelegate::fileOf(*item);
    QMetaObject::invokeMethod(
        this, [this, fileName] { Q_EMIT fileChosen(fileName); }, Qt::QueuedConnection);
}

void StartPage::removeCurrent()
{
    if (const QListWidgetItem *item = m_list->currentItem())
        Q_EMIT removeAsked(FileDelegate::fileOf(*item));
}

bool StartPage::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    // Not QListWidget::itemActivated(), which some styles emit for each click, too.
    switch (static_cast<const QKeyEvent *>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose(m_list->currentItem());
        return true;
    case Qt::Key_Delete:
        removeCurrent();
        return true;
    default:
        return false;
    }
}

void StartPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange)
        setSizes();
    if (event->type() == QEvent::PaletteChange)
        setColours();
    QWidget::changeEvent(event);
}
