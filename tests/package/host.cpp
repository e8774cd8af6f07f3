// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

// A host that ends at once: with 0 if the library has brought its resources and works.

#include <toolbar/MRToolBar.h>
#include <toolbar/handwrite/MRHandWriteDialog.h>

#include <QApplication>
#include <QDomDocument>
#include <QFile>
#include <QIcon>
#include <QMainWindow>
#include <QTranslator>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    if (QString::fromLatin1(qVersion()).section(QLatin1Char('.'), 0, 0).toInt() != EXPECTED_QT)
        return 2;
    QFile file(QStringLiteral(":/mr_toolbar/Resources/marodi/mr_toolbar.release.xml"));
    QDomDocument description;
    if (!file.open(QIODevice::ReadOnly) || !description.setContent(file.readAll()))
        return 3;
    const QString icon = QStringLiteral(":/mr_toolbar/Resources/marodi/icons/icon24/About.svg");
    QTranslator english;
    if (!english.load(QStringLiteral("mrtoolbar_en"), QStringLiteral(":/mr_toolbar/translations")))
        return 4;

    QMainWindow window;
    QDomElement root = description.documentElement();
    MRToolBar toolBar(&window, root, {}, ToolBarLeft);
    const MRHandWriteDialog dialog(&window);
    QString command = QStringLiteral("f_open");
    toolBar.DoSetControlUsableStateSlot(command, true);
    window.show();
    QCoreApplication::processEvents();
    const auto *strip = window.findChild<QWidget *>(QStringLiteral("mrtoolbar"));
    if (!strip || strip->height() < 50)
        return 5;
    return QFile::exists(icon) ? 0 : 6;
}
