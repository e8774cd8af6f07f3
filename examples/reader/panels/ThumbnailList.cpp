// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/ThumbnailList.h"

#include "pages/PagePainter.h"

#include <QAbstractListModel>
#include <QPainter>
#include <QStyledItemDelegate>

namespace {

constexpr QSize thumbnailSize(106, 150);

} // namespace

/** The numbers of the pages. */
class ThumbnailList::Pages : public QAbstractListModel
{
public:
    Pages(const Document &document, QObject *parent)
        : QAbstractListModel(parent)
        , m_document(document)
    {
        connect(&document, &Document::pagesChanged, this, [this] {
            beginResetModel();
            endResetModel();
        });
    }

    int rowCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : m_document.pageCount();
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        return role == Qt::DisplayRole ? QString::number(index.row() + 1) : QVariant();
    }

private:
    const Document &m_document;
};

/** Asks for a thumbnail only when it is drawn; a model would be asked for the size of each. */
class ThumbnailList::Delegate : public QStyledItemDelegate
{
public:
    explicit Delegate(ThumbnailList *list)
        : QStyledItemDelegate(list)
        , m_list(list)
    {
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        m_thumbnail = m_list->thumbnail(index.row());
        paintAccent(*painter, option);
        QStyleOptionViewItem quiet = option;
        quiet.state &= ~(QStyle::State_Selected | QStyle::State_MouseOver | QStyle::State_HasFocus);
        QStyledItemDelegate::paint(painter, quiet, index);
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->decorationSize = thumbnailSize;
        option->icon = QIcon(m_thumbnail);
    }

private:
    /** The style's own highlight would tint the pictures and be the strongest colour of the window.
     */
    static void paintAccent(QPainter &painter, const QStyleOptionViewItem &option)
    {
        const bool isChosen = option.state & QStyle::State_Selected;
        QColor accent = option.palette.color(QPalette::Active, QPalette::Highlight);
        painter.save();
        if (isChosen) {
            painter.setPen(QPen(accent, option.state & QStyle::State_HasFocus ? 3 : 1));
            painter.drawRect(option.rect.adjusted(1, 1, -2, -2));
        }
        accent.setAlpha(isChosen ? 48 : 24);
        if (isChosen || option.state & QStyle::State_MouseOver)
            painter.fillRect(option.rect, accent);
        painter.restore();
    }

    ThumbnailList *m_list;
    mutable QPixmap m_thumbnail; ///< Of the item that is being painted.
};

ThumbnailList::ThumbnailList(const Document &document, QWidget *parent)
    : QListView(parent)
    , m_document(document)
{
    setUniformItemSizes(true);
    setSpacing(2);
    setModel(new Pages(document, this));
    setItemDelegate(new Delegate(this));
    connect(&document, &Document::pagesChanged, &m_cache, &PageCache::clear);
    const auto repaint = QOverload<>::of(&QWidget::update);
    connect(&document, &Document::marksChanged, viewport(), repaint);
    connect(&m_cache, &PageCache::changed, viewport(), repaint);
    const auto choose = [this](const QModelIndex &index) { Q_EMIT pageChosen(index.row()); };
    connect(this, &QListView::clicked, this, choose);
    connect(this, &QListView::activated, this, choose);
}

void ThumbnailList::showPage(int page)
{
    setCurrentIndex(model()->index(page, 0));
}

void ThumbnailList::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    m_cache.request();
}

QPixmap ThumbnailList::thumbnail(int page)
{
    const qreal ratio = devicePixelRatioF();
    QPixmap pixmap(thumbnailSize * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    const QSizeF size = m_document.sizeOf(page);
    const QSizeF fitting = size.scaled(thumbnailSize, Qt::KeepAspectRatio);
    const QSizeF rest = thumbnailSize - fitting;
    const QRectF sheet(QPointF(rest.width(), rest.height()) / 2, fitting);
    const PageColours colours = PageColours::of(Background_Default);
    QPainter painter(&pixmap);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setClipRect(sheet);
    painter.save();
    painter.translate(sheet.topLeft());
    painter.scale(fitting.width() / size.width(), fitting.height() / size.height());
    if (const PageContent *content = m_document.contentOf(page)) {
        const QImage small = m_cache.preview({content, size, 1, 0, 1, colours});
        painter.fillRect(QRectF(QPointF(), size), colours.paper);
        const QSizeF target = fitting * ratio;
        if (!small.isNull())
            painter.drawImage(
                QRectF(QPointF(), size),
                small.scaled(target.toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    } else {
        paintSheet(painter, m_document, page, colours, PageDecoration());
    }
    paintOver(painter, m_document, page, colours, PageDecoration());
    painter.restore();
    painter.setPen(Qt::gray);
    painter.drawRect(sheet.toRect().adjusted(0, 0, -1, -1));
    return pixmap;
}
