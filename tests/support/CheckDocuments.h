#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTest>

/** Small descriptions for the tests of the description check, and the shipped ones. */
namespace CheckDocuments {

/** The sections begin in line 2. */
inline QByteArray document(const QByteArray &sections)
{
    return "<uiconfig prefix=\"\">\n" + sections + "\n</uiconfig>\n";
}

/** The controls stand in line 3. */
inline QByteArray row(const QByteArray &controls, const QByteArray &tabAttributes = {})
{
    return document("<toolbar_tabbar><tabbutton name='tb' checkable='true' checked='true' "
                    + tabAttributes + ">\n" + controls + "\n</tabbutton></toolbar_tabbar>");
}

/** The entries stand in line 3. */
inline QByteArray menu(const QByteArray &entries)
{
    return document("<toolbar_appbutton><menu name='menu_file' text='File'>\n" + entries
                    + "\n</menu></toolbar_appbutton>");
}

inline constexpr char scalable[] = "scalable='true'";

inline QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline QString shippedPath(const QString &skin, const QString &variant)
{
    return QStringLiteral(":/mr_toolbar/Resources/%1/mr_toolbar.%2.xml").arg(skin, variant);
}

inline void addShipped()
{
    QTest::addColumn<QString>("skin");
    QTest::addColumn<QString>("path");
    for (const QString skin : {"marodi", "lum"}) {
        for (const QString variant : {"release", "debug"})
            QTest::addRow("%s %s", qPrintable(skin), qPrintable(variant))
                << skin << shippedPath(skin, variant);
    }
}

} // namespace CheckDocuments
