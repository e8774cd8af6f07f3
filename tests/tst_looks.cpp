// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Elements.h"
#include "tests/support/Icons.h"
#include "tests/support/Pointer.h"
#include "tests/support/TestDocuments.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/MRMainToolBar.h"

#include <QApplication>
#include <QIcon>
#include <QLabel>
#include <QStyleOptionButton>
#include <QToolButton>

namespace {

int textWidth(const QWidget *widget, const QString &text)
{
    return widget->fontMetrics().size(Qt::TextShowMnemonic, text.trimmed()).width();
}

/** Why the text or the icon does not fit into the button; empty if both fit. */
QString faultOf(const QToolButton *button)
{
    const int width = textWidth(button, button->text());
    const int height = button->fontMetrics().tightBoundingRect(button->text()).height();
    const QSize icon = button->iconSize();
    const bool isBelow = button->toolButtonStyle() == Qt::ToolButtonTextUnderIcon;
    if (!isBelow && button->toolButtonStyle() != Qt::ToolButtonTextBesideIcon)
        return QString();
    const QSize needed =
        isBelow ? QSize(width, icon.height() + height) : QSize(icon.width() + width, icon.height());
    const bool fits = needed.width() <= button->width() && needed.height() <= button->height();
    return fits ? QString() : QStringLiteral("icon and text in %1").arg(button->width());
}

QString faultOf(const QPushButton *button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    const QRect room =
        button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button);
    const int icon = button->icon().isNull() ? 0 : button->iconSize().width();
    const int needed = icon + textWidth(button, button->text());
    if (!button->text().isEmpty() && needed > room.width())
        return QStringLiteral("content of %1 in %2").arg(needed).arg(room.width());
    if (icon > button->width() || (icon > 0 && button->iconSize().height() > button->height()))
        return QStringLiteral("icon of %1 in %2").arg(icon).arg(button->width());
    return QString();
}

QString faultOf(const QLabel *label)
{
    const bool isShort = textWidth(label, label->text()) > label->width();
    return isShort ? QStringLiteral("label of %1").arg(label->width()) : QString();
}

template <typename Widget>
void collectFaults(const QWidget *parent, QStringList &faults)
{
    const QList<Widget *> widgets = parent->findChildren<Widget *>();
    for (const Widget *widget : widgets) {
        const QString fault = widget->isVisible() ? faultOf(widget) : QString();
        if (!fault.isEmpty())
            faults.append(widget->objectName() + QLatin1Char(' ') + widget->text() + ": " + fault);
    }
}

/** Adds controls that are higher than the row on show, and rows that are higher than their page. */
void collectProtruding(const QWidget *row, QStringList &faults)
{
    if (!row)
        return;
    const QRect place(0, 0, row->width(), row->height());
    if (row->height() > row->parentWidget()->height())
        faults.append(row->objectName() + " is higher than its place");
    const QList<QWidget *> controls = row->findChildren<QWidget *>();
    for (const QWidget *control : controls) {
        const QRect shown(control->mapTo(row, QPoint()), control->size());
        if (control->isVisibleTo(row) && !place.contains(shown))
            faults.append(control->objectName() + " is not inside its row");
    }
}

QStringList iconsIn(const QDomElement &description)
{
    QStringList names;
    const QList<QDomElement> elements = elementsBelow(description);
    for (const QDomElement &element : elements) {
        if (element.hasAttribute(QStringLiteral("icon")))
            names.append(element.attribute(QStringLiteral("icon")));
    }
    names.removeDuplicates();
    names.removeAll(QString());
    return names;
}

/** The toolbar with each of its tabs on show, once as it starts and once with all enabled. */
QList<QImage> picturesOfTabs()
{
    const auto host = TestHost::withFile(QStringLiteral(SHOWCASE));
    host->window().resize(host->scaled(1000), host->scaled(300));
    auto *own = new QPushButton(QStringLiteral("own"));
    host->window().setCentralWidget(own);
    host->show();
    own->setFocus();
    QList<QImage> pictures;
    const auto takePicture = [&](const QString &) {
        movePointerAway();
        QTest::qWait(50);
        pictures.append(host->toolBar()->grab().toImage());
    };
    host->openEachTab(takePicture);
    host->enableEverything();
    host->openEachTab(takePicture);
    return pictures;
}

} // namespace

