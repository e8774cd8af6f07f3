// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "commands/EditCommands.h"

#include "document/Document.h"
#include "document/PageGenerator.h"
#include "pages/PageView.h"
#include "panels/HandwritingSettings.h"
#include "panels/MarkEntry.h"

#include <toolbar/MRToolBarCommands.h>

#include <QApplication>
#include <QClipboard>
#include <QInputDialog>
#include <QMainWindow>
#include <QMap>
#include <QPlainTextEdit>

#include <algorithm>
#include <limits>

namespace {

const QColor sealColour(0xC8, 0x1E, 0x1E);
const QColor watermarkColour(0x60, 0x60, 0x60);
constexpr quint32 insertedPageSeed = 20;

/** Groups of tools, and the tool that a click on the button of a group chooses. */
const QMap<QString, QString> &groupTools()
{
    static const QMap<QString, QString> tools = {
        {QStringLiteral("t_tablet"), QStringLiteral("tp_penceil")},
        {QStringLiteral("t_tableteraser"), QStringLiteral("eraser_middle")},
        {QStringLiteral("tp_shape"), QStringLiteral("tp_rectangle")},
    };
    return tools;
}

QStringList readingTools()
{
    return {QStringLiteral("t_handtool"), QStringLiteral("t_textselect")};
}

/** Empty, which is the described tooltip, when there is nothing to tell. */
QString tellingWhat(const QString &tip, const QString &what)
{
    return what.isEmpty() ? QString() : tip.arg(what);
}

QPolygonF cornersOf(const QRectF &rect)
{
    QPolygonF corners;
    corners << rect.topLeft() << rect.bottomRight();
    return corners;
}

/** Moves a stamp inside the page: its place fits a generated page, others may be smaller. */
QRectF movedInto(QRectF rect, QSizeF page)
{
    rect.moveRight(std::min(rect.right(), page.width()));
    rect.moveBottom(std::min(rect.bottom(), page.height()));
    return rect;
}

} // namespace

EditCommands::EditCommands(const ReaderParts &parts)
    : m_parts(parts)
    , m_lastPen(PageTool::penNames().first())
{
    QObject::connect(&m_walk, &TextWalk::stepped, &m_walk, [this] { followCopying(); });
}

void EditCommands::addTo(MRToolBarCommands &commands)
{
    addTools(commands);
    addSelection(commands);
    addPages(commands);
    addStamps(commands);
    // Of descriptions with tabs for the text that is selected.
    commands.setContext("text", [view = m_parts.view] { return !view->selection().isEmpty(); });
}

void EditCommands::addTools(MRToolBarCommands &commands)
{
    QStringList marking = PageTool::names() + groupTools().keys();
    for (const QString &name : readingTools())
        marking.removeAll(name);
    const auto isChecked = [view = m_parts.view](const QString &tool) {
        return view->tool().name == tool;
    };
    const auto use = [this](const QString &name) { useTool(groupTools().value(name, name)); };
    m_parts.addForDocument(commands, readingTools(), use).checkedWhen(isChecked);
    m_parts.addAllowed(Act::Annotate, commands, marking, use).checkedWhen(isChecked);
}

void EditCommands::addSelection(MRToolBarCommands &commands)
{
    Document *document = m_parts.document;
    commands.add("e_undo", [document] { document->undoStack().undo(); })
        .usableWhen([document] { return document->undoStack().canUndo(); })
        .withToolTip([document] {
            return tellingWhat(tr("撤销：%1 (Ctrl+Z)"), document->undoStack().undoText());
        });
    commands.add("e_redo", [document] { document->undoStack().redo(); })
        .usableWhen([document] { return document->undoStack().canRedo(); })
        .withToolTip([document] {
            return tellingWhat(tr("恢复：%1 (Ctrl+Y)"), document->undoStack().redoText());
        });
    m_parts.addForDocument(commands, "e_selectpage", [this] { selectPage(); });
    m_parts.addForDocument(commands, "e_selectall", [this] { selectAll(); });
    const auto hasSelection = [view = m_parts.view] { return !view->selection().isEmpty(); };
    commands.add("e_copy", [this] { copySelection(); }).usableWhen(hasSelection);
    commands.add("e_unselect", [this] { m_parts.view->setSelection({}); }).usableWhen(hasSelection);
}

void EditCommands::addPages(MRToolBarCommands &commands)
{
    const auto insert = [this](const Page &page, const QString &what) {
        const int index = m_parts.view->currentPage() + 1;
        m_parts.document->insertPage(index, page, what);
        m_parts.view->setCurrentPage(index);
        m_parts.say(tr("%1：第 %2 页").arg(what).arg(index + 1));
    };
    m_parts.addAllowed(Act::Edit, commands, {"d_insertblankpage"}, [insert](const QString &) {
        Page blank;
        blank.heading = tr("空白页");
        insert(blank, tr("插入空白页"));
    });
    m_parts.addAllowed(Act::Edit, commands, {"d_insertpage"}, [this, insert](const QString &) {
        const int number = m_parts.document->pageCount() + 1;
        insert(PageGenerator::page(insertedPageSeed, number), tr("插入页面"));
    });
}

