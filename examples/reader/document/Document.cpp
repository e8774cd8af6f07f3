// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/Document.h"

#include "document/PageGenerator.h"

#include <QFileInfo>
#include <QLineF>

#include <algorithm>
#include <utility>

namespace {

constexpr int mostKilobytes = 16 << 10; // Of texts.

/** Not qHash(), whose values differ between runs and versions of Qt. */
quint32 seedOf(const QString &name)
{
    quint32 seed = 2166136261U;
    const QByteArray bytes = name.toUtf8();
    for (const char byte : bytes)
        seed = (seed ^ quint8(byte)) * 16777619U;
    return seed;
}

/** The distance of a point from a line segment. */
qreal distanceTo(const QLineF &way, QPointF point)
{
    const QPointF along = way.p2() - way.p1();
    const qreal square = QPointF::dotProduct(along, along);
    if (square == 0)
        return QLineF(way.p1(), point).length();
    const qreal share = QPointF::dotProduct(point - way.p1(), along) / square;
    return QLineF(way.pointAt(std::clamp(share, 0.0, 1.0)), point).length();
}

bool passesNear(const Mark &ink, QPointF point, qreal radius)
{
    for (int i = 0; i < ink.points.size(); ++i) {
        const QLineF way(ink.points.at(std::max(0, i - 1)), ink.points.at(i));
        if (distanceTo(way, point) <= radius + ink.width / 2)
            return true;
    }
    return false;
}

} // namespace

Document::Document(QObject *parent)
    : QObject(parent)
    , m_texts(mostKilobytes)
{
}

bool Document::open(const QString &fileName, QString *error, int body)
{
    OfdFile file;
    QList<Page> pages;
    if (!file.read(fileName, &pages, error, body))
        return false;
    replace(fileName, pages, file);
    return true;
}

void Document::openGenerated(const QString &name)
{
    const quint32 seed = seedOf(name);
    QList<Page> pages;
    for (int number = 1; number <= PageGenerator::pageCount(seed); ++number)
        pages.append(PageGenerator::page(seed, number));
    replace(name, pages, OfdFile());
}

void Document::close()
{
    replace(QString(), {}, OfdFile());
}

void Document::replace(const QString &fileName, const QList<Page> &pages, const OfdFile &file)
{
    m_survey.reset();
    m_texts.clear();
    m_fileName = fileName;
    m_file = file;
    m_undoStack.clear();
    m_quarters = 0;
    m_pages = pages;
    m_bookmarks = m_file.bookmarks;
    adoptMarks();
    pagesReplaced();
    Q_EMIT marksChanged();
    if (!m_file.document)
        return;
    m_survey = std::make_unique<PageSurvey>(m_file.document);
    connect(m_survey.get(), &PageSurvey::learnt, this, &Document::learn);
}

void Document::adoptMarks()
{
    m_marks = m_file.marks;
    for (Mark &mark : m_marks) {
        mark.id = ++m_lastMarkId;
        // A mark is painted as those that are drawn now, and not as a part of its page.
        if (mark.kind != MarkKind::Annotation)
            setHidden(mark, true);
    }
}

void Document::setHidden(const Mark &mark, bool isHidden)
{
    for (const auto &origin : mark.origins)
        m_file.hidden->set(origin.first, origin.second, isHidden);
}

void Document::pagesReplaced()
{
    measureLargest();
    Q_EMIT pagesChanged();
}

void Document::measureLargest()
{
    m_largestSize = QSizeF();
    for (const Page &page : std::as_const(m_pages))
        m_largestSize = m_largestSize.expandedTo(page.size);
}

void Document::learn(const QVector<int> &filePages)
{
    bool isNew = false;
    for (const int filePage : filePages) {
        const int page = pageOfFilePage(filePage);
        const QSizeF size = contentOf(page)->size();
        if (size.isEmpty() || size == sizeOf(page))
            continue;
        m_pages[page].size = size;
        isNew = true;
    }
    if (isNew) {
        measureLargest();
        Q_EMIT sizesChanged();
    }
    Q_EMIT learnt();
}

Page Document::page(int index) const
{
    const Page &page = m_pages.at(index);
    if (page.isTextRead)
        return page;
    if (const Page *known = m_texts.object(page.content.get()))
        return *known;
    const Page read = page.withText(page.content->painter());
    const int bytes = int(read.text.size() * (sizeof(QChar) + sizeof(QRectF))
                          + read.lines.size() * sizeof(TextLine));
    m_texts.insert(page.content.get(), new Page(read), 1 + (bytes >> 10));
    return read;
}

QString Document::faultOf(int page) const
{
    const PageContent *content = m_pages.at(page).content.get();
    return content ? content->fault() : QString();
}

bool Document::isModified() const
{
    if (m_undoStack.isClean())
        return false;
    if (m_undoStack.cleanIndex() < 0)
        return true;
    const int first = std::min(m_undoStack.index(), m_undoStack.cleanIndex());
    const int last = std::max(m_undoStack.index(), m_undoStack.cleanIndex());
    for (int i = first; i < last; ++i) {
        if (m_undoStack.command(i)->id() != TurnEdit::kind)
            return true;
    }
    return false;
}

void Document::turn(int quarters, const QString &what)
{
    m_undoStack.push(new TurnEdit(*this, quarters, what));
}

void Document::turnBy(int quarters)
{
    m_quarters = (m_quarters + quarters + 4) % 4;
    Q_EMIT turned();
}

