// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/PageTool.h"

#include "document/Page.h"

#include <QList>

namespace {

QList<PageTool> textTools()
{
    const QColor revision(0xD0, 0x3A, 0x2B);
    const auto mark = [](const char *name, MarkKind kind, QColor colour) {
        return PageTool{QLatin1String(name), PageTool::MarkText, kind, colour, 2, QString()};
    };
    const auto revise = [revision](const char *name, const QString &sign) {
        return PageTool{
            QLatin1String(name), PageTool::MarkText, MarkKind::Revision, revision, 2, sign};
    };
    return {
        mark("tt_highlight", MarkKind::Highlight, QColor(0xFF, 0xD8, 0x2E)),
        mark("tt_underline", MarkKind::Underline, QColor(0x1F, 0x7A, 0x3D)),
        mark("tt_wavyline", MarkKind::WavyLine, QColor(0x1C, 0x6D, 0xC4)),
        mark("tt_deleteline", MarkKind::DeleteLine, QColor(0xC4, 0x2B, 0x1C)),
        revise("t_addrevisions", QStringLiteral("增")),
        revise("t_delrevisions", QStringLiteral("删")),
        revise("tp_insertline", QStringLiteral("插")),
        revise("tt_replace", QStringLiteral("换")),
        revise("tt_movedout", QStringLiteral("移")),
        revise("t_increasespace", QStringLiteral("＋距")),
        revise("t_reducespace", QStringLiteral("－距")),
        revise("t_moveback", QStringLiteral("后移")),
        revise("t_moveforward", QStringLiteral("前移")),
    };
}

QList<PageTool> shapeTools()
{
    const auto shape = [](const char *name, MarkKind kind) {
        return PageTool{
            QLatin1String(name), PageTool::DrawShape, kind, QColor(0xC4, 0x2B, 0x1C), 2, QString()};
    };
    return {
        shape("tp_straightline", MarkKind::StraightLine),
        shape("tp_arrow", MarkKind::Arrow),
        shape("tp_rectangle", MarkKind::Rectangle),
        shape("tp_ellipse", MarkKind::Ellipse),
        shape("tp_polygon", MarkKind::Polygon),
        shape("tp_polyline", MarkKind::Polyline),
        shape("tp_cloud", MarkKind::Cloud),
        shape("t_displaymask", MarkKind::DisplayMask),
        shape("t_printmask", MarkKind::PrintMask),
    };
}

QList<PageTool> penTools()
{
    const auto pen = [](const char *name, qreal millimetres) {
        const qreal width = millimetres * unitsPerMillimetre;
        return PageTool{
            QLatin1String(name), PageTool::DrawInk, MarkKind::Ink, QColor(), width, QString()};
    };
    return {
        pen("tp_penceil", 0.4),  pen("signpen_05mm", 0.5), pen("signpen_1mm", 1),
        pen("softpen_1mm", 1.2), pen("softpen_2mm", 2),    pen("softpen_3mm", 3),
    };
}

QList<PageTool> otherTools()
{
    const auto eraser = [](const char *name, qreal radius) {
        return PageTool{
            QLatin1String(name), PageTool::Erase, MarkKind::Ink, QColor(), radius, QString()};
    };
    const auto text = [](const char *name, MarkKind kind) {
        return PageTool{
            QLatin1String(name), PageTool::PlaceText, kind, QColor(0x80, 0x70, 0x30), 1, QString()};
    };
    return {
        {QStringLiteral("t_handtool"), PageTool::Pan, MarkKind::Highlight, QColor(), 0, QString()},
        {QStringLiteral("t_textselect"), PageTool::SelectText, MarkKind::Highlight, QColor(), 0,
         QString()},
        eraser("eraser_small", 5),
        eraser("eraser_middle", 12),
        eraser("eraser_large", 24),
        text("t_freetext", MarkKind::TextBox),
        text("t_notebox", MarkKind::Note),
    };
}

const QList<PageTool> &allTools()
{
    static const QList<PageTool> tools = otherTools() + textTools() + shapeTools() + penTools();
    return tools;
}

} // namespace

PageTool PageTool::of(const QString &name)
{
    for (const PageTool &tool : allTools()) {
        if (tool.name == name)
            return tool;
    }
    return allTools().first();
}

QStringList PageTool::names()
{
    QStringList names;
    for (const PageTool &tool : allTools())
        names.append(tool.name);
    return names;
}

QStringList PageTool::penNames()
{
    QStringList names;
    const QList<PageTool> pens = penTools();
    for (const PageTool &pen : pens)
        names.append(pen.name);
    return names;
}
