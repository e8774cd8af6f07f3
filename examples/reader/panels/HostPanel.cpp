// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/HostPanel.h"

#include "panels/LanguageFollower.h"
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

QHBoxLayout *choiceRow(QLabel *caption, QComboBox *choices)
{
    auto *row = new QHBoxLayout;
    row->addWidget(caption);
    row->addWidget(choices);
    row->addStretch();
    return row;
}

} // namespace

HostPanel::HostPanel(QWidget *parent)
    : QWidget(parent)
    , m_schemes(new QComboBox)
    , m_scales(new QComboBox)
{
    auto *skins = new QLabel;
    auto *row = new QHBoxLayout;
    row->addWidget(skins);
    auto *blue = addSkinButton(row, "#008AD9", SkinMaps::blue());
    auto *green = addSkinButton(row, "#1B7A3D", SkinMaps::green());
    auto *dark = addSkinButton(row, "#20262C", SkinMaps::dark());
    row->addStretch();

    fillChoices();
    auto *schemes = new QLabel;

    auto *scales = new QLabel;

    auto *penButton = new QPushButton;
    penButton->setObjectName(QStringLiteral("host_handwriting"));
    connect(penButton, &QPushButton::clicked, this, &HostPanel::handwritingAsked);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(row);
    layout->addLayout(choiceRow(schemes, m_schemes));
    layout->addLayout(choiceRow(scales, m_scales));
    layout->addWidget(penButton);
    LanguageFollower::attach(this, [=] {
        skins->setText(tr("皮肤颜色"));
        blue->setText(tr("蓝"));
        green->setText(tr("绿"));
        dark->setText(tr("暗"));
        schemes->setText(tr("明暗"));
        scales->setText(tr("大小"));
        m_scales->setItemText(0, tr("按屏幕"));
        penButton->setText(tr("手写设置…"));
        nameSchemes();
    });
}

void HostPanel::fillChoices()
{
    m_schemes->setObjectName(QStringLiteral("host_scheme"));
    for (const char *scheme : {"light", "dark", "contrast", "system"})
        m_schemes->addItem(QString(), QLatin1String(scheme));
    connect(m_schemes, QOverload<int>::of(&QComboBox::activated), this,
            [this] { Q_EMIT schemeChosen(m_schemes->currentData().toString()); });

    m_scales->setObjectName(QStringLiteral("host_scale"));
    for (const char *scale : {"screen", "1", "1.25", "1.5", "2"})
        m_scales->addItem(QLatin1String(scale), QLatin1String(scale));
    connect(m_scales, QOverload<int>::of(&QComboBox::activated), this,
            [this] { Q_EMIT scaleChosen(m_scales->currentData().toString()); });
}

void HostPanel::nameSchemes()
{
    const QStringList names{tr("浅色"), tr("深色"), tr("高对比"), tr("跟随系统")};
    for (int i = 0; i < names.size(); ++i)
        m_schemes->setItemText(i, names.at(i));
}

ToolBarSkinStyle HostPanel::firstSkin()
{
    return SkinMaps::blue();
}

void HostPanel::showScheme(const QString &scheme)
{
    m_schemes->setCurrentIndex(m_schemes->findData(scheme));
}

QPushButton *HostPanel::addSkinButton(QHBoxLayout *row, const QColor &colour,
                                      const ToolBarSkinStyle &skin)
{
    auto *button = new QPushButton(swatch(colour), QString());
    row->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, skin] { Q_EMIT skinChosen(skin); });
    return button;
}
