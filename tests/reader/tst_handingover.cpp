// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/Options.h"
#include "shell/SingleInstance.h"

#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <memory>

namespace {

/** Another start of the program, which waits for an answer of this one. */
bool startAgain(const QStringList &files, const QString &key = "look")
{
    bool isTaken = false;
    const std::unique_ptr<QThread> start(
        QThread::create([&] { isTaken = SingleInstance(key).handOver(files); }));
    start->start();
    while (!start->wait(10))
        QCoreApplication::processEvents();
    return isTaken;
}

} // namespace

/** The documents of the command line, and a second start that hands them to the first. */
class HandingOverTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("XDG_RUNTIME_DIR", m_folder.path().toLocal8Bit()); }

    void shouldHandTheFilesToTheProgramThatRuns()
    {
        const QStringList files{"/a/中文 1.ofd", "/b\n.ofd"};
        {
            SingleInstance first("look");
            QSignalSpy spy(&first, &SingleInstance::filesHandedOver);
            QVERIFY(!first.handOver({}));
            QVERIFY(startAgain(files));
            QVERIFY(startAgain({}));
            QVERIFY(!startAgain(files, "another look"));
            QCOMPARE(spy.size(), 2);
            QCOMPARE(spy.at(0).first().toStringList(), files);
            QCOMPARE(spy.at(1).first().toStringList(), QStringList());
            const QFileInfo socket(socketPath());
            QCOMPARE(socket.permissions() & 0x77, QFile::Permissions());
        }
        QVERIFY(!startAgain(files));
    }

    void shouldTakeThePlaceOfAProgramThatCrashed()
    {
        const QString path = firstPath();
        QFile left(path);
        QVERIFY(left.open(QIODevice::WriteOnly));
        SingleInstance first("look");
        QVERIFY(!first.handOver({}));
        QVERIFY(startAgain({"/a.ofd"}));
    }

    void shouldStartBesideAProgramThatDoesNotAnswer()
    {
        const QString path = firstPath();
        QLocalServer silent;
        QVERIFY(silent.listen(path));
        QVERIFY(!startAgain({"/a.ofd"}));
        QVERIFY(QFileInfo::exists(path)); // It may answer the next one.
        silent.close();
    }

    void shouldIgnoreStrangersMessages()
    {
        SingleInstance first("look");
        QSignalSpy spy(&first, &SingleInstance::filesHandedOver);
        QVERIFY(!first.handOver({}));
        for (const QByteArray message : {"GET / HTTP/1.0\r\n\r\n", "OFD1\xff\xff\xff", ""}) {
            QLocalSocket stranger;
            stranger.connectToServer(socketPath());
            QVERIFY(stranger.waitForConnected());
            stranger.write(message);
            stranger.flush();
            stranger.disconnectFromServer();
        }
        // Whoever came before is served before.
        QVERIFY(startAgain({"/a.ofd"}));
        QCOMPARE(spy.size(), 1);
    }

    void shouldReadTheCommandLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("error"); // A part of it.
        const auto add = [](const char *arguments, const QStringList &files,
                            const char *error = "") {
            QTest::newRow(arguments)
                << QString(arguments).split(' ', Qt::SkipEmptyParts) << files << QString(error);
        };
        const QString here = QDir::currentPath();
        add("", {});
        add("a.ofd /b.ofd", {here + "/a.ofd", "/b.ofd"});
        add("file:///a%20b%25.ofd", {"/a b%.ofd"});
        add("file://localhost/a.ofd", {"/a.ofd"});
        add("file://elsewhere/a.ofd", {}, "'file://elsewhere/a.ofd' is not the address of a file");
        add("- a.ofd", {here + "/a.ofd"});
        add("- -", {}, "only once");
        add("-- --x.ofd", {here + "/--x.ofd"});
        add("--sample", {});
        add("--sample a.ofd", {}, "takes no file");
        add("--screenshot a.JPG /b.ofd", {"/b.ofd"});
        add("--screenshot a.doc", {}, "ending in .png, .jpg, ");
        add("--screenshot a", {}, "not 'a'");
        add("--screenshot a.png b.ofd c.ofd", {}, "one document");
        add("--print-to a.pdf /b.ofd", {"/b.ofd"});
        add("--print-to a.png /b.ofd", {}, "ending in .pdf, not 'a.png'");
        add("--print-to a.pdf", {}, "one document");
        add("--print-to a.pdf --screenshot a.png /b.ofd", {}, "cannot be used together");
        add("--language fr", {}, "zh_CN or en");
    }

    void shouldReadTheCommandLine()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, error);
        QString fault;
        const Options options = Options::of(QStringList("reader") + arguments, &fault);
        QVERIFY2(error.isEmpty() ? fault.isEmpty() : fault.contains(error), qPrintable(fault));
        QVERIFY(!fault.contains('\n'));
        if (error.isEmpty())
            QTEST(options.files, "files");
        QCOMPARE(options.readsInput, error.isEmpty() && arguments.contains("-"));
    }

private:
    QString socketPath() const
    {
        const QStringList names =
            QDir(m_folder.path()).entryList({"mrtoolbar-reader-*"}, QDir::System | QDir::Files);
        for (const QString &name : names) {
            if (!name.endsWith(".lock"))
                return m_folder.filePath(name);
        }
        return QString();
    }
    /** Where a first program listens, which has ended. */
    QString firstPath() const
    {
        SingleInstance first("look");
        first.handOver({});
        return socketPath();
    }

    const QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(HandingOverTest)
#include "tst_handingover.moc"