/** Sizes, icons and pictures of toolbars at the density of the current screen. */
class LooksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFitEveryTextAndIconIntoItsControl_data() { TestDocuments::addAll(); }

    void shouldFitEveryTextAndIconIntoItsControl()
    {
        QFETCH(QString, path);
        const SkinChoice choice;
        const auto host = TestHost::withFile(path);
        host->window().resize(host->scaled(1280), host->scaled(300));
        host->show();
        QStringList faults;
        host->openEachTab([&](const QString &tab) {
            QTest::qWait(20);
            collectFaults<QToolButton>(host->toolBar(), faults);
            collectFaults<QPushButton>(host->toolBar(), faults);
            collectFaults<QLabel>(host->toolBar(), faults);
            collectProtruding(host->find<MRMainToolBar>(tab), faults);
        });
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
    }

    void shouldKeepItsLooksInAnyApplication_data() { addSkins(); }

    void shouldKeepItsLooksInAnyApplication()
    {
        const SkinChoice choice;
        const QList<QImage> plain = picturesOfTabs();
        const QPalette usual = qApp->palette();
        const QList<std::pair<QString, QPalette>> looks{
            {"QWidget{color:purple;font-size:18px;font-weight:bold;}"
             "QPushButton{background:#a00;padding:8px 20px;min-width:90px;min-height:40px;"
             "border:3px solid green;border-radius:9px;margin:3px;}"
             "QToolButton{background:orange;padding:9px;margin:2px;border:2px solid blue;}"
             "QLabel{background:cyan;padding:4px;border:1px solid black;}"
             "QToolBar{background:red;spacing:20px;padding:9px;border:4px solid blue;}"
             "QFrame{border:2px solid red;}QStackedWidget{background:green;}",
             usual},
            {"QWidget{background:#222;color:#eee;}", usual},
            {"", QPalette(0x303030)}};
        for (const auto &[sheet, palette] : looks) {
            qApp->setPalette(palette);
            qApp->setStyleSheet(sheet);
            const QList<QImage> dressed = picturesOfTabs();
            qApp->setStyleSheet(QString());
            qApp->setPalette(usual);
            QCOMPARE(dressed.size(), plain.size());
            for (int i = 0; i < plain.size(); ++i)
                QVERIFY2(dressed.at(i) == plain.at(i), qPrintable(sheet + QString::number(i)));
        }
    }

    void shouldDrawADistinctPictureForEveryIcon_data() { TestDocuments::addAll(); }

    void shouldDrawADistinctPictureForEveryIcon()
    {
        QFETCH(QString, path);
        const SkinChoice choice;
        const QStringList names = iconsIn(TestDocuments::read(path).documentElement());
        const auto host = TestHost::withFile(path);
        QList<QImage> seen;
        for (const QString &name : names) {
            const QString icon = host->toolBar()->GetIconPath(name);
            if (icon.isEmpty() && !name.contains(QLatin1Char('/')))
                continue; // A name without folder has no icon, which is deliberate.
            QVERIFY2(!icon.isEmpty(), qPrintable(name + " does not resolve"));
            const QImage image = QIcon(icon).pixmap(24).toImage();
            QVERIFY2(strongestMark(image) > 0, qPrintable(name + " is blank"));
            QVERIFY2(!seen.contains(image), qPrintable(name + " looks like another one"));
            seen.append(image);
        }
    }

    void shouldRoundTheShownTabInTheCompactSkin()
    {
        // Qt draws a square corner if its radius exceeds half of the height.
        const SkinChoice choice(lum);
        const auto host = TestHost::withShipped("lum/mr_toolbar.release.xml");
        host->show();
        const QPushButton *tab = host->shownTabs().first();
        auto *line = host->find<QWidget>("top_widget");
        const QRect place(tab->mapTo(line, QPoint()), tab->size());
        const QImage image = line->grab(place).toImage();
        QVERIFY(image.pixel(0, 0) != image.pixel(0, image.height() / 2));
    }
};

QTEST_MAIN(LooksTest)
#include "tst_looks.moc"
