// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

// Shows the handwriting dialog with six tracks and prints the tracks when the dialog is closed.

#include "toolbar/handwrite/MRHandWriteDialog.h"

#include <QApplication>
#include <QTextStream>

#include <array>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);

    // The dialog does not own the tracks, so they are declared before it.
    std::array<Track, 6> records = {{
        {1, Qt::black, 2, 10, 3, false, QString()},
        {2, Qt::red, 4, 10, 3, false, QString()},
        {3, Qt::blue, 6, 10, 2, true, QString()},
        {4, Qt::darkGreen, 6, 12, 3, false, QString()},
        {5, Qt::yellow, 14, 20, 1, false, QString()},
        {6, Qt::magenta, 18, 24, 0, false, QString()},
    }};
    QList<Track *> tracks;
    for (Track &record : records)
        tracks.append(&record);

    MRHandWriteDialog dialog;
    dialog.SetCommonTrackInfo(tracks);
    dialog.exec();

    QTextStream out(stdout);
    const QList<Track *> shown = dialog.GetCommonTrackInfo();
    for (const Track *track : shown) {
        out << track->id << ' ' << track->colour.name() << ' ' << track->thickness << " of "
            << track->maximumThickness << (track->selected ? " selected" : "") << '\n';
    }
    return 0;
}
