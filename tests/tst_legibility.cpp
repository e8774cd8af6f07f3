// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Pointer.h"
#include "tests/support/TestHost.h"
#include "toolbar/handwrite/MRHandWriteDialog.h"
#include "toolbar/skin/Contrast.h"
#include "toolbar/widgets/CCR_ToolTipWidget.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>

namespace {

const QString disabled = QStringLiteral("disabled");

/** The highest contrast of any colour of the picture with the most frequent one. */
double contrastIn(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    const QRgb ground = std::max_element(counts.cbegin(), counts.cend()).key();
    double highest = 1;
    for (auto entry = counts.cbegin(); entry != counts.cend(); ++entry)
        highest = std::max(highest, Contrast::ratio(QColor(entry.key()), QColor(ground)));
    return highest;
}

/** Measures how well texts and icons can be seen in pictures of controls. */
struct Legibility
{
    void addText(const QString &state, const QString &what, const QImage &picture)
    {
        add(state + " text", what, picture, state == disabled ? 3.0 : leastText);
    }
    void addIcon(const QString &state, const QString &what, const QImage &picture)
    {
        add(state + " icon", what, picture, state == disabled ? 2.0 : leastIcon);
    }

    /** What there must be, from 1 to 21; of what is disabled less is asked. */
    const double leastText;
    const double leastIcon;
    QStringList faults; ///< What can be seen too badly.
    int count = 0;

    void add(const QString &state, const QString &what, const QImage &picture, double least)
    {
        ++count;
        const double contrast = contrastIn(picture);
        if (contrast >= least)
            return;
        faults.append(QStringLiteral("%1, %2: %3:1").arg(what, state).arg(contrast, 0, 'f', 2));
        picture.save(QStringLiteral("illegible_%1.png").arg(faults.size()));
    }
};

QString nameOf(const QWidget *control)
{
    const QString name = control->objectName();
    return QLatin1String(control->metaObject()->className()) + ' ' + name;
}

/** The control without its edges, and without the arrow of its menu. */
QImage inside(QWidget *control, bool hasArrow = false)
{
    const int edge = control->height() > 20 ? 4 : 2;
    const int arrow = hasArrow ? 14 : 0;
    return control->grab(control->rect().adjusted(edge, edge, -edge - arrow, -edge)).toImage();
}

/** Text and icon, each without the other. */
void look(Legibility &legibility, const QString &state, QAbstractButton *button)
{
    const auto *toolButton = qobject_cast<const QToolButton *>(button);
    const bool hasArrow = toolButton && toolButton->menu();
    const bool showsText = !toolButton || toolButton->toolButtonStyle() != Qt::ToolButtonIconOnly;
    const QIcon icon = button->icon();
    const QString text = button->text();
    if (showsText && !text.trimmed().isEmpty()) {
        button->setIcon(QIcon());
        legibility.addText(state, nameOf(button), inside(button, hasArrow));
        button->setIcon(icon);
    }
    if (!icon.isNull()) {
        button->setText(QString());
        legibility.addIcon(state, nameOf(button), inside(button, hasArrow));
        button->setText(text);
    }
}

void look(Legibility &legibility, const QString &state, QWidget *field)
{
    legibility.addText(state, nameOf(field), inside(field, true));
}

bool point(QWidget *control)
{
    QCursor::setPos(control->mapToGlobal(bodyOf(control)));
    return QTest::qWaitFor([&] { return control->underMouse(); }, 500);
}

void lookInEachState(Legibility &legibility, QAbstractButton *button)
{
    if (!button->isEnabled()) {
        look(legibility, disabled, button);
        return;
    }
    const bool wasChecked = button->isChecked();
    for (const bool isChecked : {false, true}) {
        if (isChecked != wasChecked && (!button->isCheckable() || button->group()))
            continue;
        button->setChecked(isChecked);
        const QString checked = isChecked ? QStringLiteral("checked") : QString();
        movePointerAway();
        QTRY_VERIFY(!button->underMouse());
        look(legibility, isChecked ? checked : QStringLiteral("normal"), button);
        if (point(button))
            look(legibility, checked + "hover", button);
        button->setDown(true);
        look(legibility, checked + "pressed", button);
        button->setDown(false);
    }
    button->setChecked(wasChecked);
    movePointerAway();
    button->setEnabled(false);
    look(legibility, disabled, button);
    button->setEnabled(true);
}

void lookAtField(Legibility &legibility, QLineEdit *field)
{
    const bool wasEnabled = field->isEnabled();
    field->setEnabled(true);
    movePointerAway();
    field->clear();
    if (!field->placeholderText().isEmpty())
        look(legibility, QStringLiteral("prompt"), field);
    field->setText(QStringLiteral("12"));
    look(legibility, QStringLiteral("normal"), field);
    point(field);
    look(legibility, QStringLiteral("hover"), field);
    field->setFocus();
    look(legibility, QStringLiteral("focus"), field);
    field->selectAll();
    look(legibility, QStringLiteral("selected"), field);
    field->setEnabled(false);
    look(legibility, disabled, field);
    field->setEnabled(wasEnabled);
}

void lookAtList(Legibility &legibility, QComboBox *box)
{
    look(legibility, QStringLiteral("normal"), static_cast<QWidget *>(box));
    box->showPopup();
    QAbstractItemView *list = box->view();
    for (int row = 0; row < box->count(); ++row) {
        const QRect place = list->visualRect(box->model()->index(row, box->modelColumn()));
        const bool isCurrent = row == list->currentIndex().row();
        legibility.addText(isCurrent ? QStringLiteral("selected") : QStringLiteral("normal"),
                           nameOf(box),
                           list->viewport()->grab(place.adjusted(1, 2, -1, -2)).toImage());
    }
    box->hidePopup();
}

/** What a menu shows as it pops up; the one entry that the keyboard is on is the selected one. */
void lookAtMenu(Legibility &legibility, QMenu *menu)
{
    menu->popup(QPoint(200, 300));
    const int textStart = 36 * menu->physicalDpiX() / 96;
    const QList<QAction *> entries = menu->actions();
    for (QAction *entry : entries) {
        if (!entry->isVisible() || entry->isSeparator() || entry->text().isEmpty())
            continue;
        const QRect place = menu->actionGeometry(entry).adjusted(4, 4, -24, -4);
        const auto lookAs = [&](const QString &state) {
            const QImage picture = menu->grab(place).toImage();
            legibility.addText(state, entry->text(),
                               picture.copy(textStart, 0, place.width(), place.height()));
            if (!entry->icon().isNull() && entry->isIconVisibleInMenu())
                legibility.addIcon(state, entry->text(),
                                   picture.copy(0, 0, textStart, place.height()));
        };
        lookAs(entry->isEnabled() ? QStringLiteral("normal") : disabled);
        menu->setActiveAction(entry->isEnabled() ? entry : nullptr);
        if (entry->isEnabled())
            lookAs(QStringLiteral("selected"));
        if (entry->menu())
            entry->menu()->hide();
    }
    menu->hide();
}

template <typename Widget>
QList<Widget *> shown(const QWidget *parent)
{
    QList<Widget *> widgets;
    for (Widget *widget : parent->findChildren<Widget *>()) {
        if (widget->isVisible() && !widget->visibleRegion().isEmpty())
            widgets.append(widget);
    }
    return widgets;
}

void lookAtRow(Legibility &legibility, const NewToolBar *toolBar)
{
    for (QToolButton *button : shown<QToolButton>(toolBar)) {
        if (!button->inherits("QToolBarExtension"))
            lookInEachState(legibility, button);
    }
    for (QComboBox *box : shown<QComboBox>(toolBar))
        lookAtList(legibility, box);
    for (QLineEdit *field : shown<QLineEdit>(toolBar)) {
        if (!qobject_cast<QComboBox *>(field->parentWidget()))
            lookAtField(legibility, field);
    }
    for (QLabel *label : shown<QLabel>(toolBar)) {
        if (!label->text().isEmpty())
            legibility.addText(QStringLiteral("normal"), nameOf(label), label->grab().toImage());
    }
}

void lookAtTip(Legibility &legibility, QWidget *control)
{
    QToolTip::showText(control->mapToGlobal(QPoint()), QStringLiteral("提示文字"), control);
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->inherits("QTipLabel") && window->isVisible())
            legibility.addText(QStringLiteral("tooltip"), nameOf(control), inside(window));
    }
    QToolTip::hideText();
}

