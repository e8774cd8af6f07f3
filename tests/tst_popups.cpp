// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Pointer.h"
#include "tests/support/TestHost.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QToolTip>

#include <algorithm>

using namespace Describe;

namespace {

/** Where in the entry's line the first pixel stands out from its ground, from @p left on. */
QPoint firstMark(const QMenu *menu, const QImage &image, QAction *entry, int left)
{
    const QRect line = menu->actionGeometry(entry);
    const QRgb ground = image.pixel(line.left() + 3, line.center().y());
    for (int x = left; x < line.right(); ++x) {
        for (int y = line.top() + 2; y < line.bottom() - 1; ++y) {
            if (qAbs(qGray(image.pixel(x, y)) - qGray(ground)) > 24)
                return {x, y - line.top()};
        }
    }
    return {};
}

/** Entries with and without an icon or a check mark, all of the same text. */
QString entriesOfEachKind(bool withIcons)
{
    const QString entry = "<menuitem action='%1' text='目' %2/>";
    const QString icon = withIcons ? "icon='icon16/Find.svg' " : "";
    const QString checkable = "checkable='true' ";
    const QString checked = checkable + "checked='true' ";
    return entry.arg("a", icon) + entry.arg("b", checked) + entry.arg("c", icon + checked)
           + entry.arg("d", QString()) + entry.arg("e", checkable);
}

QImage pictureOfMenu(TestHost &host)
{
    host.showEnabled();
    movePointerAway();
    auto *menu = host.find<QMenu>("m_entries");
    menu->popup(host.window().mapToGlobal(QPoint(20, 200)));
    if (!QTest::qWaitForWindowExposed(menu))
        return QImage();
    const QImage image = menu->grab().toImage();
    menu->close();
    return image;
}

void addSkins()
{
    QTest::addColumn<int>("skin");
    QTest::newRow("marodi") << marodi;
    QTest::newRow("lum") << lum;
}

} // namespace

/** What opens above the window: menus, lists and tips. */
class PopupsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldWriteTheEntriesOfAMenuInOneColumn_data()
    {
        QTest::addColumn<int>("skin");
        QTest::addColumn<bool>("withIcons");
        for (const int skin : {marodi, lum}) {
            QTest::addRow("skin %d, icons", skin) << skin << true;
            QTest::addRow("skin %d, no icon", skin) << skin << false;
        }
    }

    void shouldWriteTheEntriesOfAMenuInOneColumn()
    {
        QFETCH(int, skin);
        QFETCH(bool, withIcons);
        const SkinChoice choice(skin);
        TestHost host(row(menu("m_entries", entriesOfEachKind(withIcons))));
        const QImage image = pictureOfMenu(host);
        QSet<int> columns;
        for (const char *name : {"a", "b", "c", "d", "e"}) {
            columns.insert(
                firstMark(host.find<QMenu>("m_entries"), image, host.action(name), host.scaled(36))
                    .x());
        }
        QCOMPARE(columns.size(), qsizetype(1));
        QVERIFY(*columns.cbegin() > host.scaled(36));
    }

    void shouldMarkWhatIsCheckedAlikeWithAnIconAndWithout_data() { addSkins(); }

    void shouldMarkWhatIsCheckedAlikeWithAnIconAndWithout()
    {
        QFETCH(int, skin);
        const SkinChoice choice(skin);
        TestHost host(row(menu("m_entries", entriesOfEachKind(true))));
        const QImage image = pictureOfMenu(host);
        const auto *entries = host.find<QMenu>("m_entries");
        const QPoint byCheck = firstMark(entries, image, host.action("b"), 4);
        QVERIFY(!byCheck.isNull() && byCheck.x() < host.scaled(36));
        QCOMPARE(firstMark(entries, image, host.action("c"), 4), byCheck);
    }

    void shouldOpenAListBelowItsField_data() { addSkins(); }

    void shouldOpenAListBelowItsField()
    {
        QFETCH(int, skin);
        const SkinChoice choice(skin);
        QString choices;
        for (int i = 0; i < 18; ++i)
            choices += Describe::choice(QString("c%1").arg(i), QString::number(i));
        TestHost host(row(comboBox("c_list", choices, "index='2'")));
        host.showEnabled();
        auto *box = host.find<QComboBox>("c_list");
        box->showPopup();
        const QWidget *list = box->view()->window();
        QTRY_VERIFY(list->isVisible());
        QVERIFY(list->y() >= box->mapToGlobal(box->rect().bottomLeft()).y());
        // There is no scroll bar, so that everything is on show.
        QVERIFY(box->view()->visualRect(box->model()->index(17, 0)).bottom()
                <= box->view()->viewport()->height());
        box->hidePopup();
    }

    void shouldShowTipsInTheColoursOfTheSkin_data() { addSkins(); }

    void shouldShowTipsInTheColoursOfTheSkin()
    {
        QFETCH(int, skin);
        const SkinChoice choice(skin);
        QPalette yellow = QToolTip::palette();
        yellow.setColor(QPalette::ToolTipBase, Qt::yellow);
        const QPalette previous = QToolTip::palette();
        QToolTip::setPalette(yellow);
        TestHost host(row(button("one")));
        host.showEnabled();
        QWidget *tab = host.shownTabs().first();
        QToolTip::showText(tab->mapToGlobal(QPoint()), "tip", tab);
        const auto isTip = [](const QWidget *widget) { return widget->inherits("QTipLabel"); };
        const QWidgetList windows = QApplication::topLevelWidgets();
        const auto tip = std::find_if(windows.cbegin(), windows.cend(), isTip);
        QVERIFY(tip != windows.cend());
        const QImage image = (*tip)->grab().toImage();
        QCOMPARE(image.pixelColor(3, 3), QColor(Qt::white));
        QVERIFY(qGray(image.pixel(0, image.height() / 2)) > 128);
        QToolTip::hideText();
        QToolTip::setPalette(previous);
    }
};

QTEST_MAIN(PopupsTest)
#include "tst_popups.moc"
