// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/SkinIcon.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QIconEngine>
#include <QPainter>

namespace {

/** Qt's own disabled look leaves light glyphs as they are; this one fades all alike. */
constexpr qreal disabledOpacity = 0.45;

class SkinIconEngine : public QIconEngine
{
public:
    explicit SkinIconEngine(const QString &path)
        : m_path(path)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        if (m_icon.isNull())
            m_icon = QIcon(m_path);
        const qreal opacity = painter->opacity();
        if (mode == QIcon::Disabled)
            painter->setOpacity(opacity * disabledOpacity);
        m_icon.paint(painter, rect, Qt::AlignCenter, QIcon::Normal, state);
        painter->setOpacity(opacity);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new SkinIconEngine(m_path); }

private:
    QString m_path;
    QIcon m_icon;
};

QHash<QString, QIcon> &iconCache()
{
    // Never destroyed: an application that is a static object itself clears it later than that.
    static auto &cache = *new QHash<QString, QIcon>;
    return cache;
}

} // namespace

QString skinIconPath(const QString &directory, const QString &name)
{
    if (name.isEmpty())
        return QString();

    const QString path = directory + QStringLiteral("icons/") + name;
    return QFile::exists(path) ? path : QString();
}

QIcon skinIcon(const QString &path)
{
    QHash<QString, QIcon> &cache = iconCache();
    const auto cached = cache.constFind(path);
    if (cached != cache.cend())
        return *cached;
    // A directory exists, too, and an icon made of it would take up room.
    if (!QFileInfo(path).isFile())
        return QIcon();

    // Icons must not outlive the application; a process may have several, one after the other.
    if (cache.isEmpty())
        qAddPostRoutine([] { iconCache().clear(); });
    return *cache.insert(path, QIcon(new SkinIconEngine(path)));
}
