// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/SearchPanel.h"

#include "pages/PageView.h"
#include "panels/LanguageFollower.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

constexpr int leastWidth = 220;
constexpr int patience = 300; // Milliseconds until a progress bar is worth a look.

} // namespace

SearchPanel::SearchPanel(const Document &document, PageView &view, QWidget *parent)
    : QDockWidget(parent)
    , m_document(document)
    , m_view(view)
    , m_field(new QLineEdit)
    , m_label(new QLabel)
    , m_progress(new QProgressBar)
    , m_stopButton(new QPushButton)
    , m_list(new QListWidget)
{
    setObjectName(QStringLiteral("search"));
    buildContent();
    hide();
    connect(m_field, &QLineEdit::returnPressed, this, [this] { searchWord(m_field->text()); });
    connect(m_list, &QListWidget::currentRowChanged, this, &SearchPanel::goToHit);
    connect(m_stopButton, &QPushButton::clicked, &m_search, &TextSearch::stop);
    connect(&m_search, &TextSearch::found, this, &SearchPanel::listHits);
    connect(&m_search, &TextSearch::stepped, this, &SearchPanel::showProgress);
    connect(&document, &Document::pagesChanged, this, &SearchPanel::forget);
}

void SearchPanel::buildContent()
{
    m_field->setClearButtonEnabled(true);
    m_label->setWordWrap(true);
    m_list->setUniformItemSizes(true);
    m_progress->hide();
    m_stopButton->hide();
    LanguageFollower::attach(this, [this] {
        setWindowTitle(tr("高级搜索"));
        m_field->setPlaceholderText(tr("输入要查找的文字"));
        m_list->setAccessibleName(tr("搜索结果"));
        m_progress->setAccessibleName(tr("搜索进度"));
        m_stopButton->setText(tr("停止"));
        if (!m_search.content().isEmpty())
            m_label->setText(resultText());
    });
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->addWidget(m_field);
    layout->addWidget(m_label);
    auto *running = new QHBoxLayout;
    running->addWidget(m_progress, 1);
    running->addWidget(m_stopButton);
    layout->addLayout(running);
    layout->addWidget(m_list);
    content->setMinimumWidth(leastWidth);
    setWidget(content);
}

void SearchPanel::search(const SearchOption &option)
{
    if (!m_document.isOpen() || option.content.isEmpty())
        return;
    m_field->setText(option.content);
    if (!m_search.isActive()) {
        m_clock.start();
        m_hasOpened = isVisible();
    }
    m_search.search(m_document, option, m_view.currentPage());
    if (m_search.hasHits())
        showHits();
}

void SearchPanel::searchWord(const QString &word)
{
    SearchOption option;
    option.content = word;
    search(option);
}

void SearchPanel::open()
{
    show();
    raise();
    m_field->setFocus();
    m_field->selectAll();
}

void SearchPanel::goToHit(int index)
{
    if (index < 0)
        return;
    m_search.setCurrentIndex(index);
    showHits();
}

void SearchPanel::showHits()
{
    {
        const QSignalBlocker blocker(m_list);
        m_list->setCurrentRow(m_search.currentIndex());
    }
    m_view.setHits(m_search.hits(), m_search.current());
    say();
}

void SearchPanel::listHits(int index, const QStringList &surroundings)
{
    QStringList lines;
    for (int i = 0; i < surroundings.size(); ++i)
        lines.append(QStringLiteral("%1　…%2…")
                         .arg(m_search.hits().at(index + i).page + 1)
                         .arg(surroundings.at(i)));
    const bool isFirst = m_list->count() == 0;
    {
        const QSignalBlocker blocker(m_list);
        m_list->insertItems(index, lines);
    }
    // Only the first hit moves the view; the user may be elsewhere when more are found.
    if (isFirst)
        showHits();
    else
        m_view.addHits(m_search.hits());
}

void SearchPanel::showProgress()
{
    const bool isActive = m_search.isActive();
    // The button would take the focus with it.
    if (!isActive && m_stopButton->hasFocus())
        m_field->setFocus();
    if (!m_search.hasHits() && m_list->count() > 0) {
        const QSignalBlocker blocker(m_list);
        m_list->clear();
        m_view.setHits({}, TextRange());
    }
    m_progress->setRange(0, std::max(1, m_search.pageCount()));
    m_progress->setValue(m_search.searchedPages());
    const bool isLong = isActive && m_clock.elapsed() > patience;
    // Progress and stop are also for a search from a field of the toolbar.
    if (isLong && !m_hasOpened) {
        m_hasOpened = true;
        show();
    }
    m_progress->setVisible(isLong);
    m_stopButton->setVisible(isLong);
    say();
}

void SearchPanel::say()
{
    if (m_search.content().isEmpty() || m_label->text() == resultText())
        return;
    m_label->setText(resultText());
    Q_EMIT found(m_label->text());
}

QString SearchPanel::resultText() const
{
    const QString word = m_search.content();
    QString text =
        m_search.isActive() ? tr("正在查找“%1”…").arg(word) : tr("没有找到“%1”").arg(word);
    if (m_search.hasHits())
        text = tr("“%1”：第 %2 处，共 %3 处")
                   .arg(word)
                   .arg(m_search.currentIndex() + 1)
                   .arg(m_search.hits().size());
    if (m_search.isActive() || !m_search.isPartial())
        return text;
    return tr("%1（只查找了 %2 / %3 页）")
        .arg(text)
        .arg(m_search.searchedPages())
        .arg(m_search.pageCount());
}

void SearchPanel::forget()
{
    m_search.clear();
    const QSignalBlocker blocker(m_list);
    m_list->clear();
    m_label->clear();
    m_progress->hide();
    m_stopButton->hide();
}
