// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

// imageviewer [--lum] [PICTURE]

#include "ViewerWindow.h"

#include <toolbar/NewToolBar.h>

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QStringList arguments = application.arguments().mid(1);
    NewToolBar::uiStyle = arguments.removeAll("--lum") > 0 ? 1 : 0;
    ViewerWindow window(arguments.value(0));
    window.resize(1100, 700);
    window.show();
    return application.exec();
}
