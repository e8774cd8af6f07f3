// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include <toolbar/MRToolBar.h>

#include <QtWidgets>
#include <QtXml>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QFile file(":/mr_toolbar/Resources/marodi/mr_toolbar.release.xml");
    QDomDocument description;
    if (!file.open(QIODevice::ReadOnly) || !description.setContent(file.readAll()))
        return 1;

    QMainWindow window;
    QDomElement root = description.documentElement();
    MRToolBar toolBar(&window, root, {}, ToolBarLeft);
    const auto enableCommands = [&] {
        for (QString command : {"f_open", "f_exit", "t_handtool", "v_zoomin", "v_fullscreen"})
            toolBar.DoSetControlUsableStateSlot(command, true);
    };
    QObject::connect(&toolBar, &MRToolBar::DoRequestAuthority, enableCommands);
    QObject::connect(&toolBar, &MRToolBar::DoActive,
                     [&](const QString &command) { window.setWindowTitle(command); });
    enableCommands();

    window.showMaximized();
    return application.exec();
}
