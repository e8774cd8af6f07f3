#include "HostPanel.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const QColor blue(0x00, 0x8A, 0xD9); // The toolbar's own.
const QColor green(0x1B, 0x85, 0x4F);
const QColor purple(0x6B, 0x4F, 0xB5);

/** The colour thinned with white. */
QString tint(const QColor &colour, qreal share)
{
    const auto mixed = [share](int part) { return int(part * share + 255 * (1 - share)); };
    return QColor(mixed(colour.red()), mixed(colour.green()), mixed(colour.blue())).name();
}

/**
 * The toolbar's own colours. Those of hovering and pressing are named, because not each skin has a
 * default for both at the beginning.
 */
ToolBarSkinStyle ownSkin()
{
    return {
        {QStringLiteral("[MainColor.hover]"), QStringLiteral("rgb(219,222,227)")},
        {QStringLiteral("[MainColor.pressed]"), QStringLiteral("rgb(183,185,190)")},
    };
}

/** One map serves both skins: a placeholder that a skin does not use is harmless. */
ToolBarSkinStyle skinOf(const QColor &colour)
{
    return {
        {QStringLiteral("[MainColor]"), colour.name()},
        {QStringLiteral("[MainColor.checked]"), colour.darker(140).name()},
        {QStringLiteral("[MainColor.hover]"), tint(colour, 0.16)},
        {QStringLiteral("[MainColor.pressed]"), tint(colour, 0.36)},
        {QStringLiteral("[Color.checked]"), tint(colour, 0.28)},
        {QStringLiteral("[MainToolHoverColor]"), tint(colour, 0.10)},
        {QStringLiteral("[MainToolPressColor]"), tint(colour, 0.36)},
        {QStringLiteral("[MainToolCheckColor]"), tint(colour, 0.22)},
    };
}

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
    row->addWidget(new QLabel(QStringLiteral("皮肤颜色")));
    addSkinButton(row, QStringLiteral("蓝"), blue, ownSkin());
    addSkinButton(row, QStringLiteral("绿"), green, skinOf(green));
    addSkinButton(row, QStringLiteral("紫"), purple, skinOf(purple));
    row->addStretch();

    auto *penButton = new QPushButton(QStringLiteral("手写设置…"));
    penButton->setObjectName(QStringLiteral("host_handwriting"));
    connect(penButton, &QPushButton::clicked, this, &HostPanel::handwritingAsked);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(row);
    layout->addWidget(penButton);
}

ToolBarSkinStyle HostPanel::firstSkin()
{
    return ownSkin();
}

void HostPanel::addSkinButton(QHBoxLayout *row, const QString &text, const QColor &colour,
                              const ToolBarSkinStyle &skin)
{
    auto *button = new QPushButton(swatch(colour), text);
    row->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, skin] { Q_EMIT skinChosen(skin); });
}