QString Document::title() const
{
    return QFileInfo(m_fileName).fileName();
}

bool Document::hasPageOf(const Mark &mark) const
{
    return mark.page == everyPage || mark.page < pageCount();
}

void Document::addMark(Mark mark, const QString &what)
{
    mark.id = ++m_lastMarkId;
    mark.creator = qEnvironmentVariable("USER", QStringLiteral("user"));
    mark.date = QDate::currentDate();
    m_undoStack.push(new AddMarkEdit(*this, mark, what));
}

std::optional<Mark> Document::eraseInk(int page, QPointF point, qreal radius)
{
    std::optional<Mark> kept;
    for (int i = int(m_marks.size()) - 1; i >= 0; --i) {
        const Mark mark = m_marks.at(i);
        if (mark.kind != MarkKind::Ink || mark.page != page || !passesNear(mark, point, radius))
            continue;
        if (mark.isReadOnly)
            kept = mark;
        else
            m_undoStack.push(new RemoveMarkEdit(*this, i, tr("擦除笔迹")));
    }
    return kept;
}

void Document::deleteMark(int id, const QString &what)
{
    for (int i = 0; i < m_marks.size(); ++i) {
        if (m_marks.at(i).id == id) {
            m_undoStack.push(new RemoveMarkEdit(*this, i, what));
            return;
        }
    }
}

void Document::setMarkText(int id, const QString &text)
{
    const Mark *mark = markOf(id);
    if (mark && mark->text != text)
        m_undoStack.push(new ChangeTextEdit(*this, *mark, text));
}

void Document::addBookmark(int page)
{
    const auto named = [this](const QString &name) {
        return std::find_if(m_bookmarks.cbegin(), m_bookmarks.cend(),
                            [&name](const NamedPlace &each) { return each.name == name; });
    };
    const QString plain = tr("第 %1 页").arg(page + 1);
    QString name = plain;
    // Links refer to bookmarks by their names, so no two may have the same one.
    for (int copy = 2; named(name) != m_bookmarks.cend(); ++copy) {
        if (named(name)->place.page == page)
            return;
        name = QStringLiteral("%1 (%2)").arg(plain).arg(copy);
    }
    NamedPlace added;
    added.name = name;
    added.place.page = page;
    QList<NamedPlace> bookmarks = m_bookmarks;
    const auto next =
        std::find_if(bookmarks.begin(), bookmarks.end(), [page](const NamedPlace &each) {
            return each.origin < 0 && each.place.page > page;
        });
    bookmarks.insert(next, added);
    m_undoStack.push(new ChangeBookmarksEdit(*this, m_bookmarks, bookmarks, tr("添加书签")));
}

void Document::removeBookmark(int index)
{
    QList<NamedPlace> bookmarks = m_bookmarks;
    bookmarks.removeAt(index);
    m_undoStack.push(new ChangeBookmarksEdit(*this, m_bookmarks, bookmarks, tr("删除书签")));
}

const Mark *Document::markOf(int id) const
{
    for (const Mark &mark : m_marks) {
        if (mark.id == id)
            return &mark;
    }
    return nullptr;
}

int Document::filePageOf(int page) const
{
    const PageContent *content = contentOf(page);
    return content ? content->index() : -1;
}

int Document::pageOfFilePage(int filePage) const
{
    // Pages can be inserted, but not moved or removed, so it is not before its place in the file.
    for (int page = filePage; page >= 0 && page < pageCount(); ++page) {
        if (filePageOf(page) == filePage)
            return page;
    }
    return -1;
}

void Document::insertPage(int index, const Page &page, const QString &what)
{
    m_undoStack.push(new InsertPageEdit(*this, index, page, what));
}

void Document::placeMark(int position, const Mark &mark)
{
    m_marks.insert(position, mark);
    if (mark.kind == MarkKind::Annotation) {
        setHidden(mark, false);
        Q_EMIT contentChanged();
    }
    Q_EMIT marksChanged();
}

void Document::replaceMark(const Mark &mark)
{
    for (Mark &each : m_marks) {
        if (each.id == mark.id)
            each = mark;
    }
    Q_EMIT marksChanged();
}

void Document::removeMark(int id)
{
    for (int i = 0; i < m_marks.size(); ++i) {
        if (m_marks.at(i).id == id) {
            const Mark removed = m_marks.takeAt(i);
            if (removed.kind == MarkKind::Annotation) {
                setHidden(removed, true);
                Q_EMIT contentChanged();
            }
            break;
        }
    }
    Q_EMIT marksChanged();
}

void Document::replaceBookmarks(const QList<NamedPlace> &bookmarks)
{
    m_bookmarks = bookmarks;
    Q_EMIT bookmarksChanged();
}

void Document::placePage(int index, const Page &page)
{
    m_pages.insert(index, page);
    for (Mark &mark : m_marks) {
        if (mark.page >= index)
            ++mark.page;
    }
    for (NamedPlace &bookmark : m_bookmarks)
        bookmark.place.page += bookmark.place.page >= index ? 1 : 0;
    pagesReplaced();
}

void Document::removePage(int index)
{
    m_pages.removeAt(index);
    for (Mark &mark : m_marks) {
        if (mark.page > index)
            --mark.page;
    }
    for (NamedPlace &bookmark : m_bookmarks)
        bookmark.place.page -= bookmark.place.page > index ? 1 : 0;
    pagesReplaced();
}
