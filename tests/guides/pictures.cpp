// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

// Takes the pictures of the guides: of the descriptions marked with picture=, and of the skin maps.

#include "GuideBlocks.h"
#include "SkinMaps.h"

#include "tests/support/Elements.h"
#include "tests/support/TestDocuments.h"
#include "tests/support/TestHost.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPixmap>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int descriptionWidth = 640;
constexpr int skinWidth = 860;

struct Look
{
    QString picture;
    int skin;
    ToolBarSkinStyle map;
};

/** Whether the description disables a command. */
bool isUnusable(const QDomElement &description, const QString &name)
{
    const QList<QDomElement> elements = elementsBelow(description);
    return std::any_of(elements.begin(), elements.end(), [&name](const QDomElement &element) {
        return element.attribute("action") == name && element.attribute("usable") == "false";
    });
}

bool takePicture(QDomDocument description, const Look &look, const QDir &folder, QSize size)
{
    NewToolBar::uiStyle = look.skin;
    QMainWindow window;
    window.resize(size);
    auto *page = new QLabel;
    page->setStyleSheet("background:#ffffff");
    window.setCentralWidget(page);
    QDomElement root = description.documentElement();
    MRToolBar toolBar(&window, root, look.map, ToolBarLeft);
    const QStringList names = controlNames(root);
    for (QString name : names)
        toolBar.DoSetControlUsableStateSlot(name, !isUnusable(root, name));
    toolBar.DoSetPageInfoSlot(3, 12);
    for (QString name : {"t_handtool", "vzmode_fitwidth"})
        toolBar.DoSetControlCheckedStateSlot(name, true);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return false;
    QTest::qWait(200);
    const QString path = folder.filePath(look.picture + ".png");
    return window.grab().save(path) && std::printf("%s\n", qPrintable(path)) > 0;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    if (argc != 3)
        return 2;
    const QDir folder(QString::fromLocal8Bit(argv[2]));
    bool isComplete = true;
    const QList<GuideBlock> blocks = guideBlocks(QString::fromLocal8Bit(argv[1]));
    for (const GuideBlock &block : blocks) {
        if (!block.picture.isEmpty())
            isComplete &= takePicture(block.description, {block.picture, marodi, {}}, folder,
                                      {descriptionWidth, 100});
    }
    const QList<Look> looks{{"dark-marodi", marodi, darkMarodi},
                            {"dark-lum", lum, darkLum},
                            {"green-marodi", marodi, greenMarodi},
                            {"green-lum", lum, greenLum}};
    for (const Look &look : looks) {
        const QString path = look.picture.section('-', 1) + "/mr_toolbar.release.xml";
        isComplete &= takePicture(TestDocuments::read(TestDocuments::shippedPath(path)), look,
                                  folder, {skinWidth, 130});
    }
    return isComplete ? 0 : 1;
}
