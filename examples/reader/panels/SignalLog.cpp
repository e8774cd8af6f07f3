// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/SignalLog.h"

#include "panels/LanguageFollower.h"

#include <toolbar/MRToolBar.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int mostLines = 2000;

QString quoted(const QString &text)
{
    return QStringLiteral("\"%1\"").arg(text);
}

QString named(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

SignalLog::SignalLog(QWidget *parent)
    : QWidget(parent)
    , m_list(new QListWidget)
{
    m_list->setSelectionMode(QAbstractItemView::NoSelection);
    m_list->setWordWrap(true);

    auto *clearButton = new QPushButton;
    connect(clearButton, &QPushButton::clicked, m_list, &QListWidget::clear);
    auto *title = new QLabel;
    auto *header = new QHBoxLayout;
    header->addWidget(title);
    header->addStretch();
    header->addWidget(clearButton);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(header);
    layout->addWidget(m_list);
    LanguageFollower::attach(this, [this, title, clearButton] {
        m_list->setAccessibleName(tr("工具栏信号"));
        clearButton->setText(tr("清空"));
        title->setText(tr("收到的信号"));
    });
}

void SignalLog::listenTo(const MRToolBar &toolBar)
{
    connect(&toolBar, &MRToolBar::DoGotoPage, this,
            [this](int page) { add(QStringLiteral("DoGotoPage(%1)").arg(page)); });
    connect(&toolBar, &MRToolBar::DoActive, this,
            [this](const QString &name) { add(QStringLiteral("DoActive(%1)").arg(quoted(name))); });
    connect(&toolBar, &MRToolBar::DoDoubleActive, this, [this](const QString &name) {
        add(QStringLiteral("DoDoubleActive(%1)").arg(quoted(name)));
    });
    connect(&toolBar, &MRToolBar::DoOpenFile, this, [this](const QString &fileName) {
        add(QStringLiteral("DoOpenFile(%1)").arg(quoted(fileName)));
    });
    connect(&toolBar, &MRToolBar::DoSetZoomMode, this, [this](const QString &mode) {
        add(QStringLiteral("DoSetZoomMode(%1)").arg(quoted(mode)));
    });
    connect(&toolBar, &MRToolBar::DoSearchContent, this, &SignalLog::addSearch);
    connect(&toolBar, &MRToolBar::DoSetBackground, this, &SignalLog::addBackground);
    connect(&toolBar, &MRToolBar::DoRequestAuthority, this,
            [this] { add(QStringLiteral("DoRequestAuthority()")); });
    connect(&toolBar, &MRToolBar::DoTabShown, this, [this](const QString &name) {
        add(QStringLiteral("DoTabShown(%1)").arg(quoted(name)));
    });
}

void SignalLog::add(const QString &line)
{
    m_list->addItem(line);
    if (m_list->count() > mostLines)
        delete m_list->takeItem(0);
    m_list->scrollToBottom();
}

void SignalLog::addSearch(const SearchOption &option)
{
    add(QStringLiteral("DoSearchContent(content %1, direction %2, wholeWord %3, noCase %4, "
                       "newSearch %5)")
            .arg(quoted(option.content))
            .arg(option.direction)
            .arg(named(option.wholeWord), named(option.noCase), named(option.newSearch)));
}

void SignalLog::addBackground(BackgroundStyle style)
{
    add(QStringLiteral("DoSetBackground(%1)").arg(int(style)));
}
