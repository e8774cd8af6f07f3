// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStringList>

class MRHandWriteDialog;
class QComboBox;
class QLabel;
class QLineEdit;
class QMainWindow;
class QPushButton;
class QSlider;
class QToolBar;

/** The controls of the library's handwriting dialog; null for a missing one. */
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
 * All lookups of widgets of the library by object name, property or class, each for a purpose that
 * the public interface has no operation for.
 */
namespace ToolBarReach {

/** The strip of the window; null if it has none. */
QToolBar *toolBarOf(const QMainWindow &window);
/** The name of the tab whose row is shown; empty if there is none. */
QString shownTab(const QMainWindow &window);
/** The names of the zoom boxes in the shipped descriptions. */
QStringList zoomBoxNames();
QList<QComboBox *> zoomBoxes(const QMainWindow &window);
/** The names of the page fields in the shipped descriptions. */
QStringList pageFieldNames();
QList<QLineEdit *> pageFields(const QMainWindow &window);

HandwritingControls controlsOf(const MRHandWriteDialog &dialog);

} // namespace ToolBarReach
