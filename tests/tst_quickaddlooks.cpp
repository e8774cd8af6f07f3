// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/QuickAdd.h"
#include "toolbar/skin/Contrast.h"

using namespace QuickAdd;

class tst_quickaddlooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTakeTextsAndIconsByName();
    void shouldBeReadOnTheTopLine_data();
    void shouldBeReadOnTheTopLine();
    void shouldShowThatItIsChecked_data() { addSkins(); }
    void shouldShowThatItIsChecked();
};

void tst_quickaddlooks::shouldTakeTextsAndIconsByName()
{
    TestHost host = TestHost::enabled(described());
    takeOffer(host, "part");
    const QAction *added = onBar(host, "qbar_part");
    const auto set = [&host](void (MRToolBar::*slot)(QString &, QString), QString name,
                             const QString &text) { (host.facade().*slot)(name, text); };
    set(&MRToolBar::DoSetControlTextSlot, "part", "Command");
    QCOMPARE(added->toolTip(), QString("Command"));
    set(&MRToolBar::DoSetControlTextSlot, "qbar_part", "Own && good");
    QCOMPARE(added->toolTip(), QString("Own & good"));
    set(&MRToolBar::DoSetControlToolTipSlot, "qbar_part", "Tip");
    QCOMPARE(added->toolTip(), QString("Tip"));
    set(&MRToolBar::DoSetControlToolTipSlot, "qbar_part", "");
    set(&MRToolBar::DoSetControlTextSlot, "qbar_part", "");
    QCOMPARE(added->toolTip(), QString("Command"));

    QPixmap red(16, 16);
    red.fill(Qt::red);
    QString name = "qbar_part";
    host.facade().DoSetControlIconSlot(name, QIcon(red));
    QCOMPARE(added->icon().pixmap(16).toImage().pixelColor(8, 8), QColor(Qt::red));
}

void tst_quickaddlooks::shouldBeReadOnTheTopLine_data()
{
    QTest::addColumn<int>("skin");
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<QString>("name");
    for (const char *scheme : {"light", "dark", "contrast"}) {
        for (const char *name : {"plain", "part"}) {
            QTest::addRow("marodi %s %s", scheme, name) << marodi << scheme << name;
            QTest::addRow("lum %s %s", scheme, name) << lum << scheme << name;
        }
    }
}

void tst_quickaddlooks::shouldBeReadOnTheTopLine()
{
    const SkinChoice skin;
    QFETCH(QString, scheme);
    QFETCH(QString, name);
    TestHost host = TestHost::enabled(described(), {{"scheme", scheme}});
    takeOffer(host, name);
    const QImage picture = pictureOf(host, "qbar_" + name);
    const QColor ground = picture.pixelColor(1, 1);
    double best = 1.0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            best = std::max(best, Contrast::ratio(picture.pixelColor(x, y), ground));
    }
    QVERIFY2(best >= 3.0, qPrintable(QString::number(best)));
}

void tst_quickaddlooks::shouldShowThatItIsChecked()
{
    const SkinChoice skin;
    TestHost host = TestHost::enabled(described());
    takeOffer(host, "check");
    const QColor before = pictureOf(host, "qbar_check").pixelColor(2, 2);
    host.setChecked("check", true);
    QVERIFY(pictureOf(host, "qbar_check").pixelColor(2, 2) != before);
}

QTEST_MAIN(tst_quickaddlooks)
#include "tst_quickaddlooks.moc"
