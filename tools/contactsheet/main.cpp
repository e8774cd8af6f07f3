// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

// Draws every icon of the resources with its name on the background of its place: in its size,
// disabled and enlarged.

#include "toolbar/skin/SkinIcon.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QImageReader>
#include <QPainter>

#include <cstdio>

namespace {

const QColor sheetColour(0xff, 0xff, 0xff);
const QColor rowColour(0xf5, 0xf5, 0xf5);
const QColor lineColour(0x00, 0x8a, 0xd9);
const QColor textColour(0x33, 0x33, 0x33);

constexpr int margin = 16;
constexpr int gap = 12;
constexpr int headingHeight = 40;
constexpr int nameHeight = 20;
constexpr int leastCellWidth = 136;
constexpr int sheetWidth = 1664;

struct Icon
{
    QString name;
    QIcon icon;
    QSize size;
    bool onLine;
};

struct Group
{
    QString heading;
    QSize size;
    QVector<Icon> icons;
};

// A mark that is not square keeps its size; other icons fill the size of their group.
QSize shownSize(const QString &path, int size)
{
    const QSize natural = QImageReader(path).size();
    return natural.width() == natural.height() ? QSize(size, size) : natural;
}

// Icons with white outlines are made for the coloured top line.
bool standsOnLine(const QString &path)
{
    QFile file(path);
    return path.endsWith(QLatin1String(".svg")) && file.open(QIODevice::ReadOnly)
           && file.readAll().contains("<g fill=\"none\" stroke=\"#ffffff\"");
}

Group readGroup(const QString &skin, const QString &directory, int size)
{
    const QDir folder(QStringLiteral(":/mr_toolbar/Resources/%1/icons/%2").arg(skin, directory));
    Group group{skin + QStringLiteral("  icons/") + directory, QSize(size, size), {}};
    for (const QFileInfo &file : folder.entryInfoList(QDir::Files, QDir::Name | QDir::IgnoreCase)) {
        const QString path = file.filePath();
        const Icon icon{file.completeBaseName(), skinIcon(path), shownSize(path, size),
                        standsOnLine(path)};
        group.size = group.size.expandedTo(icon.size);
        group.icons.append(icon);
    }
    return group;
}

// The sizes are those in which the toolbar shows the icons.
QVector<Group> readGroups()
{
    QVector<Group> groups;
    for (const QString &skin : {QStringLiteral("marodi"), QStringLiteral("lum")}) {
        const QVector<Group> ofSkin = {readGroup(skin, QStringLiteral("icon16"), 16),
                                       readGroup(skin, QStringLiteral("icon20"), 20),
                                       readGroup(skin, QStringLiteral("icon24"), 24),
                                       readGroup(skin, QStringLiteral("icon34"), 24),
                                       readGroup(skin, QStringLiteral("icon19-22"), 8),
                                       readGroup(skin, QString(), 16)};
        for (const Group &group : ofSkin) {
            if (!group.icons.isEmpty())
                groups.append(group);
        }
    }
    return groups;
}

class Sheet
{
public:
    explicit Sheet(int factor)
        : m_factor(factor)
    {
    }

    QImage draw(const QVector<Group> &groups) const
    {
        int height = margin;
        for (const Group &group : groups)
            height += groupHeight(group);
        QImage image(sheetWidth, height, QImage::Format_RGB32);
        image.fill(sheetColour);
        QPainter painter(&image);
        int top = 0;
        for (const Group &group : groups) {
            drawGroup(painter, group, top);
            top += groupHeight(group);
        }
        return image;
    }

private:
    int cellWidth(const Group &group) const
    {
        return qMax(leastCellWidth, 4 * gap + group.size.width() * (m_factor + 2));
    }
    int cellHeight(const Group &group) const
    {
        return group.size.height() * m_factor + 2 * gap + nameHeight;
    }
    int columns(const Group &group) const
    {
        return qMax(1, (sheetWidth - 2 * margin) / cellWidth(group));
    }
    int groupHeight(const Group &group) const
    {
        const int rows = (group.icons.size() + columns(group) - 1) / columns(group);
        return headingHeight + rows * cellHeight(group);
    }

    void drawGroup(QPainter &painter, const Group &group, int top) const
    {
        painter.setFont(font(16, QFont::DemiBold));
        painter.setPen(textColour);
        painter.drawText(QRect(margin, top, sheetWidth, headingHeight), Qt::AlignVCenter,
                         QStringLiteral("%1  (%2)").arg(group.heading).arg(group.icons.size()));
        painter.setFont(font(10, QFont::Normal));
        const QSize cell(cellWidth(group), cellHeight(group));
        for (int i = 0; i < group.icons.size(); ++i) {
            const QPoint corner(margin + i % columns(group) * cell.width(),
                                top + headingHeight + i / columns(group) * cell.height());
            drawCell(painter, group.icons[i], QRect(corner, cell));
        }
    }

    void drawCell(QPainter &painter, const Icon &icon, const QRect &cell) const
    {
        painter.fillRect(cell, icon.onLine ? lineColour : rowColour);
        QRect place(cell.topLeft() + QPoint(gap, gap), icon.size);
        icon.icon.paint(&painter, place);
        place.translate(icon.size.width() + gap, 0);
        icon.icon.paint(&painter, place, Qt::AlignCenter, QIcon::Disabled);
        place.translate(icon.size.width() + gap, 0);
        icon.icon.paint(&painter, QRect(place.topLeft(), place.size() * m_factor));
        painter.setPen(icon.onLine ? sheetColour : textColour);
        painter.drawText(cell.adjusted(gap, 0, 0, -gap / 2), Qt::AlignLeft | Qt::AlignBottom,
                         icon.name);
    }

    static QFont font(int pixels, QFont::Weight weight)
    {
        QFont font(QStringLiteral("sans-serif"));
        font.setPixelSize(pixels);
        font.setWeight(weight);
        return font;
    }

    int m_factor;
};

} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Draws every icon of both skins with its name."));
    parser.addHelpOption();
    parser.addOptions({
        {QStringLiteral("out"), QStringLiteral("file of the picture"), QStringLiteral("file"),
         QStringLiteral("icons.png")},
        {QStringLiteral("factor"), QStringLiteral("how much larger the large ones are"),
         QStringLiteral("number"), QStringLiteral("2")},
    });
    parser.process(application);

    const int factor = qBound(1, parser.value(QStringLiteral("factor")).toInt(), 8);
    const QString file = parser.value(QStringLiteral("out"));
    const QVector<Group> groups = readGroups();
    if (groups.isEmpty()) {
        std::fprintf(stderr, "mrtoolbar-contactsheet: there are no icons\n");
        return 1;
    }
    if (Sheet(factor).draw(groups).save(file))
        return 0;
    std::fprintf(stderr, "mrtoolbar-contactsheet: cannot write '%s'\n", qPrintable(file));
    return 1;
}
