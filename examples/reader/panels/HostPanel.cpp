// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/HostPanel.h"

#include "panels/SkinMaps.h"

#include <QButtonGroup>
#include <QComboBox>
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
    , m_schemes(new QComboBox)
{
    auto *row = new QHBoxLayout;
    row->addWidget(new QLabel(tr("皮肤颜色")));
    addSkinButton(row, tr("蓝"), "#008AD9", SkinMaps::blue());
    addSkinButton(row, tr("绿"), "#1B7A3D", SkinMaps::green());
    addSkinButton(row, tr("暗"), "#20262C", SkinMaps::dark());
    row->addStretch();

    m_schemes->setObjectName(QStringLiteral("host_scheme"));
    m_schemes->addItem(tr("浅色"), QStringLiteral("light"));
    m_schemes->addItem(tr("深色"), QStringLiteral("dark"));
    m_schemes->addItem(tr("高对比"), QStringLiteral("contrast"));
    m_schemes->addItem(tr("跟随系统"), QStringLiteral("system"));
    connect(m_schemes, QOverload<int>::of(&QComboBox::activated), this,
            [this] { Q_EMIT schemeChosen(m_schemes->currentData().toString()); });
    auto *schemeRow = new QHBoxLayout;
    schemeRow->addWidget(new QLabel(tr("明暗")));
    schemeRow->addWidget(m_schemes);
    schemeRow->addStretch();

    auto *penButton = new QPushButton(tr("手写设置…"));
    penButton->setObjectName(QStringLiteral("host_handwriting"));
    connect(penButton, &QPushButton::clicked, this, &HostPanel::handwritingAsked);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(row);
    layout->addLayout(schemeRow);
    layout->addWidget(penButton);
}

ToolBarSkinStyle HostPanel::firstSkin()
{
    return SkinMaps::blue();
}

void HostPanel::showScheme(const QString &scheme)
{
    m_schemes->setCurrentIndex(m_schemes->findData(scheme));
}

void HostPanel::addSkinButton(QHBoxLayout *row, const QString &text, const QColor &colour,
                              const ToolBarSkinStyle &skin)
{
    auto *button = new QPushButton(swatch(colour), text);
    row->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, skin] { Q_EMIT skinChosen(skin); });
}
