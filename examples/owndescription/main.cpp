// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

// A notepad with its own description and its own icons.

#include <names.h> // Made from the description.

#include <toolbar/MRToolBar.h>

#include <QApplication>
#include <QDate>
#include <QDomDocument>
#include <QFile>
#include <QMainWindow>
#include <QPlainTextEdit>

#include <functional>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QFile file(":/mr_toolbar/Resources/marodi/description.xml");
    QDomDocument description;
    if (!file.open(QIODevice::ReadOnly) || !description.setContent(file.readAll()))
        return 1;

    QMainWindow window;
    auto *note = new QPlainTextEdit;
    window.setCentralWidget(note);
    QDomElement root = description.documentElement();
    MRToolBar toolBar(&window, root, {}, ToolBarLeft);

    const auto setWrap = [&](bool isOn) {
        note->setLineWrapMode(isOn ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
    };
    const QMap<QString, std::function<void()>> commands{
        {Names::n_clear, [&] { note->clear(); }},
        {Names::n_date, [&] { note->insertPlainText(QDate::currentDate().toString(Qt::ISODate)); }},
        {Names::n_wrap, [&] { setWrap(toolBar.GetControlCheckedState(Names::n_wrap)); }},
        {Names::n_undo, [&] { note->undo(); }},
        {Names::n_redo, [&] { note->redo(); }},
        {Names::n_exit, [&] { window.close(); }},
    };
    const auto reportStates = [&] {
        for (QString name : commands.keys())
            toolBar.DoSetControlUsableStateSlot(name, true);
    };
    QObject::connect(&toolBar, &MRToolBar::DoRequestAuthority, reportStates);
    QObject::connect(&toolBar, &MRToolBar::DoActive, [&](const QString &name) {
        if (const auto command = commands.value(name))
            command();
    });
    reportStates();

    window.resize(640, 400);
    window.show();
    return application.exec();
}
