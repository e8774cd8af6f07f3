// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "reach/ToolBarReach.h"

#include <toolbar/handwrite/MRHandWriteDialog.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QSlider>
#include <QToolBar>

namespace {

const QString toolBarName = QStringLiteral("mrtoolbar");

/** The existing buttons "name1", "name2" and so on. */
QList<QPushButton *> numberedButtons(const MRHandWriteDialog &dialog, const QString &name)
{
    QList<QPushButton *> buttons;
    while (auto *button = dialog.findChild<QPushButton *>(name.arg(buttons.size() + 1)))
        buttons.append(button);
    return buttons;
}

} // namespace

// The window owns the toolbar, and the facade has no operation to delete it. A host that replaces
// the toolbar deletes it before it creates the next one, which has the same object names.
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

// DoSetZoomMode() does not report a typed percentage that is an entry of the box: the box only
// moves to that entry.
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

QStringList ToolBarReach::pageFieldNames()
{
    return {QStringLiteral("d_gotopage"), QStringLiteral("d_gotopageinput")};
}

// There is no signal for a page that the field refuses.
QList<QLineEdit *> ToolBarReach::pageFields(const QMainWindow &window)
{
    QList<QLineEdit *> fields;
    const QStringList names = pageFieldNames();
    for (const QString &name : names) {
        if (auto *field = window.findChild<QLineEdit *>(name))
            fields.append(field);
    }
    return fields;
}

// The dialog neither writes into the tracks nor reports changes of the user. For the link and the
// last three buttons, its header says that the host finds them by name.
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