void EditCommands::addStamps(MRToolBarCommands &commands)
{
    // Not translated: the text becomes a part of the document.
    m_parts.addAllowed(Act::Sign, commands, {"t_sealsign"}, [this](const QString &) {
        place(MarkKind::RoundSeal, QRectF(520, 830, 170, 170), QStringLiteral("示例单位专用章"));
    });
    m_parts.addAllowed(Act::Sign, commands, {"t_pageseal"}, [this](const QString &) {
        const QSizeF size = m_parts.document->sizeOf(m_parts.view->currentPage());
        const QRectF overEdge(size.width() - 60, 480, 120, 120);
        placeOnEveryPage(MarkKind::EdgeSeal, overEdge, QStringLiteral("骑缝专用章"));
    });
    m_parts.addAllowed(Act::Sign, commands, {"ti_chapter"}, [this](const QString &) {
        place(MarkKind::SquareSeal, QRectF(110, 850, 120, 120), QStringLiteral("示例之印"));
    });
    m_parts.addAllowed(Act::Annotate, commands, {"t_sealmark"}, [this](const QString &) {
        place(MarkKind::SealPlace, QRectF(330, 840, 140, 140), QStringLiteral("此处盖章"));
    });
    m_parts.addAllowed(Act::Annotate, commands, {"ti_stamp"}, [this](const QString &) {
        place(MarkKind::Stamp, QRectF(500, 90, 160, 64), QStringLiteral("已　阅"));
    });
    m_parts.addAllowed(Act::Annotate, commands, {"ti_affix"}, [this](const QString &) {
        place(MarkKind::Picture, QRectF(280, 420, 240, 150), QString());
    });
    m_parts.addAllowed(Act::AddWatermark, commands, {"tw_watermark_add"},
                       [this](const QString &) { addWatermark(); });
}

void EditCommands::useTool(const QString &name)
{
    PageView *view = m_parts.view;
    const PageTool tool = PageTool::of(name);
    view->setTool(m_parts.handwriting->withInk(tool));
    if (tool.gesture == PageTool::DrawInk)
        m_lastPen = name;
    if (tool.gesture != PageTool::MarkText || view->selection().isEmpty())
        return;

    // A tool for text marks the current selection at once. The tab of a selection that shows the
    // tool goes with the selection, so what is active then is on show.
    const QList<Mark> marks = view->marksOnSelection();
    view->setSelection({});
    view->setTool(PageTool::of(QStringLiteral("t_textselect")));
    for (const Mark &mark : marks)
        addDrawn(mark);
}

void EditCommands::editHandwriting()
{
    m_lastPen = m_parts.handwriting->edit(m_lastPen, m_parts.window);
    if (!m_parts.document->isOpen())
        return;
    useTool(m_lastPen);
    m_parts.say(tr("按住鼠标左键在页面上书写"));
}

bool EditCommands::may(Act act) const
{
    // A tool may be in use from before the document was opened.
    const QString refusal = m_parts.document->refusalOf(act);
    if (!refusal.isEmpty())
        m_parts.say(refusal);
    return refusal.isEmpty();
}

void EditCommands::eraseInk(int page, QPointF point, qreal radius)
{
    if (!may(Act::Annotate))
        return;
    if (const auto kept = m_parts.document->eraseInk(page, point, radius))
        m_parts.say(MarkEntry::refusalOf(*kept));
}

bool EditCommands::mayChange(const Mark *mark) const
{
    if (!mark || !may(Act::Annotate))
        return false;
    const QString refusal = MarkEntry::refusalOf(*mark);
    if (!refusal.isEmpty())
        m_parts.say(refusal);
    return refusal.isEmpty();
}

void EditCommands::editMark(int id)
{
    const Mark *mark = m_parts.document->markOf(id);
    if (!mayChange(mark))
        return;
    QString text = mark->text;
    if (askForText(tr("编辑批注"), tr("备注"), &text))
        m_parts.document->setMarkText(id, text);
}

bool EditCommands::askForText(const QString &title, const QString &label, QString *text) const
{
    QInputDialog dialog(m_parts.window);
    dialog.setOption(QInputDialog::UsePlainTextEditForTextInput);
    dialog.setWindowTitle(title);
    dialog.setLabelText(label);
    dialog.setTextValue(*text);
    // Otherwise the buttons cannot be reached with the keyboard.
    if (auto *field = dialog.findChild<QPlainTextEdit *>())
        field->setTabChangesFocus(true);
    const bool isGiven = dialog.exec() == QDialog::Accepted;
    *text = dialog.textValue();
    return isGiven;
}

