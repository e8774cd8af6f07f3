// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "pages/PageTool.h"

#include <toolbar/handwrite/MRHandWriteDialog.h>

#include <QObject>

#include <vector>

struct HandwritingControls;

/**
 * The settings of the pens, and the library's dialog for them.
 *
 * The dialog does not write into the tracks, so this class is connected to its controls.
 */
class HandwritingSettings : public QObject
{
    Q_OBJECT

public:
    explicit HandwritingSettings(QObject *parent = nullptr);

    /** Runs the dialog and returns the pen that was chosen last. */
    QString edit(const QString &pen, QWidget *parent);

    /** The tool with the colour, width and opacity of its settings; only pens are changed. */
    PageTool withInk(PageTool tool) const;

private:
    void followColours(MRHandWriteDialog &dialog, const HandwritingControls &controls);
    void followThickness(MRHandWriteDialog &dialog, const HandwritingControls &controls);
    void followTracks(MRHandWriteDialog &dialog, const HandwritingControls &controls);
    void followRegion(MRHandWriteDialog &dialog, const HandwritingControls &controls);
    void askColour(MRHandWriteDialog &dialog);
    void show(MRHandWriteDialog &dialog, int track);
    Track &current() { return m_tracks.at(size_t(m_current)); }

    std::vector<Track> m_tracks; ///< One for each pen, in the order of PageTool::penNames().
    QList<QColor> m_colours;
    int m_current = 0;
    int m_regionSize = 120;
};
