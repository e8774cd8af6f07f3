// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Menus.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/Composition.h"

#include <QMenu>
#include <QWindow>

#include <algorithm>
#include <xcb/xcb.h>

using namespace Describe;

namespace {

/** While it lives, the windows of the first screen count as composed. */
class ClaimedComposition
{
public:
    ClaimedComposition()
    {
        const auto cookie = xcb_intern_atom(m_connection, 0, 13, "_NET_WM_CM_S0");
        auto *selection = xcb_intern_atom_reply(m_connection, cookie, nullptr);
        const auto *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        xcb_set_selection_owner(m_connection, screen->root, selection->atom, XCB_CURRENT_TIME);
        free(selection);
        free(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    }
    ~ClaimedComposition() { xcb_disconnect(m_connection); }
    Q_DISABLE_COPY_MOVE(ClaimedComposition)

private:
    xcb_connection_t *m_connection = xcb_connect(nullptr, nullptr);
};

const QString sections =
    section("appbutton", menu("menu_file", item("f_open") + menu("menu_more", item("f_more"))));

bool hasShadow(const QRect &place)
{
    const QList<QWindow *> windows = QGuiApplication::allWindows();
    return std::any_of(windows.begin(), windows.end(), [&place](const QWindow *window) {
        return window->isVisible() && window->flags().testFlag(Qt::WindowTransparentForInput)
               && window->geometry().contains(place.adjusted(-5, -5, 5, 5));
    });
}

/** What the application menu, or the menu in it, is like while it is open. */
struct OpenMenu
{
    explicit OpenMenu(TestHost &host, bool isSubMenu = false)
    {
        whenMenuPops([this, isSubMenu](QMenu *menu) {
            if (isSubMenu) {
                menu->setActiveAction(entryOf(menu, "menu_more"));
                menu = menu->activeAction()->menu();
            }
            QTRY_VERIFY(menu->isVisible());
            place = menu->geometry();
            image = menu->grab().toImage();
            isShaded = hasShadow(place);
        });
        host.click("menu_file");
    }

    /** The part of the picture without the four corners' rows or columns. */
    QImage without(int rows, int columns) const
    {
        return image.copy(image.rect().adjusted(columns, rows, -columns, -rows))
            .convertToFormat(QImage::Format_RGB32);
    }

    QRect place;
    QImage image;
    bool isShaded = false;
};

} // namespace

/** Menus where the windowing system composes its windows, and where it does not. */
class CompositionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (QGuiApplication::platformName() != "xcb" || Composition::isActive())
            QSKIP("This needs an X server without a compositing manager.");
    }

    void shouldRoundAMenuOnlyWhileWindowsAreComposed_data()
    {
        QTest::addColumn<int>("skin");
        QTest::addColumn<QString>("scheme");
        QTest::newRow("marodi") << marodi << "light";
        QTest::newRow("lum, contrast") << lum << "contrast";
    }

    void shouldRoundAMenuOnlyWhileWindowsAreComposed()
    {
        QFETCH(int, skin);
        QFETCH(QString, scheme);
        const SkinChoice choice(skin);
        for (const bool isSubMenu : {false, true}) {
            auto claimed = std::make_unique<ClaimedComposition>();
            TestHost host(sections, {{"scheme", scheme}});
            host.show();
            const OpenMenu composed(host, isSubMenu);
            QVERIFY2(!hasShadow(composed.place), "The shadow stays when the menu has closed");
            claimed.reset();
            const OpenMenu plain(host, isSubMenu);

            QVERIFY(composed.isShaded && !plain.isShaded);
            QCOMPARE(composed.image.pixelColor(0, 0).alpha(), 0);
            QCOMPARE(plain.image.pixelColor(0, 0), plain.image.pixelColor(0, 20));
            QCOMPARE(composed.place, plain.place);
            const int radius = host.scaled(4);
            QCOMPARE(composed.without(radius, 0), plain.without(radius, 0));
            QCOMPARE(composed.without(0, radius), plain.without(0, radius));
        }
    }
};

QTEST_MAIN(CompositionTest)
#include "tst_composition.moc"
