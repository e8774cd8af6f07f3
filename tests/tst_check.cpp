#include "tests/support/CheckDocuments.h"
#include "tests/support/TestDocuments.h"
#include "tests/support/TestHost.h"
#include "tools/check/DescriptionCheck.h"
#include "tools/check/Report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace CheckDocuments;

namespace {

QStringList summary(const QVector<Finding> &findings)
{
    QStringList lines;
    for (const Finding &finding : findings)
        lines.append(QStringLiteral("%1 %2 %3")
                         .arg(Report::severityName(finding.severity), finding.id,
                              QString::number(finding.line)));
    return lines;
}

QString skinName(int skin)
{
    return skin == lum ? QStringLiteral("lum") : QStringLiteral("marodi");
}

QVector<Finding> withoutNotes(QVector<Finding> findings)
{
    findings.erase(
        std::remove_if(findings.begin(), findings.end(),
                       [](const Finding &one) { return one.severity == Severity::Note; }),
        findings.end());
    return findings;
}

struct ToolResult
{
    int exitCode = -1;
    QByteArray output;
    QByteArray error;
};

ToolResult runTool(const QStringList &arguments, const QByteArray &input = {})
{
    QProcess tool;
    tool.start(QStringLiteral(CHECK_TOOL), arguments);
    tool.write(input);
    tool.closeWriteChannel();
    if (!tool.waitForFinished() || tool.exitStatus() != QProcess::NormalExit)
        return {};
    return {tool.exitCode(), tool.readAllStandardOutput(), tool.readAllStandardError()};
}

/** A fault and what is to be found: severity, rule and line. */
struct Fault
{
    const char *finding;
    const char *text;
};

/** Whole documents. */
constexpr Fault documentFaults[]{
    {"error xml-syntax 2", "<uiconfig prefix=''><toolbar_tabbar>\n</uiconfig>"},
    {"error encoding 1", "<uiconfig prefix='\xC0\xC1'/>"},
    {"error wrong-root 1", "<toolbar prefix=''/>"},
    {"error no-prefix 1", "<uiconfig/>"},
};

/** Sections, from line 2 on. */
constexpr Fault sectionFaults[]{
    {"error unknown-section 2", "<toolbar_additional/>"},
    {"error third-app-menu 3", "<toolbar_appbutton><menu name='a'/><menu name='b'/>\n"
                               "<menu name='c'><menuitem oops=''/></menu></toolbar_appbutton>"},
    {"warning duplicate-name 3", "<toolbar_tabbar><tabbutton name='a' checkable='true' "
                                 "checked='true'/>\n<tabbutton name='a'/></toolbar_tabbar>"},
    {"warning no-checked-tab 2", "<toolbar_tabbar><tabbutton name='a'/></toolbar_tabbar>"},
    {"warning checked-tabs 3",
     "<toolbar_tabbar><tabbutton name='a' checkable='true' checked='true'/>\n"
     "<tabbutton name='b' checkable='true' checked='true'/></toolbar_tabbar>"},
    {"error search-button-name 2",
     "<toolbar_searchbar><button action='find'/></toolbar_searchbar>"},
    {"error search-without-buttons 2",
     "<toolbar_searchbar><lineedit action='st_input'/></toolbar_searchbar>"},
    {"warning several-search-fields 3",
     "<toolbar_searchbar><button action='next'/><lineedit action='a'/>\n"
     "<lineedit action='b'/></toolbar_searchbar>"},
    {"note same-name 3", "<toolbar_quickaccessbar><button action='a'/></toolbar_quickaccessbar>\n"
                         "<toolbar_addtional><button action='a'/></toolbar_addtional>"},
};

/** Controls of a tool row, from line 3 on. */
constexpr Fault rowFaults[]{
    {"warning stray-text 3", "text"},
    {"error unknown-element 3", "<separator/>"},
    {"error misplaced-element 3", "<menuitem action='a'/>"},
    {"error misplaced-element 3", "<button action='a'><button action='b'/></button>"},
    {"error no-attributes 3", "<button/>"},
    {"error idle-extra 3", "<extra usable='true'/>"},
    {"warning unknown-attribute 3", "<button action='a' Text='A'/>"},
    {"note unused-attribute 3", "<button action='a' shortcut='Ctrl+A'/>"},
    {"note unused-attribute 3", "<label name='a' min_width='5'/>"},
    {"warning boolean-text 3", "<button action='a' visible='no'/>"},
    {"warning boolean-text 3", "<button action='a' checkable='True'/>"},
    {"warning name-and-action 3", "<button action='a' name='b'/>"},
    {"warning no-name 3", "<button text='A'/>"},
    {"warning checked-not-checkable 3", "<button action='a' checked='true'/>"},
    {"warning group-not-checkable 3", "<button action='a' group='g'/>"},
    {"warning group-of-one 3", "<button action='a' group='g' checkable='true'/>"},
    {"warning group-checked-twice 4",
     "<button action='a' group='g' checkable='true' checked='true'/>\n"
     "<button action='b' group='g' checkable='true' checked='true'/>"},
    {"warning index-not-number 3", "<menu name='m' index='one'><menuitem action='a'/></menu>"},
    {"warning index-out-of-range 3", "<menu name='m' index='2'><menuitem action='a'/></menu>"},
    {"warning index-out-of-range 3", "<combobox name='m' index='-1'><item action='a'/></combobox>"},
    {"warning index-of-separator 3", "<menu name='m' index='1'><sperator/></menu>"},
    {"note shared-action 4", "<button action='a' text='A'/>\n<button action='a' text='A'/>"},
    {"warning shared-action-differs 4",
     "<button action='a' text='A'/>\n<button action='a' text='B'/>"},
    {"warning duplicate-name 4", "<lineedit action='a'/>\n<button action='a'/>"},
    {"warning duplicate-entry 4",
     "<combobox action='b'><item action='a'/>\n<item action='a'/></combobox>"},
    {"warning icon-missing 3", "<button action='a' icon='icon24/no.svg'/>"},
    {"warning icon-missing 3", "<button action='a' icon='icon24'/>"},
    {"note icon-leading-slash 3", "<button action='a' icon='/icon24/FitPage.svg'/>"},
    {"note icon-in-one-skin 3", "<button action='a' icon='more-white.svg'/>"},
    {"warning several-page-fields 4",
     "<lineedit action='d_gotopage'/>\n<lineedit action='gotopage2'/>"},
    {"warning several-zoom-boxes 4", "<combobox action='zoom'><item action='a'/></combobox>\n"
                                     "<combobox action='zoom2'><item action='a'/></combobox>"},
};

/** Controls of an extra group, from line 3 on. */
constexpr Fault extraFaults[]{
    {"error extra-field-buttons 3", "<lineedit name='f'><button name='a'/><button name='b'/>"
                                    "<button name='c'/></lineedit>"},
};

/** Entries of the application menu, from line 3 on. */
constexpr Fault menuFaults[]{
    {"warning unknown-element 3", "<separator/>"},
    {"warning misplaced-element 3", "<button action='a'/>"},
    {"warning no-attributes 3", "<menuitem/>"},
    {"warning empty-menu 3", "<menu name='a'/>"},
    {"warning entry-with-children 3", "<menuitem action='a'><menuitem action='b'/></menuitem>"},
    {"warning shortcut-unreadable 3", "<menuitem action='a' shortcut='Ctrl+Foo'/>"},
    {"warning shortcut-collision 4",
     "<menuitem action='a' shortcut='Ctrl+O'/>\n<menuitem action='b' shortcut='ctrl+o'/>"},
    {"warning recent-files-placeholder 3",
     "<menu name='f_openrecent'><menuitem action='f_clearhistory'/></menu>"},
    {"note recent-files-clear-history 3",
     "<menu name='f_openrecent'><menuitem action='no_file'/></menu>"},
};

} // namespace

