// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/NavigationPanel.h"

#include "panels/LanguageFollower.h"
#include "panels/ListActions.h"
#include "panels/MarkEntry.h"
#include "panels/ThumbnailList.h"

#include <QAction>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

const QString outline = QStringLiteral("vn_outline");
const QString thumbnails = QStringLiteral("vn_thumbnail");
const QString words = QStringLiteral("vn_customtag");
const QString bookmarks = QStringLiteral("vn_bookmark");
const QString marks = QStringLiteral("vn_annotation");
const QString attachments = QStringLiteral("vn_attachment");

constexpr int placeRole = Qt::UserRole;
constexpr int wordRole = Qt::UserRole + 1;
constexpr int leastWidth = 200;

QString titleOf(const QString &panel)
{
    const QHash<QString, QString> titles = {
        {outline, NavigationPanel::tr("大纲")},     {thumbnails, NavigationPanel::tr("缩略图")},
        {words, NavigationPanel::tr("自定义标引")}, {bookmarks, NavigationPanel::tr("书签")},
        {marks, NavigationPanel::tr("批注")},       {attachments, NavigationPanel::tr("附件")},
    };
    return titles.value(panel);
}

QStringList indexedWords()
{
    return {QStringLiteral("文档"), QStringLiteral("页面"), QStringLiteral("搜索"),
            QStringLiteral("签章"), QStringLiteral("批注"), QStringLiteral("OFD")};
}

void addItem(QListWidget *list, const QString &text, const PagePlace &place)
{
    auto *item = new QListWidgetItem(text, list);
    item->setData(placeRole, QVariant::fromValue(place));
}

void addNotice(QListWidget *list, const QString &text)
{
    auto *item = new QListWidgetItem(text, list);
    item->setFlags(Qt::NoItemFlags);
}

} // namespace

NavigationPanel::NavigationPanel(const Document &document, QWidget *parent)
    : QDockWidget(parent)
    , m_document(document)
    , m_stack(new QStackedWidget)
    , m_thumbnails(new ThumbnailList(document))
    , m_bookmarkButton(new QPushButton)
{
    setObjectName(QStringLiteral("navigation"));
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_stack);
    layout->addWidget(m_bookmarkButton);
    content->setMinimumWidth(leastWidth);
    setWidget(content);
    for (const QString &name : names()) {
        if (name != thumbnails)
            addPanel(name);
    }
    m_stack->addWidget(m_thumbnails);
    connect(m_thumbnails, &ThumbnailList::pageChosen, this, &NavigationPanel::pageChosen);
    addBookmarkButton();
    addListActions();
    LanguageFollower::attach(this, [this] { showTexts(); });
    hide();
    connect(&document, &Document::pagesChanged, this, &NavigationPanel::documentOpened);
    connect(&document, &Document::marksChanged, this, &NavigationPanel::refill);
    connect(&document, &Document::bookmarksChanged, this, &NavigationPanel::refill);
    connect(&m_walk, &TextWalk::stepped, this, &NavigationPanel::showWordCounts);
    connect(this, &QDockWidget::visibilityChanged, this, &NavigationPanel::shownPanelChanged);
}

QStringList NavigationPanel::names()
{
    return {outline, thumbnails, words, bookmarks, marks, attachments};
}

QListWidget *NavigationPanel::addPanel(const QString &name)
{
    auto *list = new QListWidget;
    m_stack->addWidget(list);
    m_lists.insert(name, list);
    connect(list, &QListWidget::itemClicked, this, &NavigationPanel::itemChosen);
    connect(list, &QListWidget::itemActivated, this, &NavigationPanel::itemChosen);
    return list;
}

void NavigationPanel::showTexts()
{
    for (auto list = m_lists.cbegin(); list != m_lists.cend(); ++list)
        (*list)->setAccessibleName(titleOf(list.key()));
    m_thumbnails->setAccessibleName(titleOf(thumbnails));
    m_bookmarkButton->setText(tr("为当前页添加书签"));
    nameListActions();
    setWindowTitle(titleOf(m_panel));
    if (!m_panel.isEmpty())
        refill();
}

