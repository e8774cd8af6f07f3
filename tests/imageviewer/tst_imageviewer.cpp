// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "examples/imageviewer/ViewerWindow.h"

#include <toolbar/MRToolBar.h>

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

namespace {

const QStringList names{"beach.png", "forest.png", "mountain.jpg", "My Forest.bmp"};

QString pictureIn(const QTemporaryDir &folder, const QString &name)
{
    QImage picture(600, 400, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    QPainter(&picture).fillRect(0, 300, 600, 100, Qt::darkGreen);
    picture.save(folder.filePath(name));
    return folder.filePath(name);
}

} // namespace

/** The example imageviewer, used with the mouse and the keys. */
class ImageViewerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const QString &name : names)
            pictureIn(m_folder, name);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
    }

    void init()
    {
        m_window = std::make_unique<ViewerWindow>(m_folder.filePath("forest.png"));
        m_window->resize(1100, 640);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        view()->setFocus();
    }

    void cleanup() { m_window.reset(); }

    void shouldGoThroughTheFolder()
    {
        show("tb_picture");
        auto *field = find<QLineEdit>("d_gotopage");
        QVERIFY(field);
        QTRY_VERIFY(field->text().startsWith('2'));
        click("d_nextpage");
        QCOMPARE(QFileInfo(view()->fileName()).fileName(), names.at(2));
        press(Qt::Key_PageDown);
        QTRY_COMPARE(view()->number(), 4);
        QVERIFY(!m_window->findChild<MRToolBar *>()->GetCompositeEnable("d_nextpage"));
        QTest::mouseClick(field, Qt::LeftButton);
        field->selectAll();
        QTest::keyClicks(field, "1");
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_COMPARE(view()->number(), 1);
        QVERIFY(!m_window->findChild<MRToolBar *>()->GetCompositeEnable("d_prevpage"));
    }

    void shouldTurnCopyAndZoom()
    {
        show("tb_picture");
        click("v_turnleft");
        QCOMPARE(view()->picture().size(), QSize(400, 600));
        press(Qt::Key_M, Qt::ControlModifier);
        QTRY_VERIFY(view()->isMirrored());
        QTRY_VERIFY(m_window->findChild<MRToolBar *>()->GetControlCheckedState("v_mirror"));
        QGuiApplication::clipboard()->clear();
        press(Qt::Key_C, Qt::ControlModifier);
        QTRY_COMPARE(QGuiApplication::clipboard()->image().size(), QSize(400, 600));

        show("tb_view");
        click("vzmode_original");
        QTRY_COMPARE(view()->percent(), 100.0);
        auto *zoom = find<QComboBox>("v_zoom");
        QVERIFY(zoom);
        click("v_zoomin");
        QTRY_COMPARE(zoom->currentText(), QString("125%"));
        zoom->lineEdit()->selectAll();
        QTest::keyClicks(zoom->lineEdit(), "37");
        QTest::keyClick(zoom->lineEdit(), Qt::Key_Return);
        QTRY_COMPARE(view()->percent(), 37.0);
    }

    void shouldFindPicturesByName()
    {
        auto *field = find<QLineEdit>("st_input");
        QVERIFY(field);
        QTest::mouseClick(field, Qt::LeftButton);
        QTest::keyClicks(field, "forest");
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_COMPARE(QFileInfo(view()->fileName()).fileName(), names.at(3));
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_COMPARE(QFileInfo(view()->fileName()).fileName(), names.at(1));
    }

    void shouldKeepRecentFilesAndChangeItsLooks()
    {
        show("tb_look");
        click("background_nighttime");
        QTRY_COMPARE(view()->ground(), Background_Nighttime);
        click("a_english");
        QTRY_COMPARE(find<QPushButton>("tb_look")->text(), QString("Look"));
        click("a_dark");
        QSettings settings("mrtoolbar", "imageviewer");
        QCOMPARE(settings.value("toolbar/recentfiles").toStringList(),
                 QStringList(m_folder.filePath("forest.png")));

        m_window.reset();
        init();
        QVERIFY(find<QPushButton>("tb_look")->isChecked());
        QTRY_VERIFY(m_window->findChild<MRToolBar *>()->GetControlCheckedState("a_dark"));
    }

private:
    template <typename Widget>
    Widget *find(const QString &name) const
    {
        // An invisible one is on a row that was left, or in a menu.
        const auto all = m_window->findChildren<Widget *>(name);
        for (Widget *widget : all) {
            if (widget->isVisible())
                return widget;
        }
        return nullptr;
    }
    void click(const QString &name)
    {
        QToolButton *button = nullptr;
        const auto buttons = m_window->findChildren<QToolButton *>();
        for (QToolButton *candidate : buttons) {
            const QAction *action = candidate->defaultAction();
            if (action && action->objectName() == name && candidate->isVisible())
                button = candidate;
        }
        QVERIFY2(button, qPrintable(name));
        QTest::mouseClick(button, Qt::LeftButton);
    }

    void show(const QString &tab)
    {
        auto *button = find<QPushButton>(tab);
        QVERIFY2(button, qPrintable(tab));
        if (!button->isChecked())
            QTest::mouseClick(button, Qt::LeftButton);
    }

    void press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(m_window.get(), Qt::Key(key), modifiers);
    }
    PictureView *view() const { return m_window->findChild<PictureView *>(); }

    QTemporaryDir m_folder;
    QTemporaryDir m_settings;
    std::unique_ptr<ViewerWindow> m_window;
};

QTEST_MAIN(ImageViewerTest)
#include "tst_imageviewer.moc"
