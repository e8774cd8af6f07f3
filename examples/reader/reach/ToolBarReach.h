// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStringList>

class MRHandWriteDialog;
class QComboBox;
class QLabel;
class QMainWindow;
class QPushButton;
class QSlider;
class QToolBar;

/** The controls of the library's handwriting dialog; a null pointer for one that it has not. */
struct HandwritingControls
{
    QList<QPushButton *> colours;
    QList<QPushButton *> tracks;
    QList<QPushButton *> opacities; ///< From the weakest to full.
    QSlider *thickness = nullptr;
    QPushButton *pickColour = nullptr;
    QLabel *otherColours = nullptr;
    QPushButton *writeInRegion = nullptr;
    QPushButton *changeRegion = nullptr;
};

/**
 * All that the reader does with widgets of the library which it has to look up by object name,
 * property or class, because the public interface has no operation for it.
 */
namespace ToolBarReach {

/** Null if the window has none. */
QToolBar *toolBarOf(const QMainWindow &window);
/** The name of the tab whose row is shown; empty if there is none. */
QString shownTab(const QMainWindow &window);
/** What the shipped descriptions call their zoom boxes. */
QStringList zoomBoxNames();
QList<QComboBox *> zoomBoxes(const QMainWindow &window);

HandwritingControls controlsOf(const MRHandWriteDialog &dialog);

} // namespace ToolBarReach
