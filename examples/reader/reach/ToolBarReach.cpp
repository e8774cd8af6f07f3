// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "reach/ToolBarReach.h"

#include <toolbar/handwrite/MRHandWriteDialog.h>

#include <QComboBox>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QSlider>
#include <QToolBar>

namespace {

const QString toolBarName = QStringLiteral("mrtoolbar");

/** The widgets "name1", "name2" and so on, as many as there are. */
QList<QPushButton *> numberedButtons(const MRHandWriteDialog &dialog, const QString &name)
{
    QList<QPushButton *> buttons;
    while (auto *button = dialog.findChild<QPushButton *>(name.arg(buttons.size() + 1)))
        buttons.append(button);
    return buttons;
}

} // namespace

// The facade does not delete its toolbar, which the window owns, and has no operation to do so. A
// host that replaces the toolbar deletes it before it makes the next one, which has the same names.
QToolBar *ToolBarReach::toolBarOf(const QMainWindow &window)
{
    return window.findChild<QToolBar *>(toolBarName, Qt::FindDirectChildrenOnly);
}

// There is neither a query for the tab on show nor a signal for its change.
QString ToolBarReach::shownTab(const QMainWindow &window)
{
    const QList<QPushButton *> buttons = window.findChildren<QPushButton *>();
    for (const QPushButton *button : buttons) {
        if (button->isChecked()
            && button->property("module").toString() == QLatin1String("tabbutton"))
            return button->objectName();
    }
    return QString();
}

QStringList ToolBarReach::zoomBoxNames()
{
    return {QStringLiteral("v_zoom"), QStringLiteral("v_zoomlist")};
}

// A typed percentage that is one of the box's entries is not reported by DoSetZoomMode(): the box
// only changes to that entry.
QList<QComboBox *> ToolBarReach::zoomBoxes(const QMainWindow &window)
{
    QList<QComboBox *> boxes;
    const QStringList names = zoomBoxNames();
    for (const QString &name : names) {
        if (auto *box = window.findChild<QComboBox *>(name))
            boxes.append(box);
    }
    return boxes;
}

// The dialog neither writes to the records nor reports what the user changes. That the host finds
// the link and the three last buttons by name is what the dialog's header asks for.
HandwritingControls ToolBarReach::controlsOf(const MRHandWriteDialog &dialog)
{
    const auto button = [&dialog](const char *name) {
        return dialog.findChild<QPushButton *>(QLatin1String(name));
    };
    HandwritingControls controls;
    controls.colours = numberedButtons(dialog, QStringLiteral("pushButtonColor%1"));
    controls.tracks = numberedButtons(dialog, QStringLiteral("pushButtonTrack%1"));
    controls.opacities = {button("pushButtonOpacity25p"), button("pushButtonOpacity50p"),
                          button("pushButtonOpacity75p"), button("pushButtonOpacity100p")};
    controls.thickness = dialog.findChild<QSlider *>(QStringLiteral("spliderThickness"));
    controls.pickColour = button("pushButtonFetch");
    controls.otherColours = dialog.findChild<QLabel *>(QStringLiteral("labelOtherSelect"));
    controls.writeInRegion = button("pushButtonRegionWrite");
    controls.changeRegion = button("pushButtonRegionWriteSet");
    return controls;
}
