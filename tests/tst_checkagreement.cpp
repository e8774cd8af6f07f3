// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/CheckDocuments.h"
#include "tests/support/TestDocuments.h"
#include "tests/support/TestHost.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/DescriptionParser.h"
#include "tools/check/DescriptionCheck.h"
#include "tools/check/SkinIcons.h"
#include "tools/check/SourceDocument.h"

#include <QAction>
#include <QComboBox>
#include <QDomDocument>
#include <QStackedWidget>
#include <QTest>
#include <QToolBar>

#include <algorithm>

using namespace CheckDocuments;

namespace {

/** The values that the parser has read, without the names, which two attributes can set. */
QVariantList valuesOf(const Controller &record)
{
    return {record.type,  record.text,    record.icon,      record.group,   record.shortcut,
            record.index, record.visible, record.checkable, record.checked, record.scalable};
}

/** Walks the parser's records and the checker's elements side by side. */
void compareRecords(const QList<Controller *> &records, const QVector<int> &elements,
                    const SourceDocument &source)
{
    QCOMPARE(int(records.size()), int(elements.size()));
    for (int i = 0; i < records.size(); ++i) {
        const Controller &expected = *records.at(i);
        const SourceElement &element = source.at(elements.at(i));
        QCOMPARE(valuesOf(element.record), valuesOf(expected));
        if (!element.has("name") || !element.has("action"))
            QCOMPARE(element.record.name, expected.name);
        compareRecords(expected.children, element.children, source);
    }
}

} // namespace

