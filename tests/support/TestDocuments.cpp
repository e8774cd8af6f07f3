// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/TestDocuments.h"

#include "tests/support/TestHost.h"

#include <QFile>

QString TestDocuments::shippedPath(const QString &name)
{
    return QStringLiteral(":/mr_toolbar/Resources/") + name;
}

QByteArray TestDocuments::content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QDomDocument TestDocuments::read(const QString &path)
{
    QDomDocument document;
    if (!document.setContent(content(path)))
        qFatal("No description %s", qPrintable(path));
    return document;
}

void TestDocuments::addShipped()
{
    QTest::addColumn<int>("skin");
    QTest::addColumn<QString>("path");
    QTest::newRow("marodi release") << marodi << shippedPath("marodi/mr_toolbar.release.xml");
    QTest::newRow("marodi debug") << marodi << shippedPath("marodi/mr_toolbar.debug.xml");
    // One row: the two descriptions of this skin differ in white space only.
    QTest::newRow("lum") << lum << shippedPath("lum/mr_toolbar.release.xml");
}

void TestDocuments::addAll()
{
    addShipped();
    QTest::newRow("marodi showcase") << marodi << QStringLiteral(SHOWCASE);
    QTest::newRow("lum showcase") << lum << QStringLiteral(SHOWCASE);
}