void NavigationPanel::addBookmarkButton()
{
    setTabOrder(m_lists.value(bookmarks), m_bookmarkButton);
    connect(m_bookmarkButton, &QPushButton::clicked, this, [this] {
        if (m_document.isOpen())
            Q_EMIT bookmarkAsked(m_currentPage);
    });
}

void NavigationPanel::addListActions()
{
    QListWidget *remarks = m_lists.value(marks);
    remarks->setWordWrap(true);
    remarks->setResizeMode(QListView::Adjust);
    m_markActions = new ListActions(remarks);
    m_markActions->add(Qt::Key_F2, [this](int id) { Q_EMIT markEditAsked(id); });
    m_markActions->add(QKeySequence::Delete, [this](int id) { Q_EMIT markRemovalAsked(id); });
    QListWidget *files = m_lists.value(attachments);
    m_attachmentActions = new ListActions(files);
    m_attachmentActions->add(QKeySequence(),
                             [this](int index) { Q_EMIT attachmentOpenAsked(index); });
    m_attachmentActions->add(QKeySequence::Save,
                             [this](int index) { Q_EMIT attachmentSaveAsked(index); });
    // A double click and the Return key, but not a single click.
    connect(files, &QListWidget::itemActivated, this,
            [files] { files->actions().first()->trigger(); });
    m_bookmarkActions = new ListActions(m_lists.value(bookmarks));
    m_bookmarkActions->add(QKeySequence::Delete,
                           [this](int index) { Q_EMIT bookmarkRemovalAsked(index); });
    QWidget *before = m_bookmarkButton;
    for (ListActions *actions : {m_bookmarkActions, m_markActions, m_attachmentActions}) {
        widget()->layout()->addWidget(actions);
        actions->hide();
        setTabOrder(before, actions);
        before = actions;
    }
}

void NavigationPanel::nameListActions()
{
    m_lists.value(bookmarks)->actions().first()->setText(tr("删除书签"));
    const QList<QAction *> ofMarks = m_lists.value(marks)->actions();
    ofMarks.at(0)->setText(tr("编辑备注…"));
    ofMarks.at(1)->setText(tr("删除批注"));
    const QList<QAction *> ofFiles = m_lists.value(attachments)->actions();
    ofFiles.at(0)->setText(tr("打开附件"));
    ofFiles.at(1)->setText(tr("附件另存为…"));
}

void NavigationPanel::toggle(const QString &name)
{
    if (shownPanel() == name) {
        hide();
        return;
    }
    m_panel = name;
    setWindowTitle(titleOf(name));
    QWidget *list = m_lists.value(name);
    m_stack->setCurrentWidget(name == thumbnails ? m_thumbnails : list);
    m_bookmarkButton->setVisible(name == bookmarks);
    m_bookmarkActions->setVisible(name == bookmarks);
    m_markActions->setVisible(name == marks);
    m_attachmentActions->setVisible(name == attachments);
    show();
    refill();
    Q_EMIT shownPanelChanged();
}

QString NavigationPanel::shownPanel() const
{
    return isHidden() ? QString() : m_panel;
}

void NavigationPanel::setCurrentPage(int page)
{
    m_currentPage = page;
    m_thumbnails->showPage(page);
}

void NavigationPanel::documentOpened()
{
    m_thumbnails->showPage(m_currentPage);
    refill();
}

void NavigationPanel::refill()
{
    m_walk.stop();
    QListWidget *list = m_lists.value(m_panel);
    if (isHidden() || !list)
        return;
    const int row = list->currentRow();
    list->clear();
    if (!m_document.isOpen())
        addNotice(list, tr("没有打开的文档"));
    else if (m_panel == outline)
        fillOutline();
    else if (m_panel == words)
        fillWords();
    else if (m_panel == bookmarks)
        fillBookmarks();
    else if (m_panel == marks)
        fillMarks();
    else
        fillAttachments();
    list->setCurrentRow(row);
}

