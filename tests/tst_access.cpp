// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/TestDocuments.h"
#include "tests/support/TestHost.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QStackedWidget>
#include <QToolBar>

namespace {

/** The visible widgets that a user operates. */
QWidgetList shownControls(const QWidget *area)
{
    QWidgetList controls;
    const QWidgetList widgets = area->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const bool isControl = qobject_cast<QAbstractButton *>(widget)
                               || qobject_cast<QLineEdit *>(widget)
                               || qobject_cast<QComboBox *>(widget);
        if (isControl && widget->isVisible() && !widget->visibleRegion().isEmpty())
            controls.append(widget);
    }
    return controls;
}

/** Whether it is the container of a scroll arrow, or a button described without text and icon. */
bool isWithoutMeaning(const QWidget *control)
{
    const auto *button = qobject_cast<const QAbstractButton *>(control);
    return control->objectName().endsWith(QLatin1String("extend"))
           || (button && button->text().isEmpty() && button->icon().isNull());
}

} // namespace

/** Accessible names and roles, and the use by the keyboard alone. */
class AccessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldGiveEveryControlAnAccessibleNameAndRole_data() { TestDocuments::addShipped(); }

    void shouldGiveEveryControlAnAccessibleNameAndRole()
    {
        QFETCH(int, skin);
        QFETCH(QString, path);
        const SkinChoice choice(skin);
        const auto host = TestHost::withFile(path);
        host->show();
        const QWidgetList controls = shownControls(host->toolBar());
        QVERIFY(controls.size() > 20);
        for (QWidget *control : controls) {
            QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(control);
            QVERIFY(accessible);
            const QString place = QLatin1String(control->metaObject()->className())
                                  + QLatin1Char(' ') + control->objectName() + " in "
                                  + control->parentWidget()->objectName();
            QVERIFY2(accessible->role() != QAccessible::NoRole, qPrintable(place));
            if (!isWithoutMeaning(control))
                QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), qPrintable(place));
        }
    }

    void shouldMoveTheFocusAlongTheTopLineThenTheRowByTab_data() { TestDocuments::addShipped(); }

    void shouldMoveTheFocusAlongTheTopLineThenTheRowByTab()
    {
        QFETCH(int, skin);
        QFETCH(QString, path);
        const SkinChoice choice(skin);
        const auto host = TestHost::withFile(path);
        host->show();
        host->enableEverything();
        const QWidget *stack = host->find<QStackedWidget>(QStringLiteral("tabwidget"));
        host->find<QPushButton>(QStringLiteral("menu_file"))->setFocus(Qt::TabFocusReason);

        QWidgetList visited;
        for (int step = 0; step < 60; ++step) {
            QWidget *focused = QApplication::focusWidget();
            if (!focused || visited.contains(focused))
                break;
            visited.append(focused);
            QTest::keyClick(focused, Qt::Key_Tab);
        }
        QVERIFY2(visited.size() > 20, "The row is not reached");
        for (int i = 1; i < visited.size(); ++i) {
            const QWidget *before = visited.at(i - 1);
            const QWidget *after = visited.at(i);
            const bool isSameLine = stack->isAncestorOf(before) == stack->isAncestorOf(after);
            if (!isSameLine || before->isAncestorOf(after))
                continue;
            QVERIFY2(before->mapToGlobal(QPoint()).x() < after->mapToGlobal(QPoint()).x(),
                     qPrintable(before->objectName() + " > " + after->objectName()));
        }
    }

    void shouldGiveTheFocusByNameToWhatIsOnShowOnly()
    {
        const auto host = TestHost::withShipped(QStringLiteral("marodi/mr_toolbar.release.xml"));
        auto *document = new QLineEdit;
        host->window().setCentralWidget(document);
        host->window().resize(host->scaled(500), host->scaled(400));
        host->show();
        host->enableEverything();
        const auto giveFocus = [&host](const char *name) {
            return host->facade().DoSetFocusSlot(QLatin1String(name));
        };
        host->facade().DoSetPageInfoSlot(3, 12);
        for (const char *name : {"st_input", "d_gotopage"}) {
            QVERIFY2(giveFocus(name), name);
            const auto *field = host->find<QLineEdit>(QLatin1String(name));
            QCOMPARE(QApplication::focusWidget(), field);
            QCOMPARE(field->selectedText(), field->text());
            QTRY_COMPARE(field->visibleRegion().boundingRect(), field->rect());
        }
        QVERIFY(giveFocus(""));
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("menu_file"));

        document->setFocus();
        host->setUsable(QStringLiteral("d_gotopage"), false);
        for (const char *name : {"d_gotopage", "st_icon", "no control"}) {
            QVERIFY2(!giveFocus(name), name);
            QCOMPARE(QApplication::focusWidget(), document);
        }
        host->setUsable(QStringLiteral("d_gotopage"), true);
        host->setVisible(QStringLiteral("d_gotopage"), false);
        QVERIFY(!giveFocus("d_gotopage"));
        delete host->find<QToolBar>(QStringLiteral("mrtoolbar"));
        QVERIFY(!giveFocus(""));
    }

    void shouldReturnTheFocusToTheDocumentByEscape_data()
    {
        QTest::addColumn<bool>("isEmbedded");
        QTest::newRow("window of its own") << false;
        QTest::newRow("part of another window") << true;
    }

    void shouldReturnTheFocusToTheDocumentByEscape()
    {
        QFETCH(bool, isEmbedded);
        QMainWindow outer;
        const auto host = TestHost::withShipped(QStringLiteral("marodi/mr_toolbar.release.xml"));
        if (isEmbedded) {
            outer.setCentralWidget(new QWidget);
            host->window().setParent(outer.centralWidget());
            outer.resize(host->window().size());
            outer.show();
        }
        auto *document = new QLineEdit;
        host->window().setCentralWidget(document);
        host->show();
        host->enableEverything();
        for (const char *name : {"st_input", "d_gotopage"}) {
            auto *field = host->find<QLineEdit>(QLatin1String(name));
            QTest::mouseClick(field, Qt::LeftButton);
            QCOMPARE(QApplication::focusWidget(), field);
            QTest::keyClick(field, Qt::Key_Escape);
            QCOMPARE(QApplication::focusWidget(), document);
        }
        // A click on a command does not take the focus from the document.
        host->click(QStringLiteral("e_preference"));
        QCOMPARE(QApplication::focusWidget(), document);
    }
};

QTEST_MAIN(AccessTest)
#include "tst_access.moc"
