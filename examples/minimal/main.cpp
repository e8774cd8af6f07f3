// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include <toolbar/MRToolBar.h>
#include <toolbar/MRToolBarCommands.h>

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
    auto *text = new QPlainTextEdit;
    window.setCentralWidget(text);
    QDomElement root = description.documentElement();
    MRToolBar toolBar(&window, root, {}, ToolBarLeft);

    MRToolBarCommands commands(&toolBar);
    commands.add("f_open", [&] { text->setPlainText(QFileDialog::getOpenFileName(&window)); });
    commands.add("f_close", [&] { text->clear(); }).usableWhen([&] {
        return !text->document()->isEmpty();
    });
    commands.add("v_zoomin", [&] { text->zoomIn(); });
    commands.add("v_zoomout", [&] { text->zoomOut(); });
    commands.add("f_exit", [&] { window.close(); });
    QObject::connect(text, &QPlainTextEdit::textChanged, &commands, &MRToolBarCommands::update);

    window.showMaximized();
    return application.exec();
}
