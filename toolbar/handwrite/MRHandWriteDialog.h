// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/MRToolBarExport.h"

#include <QColor>
#include <QDialog>
#include <QList>
#include <QString>

#include <memory>
#include <optional>

class QAbstractButton;
class QPushButton;

namespace Ui {
class HandWriteDialog;
}

/** The settings of one pen track. The host owns the records; the dialog only points to them. */
struct Track
{
    int id = 0;               ///< For the host; the dialog does not look at it.
    QColor colour;            ///< Colour of the ink.
    int thickness = 0;        ///< Thickness of the line, in pixels.
    int maximumThickness = 0; ///< The largest thickness that the user may choose for this track.
    int opacity = 0;          ///< 0, 1, 2, 3 for 25, 50, 75, 100 percent; others for no choice.
    bool selected = false;    ///< Whether this is the current track; the first such one counts.
    QString icon;             ///< Resource path of the picture on the track's button.
};

/** The name under which Track stands in signatures. */
typedef Track HandTrack;

/**
 * A frameless dialog for the settings of handwritten annotation: colour, thickness and opacity of
 * the ink, the pen track, and handwriting in a region.
 *
 * The host constructs it, hands over its colours and tracks, shows it, and reads the track list
 * back. What the user changes is drawn in the preview; it is not written to the records, which are
 * the host's own. The user moves the dialog by dragging it and closes it with Escape.
 *
 * When a translator is installed or removed, the dialog's texts follow, those that the host has
 * set itself included.
 *
 * The dialog takes the colours of a dark scheme from the toolbar in its parent's window, or else
 * from the toolbar of the process that was last given a scheme, and changes with it; see
 * ToolBarSkinStyle. Without such a toolbar it has the palette that any dialog of the host has.
 *
 * What depends on the host has no effect of its own. The host finds these widgets by object name
 * and connects what it offers: the label "labelOtherSelect" (QLabel::linkActivated) and the buttons
 * "pushButtonFetch", "pushButtonRegionWrite" and "pushButtonRegionWriteSet".
 */
class MRTOOLBAR_EXPORT MRHandWriteDialog : public QDialog
{
    Q_OBJECT

public:
    /** Shows ten default colours and a thickness of 8 of 10 until the host says otherwise. */
    explicit MRHandWriteDialog(QWidget *parent = nullptr);
    ~MRHandWriteDialog() override;

    /**
     * Sets the preset colours, of which the first ten have a swatch. With fewer than ten, the
     * swatches that are left over keep the colours that they had.
     */
    void SetCommonColor(QList<QColor> &colours);

    /**
     * Shows the first selected track of @p tracks; without one, the settings on show stay.
     *
     * The records must stay alive until another list is set or the dialog is gone. Null entries are
     * skipped. A track that stands further back than there are buttons for it sets thickness and
     * opacity only.
     */
    void SetCommonTrackInfo(QList<Track *> &tracks);

    /** The list as it was last set. */
    QList<Track *> GetCommonTrackInfo();

    /** Keeps the default size of a handwriting region for the host; 0 until it is set. */
    void SetRegionSize(int size);
    /** The default size of a handwriting region as it was last set. */
    int GetRegionSize();

Q_SIGNALS:
    /** For the host's use; the dialog does not emit it. */
    void DoUpdateRegionDefaultSize(int size);
    /** For the host's use; the dialog does not emit it. */
    void DoUpdateCommonTrackInfo(QList<HandTrack *> &tracks);

protected:
    /** Begins to move the dialog. */
    void mousePressEvent(QMouseEvent *event) override;
    /** Moves the dialog. */
    void mouseMoveEvent(QMouseEvent *event) override;
    /** Leaves the dialog where it is. */
    void mouseReleaseEvent(QMouseEvent *event) override;
    /** Keeps the preview in step with its size. */
    bool eventFilter(QObject *watched, QEvent *event) override;
    /** Takes over another language. */
    void changeEvent(QEvent *event) override;

private:
    void collectButtons();
    void connectControls();
    void dressSwatch(QPushButton *button, const QColor &colour);
    void nameSwatch(QPushButton *button);
    void tintLink();
    void dressTrackButtons();
    void showTrack(int index);
    QColor inkColour() const;
    void updateSamples();
    void updatePreview();

    std::unique_ptr<Ui::HandWriteDialog> m_ui;
    QList<QColor> m_colours;
    QList<QPushButton *> m_colourButtons;
    QList<QPushButton *> m_trackButtons;
    QList<Track *> m_tracks;
    QColor m_trackInk;                  ///< Valid until the user picks a swatch.
    std::optional<QPoint> m_dragOffset; ///< Of the press from the dialog's position.
    int m_regionSize = 0;
};
