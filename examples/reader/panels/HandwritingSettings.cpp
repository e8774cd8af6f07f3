// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/HandwritingSettings.h"

#include "reach/ToolBarReach.h"

#include <QColorDialog>
#include <QInputDialog>
#include <QLabel>
#include <QPushButton>
#include <QSlider>

namespace {

constexpr int largestThickness = 20;
constexpr int fullOpacity = 3;
constexpr int opacitySteps = 4;

QList<QColor> firstColours()
{
    return {QColor(0x1B, 0x3A, 0x8C), Qt::black,   Qt::red,     Qt::blue, Qt::darkGreen,
            QColor(0xE0, 0x7B, 0x00), Qt::magenta, Qt::darkRed, Qt::cyan, Qt::yellow};
}

/** Connects a click on the button, which may be null, to @p then. */
template <typename Then>
void whenClicked(QPushButton *button, QObject *context, Then then)
{
    if (button)
        QObject::connect(button, &QPushButton::clicked, context, then);
}

} // namespace

HandwritingSettings::HandwritingSettings(QObject *parent)
    : QObject(parent)
    , m_colours(firstColours())
{
    for (const QString &name : PageTool::penNames()) {
        Track track;
        track.id = int(m_tracks.size());
        track.colour = m_colours.first();
        track.thickness = qRound(PageTool::of(name).width);
        track.maximumThickness = largestThickness;
        track.opacity = fullOpacity;
        m_tracks.push_back(track);
    }
}

QString HandwritingSettings::edit(const QString &pen, QWidget *parent)
{
    m_current = std::max(0, int(PageTool::penNames().indexOf(pen)));
    MRHandWriteDialog dialog(parent);
    dialog.SetCommonColor(m_colours);
    dialog.SetRegionSize(m_regionSize);
    show(dialog, m_current);
    const HandwritingControls controls = ToolBarReach::controlsOf(dialog);
    followColours(dialog, controls);
    followThickness(dialog, controls);
    followTracks(dialog, controls);
    followRegion(dialog, controls);
    dialog.exec();
    m_regionSize = dialog.GetRegionSize();
    return PageTool::penNames().value(m_current);
}

PageTool HandwritingSettings::withInk(PageTool tool) const
{
    const int index = int(PageTool::penNames().indexOf(tool.name));
    if (index < 0)
        return tool;
    const Track &track = m_tracks.at(size_t(index));
    tool.colour = track.colour;
    tool.colour.setAlphaF(qreal(track.opacity + 1) / opacitySteps);
    tool.width = std::max(1, track.thickness);
    return tool;
}

void HandwritingSettings::followColours(MRHandWriteDialog &dialog,
                                        const HandwritingControls &controls)
{
    for (int i = 0; i < std::min(m_colours.size(), controls.colours.size()); ++i) {
        whenClicked(controls.colours.at(i), &dialog,
                    [this, i] { current().colour = m_colours.at(i); });
    }
    whenClicked(controls.pickColour, &dialog, [this, &dialog] { askColour(dialog); });
    if (controls.otherColours) {
        connect(controls.otherColours, &QLabel::linkActivated, &dialog,
                [this, &dialog] { askColour(dialog); });
    }
}

void HandwritingSettings::followThickness(MRHandWriteDialog &dialog,
                                          const HandwritingControls &controls)
{
    if (controls.thickness) {
        connect(controls.thickness, &QSlider::valueChanged, &dialog,
                [this](int thickness) { current().thickness = thickness; });
    }
    for (int i = 0; i < opacitySteps; ++i)
        whenClicked(controls.opacities.value(i), &dialog, [this, i] { current().opacity = i; });
}

void HandwritingSettings::followTracks(MRHandWriteDialog &dialog,
                                       const HandwritingControls &controls)
{
    for (int i = 0; i < int(m_tracks.size()); ++i)
        whenClicked(controls.tracks.value(i), &dialog, [this, &dialog, i] { show(dialog, i); });
}

void HandwritingSettings::followRegion(MRHandWriteDialog &dialog,
                                       const HandwritingControls &controls)
{
    whenClicked(controls.writeInRegion, &dialog, [&dialog] { dialog.accept(); });
    whenClicked(controls.changeRegion, &dialog, [&dialog] {
        bool isGiven = false;
        const int size = QInputDialog::getInt(&dialog, tr("区域手写"), tr("区域的大小（像素）"),
                                              dialog.GetRegionSize(), 20, 600, 10, &isGiven);
        if (isGiven)
            dialog.SetRegionSize(size);
    });
}

void HandwritingSettings::askColour(MRHandWriteDialog &dialog)
{
    const QColor colour = QColorDialog::getColor(current().colour, &dialog);
    if (!colour.isValid())
        return;
    current().colour = colour;
    m_colours.last() = colour;
    dialog.SetCommonColor(m_colours);
    show(dialog, m_current);
}

void HandwritingSettings::show(MRHandWriteDialog &dialog, int track)
{
    QList<Track *> tracks;
    for (Track &record : m_tracks) {
        record.selected = record.id == track;
        tracks.append(&record);
    }
    // Set before the dialog moves its slider, so that the thickness is stored for this pen.
    m_current = track;
    dialog.SetCommonTrackInfo(tracks);
}