void EditCommands::removeMark(int id)
{
    if (mayChange(m_parts.document->markOf(id)))
        m_parts.document->deleteMark(id, tr("删除批注"));
}

void EditCommands::addBookmark(int page)
{
    if (may(Act::Edit))
        m_parts.document->addBookmark(page);
}

void EditCommands::removeBookmark(int index)
{
    if (may(Act::Edit))
        m_parts.document->removeBookmark(index);
}

void EditCommands::addDrawn(Mark mark)
{
    if (!may(Act::Annotate))
        return;
    if (mark.kind == MarkKind::TextBox || mark.kind == MarkKind::Note) {
        if (!askForText(markName(mark.kind), tr("文字"), &mark.text) || mark.text.isEmpty())
            return;
    }
    m_parts.document->addMark(mark, markName(mark.kind));
}

void EditCommands::place(MarkKind kind, const QRectF &rect, const QString &text)
{
    Mark mark;
    mark.kind = kind;
    mark.page = m_parts.view->currentPage();
    mark.points = cornersOf(movedInto(rect, m_parts.document->sizeOf(mark.page)));
    mark.text = text;
    mark.colour = sealColour;
    m_parts.document->addMark(mark, markName(kind));
    m_parts.say(tr("%1：第 %2 页").arg(markName(kind)).arg(mark.page + 1));
}

void EditCommands::placeOnEveryPage(MarkKind kind, const QRectF &rect, const QString &text)
{
    Mark mark;
    mark.kind = kind;
    mark.page = everyPage;
    mark.points = cornersOf(rect);
    mark.text = text;
    mark.colour = kind == MarkKind::Watermark ? watermarkColour : sealColour;
    m_parts.document->addMark(mark, markName(kind));
    m_parts.say(tr("%1：每一页").arg(markName(kind)));
}

void EditCommands::addWatermark()
{
    bool isGiven = false;
    const QString text =
        QInputDialog::getText(m_parts.window, markName(MarkKind::Watermark), tr("水印的文字"),
                              QLineEdit::Normal, tr("内部资料"), &isGiven);
    const QSizeF size = m_parts.document->sizeOf(m_parts.view->currentPage());
    if (isGiven && !text.isEmpty())
        placeOnEveryPage(MarkKind::Watermark, QRectF(QPointF(0, 0), size), text);
}

void EditCommands::selectPage()
{
    const int page = m_parts.view->currentPage();
    const int length = int(m_parts.document->page(page).text.size());
    m_parts.view->setSelection(length > 0 ? QList<TextRange>{{page, 0, length}}
                                          : QList<TextRange>());
    // Ctrl+C is a shortcut of the page view.
    m_parts.view->setFocus();
    m_parts.say(tr("已选择 %1 个字").arg(length));
}

void EditCommands::selectAll()
{
    // To read the texts of thousands of pages would take seconds, so nobody knows the lengths.
    QList<TextRange> selection;
    const int count = m_parts.document->pageCount();
    for (int page = 0; page < count; ++page)
        selection.append({page, 0, std::numeric_limits<int>::max()});
    m_parts.view->setSelection(selection);
    m_parts.view->setFocus();
    m_parts.say(tr("已选择全部 %1 页的文字").arg(count));
}

void EditCommands::copySelection()
{
    const QList<TextRange> selection = m_parts.view->selection();
    if (selection.isEmpty())
        return;
    const QList<Page> all = m_parts.document->pages();
    QList<Page> pages;
    // The text of a single page is known, so that no painter has to load its fonts again.
    const bool isOne = selection.size() == 1;
    for (const TextRange &range : selection)
        pages.append(isOne ? m_parts.document->page(range.page) : all.at(range.page));
    const auto text = std::make_shared<QString>();
    m_copied = text;
    m_copiedPages = int(pages.size());
    m_walk.start(pages, 0, true, [text, selection](int index, const Page &page) {
        if (!text->isEmpty() && !text->endsWith(QChar(u'\n')))
            *text += QChar(u'\n');
        *text += page.text.mid(selection.at(index).start, selection.at(index).length);
        return true;
    });
}

void EditCommands::followCopying()
{
    if (m_walk.isActive()) {
        m_parts.say(tr("正在复制：第 %1 / %2 页").arg(m_walk.visitedCount()).arg(m_copiedPages));
        return;
    }
    if (!m_copied->isEmpty())
        QApplication::clipboard()->setText(*m_copied);
    m_parts.say(m_copied->isEmpty() ? tr("没有可以复制的文字")
                                    : tr("已复制 %1 个字").arg(m_copied->size()));
    m_copied.reset();
}
