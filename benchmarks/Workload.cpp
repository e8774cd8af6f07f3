// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "benchmarks/Workload.h"

#include <array>

namespace {

/** As many icons as on the longest rows of a real reader, so that they recur as often. */
constexpr std::array icons{
    "AffixImage", "AnnotDelete", "Arrow",      "Attachment", "Bookmark", "Callout",   "Cloud",
    "Copy",       "Delete",      "DoublePage", "Ellipse",    "Export",   "Find",      "FirstPage",
    "FitPage",    "FitWidth",    "FreeText",   "FullScreen", "GotoPage", "HandTool",  "Help",
    "Highlight",  "LastPage",    "LineWidth",  "Navigator",  "NextPage", "OpenFile",  "Outline",
    "Pencil",     "Polygon",     "PrevPage",   "Print",      "Property", "Rectangle", "Redo",
    "Save",       "SealSign",    "SelectAll",  "Set",        "Snapshot", "Stamp",     "TextSelect",
    "Thumbnail",  "Underline",   "Undo",       "Watermark",  "WavyLine", "ZoomIn"};

QString element(const QString &tag, const QString &attributes)
{
    return QStringLiteral("<%1 %2/>").arg(tag, attributes);
}

} // namespace

QString Workload::name() const
{
    return QStringLiteral("%1x%2").arg(tabs).arg(commands);
}

QString Workload::tabName(int tab) const
{
    return QStringLiteral("tb_%1").arg(tab);
}

QString Workload::commandName(int tab, int command) const
{
    return QStringLiteral("c_%1_%2").arg(tab).arg(command);
}

QString Workload::menuEntryName(int entry) const
{
    return QStringLiteral("f_%1").arg(entry);
}

QStringList Workload::commandNames() const
{
    QStringList names;
    for (int tab = 0; tab < tabs; ++tab) {
        for (int command = 0; command < commands; ++command)
            names.append(commandName(tab, command));
    }
    return names;
}

QString Workload::commandText(int command)
{
    return QStringLiteral("命令%1").arg(command % 100);
}

QString Workload::commandToolTip(int command)
{
    return QStringLiteral("命令%1;对当前文档执行这一命令").arg(command);
}

QString Workload::commandIcon(int command)
{
    const char *icon = icons.at(static_cast<size_t>(command) % icons.size());
    return QStringLiteral("icon24/%1.svg").arg(QLatin1String(icon));
}

QString Workload::iconDirectory()
{
    return QStringLiteral(":/mr_toolbar/Resources/marodi/icons/");
}

QString Workload::description() const
{
    QString document = QStringLiteral(
        "<uiconfig prefix=\"\"><toolbar_appbutton>"
        "<menu name=\"menu_file\" text=\"文件\" icon=\"icon16/menu.svg\" tooltip=\"文件\">");
    for (int entry = 0; entry < menuEntries; ++entry) {
        document += element(QStringLiteral("menuitem"),
                            QStringLiteral("action=\"%1\" text=\"%2\" icon=\"%3\"")
                                .arg(menuEntryName(entry), commandText(entry), commandIcon(entry)));
    }
    document += QStringLiteral("</menu></toolbar_appbutton><toolbar_tabbar>");
    for (int tab = 0; tab < tabs; ++tab) {
        document += QStringLiteral("<tabbutton name=\"%1\" text=\"标签%2\" checkable=\"true\" "
                                   "checked=\"%3\" visible=\"true\">")
                        .arg(tabName(tab))
                        .arg(tab)
                        .arg(tab == 0 ? QStringLiteral("true") : QStringLiteral("false"));
        for (int command = 0; command < commands; ++command) {
            document += element(QStringLiteral("button"),
                                QStringLiteral("action=\"%1\" text=\"%2\" icon=\"%3\" "
                                               "tooltip=\"%4\" checkable=\"true\"")
                                    .arg(commandName(tab, command), commandText(command),
                                         commandIcon(command), commandToolTip(command)));
        }
        document += QStringLiteral("</tabbutton>");
    }
    return document + QStringLiteral("</toolbar_tabbar></uiconfig>");
}
