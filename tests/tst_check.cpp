// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/CheckDocuments.h"
#include "tests/support/CheckTool.h"
#include "tests/support/TestDocuments.h"
#include "tests/support/TestHost.h"
#include "tools/check/DescriptionCheck.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace CheckDocuments;
using namespace CheckTool;

namespace {

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
class CheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFindFault()
    {
        for (const Fault &fault : faults)
            QCOMPARE(reported(fault), expected(fault));
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

    void shouldExitWithACodeForItsFindings()
    {
        const QByteArray clean = document({});
        const QByteArray withNote = row("<button action='a' output='b'/>");
        const QByteArray withWarning = row("<button action='a' Text='b'/>");
        // The beginning of the output; an empty one stands for no output at all.
        const QList<std::tuple<QString, QByteArray, int, QByteArray>> calls{
            {"-", withNote, 0, ""},
            {"--notes -", withNote, 1, "-:3:20: note: "},
            {"-", withWarning, 1, "-:3:20: warning: "},
            {"--werror -", withWarning, 1, "-:3:20: error: "},
            {"--json -", clean, 0, "["},
            {"", {}, 2, ""},
            {"absent.xml -", clean, 2, ""},
            {"--oops -", {}, 2, ""},
            {"--resources absent.rcc -", {}, 2, ""},
            {"--resources " CHECK_TOOL " -", {}, 2, ""},
            {"--skin", {}, 2, ""},
            {"--names -", clean, 2, ""},
            {"--names -o names.h --texts -", clean, 2, ""},
            {"-o names.h -", clean, 2, ""},
            {"--errors-fail -", withWarning, 0, "-:3:20: warning: "},
            {"--errors-fail --werror -", withWarning, 1, "-:3:20: error: "},
            {"--skin blue -", {}, 2, ""},
            {"--help", {}, 0, "Usage: "},
            {"--version", {}, 0, "mrtoolbar-check "}};
        for (const auto &[options, description, exitCode, output] : calls) {
            const ToolResult result = runTool(options.split(' ', Qt::SkipEmptyParts), description);
            QVERIFY2(result.exitCode == exitCode, qPrintable(options));
            QVERIFY2(output.isEmpty() ? result.output.isEmpty() : result.output.startsWith(output),
                     result.output.constData());
            // One line, and only if the call itself is wrong.
            QCOMPARE(int(result.error.count('\n')), exitCode == 2 ? 1 : 0);
        }
    }

    void shouldLoadTheIconsOfTheHost_data()
    {
        QTest::addColumn<QString>("resources");
        for (const QString name : {"icons", "icons.qrc", "icons.rcc"})
            QTest::newRow(qPrintable(name)) << name;
    }

    void shouldLoadTheIconsOfTheHost()
    {
        QFETCH(const QString, resources);
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath("icons/lum"));
        writeFile(folder.filePath("icons/a&b.svg"), "<svg/>");
        writeFile(folder.filePath("icons/lum/b.svg"), "<svg/>");
        writeFile(folder.filePath("icons.qrc"),
                  "<RCC><qresource prefix='/mr_toolbar/Resources/lum/icons'><file alias='b.svg'>"
                  "icons/lum/b.svg</file><file alias='a&amp;b.svg'>icons/a&amp;b.svg</file>"
                  "</qresource></RCC>");
        QCOMPARE(QProcess::execute(RCC, {"--binary", folder.filePath("icons.qrc"), "-o",
                                         folder.filePath("icons.rcc")}),
                 0);
        const QByteArray described =
            row("<button action='a' icon='a&amp;b.svg'/><button action='b' icon='b.svg'/>");
        const QString path = QDir::current().relativeFilePath(folder.filePath(resources));
        for (const auto &[skin, exitCode] : {std::pair{"lum", 0}, {"marodi", 1}}) {
            const ToolResult result =
                runTool({"--resources", path, "--skin", skin, "-"}, described);
            QVERIFY2(result.exitCode == exitCode, result.error + result.output);
            // What is not for one skin alone is for both.
            if (resources == "icons")
                QCOMPARE(int(result.output.count("icon-missing")), exitCode);
        }
    }