void NavigationPanel::fillOutline()
{
    addPlaces(outline, m_document.file().outline);
    if (!m_document.isGenerated()) {
        if (m_document.file().outline.isEmpty())
            addNotice(m_lists.value(outline), tr("本文档没有大纲"));
        return;
    }
    for (int page = 0; page < m_document.pageCount(); ++page) {
        const QString heading = m_document.page(page).heading;
        PagePlace place;
        place.page = page;
        addItem(m_lists.value(outline), QStringLiteral("%1　%2").arg(page + 1).arg(heading), place);
    }
}

void NavigationPanel::addPlaces(const QString &panel, const QList<NamedPlace> &places)
{
    for (const NamedPlace &entry : places) {
        const QString text = QString(2 * entry.depth, QChar(u'　')) + entry.name;
        if (entry.place.page >= 0)
            addItem(m_lists.value(panel), text, entry.place);
        else
            addNotice(m_lists.value(panel), text);
    }
}

void NavigationPanel::fillWords()
{
    for (const QString &word : indexedWords()) {
        auto *item = new QListWidgetItem(word, m_lists.value(words));
        item->setData(wordRole, word);
    }
    // All texts are read for the counts, so they appear afterwards.
    const auto counts = std::make_shared<QVector<int>>(indexedWords().size(), 0);
    m_wordCounts = counts;
    m_walk.start(m_document.pages(), 0, true,
                 [counts, list = indexedWords()](int, const Page &page) {
                     for (int i = 0; i < list.size(); ++i)
                         (*counts)[i] += int(page.text.count(list.at(i)));
                     return true;
                 });
}

void NavigationPanel::showWordCounts()
{
    QListWidget *list = m_lists.value(words);
    if (m_walk.isActive() || m_panel != words || list->count() != m_wordCounts->size())
        return;
    for (int i = 0; i < list->count(); ++i) {
        const QString word = list->item(i)->data(wordRole).toString();
        list->item(i)->setText(tr("%1（%2 处）").arg(word).arg(m_wordCounts->at(i)));
    }
}

void NavigationPanel::fillBookmarks()
{
    QListWidget *list = m_lists.value(bookmarks);
    addPlaces(bookmarks, m_document.bookmarks());
    for (int i = 0; i < list->count(); ++i)
        list->item(i)->setData(ListActions::numberRole, i);
    if (list->count() == 0)
        addNotice(list, tr("还没有书签"));
}

void NavigationPanel::fillMarks()
{
    QListWidget *list = m_lists.value(marks);
    for (const Mark &mark : m_document.marks()) {
        auto *item = new QListWidgetItem(MarkEntry::textOf(mark), list);
        item->setData(ListActions::numberRole, mark.id);
        item->setData(ListActions::refusalRole, MarkEntry::refusalOf(mark));
        item->setToolTip(MarkEntry::refusalOf(mark));
        // If centred, a last line that is lower than the one before is elided.
        item->setTextAlignment(Qt::AlignLeft | Qt::AlignTop);
    }
    if (list->count() == 0)
        addNotice(list, tr("还没有批注"));
}

void NavigationPanel::fillAttachments()
{
    const QStringList names = m_document.file().attachments;
    for (int i = 0; i < names.size(); ++i) {
        auto *item = new QListWidgetItem(names.at(i), m_lists.value(attachments));
        item->setData(ListActions::numberRole, i);
    }
    if (names.isEmpty())
        addNotice(m_lists.value(attachments), tr("本文档没有附件"));
}

void NavigationPanel::itemChosen(const QListWidgetItem *item)
{
    const QVariant number = item->data(ListActions::numberRole);
    if (number.isValid() && m_panel == marks)
        Q_EMIT markChosen(number.toInt());
    const QString word = item->data(wordRole).toString();
    if (!word.isEmpty())
        Q_EMIT wordChosen(word);
    else if (item->data(placeRole).isValid())
        Q_EMIT placeChosen(item->data(placeRole).value<PagePlace>());
}
