// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/CheckDocuments.h"
#include "tests/support/TestDocuments.h"
#include "tests/support/TestHost.h"
#include "tools/check/DescriptionCheck.h"
#include "tools/check/Report.h"

#include <QRegularExpression>

using namespace CheckDocuments;

namespace {

QByteArray whole(const QByteArray &text)
{
    return text;
}

QByteArray tools(const QByteArray &controls)
{
    return row(controls);
}

QByteArray extra(const QByteArray &controls)
{
    return row("<extra usable='true'>" + controls + "</extra>", "scalable='true'");
}

QByteArray additional(const QByteArray &buttons)
{
    return document("<toolbar_addtional>\n" + buttons + "</toolbar_addtional>");
}

QByteArray quick(const QByteArray &buttons)
{
    return document("<toolbar_quickaccessbar>\n" + buttons + "</toolbar_quickaccessbar>");
}

QByteArray search(const QByteArray &buttons)
{
    return document("<toolbar_searchbar>\n" + buttons + "</toolbar_searchbar>");
}

/** A fragment with a fault, and the expected severity, rule and line; none for no fault. */
struct Fault
{
    QByteArray (*place)(const QByteArray &);
    const char *finding;
    const char *text;
};

QStringList summary(const QVector<Finding> &findings)
{
    QStringList lines;
    for (const Finding &finding : findings)
        lines.append(QStringLiteral("%1 %2 %3")
                         .arg(Report::severityName(finding.severity), finding.id,
                              QString::number(finding.line)));
    return lines;
}

// The sections begin in line 2, controls and entries in line 3.
constexpr Fault faults[]{
    {whole, "error xml-syntax 2", "<uiconfig prefix=''><toolbar_tabbar>\n</uiconfig>"},
    {whole, "error encoding 1", "<uiconfig prefix='\xC0\xC1'/>"},
    {whole, "error wrong-root 1", "<toolbar prefix=''/>"},
    {whole, "error no-prefix 1", "<uiconfig/>"},
    {document, "error unknown-section 2", "<toolbar_additional/>"},
    {document, "error third-app-menu 3",
     "<toolbar_appbutton><menu name='a'/><menu name='b'/>\n"
     "<menu name='c'><menuitem oops=''/></menu></toolbar_appbutton>"},
    {document, "warning duplicate-name 3",
     "<toolbar_tabbar><tabbutton name='a' checkable='true' "
     "checked='true'/>\n<tabbutton name='a'/></toolbar_tabbar>"},
    {document, "warning no-checked-tab 2",
     "<toolbar_tabbar><tabbutton name='a'/></toolbar_tabbar>"},
    {document, "warning checked-tabs 3",
     "<toolbar_tabbar><tabbutton name='a' checkable='true' checked='true'/>\n"
     "<tabbutton name='b' checkable='true' checked='true'/></toolbar_tabbar>"},
    {document, "warning context-checked 3",
     "<toolbar_tabbar><tabbutton name='a' checkable='true' checked='true'/>\n"
     "<tabbutton name='b' checkable='true' context='c' checked='true'/></toolbar_tabbar>"},
    {tools, "",
     "<button action='a'/></tabbutton><tabbutton name='b' checkable='true' context='c' "
     "contextcolour='#00aaFF'>"},
    {tools, "warning contextcolour-text 4",
     "<button action='a'/></tabbutton>\n<tabbutton name='b' context='c' contextcolour='red'>"},
    {tools, "warning contextcolour-without-context 4",
     "<button action='a'/></tabbutton>\n<tabbutton name='b' contextcolour='#00aaff'>"},
    {document, "warning peek-without-fold 2",
     "<toolbar_addtional><button action='a' peek='true'/></toolbar_addtional>"},
    {document, "error search-button-name 2",
     "<toolbar_searchbar><button action='find'/></toolbar_searchbar>"},
    {document, "error search-without-buttons 2",
     "<toolbar_searchbar><lineedit action='st_input'/></toolbar_searchbar>"},
    {document, "warning several-search-fields 3",
     "<toolbar_searchbar><button action='next'/><lineedit action='a'/>\n"
     "<lineedit action='b'/></toolbar_searchbar>"},
    {document, "note same-name 3",
     "<toolbar_quickaccessbar><button action='qbar_a'/></toolbar_quickaccessbar>\n"
     "<toolbar_addtional><button action='qbar_a'/></toolbar_addtional>"},
    {tools, "warning stray-text 3", "text"},
    {tools, "error unknown-element 3", "<separator/>"},
    {tools, "error misplaced-element 3", "<button action='a'><button action='b'/></button>"},
    {tools, "error no-attributes 3", "<button/>"},
    {tools, "error idle-extra 3", "<extra usable='true'/>"},
    {tools, "warning unknown-attribute 3", "<button action='a' Text='A'/>"},
    {tools, "note unused-attribute 3", "<label name='a' min_width='5'/>"},
    {tools, "warning boolean-text 3", "<button action='a' visible='no'/>"},
    {tools, "warning name-and-action 3", "<button action='a' name='b'/>"},
    {tools, "warning no-name 3", "<button text='A'/>"},
    {tools, "warning checked-not-checkable 3", "<button action='a' checked='true'/>"},
    {tools, "warning group-not-checkable 3", "<button action='a' group='g'/>"},
    {tools, "warning group-of-one 3", "<button action='a' group='g' checkable='true'/>"},
    {tools, "warning group-checked-twice 4",
     "<button action='a' group='g' checkable='true' checked='true'/>\n"
     "<button action='b' group='g' checkable='true' checked='true'/>"},
    {tools, "warning index-not-number 3",
     "<menu name='m' index='one'><menuitem action='a'/></menu>"},
    {tools, "warning index-out-of-range 3",
     "<menu name='m' index='2'><menuitem action='a'/></menu>"},
    {tools, "warning shrink-out-of-range 3", "<button action='a' shrink='10'/>"},
    {tools, "warning index-of-separator 3", "<menu name='m' index='1'><sperator/></menu>"},
    {tools, "note shared-action 4", "<button action='a' text='A'/>\n<button action='a' text='A'/>"},
    {tools, "warning shared-action-differs 4",
     "<button action='a' text='A'/>\n<button action='a' text='B'/>"},
    {tools, "warning duplicate-name 4", "<lineedit action='a'/>\n<button action='a'/>"},
    {tools, "warning duplicate-entry 4",
     "<combobox action='b'><item action='a'/>\n<item action='a'/></combobox>"},
    {tools, "warning icon-missing 3", "<button action='a' icon='icon24/no.svg'/>"},
    {tools, "note icon-leading-slash 3", "<button action='a' icon='/icon24/FitPage.svg'/>"},
    {tools, "note icon-in-one-skin 3", "<button action='a' icon='more-white.svg'/>"},
    {tools, "warning several-page-fields 4",
     "<lineedit action='d_gotopage'/>\n<lineedit action='gotopage2'/>"},
    {tools, "warning several-zoom-boxes 4",
     "<combobox action='zoom'><item action='a'/></combobox>\n"
     "<combobox action='zoom2'><item action='a'/></combobox>"},
    {extra, "error extra-field-buttons 3",
     "<lineedit name='f'><button name='a'/><button name='b'/>"
     "<button name='c'/></lineedit>"},
    {menu, "warning unknown-element 3", "<separator/>"},
    {menu, "warning misplaced-element 3", "<button action='a'/>"},
    {menu, "warning no-attributes 3", "<menuitem/>"},
    {menu, "warning empty-menu 3", "<menu name='a'/>"},
    {menu, "warning entry-with-children 3",
     "<menuitem action='a'><menuitem action='b'/></menuitem>"},
    {menu, "warning shortcut-unreadable 3", "<menuitem action='a' shortcut='Ctrl+Foo'/>"},
    {tools, "warning shortcut-collision 4",
     "<menu name='m'><menuitem action='a' shortcut='Ctrl+O'/>\n"
     "<menuitem action='b' shortcut='ctrl+o'/></menu>"},
    {menu, "warning shortcut-only-shown 3", "<menuitem action='a' shortcut='Ctrl+O'/>"},
    {tools, "warning shortcut-unused 3",
     "<menu name='m' shortcut='F2'><menuitem action='a'/></menu>"},
    {tools, "warning scope-without-shortcut 3", "<button action='a' shortcutscope='window'/>"},
    {menu, "warning shortcut-taken 4",
     "<menuitem action='a' shortcut='Ctrl+O' shortcutscope='window'/>\n"
     "<menuitem action='b' shortcut='Ctrl+O' shortcutscope='window'/>"},
    {menu, "warning shortcut-scope 3", "<menuitem action='a' shortcutscope='application'/>"},
    {tools, "warning shortcut-without-scope 3", "<button action='a' shortcut='Ctrl+O'/>"},
    {tools, "", "<button action='a' shortcut='Ctrl+O' shortcutscope='window'/>"},
    {tools, "warning keytip-letters 3", "<button action='a' keytip='+'/>"},
    {tools, "warning keytip-collision 4",
     "<button action='a' keytip='F'/>\n<lineedit action='b' keytip='fa'/>"},
    {tools, "", "<button action='a' keytip='FB'/><lineedit action='b' keytip='fa'/>"},
    {menu, "warning recent-files-placeholder 3",
     "<menu name='f_openrecent'><menuitem action='f_clearhistory'/></menu>"},
    {menu, "note recent-files-clear-history 3",
     "<menu name='f_openrecent'><menuitem action='no_file'/></menu>"},
    // Names, and tooltips, that do something else than their author expects.
    {additional, "warning folds-rows 3", "<button action='h_Unfolded'/>"},
    {additional, "warning folds-rows 3", "<button action='f_extended'/>"},
    {additional, "warning misspelt-name 3", "<button action='t_flod'/>"},
    {additional, "",
     "<button action='t_fold'/><button action='t_findcommand'/><button action='h_background'/>"},
    {tools, "warning no-such-background 3", "<button action='d_background'/>"},
    {menu, "warning no-such-background 3", "<menuitem action='menu_background_daytime'/>"},
    {search, "", "<button action='st_set'><menuitem action='in_background'/></button>"},
    {tools, "warning zoom-box-name 3",
     "<combobox action='v_size'><item action='vzmode_fitpage'/></combobox>"},
    {tools, "warning zoom-mode-without-p 3",
     "<combobox action='v_zoom'><item action='vzmode_10p'/><item "
     "action='vzmode_12.5'/></combobox>"},
    {tools, "warning area-name 3", "<button action='toolbar_hide'/>"},
    {tools, "warning blank-around-name 3", "<button action='a '/>"},
    {quick, "warning quick-access-prefix 3",
     "<button action='qbar_f_open'/><button action='f_save'/>"},
    {quick, "note quick-access-prefix 3", "<button action='f_save'/>"},
    {quick, "warning misspelt-name 3", "<button action='qt_seet'/>"},
    {quick, "", "<button action='qt_set'/><button action='qbar_a'/>"},
    {tools, "warning misspelt-name 3", "<combobox action='v_zom'><item action='a'/></combobox>"},
    {tools, "warning misspelt-name 3", "<lineedit action='d_gottopag'/>"},
    {tools, "", "<button action='vmode_flow'/><button action='vmode_slow'/>"},
    {menu, "warning misspelt-name 3",
     "<menu name='f_openrecnet'><menuitem action='no_file'/></menu>"},
    {tools, "warning tooltip-cuts-word 3", "<button action='a' tooltip='Open;Opens a document'/>"},
    {tools, "warning tooltip-cuts-word 3", "<button action='a' disabletip='No;Nothing here'/>"},
    {tools, "warning tooltip-third-part 3", "<button action='a' tooltip='a;b;c'/>"},
    {tools, "", "<button action='a' tooltip='Documents are opened'/>"},
    {tools, "", "<button action='a' tooltip='打开;在一个新的窗口里打开文档'/>"},
    {additional, "", "<button action='t_fold' tooltip='Hide the tools;Show the tools'/>"},
    // Without a fault.
    {whole, "", "\xEF\xBB\xBF<uiconfig prefix=''/>"},
    {whole, "",
     "<uiconfig prefix='' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
     "xsi:noNamespaceSchemaLocation='uiconfig.xsd'/>"},
    {whole, "",
     "<!DOCTYPE uiconfig [<!ENTITY e \"<button action='a' text='A'/>\">]><uiconfig prefix=''>"
     "<toolbar_addtional><button action='b' text='&lt;&#65;'/>&e;</toolbar_addtional></uiconfig>"},
    {tools, "",
     "<!-- <separator/> --><sperator/><button action='a' visible='true' checkable='false'/>"
     "<combobox action='box'><item action='a'/></combobox>"},
    {tools, "",
     "<button action='a' group='across menus' checkable='true'/><menu name='m' index='1'>"
     "<menuitem action='b' group='across menus' checkable='true' checked='true'/></menu>"},
    {extra, "", "<lineedit name='gis'><button name='gis_next'/></lineedit>"},
    {menu, "",
     "<menuitem action='a' shortcut='Ctrl+O' shortcutscope='window'/>"
     "<menuitem action='b' shortcut='F11' shortcutscope='window'/>"
     "<menu name='f_openrecent'><menuitem action='no_file'/>"
     "<menuitem action='f_clearhistory'/></menu>"},
};

} // namespace

