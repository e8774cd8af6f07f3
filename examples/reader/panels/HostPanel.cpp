// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/HostPanel.h"

#include "panels/SkinMaps.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QIcon swatch(const QColor &colour)
{
    QPixmap pixmap(12, 12);
    pixmap.fill(colour);
    return QIcon(pixmap);
}

} // namespace

HostPanel::HostPanel(QWidget *parent)
    : QWidget(parent)
{
    auto *row = new QHBoxLayout;
    row->addWidget(new QLabel(tr("皮肤颜色")));
    addSkinButton(row, tr("蓝"), "#008AD9", SkinMaps::blue());
    addSkinButton(row, tr("绿"), "#1B7A3D", SkinMaps::green());
    addSkinButton(row, tr("暗"), "#20262C", SkinMaps::dark());
    row->addStretch();

    auto *penButton = new QPushButton(tr("手写设置…"));
    penButton->setObjectName(QStringLiteral("host_handwriting"));
    connect(penButton, &QPushButton::clicked, this, &HostPanel::handwritingAsked);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(row);
    layout->addWidget(penButton);
}

ToolBarSkinStyle HostPanel::firstSkin()
{
    return SkinMaps::blue();
}

void HostPanel::addSkinButton(QHBoxLayout *row, const QString &text, const QColor &colour,
                              const ToolBarSkinStyle &skin)
{
    auto *button = new QPushButton(swatch(colour), text);
    row->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, skin] { Q_EMIT skinChosen(skin); });
}
