// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/TestHost.h"

#include "tests/support/TestDocuments.h"
#include "toolbar/skin/ScreenDensity.h"

#include <QApplication>
#include <QToolBar>

namespace {

QDomDocument parsed(const QByteArray &xml)
{
    QDomDocument document;
    if (!document.setContent(xml))
        qFatal("The test's description is not well-formed");
    return document;
}

/** What the environment chooses for a whole run of the tests, unless the test chooses itself. */
TestHost::SkinMap withChoicesOfRun(TestHost::SkinMap skin)
{
    const QString scale = qEnvironmentVariable("TEST_SCALE");
    if (!scale.isEmpty() && !skin.contains("scalefactor"))
        skin.insert("scalefactor", scale);
    const int points = qEnvironmentVariableIntValue("TEST_FONT_POINTS");
    if (points > 0 && !skin.contains("fontfromapplication")) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
        skin.insert("fontfromapplication", "true");
    }
    return skin;
}

} // namespace

int SkinChoice::ofRow()
{
    QFETCH(int, skin);
    return skin;
}

void addSkins()
{
    QTest::addColumn<int>("skin");
    QTest::newRow("marodi") << marodi;
    QTest::newRow("lum") << lum;
}

TestHost::TestHost(const QString &sections, const SkinMap &skin, ToolBarAlignment alignment)
    : TestHost(parsed("<uiconfig prefix=\"\">" + sections.toUtf8() + "</uiconfig>"), skin,
               alignment)
{
}

TestHost::TestHost(const QDomDocument &document, const SkinMap &skin, ToolBarAlignment alignment)
    : m_document(document)
{
    // Without a running event loop a window that exists is not told of another font.
    const SkinMap chosen = withChoicesOfRun(skin);
    m_window = std::make_unique<QMainWindow>();
    m_window->resize(1300, 600);
    QDomElement root = m_document.documentElement();
    m_facade = std::make_unique<MRToolBar>(m_window.get(), root, chosen, alignment);
}

TestHost TestHost::shown(const QString &sections, const SkinMap &skin)
{
    TestHost host(sections, skin);
    host.show();
    return host;
}

TestHost TestHost::enabled(const QString &sections, const SkinMap &skin)
{
    TestHost host(sections, skin);
    host.showEnabled();
    return host;
}

std::unique_ptr<TestHost> TestHost::withShipped(const QString &path, const SkinMap &skin)
{
    return withFile(TestDocuments::shippedPath(path), skin);
}

std::unique_ptr<TestHost> TestHost::withRelease(const SkinMap &skin)
{
    const QString folder = NewToolBar::uiStyle == lum ? "lum" : "marodi";
    return withShipped(folder + "/mr_toolbar.release.xml", skin);
}

std::unique_ptr<TestHost> TestHost::withFile(const QString &path, const SkinMap &skin)
{
    return std::unique_ptr<TestHost>(new TestHost(TestDocuments::read(path), skin, ToolBarLeft));
}

void TestHost::show()
{
    m_window->show();
    activate();
}

void TestHost::activate()
{
    m_window->activateWindow();
    // The window system may still tell of a window that has just been closed.
    QGuiApplication::sync();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestHost::showEnabled()
{
    enableRows();
    show();
}

void TestHost::enableEverything()
{
    const QList<QAction *> actions = m_window->findChildren<QAction *>();
    for (const QAction *action : actions) {
        if (!action->objectName().isEmpty())
            setUsable(action->objectName(), true);
    }
}

QList<QPushButton *> TestHost::shownTabs() const
{
    QList<QPushButton *> tabs;
    const QList<QPushButton *> buttons = toolBar()->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->property("module") == "tabbutton" && !button->isHidden())
            tabs.append(button);
    }
    return tabs;
}

void TestHost::openEachTab(const std::function<void(const QString &)> &look)
{
    const QList<QPushButton *> tabs = shownTabs();
    for (QPushButton *tab : tabs) {
        if (!tab->isChecked())
            QTest::mouseClick(tab, Qt::LeftButton);
        look(tab->objectName());
    }
}

QString TestHost::sheet() const
{
    return find<QToolBar>("mrtoolbar")->styleSheet();
}

int TestHost::scaled(double designPixels) const
{
    return static_cast<int>(designPixels * static_cast<double>(ScreenDensity::factor(toolBar())));
}

void TestHost::click(const QString &buttonName)
{
    auto *button = find<QAbstractButton>(buttonName);
    QVERIFY2(button, qPrintable(QStringLiteral("There is no button ") + buttonName));
    QTest::mouseClick(button, Qt::LeftButton);
}

void TestHost::setUsable(QString name, bool usable)
{
    m_facade->DoSetControlUsableStateSlot(name, usable);
}

void TestHost::setVisible(QString name, bool visible)
{
    m_facade->DoSetControlVisibleStateSlot(name, visible);
}

void TestHost::setChecked(QString name, bool checked)
{
    m_facade->DoSetControlCheckedStateSlot(name, checked);
}

QStringList TestHost::texts(const QSignalSpy &spy)
{
    QStringList texts;
    for (const QList<QVariant> &arguments : spy)
        texts.append(arguments.value(0).toString());
    return texts;
}

void runDeferredDeletes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}