/** The findings of the description checker. */
class CheckFindingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFindFault()
    {
        for (const auto &[place, finding, text] : faults) {
            const QString found = summary(checkDescription(place(text))).join('\n');
            QVERIFY2(found == finding, qPrintable(text + (": " + found)));
        }
    }

    void shouldFindNoFaultInShippedDescriptions_data() { TestDocuments::addShipped(); }

    void shouldFindNoFaultInShippedDescriptions()
    {
        QFETCH(int, skin);
        QFETCH(QString, path);
        const QString skinName = skin == lum ? "lum" : "marodi";
        QStringList found = summary(checkDescription(TestDocuments::content(path), {skinName}));
        QVERIFY2(!found.isEmpty(), "The shipped documents have known findings");
        QCOMPARE(found.filter(QRegularExpression("^(error|warning)")), QStringList());
    }

    void shouldPointAtTheAttribute()
    {
        const QVector<Finding> findings = checkDescription(
            row("<button action='a' text='1 &gt; 0 / 2'\r\n        icon='icon24/FitPage.svg'\r\n"
                "\ttolltip='x'/>"));
        QCOMPARE(findings.size(), 1);
        QCOMPARE(findings.first().line, 5);
        QCOMPARE(findings.first().column, 2);
        QVERIFY2(findings.first().message.contains("did you mean 'tooltip'?"),
                 qPrintable(findings.first().message));
    }

    void shouldLookIconsUpInTheChosenSkin()
    {
        const QByteArray description = row("<button action='a' icon='more-white.svg'/>");
        QCOMPARE(summary(checkDescription(description, {"marodi"})), QStringList());
        QCOMPARE(summary(checkDescription(description, {"lum"})),
                 QStringList("warning icon-missing 3"));
        // The shared action gets its icon from the row, which is built first.
        const QByteArray shipped =
            TestDocuments::content(TestDocuments::shippedPath("marodi/mr_toolbar.debug.xml"));
        QCOMPARE(summary(checkDescription(shipped)).filter("icon-missing"),
                 QStringList("note icon-missing-shared 63"));
    }

    void shouldSurviveDeepNesting()
    {
        constexpr int depth = 10000;
        QByteArray entries;
        for (int i = 0; i < depth; ++i)
            entries += "<menu name='m" + QByteArray::number(i) + "'>";
        entries += "<menuitem action='a' oops=''/>" + QByteArray("</menu>").repeated(depth);
        QCOMPARE(summary(checkDescription(menu(entries))),
                 QStringList("warning unknown-attribute 3"));
    }
};

QTEST_MAIN(CheckFindingsTest)
#include "tst_checkfindings.moc"
