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
 * The dialog shows the records and does not change them, so what the user does in it is followed
 * here, control by control.
 */
class HandwritingSettings : public QObject
{
    Q_OBJECT

public:
    explicit HandwritingSettings(QObject *parent = nullptr);

    /** Lets the user change the settings, and returns the pen that was chosen at last. */
    QString edit(const QString &pen, QWidget *parent);

    /** The tool with the ink of its settings; other tools than pens as they are. */
    PageTool withInk(PageTool tool) const;

private:
    void followColours(MRHandWriteDialog &dialog, const HandwritingControls &controls);
    void followThickness(MRHandWriteDialog &dialog, const HandwritingControls &controls);
    void followTracks(MRHandWriteDialog &dialog, const HandwritingControls &controls);
    void followRegion(MRHandWriteDialog &dialog, const HandwritingControls &controls);
    void askColour(MRHandWriteDialog &dialog);
    void show(MRHandWriteDialog &dialog, int track);
    Track &current() { return m_tracks.at(size_t(m_current)); }

    std::vector<Track> m_tracks; ///< One a pen, in the order of PageTool::penNames().
    QList<QColor> m_colours;
    int m_current = 0;
    int m_regionSize = 120;
};