    void shouldWriteNamesAsConstants()
    {
        const QByteArray description =
            row("<button action='menu_a'/><button action='b-c'/><button action='b_c'/>"
                "<button action='delete'/><button action='1__x'/><button action='\xC3\xA9&quot;'/>")
                .replace(
                    "<toolbar_tabbar>",
                    "<toolbar_quickaccessbar><button action='qbar_f'/></toolbar_quickaccessbar>"
                    "<toolbar_tabbar>");
        const QTemporaryDir folder;
        const QString header = folder.filePath("names.h");
        const QStringList call{"--names", "-", "-o", header};
        QCOMPARE(runTool(call, description).exitCode, 0);
        const QByteArray written = contentOf(header);
        for (const char *constant :
             {R"(menu_a[] = "menu_a")", R"( a[] = "a")", R"(b_c[] = "b_c")", R"(b_c_2[] = "b-c")",
              R"(delete_[] = "delete")", R"(n1_x[] = "1__x")", R"(n_u00e9_[] = "\303\251\042")",
              R"(qbar_f[] = "qbar_f")", R"( f[] = "f")"})
            QVERIFY2(written.contains(constant + QByteArray(";\n")), written);
        // What includes the header is not compiled again without a reason.
        const QDateTime time = QFileInfo(header).lastModified();
        QTest::qWait(20);
        QCOMPARE(runTool(call, description).exitCode, 0);
        QCOMPARE(QFileInfo(header).lastModified(), time);
        QCOMPARE(runTool(call, "<uiconfig").exitCode, 2);
        QCOMPARE(contentOf(header), written);
    }

    void shouldWriteFindingsAsJson()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath("\"quoted\".xml"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(row("<button/>"));
        file.close();
        const ToolResult result = runTool({"--json", file.fileName()});
        QCOMPARE(result.exitCode, 1);
        const QJsonArray findings = QJsonDocument::fromJson(result.output).array();
        QCOMPARE(findings.size(), 1);
        QJsonObject finding = findings.first().toObject();
        QVERIFY(finding.take("message").toString().contains("'button'"));
        QCOMPARE(finding, QJsonObject({{"file", file.fileName()},
                                       {"line", 3},
                                       {"column", 1},
                                       {"severity", "error"},
                                       {"id", "no-attributes"}}));
    }

    void shouldWriteTheTextsThatAreShown()
    {
        const QTemporaryDir folder;
        const QString catalogue = folder.filePath("a.ts");
        const QByteArray controls = "<button action='a' text='One &amp; two' tooltip='Tip;More' "
                                    "disabletip='Off' group='g'/><lineedit name='b' text='One "
                                    "&amp; two' icon='i.svg'/><oops text='c'/>";
        QCOMPARE(runTool({"--texts", "-", "-o", catalogue}, row(controls)).exitCode, 0);
        const QByteArray written = contentOf(catalogue);
        for (const char *text : {"One &amp; two", "Tip;More", "Off"})
            QCOMPARE(written.count("<source>" + QByteArray(text) + "</source>"), 1);
        QCOMPARE(written.count("<translation type=\"unfinished\"></translation>"), 3);
    }

    void shouldKeepWhatIsTranslated()
    {
        const QTemporaryDir folder;
        const QString catalogue = folder.filePath("a.ts");
        const QStringList call{"--texts", "-", "-o", catalogue};
        const auto buttons = [](const QByteArray &one, const QByteArray &other) {
            return row("<button action='a' text='" + one + "'/><button action='b' text='" + other
                       + "'/>");
        };
        QCOMPARE(runTool(call, buttons("kept", "gone")).exitCode, 0);
        QByteArray content = contentOf(catalogue);
        content.replace(" type=\"unfinished\"></", ">done</");
        content.replace("</TS>", "<context>\n    <name>Host</name>\n</context>\n</TS>");
        writeFile(catalogue, content);
        QCOMPARE(runTool(call, buttons("kept", "kept")).exitCode, 0);
        const QByteArray without = contentOf(catalogue);
        QVERIFY(without.contains("<source>kept</source>\n        <translation>done<"));
        QVERIFY(without.contains("gone</source>\n        <translation type=\"vanished\">done<"));
        QVERIFY(without.contains("<name>Host</name>"));
        QCOMPARE(runTool(call, buttons("kept", "gone")).exitCode, 0);
        QCOMPARE(contentOf(catalogue), content);
    }

    void shouldLeaveTheCatalogueAloneOnBadInput()
    {
        const QByteArray inputs[][2]{{"<uiconfig>", "<TS></TS>"},
                                     {"<a/>", "<TS></TS>"},
                                     {document({}), "<TS><context>"},
                                     {document({}), "<html/>"}};
        const QTemporaryDir folder;
        const QString path = folder.filePath("a.ts");
        for (const auto &[description, catalogue] : inputs) {
            writeFile(path, catalogue);
            const ToolResult result = runTool({"--texts", "-", "-o", path}, description);
            QCOMPARE(result.exitCode, 2);
            QCOMPARE(int(result.error.count('\n')), 1);
            QCOMPARE(contentOf(path), catalogue);
        }
    }
};

QTEST_MAIN(CheckTest)
#include "tst_check.moc"
