// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/CheckDocuments.h"

#include <QDateTime>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace CheckDocuments;

namespace {

struct ToolResult
{
    int exitCode = -1;
    QByteArray output;
    QByteArray error;
};

ToolResult runTool(const QStringList &arguments, const QByteArray &input = {})
{
    QProcess tool;
    // It is called while building, where there is no display.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(name));
    tool.setProcessEnvironment(environment);
    tool.start(CHECK_TOOL, arguments);
    tool.write(input);
    tool.closeWriteChannel();
    if (!tool.waitForFinished() || tool.exitStatus() != QProcess::NormalExit)
        return {};
    return {tool.exitCode(), tool.readAllStandardOutput(), tool.readAllStandardError()};
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

} // namespace

/** The program mrtoolbar-check: its options, its exit codes and what it writes. */
class CheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

QTEST_GUILESS_MAIN(CheckTest)
#include "tst_check.moc"
