// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/Language.h"
#include "tests/reader/ReaderHost.h"

#include <toolbar/NewToolBar.h>

#include <QAbstractButton>
#include <QMenu>
#include <QStackedWidget>
#include <QToolBar>
#include <QToolButton>

/** The reader's own toolbar at usual widths of its window. */
class ReaderRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { keepUsersSettings(); }

    void shouldHaveEveryCommandAtMostTwoClicksAway_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("width");
        for (int row = 0; row < 8; ++row) {
            const QString language = row & 2 ? "en" : "zh_CN";
            const int width = row & 4 ? 1280 : 800;
            QTest::addRow("%s, %s, %d", row & 1 ? "lum" : "marodi", qPrintable(language), width)
                << (row & 1) << language << width;
        }
    }

    void shouldHaveEveryCommandAtMostTwoClicksAway()
    {
        QFETCH(int, style);
        QFETCH(QString, language);
        QFETCH(int, width);
        NewToolBar::uiStyle = style;
        Language::install(language);
        ReaderHost reader("reader", style ? "lum" : "marodi");
        QCOMPARE(reader.error, QString());
        ReaderWindow &window = reader.window;
        window.openSample();
        window.resize(width, 600);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.width(), width);

        auto *toolBar = window.findChild<QToolBar *>("mrtoolbar");
        const auto *stack = toolBar->findChild<QStackedWidget *>("tabwidget");
        int clicksToRow = 0;
        for (const char *tab : {"tb_start", "tb_view"}) {
            if (clicksToRow > 0)
                QTest::mouseClick(toolBar->findChild<QAbstractButton *>(tab), Qt::LeftButton);
            settled(*toolBar);
            for (const char *side : {"left", "right"}) {
                const auto arrows = stack->currentWidget()->findChildren<QAbstractButton *>(side);
                QCOMPARE(arrows.size(), 1);
                QVERIFY2(!arrows.first()->isVisible(), tab);
            }
            // A menu costs a click, too; its sub-menus open under the pointer.
            const auto buttons = stack->currentWidget()->findChildren<QToolButton *>();
            QVERIFY(buttons.size() > 5);
            for (const QToolButton *button : buttons) {
                if (button->isVisible())
                    QVERIFY2(clicksToRow + (button->menu() ? 2 : 1) <= 2, tab);
            }
            clicksToRow = 1;
        }
    }
};

QTEST_MAIN(ReaderRowsTest)
#include "tst_readerrows.moc"
