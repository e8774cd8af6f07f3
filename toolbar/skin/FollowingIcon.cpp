// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/FollowingIcon.h"

#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/PaintedIconEngine.h"
#include "toolbar/skin/SkinIcon.h"

#include <QPointer>

namespace {

class FollowingIconEngine : public PaintedIconEngine
{
public:
    FollowingIconEngine(const QString &path, const Appearance *appearance)
        : m_path(path)
        , m_appearance(appearance)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        skinIcon(m_path, look()).paint(painter, rect, Qt::AlignCenter, mode, state);
    }

    QIconEngine *clone() const override { return new FollowingIconEngine(m_path, m_appearance); }

private:
    SchemeLook look() const { return m_appearance ? m_appearance->look() : SchemeLook(); }

    QString m_path;
    QPointer<const Appearance> m_appearance;
};

} // namespace

QIcon followingIcon(const QString &path, const Appearance *appearance)
{
    // Where there is no file, there is no icon in any scheme.
    if (skinIcon(path).isNull())
        return QIcon();
    return QIcon(new FollowingIconEngine(path, appearance));
}