/** Whether the description checker agrees with the parser and with what the toolbar builds. */
class CheckAgreementTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadAsTheParserDoes_data() { TestDocuments::addAll(); }

    void shouldReadAsTheParserDoes()
    {
        QFETCH(QString, path);
        const QDomDocument parsed = TestDocuments::read(path);
        const SourceDocument source = readDocument(TestDocuments::content(path));
        QVERIFY(!source.fault);
        const QVector<int> sections = source.elements.front().children;
        QCOMPARE(sections.size(), 5);
        QDomElement section = parsed.documentElement().firstChildElement();
        for (const int index : sections) {
            QList<Controller *> records;
            ParseXMLElement(&section, &records);
            QVERIFY(!records.isEmpty());
            compareRecords(records, source.at(index).children, source);
            DeleteUnitControl(&records);
            section = section.nextSiblingElement();
        }
    }

    void shouldRefuseTheXmlThatTheHostRefuses()
    {
        const QByteArray declared = "<?xml version='1.0' encoding='UTF-8'?>" + document({});
        for (const QByteArray &text : {declared, QByteArray(), menu("<menuitem text='Open(&O)'/>"),
                                       menu("<menuitem action=a/>"), document({}) + document({}),
                                       row("<menu name='a'><button></menu></button>")}) {
            QVERIFY2(readDocument(text).fault.has_value() == (text != declared), text.constData());
            QVERIFY2(QDomDocument().setContent(text) == (text == declared), text.constData());
        }
    }

    void shouldReportAsErrorsWhatTheToolbarLeavesOut()
    {
        const QByteArray button = "<button action='wanted' text='Wanted'/>";
        const QByteArray idle = "<extra usable='true'><label name='wanted'/></extra>";
        const QList<std::pair<QByteArray, bool>> descriptions{
            {row(button), true},
            {row("<menuitem action='wanted'/>"), false},
            {row("<button action='a'>" + button + "</button>"), false},
            {row(idle, "scalable='true'"), true},
            {row(idle), false},
            {document("<toolbar_appbutton><menu name='a'/><menu name='b'/><menu name='wanted'/>"
                      "</toolbar_appbutton>"),
             false},
            {document("<toolbar_additional>" + button + "</toolbar_additional>"), false},
            {document("<toolbar_addtional>" + button + "</toolbar_addtional>"), true},
            {document("<toolbar_tabbar><button name='wanted' checkable='true' checked='true'/>"
                      "</toolbar_tabbar>"),
             true},
            {document("<toolbar_searchbar><lineedit action='wanted'/></toolbar_searchbar>"), false},
            {row(button).replace(" prefix=\"\"", ""), false}};
        for (const auto &[description, isBuilt] : descriptions) {
            QDomDocument parsed;
            QVERIFY(parsed.setContent(description));
            QMainWindow window;
            QDomElement root = parsed.documentElement();
            const MRToolBar toolBar(&window, root, {}, ToolBarLeft);
            const bool wasBuilt = window.findChild<QObject *>("wanted");
            QVERIFY2(wasBuilt == isBuilt, description.constData());
            const QVector<Finding> findings = checkDescription(description);
            const bool hasErrors =
                std::any_of(findings.begin(), findings.end(),
                            [](const Finding &one) { return one.severity == Severity::Error; });
            QVERIFY2(hasErrors != isBuilt, description.constData());
        }
    }

    void shouldFindTheIconsThatTheToolbarFinds()
    {
        for (const int style : {marodi, lum}) {
            const SkinChoice skin(style);
            const TestHost host({});
            for (const QString name :
                 {"icon24/FitPage.svg", "FitPage.svg", "more-white.svg", "/icon24/FitPage.svg",
                  "icon24/fitpage.svg", "icon24/revision_moveout.png"})
                QCOMPARE(SkinIcons::exists(SkinIcons::skins().at(style), name),
                         !host.toolBar()->GetIconPath(name).isEmpty());
        }
    }

    void shouldWarnOfWhatTheToolbarDoes()
    {
        TestHost host(
            "<toolbar_tabbar><tabbutton name='t' checkable='true' checked='true'>"
            "<combobox action='box' index='2'><item action='one' text='1'/></combobox>"
            "<button action='solo' group='g' checkable='true' checked='true'/>"
            "<button action='plain' checked='true'/>"
            "<button action='same' text='First'/><button action='same' text='Second'/>"
            "</tabbutton><tabbutton name='u' checkable='true' checked='true'/></toolbar_tabbar>");

        // index-out-of-range
        QCOMPARE(host.find<QComboBox>("box")->currentIndex(), -1);
        // group-of-one, checked-not-checkable
        for (int trigger = 0; trigger < 2; ++trigger) {
            host.action("solo")->trigger();
            QVERIFY(host.action("solo")->isChecked());
        }
        QVERIFY(!host.action("plain")->isCheckable());
        // shared-action-differs
        QCOMPARE(host.action("same")->text(), QString("First"));
        QCOMPARE(host.window().findChildren<QAction *>("same").size(), 1);
        // checked-tabs
        QCOMPARE(host.find<QStackedWidget>("tabwidget")->currentIndex(), 1);

        // no-checked-tab
        const TestHost unchecked("<toolbar_tabbar><tabbutton name='t' checkable='true'>"
                                 "<button action='a'/></tabbutton></toolbar_tabbar>");
        QVERIFY(unchecked.find<QToolBar>("t")->actions().isEmpty());
    }

    void shouldWarnOfNamesThatTheToolbarTakesAnotherWay()
    {
        TestHost host(
            "<toolbar_quickaccessbar><button action='f_save'/><button action='qbar_f_open'/>"
            "</toolbar_quickaccessbar><toolbar_tabbar>"
            "<tabbutton name='t' checkable='true' checked='true'>"
            "<button action='d_background'/><button action='toolbar_hide'/>"
            "<combobox action='v_size'><item action='vzmode_10p' text='10%'/>"
            "<item action='vzmode_20p' text='20%'/></combobox></tabbutton></toolbar_tabbar>"
            "<toolbar_addtional><button action='t_fold'/><button action='h_unfolded'/>"
            "</toolbar_addtional>");
        const QSignalSpy commands(&host.facade(), &MRToolBar::DoActive);
        const QSignalSpy backgrounds(&host.facade(), &MRToolBar::DoSetBackground);
        const QSignalSpy zooms(&host.facade(), &MRToolBar::DoSetZoomMode);
        // folds-rows
        host.find<QPushButton>("h_unfolded")->click();
        QVERIFY(host.find<QStackedWidget>("tabwidget")->isHidden());
        // no-such-background
        host.action("d_background")->trigger();
        QCOMPARE(int(backgrounds.size()), 1);
        // zoom-box-name
        host.find<QComboBox>("v_size")->setCurrentIndex(1);
        QCOMPARE(int(zooms.size()), 0);
        // area-name
        host.setUsable("toolbar_hide", false);
        QVERIFY(host.action("toolbar_hide")->isEnabled());
        // quick-access-prefix
        QCOMPARE(host.facade().GetQuickAccessButtonList(), QString("open;"));
        QCOMPARE(int(commands.size()), 0);
    }
};

QTEST_MAIN(CheckAgreementTest)
#include "tst_checkagreement.moc"
