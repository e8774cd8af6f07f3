// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/SearchPanel.h"

#include "pages/PageView.h"
#include "panels/LanguageFollower.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

constexpr int contextLength = 8;
constexpr int leastWidth = 220;

QString contextOf(const Page &page, const TextRange &hit)
{
    const int from = std::max(0, hit.start - contextLength);
    const int length = hit.start - from + hit.length + contextLength;
    return page.text.mid(from, length).replace(QChar(u'\n'), QChar(u' ')).trimmed();
}

} // namespace

SearchPanel::SearchPanel(const Document &document, PageView &view, QWidget *parent)
    : QDockWidget(parent)
    , m_document(document)
    , m_view(view)
    , m_field(new QLineEdit)
    , m_label(new QLabel)
    , m_list(new QListWidget)
{
    setObjectName(QStringLiteral("search"));
    buildContent();
    hide();
    connect(m_field, &QLineEdit::returnPressed, this, [this] { searchWord(m_field->text()); });
    connect(m_list, &QListWidget::currentRowChanged, this, &SearchPanel::goToHit);
    connect(&document, &Document::pagesChanged, this, &SearchPanel::forget);
}

void SearchPanel::buildContent()
{
    m_field->setClearButtonEnabled(true);
    LanguageFollower::attach(this, [this] {
        setWindowTitle(tr("高级搜索"));
        m_field->setPlaceholderText(tr("输入要查找的文字"));
        m_list->setAccessibleName(tr("搜索结果"));
        if (!m_search.content().isEmpty())
            m_label->setText(resultText());
    });
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->addWidget(m_field);
    layout->addWidget(m_label);
    layout->addWidget(m_list);
    content->setMinimumWidth(leastWidth);
    setWidget(content);
}

void SearchPanel::search(const SearchOption &option)
{
    if (!m_document.isOpen() || option.content.isEmpty())
        return;
    m_search.search(m_document, option, m_view.currentPage());
    m_field->setText(option.content);
    fillList();
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
    m_view.setHits(m_search.hits(), m_search.current());
    m_label->setText(resultText());
    Q_EMIT found(m_label->text());
}

QString SearchPanel::resultText() const
{
    return m_search.hasHits() ? tr("“%1”：第 %2 处，共 %3 处")
                                    .arg(m_search.content())
                                    .arg(m_search.currentIndex() + 1)
                                    .arg(m_search.hits().size())
                              : tr("没有找到“%1”").arg(m_search.content());
}

void SearchPanel::fillList()
{
    const QSignalBlocker blocker(m_list);
    m_list->clear();
    for (const TextRange &hit : m_search.hits()) {
        m_list->addItem(QStringLiteral("%1　…%2…")
                            .arg(hit.page + 1)
                            .arg(contextOf(m_document.page(hit.page), hit)));
    }
    m_list->setCurrentRow(m_search.currentIndex());
}

void SearchPanel::forget()
{
    m_search.clear();
    const QSignalBlocker blocker(m_list);
    m_list->clear();
    m_label->clear();
}
