#include "toolbar/widgets/HoverSheets.h"

#include <QCryptographicHash>
#include <QTest>

class TestHoverSheets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySheetIsKeptToTheLetter_data()
    {
        using HoverSheets::dropButton;
        using HoverSheets::groupButton;
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<QByteArray>("digest");
        const auto add = [](const char *name, const QString &sheet, const char *digest) {
            QTest::newRow(name) << sheet << QByteArray(digest);
        };
        add("drop, row, arrow, marodi", dropButton(false, true, false, 1.0), "d6a8cc4d4b46");
        add("drop, row, body, marodi", dropButton(false, false, false, 1.0), "5ae8e9b6b970");
        add("drop, row, arrow, lum", dropButton(false, true, true, 1.0), "ea4bf116cc77");
        add("drop, row, body, lum", dropButton(false, false, true, 1.0), "1388230be9bc");
        add("drop, menu, arrow, marodi", dropButton(true, true, false, 1.0), "391456b314d3");
        add("drop, menu, body, marodi", dropButton(true, false, false, 1.0), "7673a34ed06d");
        add("drop, menu, arrow, lum", dropButton(true, true, true, 1.0), "8778541cfa0d");
        add("drop, menu, body, lum", dropButton(true, false, true, 1.0), "7cb3227d6306");
        add("group, arrow, marodi", groupButton(true, false), "c8fa270d698c");
        add("group, body, marodi", groupButton(false, false), "0cd944d5c3b4");
        add("group, arrow, lum", groupButton(true, true), "ea4bf116cc77");
        add("group, body, lum", groupButton(false, true), "1388230be9bc");
    }

    void everySheetIsKeptToTheLetter()
    {
        QFETCH(QString, sheet);
        QFETCH(QByteArray, digest);
        const QByteArray actual =
            QCryptographicHash::hash(sheet.toUtf8(), QCryptographicHash::Sha1).toHex();
        QVERIFY2(actual.startsWith(digest), qPrintable(sheet));
    }
};

QTEST_MAIN(TestHoverSheets)
#include "tst_hoversheets.moc"