/** What an author is told of a description. */
class CheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFindFault_data()
    {
        QTest::addColumn<QByteArray>("description");
        QTest::addColumn<QString>("finding");
        const auto add = [](const Fault &fault, const QByteArray &description) {
            const QByteArray name = fault.finding + QByteArray(": ") + fault.text;
            QTest::newRow(name.simplified().constData())
                << description << QString::fromLatin1(fault.finding);
        };
        for (const Fault &fault : documentFaults)
            add(fault, fault.text);
        for (const Fault &fault : sectionFaults)
            add(fault, document(fault.text));
        for (const Fault &fault : rowFaults)
            add(fault, row(fault.text));
        for (const Fault &fault : extraFaults)
            add(fault,
                row("<extra usable='true'>" + QByteArray(fault.text) + "</extra>", scalable));
        for (const Fault &fault : menuFaults)
            add(fault, menu(fault.text));
    }

    void shouldFindFault()
    {
        QFETCH(QByteArray, description);
        QFETCH(QString, finding);

        QCOMPARE(summary(checkDescription(description)), QStringList(finding));
    }

    void shouldAcceptWhatIsInOrder_data()
    {
        QTest::addColumn<QByteArray>("description");

        QTest::newRow("byte-order mark") << "\xEF\xBB\xBF" + document({});
        QTest::newRow("comment") << row("<!-- <separator/> -->");
        QTest::newRow("schema for editors") << QByteArray(
            "<uiconfig prefix='' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
            "xsi:noNamespaceSchemaLocation='uiconfig.xsd'/>");
        QTest::newRow("entities")
            << "<!DOCTYPE uiconfig [<!ENTITY e \"<button action='a' text='A'/>\">]>"
                   + row("<button action='b' text='&lt;&#65;'/>&e;");
        QTest::newRow("defaults spelled out")
            << row("<button action='a' visible='true' checkable='false'/>");
        QTest::newRow("separator") << row("<sperator/>");
        QTest::newRow("menu with an own entry")
            << row("<menu name='m' index='1'><menuitem action='a'/></menu>");
        QTest::newRow("group across menus and rows")
            << row("<button action='a' group='g' checkable='true'/><menu name='m'>"
                   "<menuitem action='b' group='g' checkable='true' checked='true'/></menu>");
        QTest::newRow("different keys") << menu(
            "<menuitem action='a' shortcut='Ctrl+O'/><menuitem action='b' shortcut='F11'/>");
        QTest::newRow("entry of a box named like a button")
            << row("<button action='a'/><combobox action='b'><item action='a'/></combobox>");
        QTest::newRow("recent files")
            << menu("<menu name='f_openrecent'><menuitem action='no_file'/>"
                    "<menuitem action='f_clearhistory'/></menu>");
        QTest::newRow("extra search field")
            << row("<extra usable='true'><lineedit name='gis'><button name='gis_next'/></lineedit>"
                   "</extra>",
                   scalable);
    }

    void shouldAcceptWhatIsInOrder()
    {
        QFETCH(QByteArray, description);

        QCOMPARE(summary(checkDescription(description)), QStringList());
    }

    void shippedDescriptionsShouldPass_data() { TestDocuments::addShipped(); }

    void shippedDescriptionsShouldPass()
    {
        QFETCH(int, skin);
        QFETCH(QString, path);

        const QVector<Finding> findings =
            checkDescription(TestDocuments::content(path), {skinName(skin)});
        QVERIFY2(!findings.isEmpty(), "The documents have their oddities");
        QCOMPARE(summary(withoutNotes(findings)), QStringList());
    }

    void shouldPointAtTheAttribute()
    {
        const QVector<Finding> findings = checkDescription(
            row("<button action='a' text='1 &gt; 0 / 2'\r\n        icon='icon24/FitPage.svg'\r\n"
                "\ttolltip='x'/>"));
        QCOMPARE(findings.size(), 1);
        QCOMPARE(findings.first().line, 5);
        QCOMPARE(findings.first().column, 2);
        QVERIFY2(findings.first().message.contains(QLatin1String("did you mean 'tooltip'?")),
                 qPrintable(findings.first().message));
    }

    void shouldLookIconsUpInTheChosenSkin()
    {
        const QByteArray description = row("<button action='a' icon='more-white.svg'/>");
        QCOMPARE(summary(checkDescription(description, {QStringLiteral("marodi")})), QStringList());
        QCOMPARE(summary(checkDescription(description, {QStringLiteral("lum")})),
                 QStringList(QStringLiteral("warning icon-missing 3")));

        // The action has its icon from the row, which is built first.
        const QByteArray shipped =
            TestDocuments::content(TestDocuments::shippedPath("marodi/mr_toolbar.debug.xml"));
        const QStringList found = summary(checkDescription(shipped));
        QCOMPARE(found.filter(QStringLiteral("icon-missing")),
                 QStringList(QStringLiteral("note icon-missing-shared 63")));
    }

    void shouldSurviveDeepNesting()
    {
        constexpr int depth = 10000;
        QByteArray entries;
        for (int i = 0; i < depth; ++i)
            entries += "<menu name='m" + QByteArray::number(i) + "'>";
        entries += "<menuitem action='a' oops=''/>" + QByteArray("</menu>").repeated(depth);
        QCOMPARE(summary(checkDescription(menu(entries))),
                 QStringList(QStringLiteral("warning unknown-attribute 3")));
    }

    void toolShouldTellByItsExitCode_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QByteArray>("description");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QByteArray>("output");

        const QByteArray withNote = row("<button action='a' output='b'/>");
        const QByteArray withWarning = row("<button action='a' Text='b'/>");
        const auto add = [](const char *name, const QString &options, const QByteArray &description,
                            int exitCode, const QByteArray &output) {
            QTest::newRow(name) << options.split(QLatin1Char(' '), Qt::SkipEmptyParts)
                                << description << exitCode << output;
        };
        add("clean", QStringLiteral("-"), document({}), 0, "");
        add("note", QStringLiteral("-"), withNote, 0, "");
        add("wanted note", QStringLiteral("--notes -"), withNote, 1, "-:3:20: note: ");
        add("warning", QStringLiteral("-"), withWarning, 1, "-:3:20: warning: ");
        add("warning as error", QStringLiteral("--werror -"), withWarning, 1, "-:3:20: error: ");
        add("no file", QString(), {}, 2, "");
        add("absent file", QStringLiteral("absent.xml"), {}, 2, "");
        add("absent file and clean one", QStringLiteral("absent.xml -"), document({}), 2, "");
        add("unknown option", QStringLiteral("--oops -"), {}, 2, "");
        add("absent resources", QStringLiteral("--resources absent.rcc -"), {}, 2, "");
        add("unknown skin", QStringLiteral("--skin blue -"), {}, 2, "");
        add("help", QStringLiteral("--help"), {}, 0, "Usage: ");
        add("version", QStringLiteral("--version"), {}, 0, "mrtoolbar-check ");
    }

    void toolShouldTellByItsExitCode()
    {
        QFETCH(QStringList, options);
        QFETCH(QByteArray, description);
        QFETCH(int, exitCode);
        QFETCH(QByteArray, output);

        const ToolResult result = runTool(options, description);
        QCOMPARE(result.exitCode, exitCode);
        QVERIFY2(output.isEmpty() ? result.output.isEmpty() : result.output.startsWith(output),
                 result.output.constData());
        // One clear line, and only where something is wrong with the call.
        QCOMPARE(int(result.error.count('\n')), exitCode == 2 ? 1 : 0);
    }

    void toolShouldWriteJson()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("\"quoted\".xml")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(row("<button/>"));
        file.close();

        const ToolResult result = runTool({QStringLiteral("--json"), file.fileName()});
        QCOMPARE(result.exitCode, 1);
        const QJsonArray findings = QJsonDocument::fromJson(result.output).array();
        QCOMPARE(findings.size(), 1);
        const QJsonObject finding = findings.first().toObject();
        QCOMPARE(finding.value(QLatin1String("file")).toString(), file.fileName());
        QCOMPARE(finding.value(QLatin1String("line")).toInt(), 3);
        QCOMPARE(finding.value(QLatin1String("column")).toInt(), 1);
        QCOMPARE(finding.value(QLatin1String("severity")).toString(), QStringLiteral("error"));
        QCOMPARE(finding.value(QLatin1String("id")).toString(), QStringLiteral("no-attributes"));
        QVERIFY(
            finding.value(QLatin1String("message")).toString().contains(QLatin1String("'button'")));

        const ToolResult clean =
            runTool({QStringLiteral("--json"), QStringLiteral("-")}, document({}));
        QCOMPARE(clean.exitCode, 0);
        QVERIFY(QJsonDocument::fromJson(clean.output).isArray());
    }
};

QTEST_MAIN(CheckTest)
#include "tst_check.moc"
