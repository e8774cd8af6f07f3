// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

// A dark toolbar: the host adds its own rules to the library's style sheet and applies the result.

#include <toolbar/MRToolBar.h>
#include <toolbar/NewToolBar.h>

#include <QApplication>
#include <QDomDocument>
#include <QFile>
#include <QMainWindow>

static ToolBarSkinStyle skin(const char *strip, const char *row, const char *hover)
{
    ToolBarSkinStyle map{{"externalqss", ""}, {"[MainToolHoverColor]", hover}};
    map["[MainColor]"] = map["[MainToolCheckColor]"] = strip;
    map["[MainColor.checked]"] = map["[ToolBarBgColor]"] = row;
    return map;
}

static QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

static void wear(MRToolBar &toolBar, QMainWindow &window, const ToolBarSkinStyle &map)
{
    toolBar.DoSetSkinStyleSlot(map);
    QString rules = contentOf(":/player/night.qss");
    for (const QString &key : map.keys())
        rules.replace(key, map.value(key));
    const QString sheet = toolBar.GetToolBarStyleSheet() + rules;
    window.setStyleSheet(NewToolBar::ScaleSheet(sheet, window.physicalDpiX() / 96.0F));
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QDomDocument description;
    description.setContent(contentOf(":/player/description.xml"));
    QDomElement root = description.documentElement();
    QMainWindow window;
    const ToolBarSkinStyle night = skin("#202428", "#33383d", "#4a5056");
    const ToolBarSkinStyle forest = skin("#12301f", "#1d4a30", "#2c6644");
    MRToolBar toolBar(&window, root, night, ToolBarLeft);
    wear(toolBar, window, night);
    const auto reportStates = [&] {
        for (QString name : {"f_open", "f_print"})
            toolBar.DoSetControlUsableStateSlot(name, true);
    };
    QObject::connect(&toolBar, &MRToolBar::DoRequestAuthority, reportStates);
    reportStates();
    QObject::connect(&toolBar, &MRToolBar::DoActive, [&](const QString &name) {
        if (name.startsWith("s_"))
            wear(toolBar, window, name == "s_night" ? night : forest);
    });
    window.resize(640, 400);
    window.show();
    return application.exec();
}
