// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/FileDelegate.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QListWidget>
#include <QPainter>

namespace {

constexpr int fileRole = Qt::UserRole;

/** The folder of a file, from the user's own one on. */
QString folderOf(const QString &fileName)
{
    const QString folder = QFileInfo(fileName).absolutePath();
    const QString home = QDir::homePath();
    const bool isAtHome = folder == home || folder.startsWith(home + QChar(u'/'));
    return QDir::toNativeSeparators(isAtHome ? QChar(u'~') + folder.mid(home.size()) : folder);
}

/** Between a text and its ground, but nearer to the text. */
QColor weakened(const QColor &text, const QColor &ground)
{
    constexpr qreal share = 0.7;
    const auto mixed = [](qreal one, qreal other) { return one * share + other * (1 - share); };
    return QColor::fromRgbF(mixed(text.redF(), ground.redF()),
                            mixed(text.greenF(), ground.greenF()),
                            mixed(text.blueF(), ground.blueF()));
}

} // namespace

void FileDelegate::addFile(QListWidget *list, const QString &fileName)
{
    auto *item = new QListWidgetItem(QFileInfo(fileName).fileName(), list);
    item->setData(fileRole, fileName);
    item->setData(Qt::AccessibleDescriptionRole, folderOf(fileName));
    item->setToolTip(QDir::toNativeSeparators(fileName).toHtmlEscaped());
}

QString FileDelegate::fileOf(const QListWidgetItem &item)
{
    return item.data(fileRole).toString();
}

void FileDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    QStyleOptionViewItem ground(option);
    initStyleOption(&ground, index);
    const QString name = ground.text;
    ground.text.clear();
    const QStyle *style = ground.widget ? ground.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &ground, painter, ground.widget);

    const bool isSelected = ground.state & QStyle::State_Selected;
    const QPalette &colours = ground.palette;
    const QColor text = colours.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QColor below = colours.color(QPalette::Base);
    const QFontMetrics &metrics = ground.fontMetrics;
    const int margin = metrics.height() / 3;
    const QRect area = ground.rect.adjusted(2 * margin, margin, -2 * margin, -margin);
    const auto elided = [&](const QString &line, Qt::TextElideMode mode) {
        return metrics.elidedText(line, mode, area.width());
    };
    painter->save();
    painter->setFont(ground.font);
    painter->setPen(text);
    painter->drawText(area, Qt::AlignTop | Qt::AlignLeft, elided(name, Qt::ElideMiddle));
    painter->setPen(isSelected ? text : weakened(text, below));
    painter->drawText(area, Qt::AlignBottom | Qt::AlignLeft,
                      elided(folderOf(index.data(fileRole).toString()), Qt::ElideMiddle));
    painter->restore();
}

QSize FileDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    // A narrow list makes lines shorter instead of scrolling sideways.
    const int line = option.fontMetrics.height();
    return QSize(QStyledItemDelegate::sizeHint(option, index).height(), 3 * line);
}
