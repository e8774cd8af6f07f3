// Takes the pictures of the guides: of the descriptions that ask for one, and of the skin maps.

#include "GuideBlocks.h"
#include "SkinMaps.h"

#include <toolbar/MRToolBar.h>
#include <toolbar/NewToolBar.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMainWindow>
#include <QPixmap>
#include <QTest>

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

/** Whether the description says of a command that it is not usable. */
bool isUnusable(const QDomElement &parent, const QString &name)
{
    for (QDomElement element = parent.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
        const bool isDescribed = element.attribute(QStringLiteral("action")) == name
                                 && element.attribute(QStringLiteral("usable")) == "false";
        if (isDescribed || isUnusable(element, name))
            return true;
    }
    return false;
}

bool takePicture(QDomDocument description, const Look &look, const QDir &folder, QSize size)
{
    NewToolBar::uiStyle = look.skin;
    QMainWindow window;
    window.resize(size);
    auto *page = new QLabel;
    page->setStyleSheet(QStringLiteral("background:#ffffff"));
    window.setCentralWidget(page);
    QDomElement root = description.documentElement();
    MRToolBar toolBar(&window, root, look.map, ToolBarLeft);
    const QStringList names = controlNames(root);
    for (QString name : names)
        toolBar.DoSetControlUsableStateSlot(name, !isUnusable(root, name));
    toolBar.DoSetPageInfoSlot(3, 12);
    for (QString name : {QStringLiteral("t_handtool"), QStringLiteral("vzmode_fitwidth")})
        toolBar.DoSetControlCheckedStateSlot(name, true);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return false;
    QTest::qWait(200);
    const QString path = folder.filePath(look.picture + QStringLiteral(".png"));
    return window.grab().save(path) && std::printf("%s\n", qPrintable(path)) > 0;
}

QDomDocument shipped(int skin)
{
    QFile file(QStringLiteral(":/mr_toolbar/Resources/%1/mr_toolbar.release.xml")
                   .arg(skin == 1 ? QStringLiteral("lum") : QStringLiteral("marodi")));
    QDomDocument document;
    if (file.open(QIODevice::ReadOnly))
        document.setContent(file.readAll());
    return document;
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
            isComplete &= takePicture(block.description, {block.picture, 0, {}}, folder,
                                      {descriptionWidth, 100});
    }
    const QList<Look> looks{{QStringLiteral("dark-marodi"), 0, darkMarodi},
                            {QStringLiteral("dark-lum"), 1, darkLum},
                            {QStringLiteral("green-marodi"), 0, greenMarodi},
                            {QStringLiteral("green-lum"), 1, greenLum}};
    for (const Look &look : looks)
        isComplete &= takePicture(shipped(look.skin), look, folder, {skinWidth, 130});
    return isComplete ? 0 : 1;
}