void lookAtWindows(Legibility &legibility, QWidget *host)
{
    MRHandWriteDialog dialog(host);
    dialog.show();
    for (QLabel *label : shown<QLabel>(&dialog)) {
        if (!label->text().isEmpty())
            legibility.addText(QStringLiteral("dialog"), nameOf(label), label->grab().toImage());
    }
    for (QPushButton *button : shown<QPushButton>(&dialog)) {
        if (!button->text().isEmpty())
            look(legibility, QStringLiteral("dialog"), button);
    }
    CCR_ToolTipWidget bubble(host);
    bubble.resize(200, 60);
    bubble.setTriangleInfo(10, 10);
    bubble.setLabelText(QStringLiteral("气泡文字"));
    bubble.show();
    legibility.addText(QStringLiteral("bubble"), nameOf(&bubble),
                       bubble.grab(QRect(40, 12, 140, 40)).toImage());
}

} // namespace

/** Whether everything that a dark toolbar shows can be read and told, in whatever state it is. */
class LegibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeLegibleInEveryState_data()
    {
        QTest::addColumn<int>("skin");
        QTest::addColumn<QString>("scheme");
        QTest::addColumn<QString>("mainColour");
        for (const int skin : {marodi, lum}) {
            for (const char *scheme : {"dark", "contrast"}) {
                for (const char *colour : {"#008AD9", "#1B7A3D", "#C1272D", "#FFD400", "#101214"}) {
                    QTest::addRow("%s, %s, %s", skin == lum ? "lum" : "marodi", scheme, colour)
                        << skin << scheme << colour;
                }
            }
        }
    }

    void shouldBeLegibleInEveryState()
    {
        QFETCH(int, skin);
        QFETCH(QString, scheme);
        QFETCH(QString, mainColour);
        const SkinChoice choice(skin);
        const bool isContrast = scheme == QLatin1String("contrast");
        Legibility legibility{isContrast ? 7.0 : 4.5, isContrast ? 4.5 : 3.0, {}};
        const auto host =
            TestHost::withFile(SHOWCASE, {{"scheme", scheme}, {"[MainColor]", mainColour}});
        host->show();
        host->enableEverything();
        host->toolBar()->Inner_DoDelayLoadMenuSlot();
        for (QPushButton *button : shown<QPushButton>(host->toolBar()))
            lookInEachState(legibility, button);
        host->openEachTab([&](const QString &) {
            host->enableEverything();
            lookAtRow(legibility, host->toolBar());
        });
        for (QMenu *menu : host->toolBar()->findChildren<QMenu *>())
            lookAtMenu(legibility, menu);
        lookAtTip(legibility, host->find<QPushButton>("menu_file"));
        lookAtWindows(legibility, &host->window());
        QVERIFY2(legibility.faults.isEmpty(), qPrintable(legibility.faults.join('\n')));
        QVERIFY(legibility.count > 200);
    }
};

QTEST_MAIN(LegibilityTest)
#include "tst_legibility.moc"
