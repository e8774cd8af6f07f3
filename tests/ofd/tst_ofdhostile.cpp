// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

namespace {

// Of processor time, which does not depend on other programs.
#ifdef __OPTIMIZE__
constexpr double mostSeconds = 2;
#else
constexpr double mostSeconds = 5;
#endif
#ifdef __SANITIZE_ADDRESS__
constexpr int mostMegabytes = 1500;
#else
constexpr int mostMegabytes = 300;
#endif
/** Other programs may take nearly all of the machine. */
constexpr int mostMilliseconds = 240 * 1000;

/** What the program for one file wrote. */
struct Outcome
{
    QString end;
    double seconds = 0;
    int megabytes = 0;
    QString sentence;
};

Outcome outcomeOf(const QString &file)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    // To overwrite what a growing list frees behind itself can take ten times as long as the rest.
    environment.remove("MALLOC_PERTURB_");
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(OFD_PAINTER), {file});
    if (!program.waitForFinished(mostMilliseconds) || program.exitStatus() != QProcess::NormalExit)
        return {"crashed or did not end", 0, 0, program.readAllStandardError()};
    const QStringList parts =
        QString::fromUtf8(program.readAllStandardOutput()).trimmed().split('\t');
    return {parts.value(0), parts.value(1).toDouble(), parts.value(2).toInt(), parts.value(3)};
}

} // namespace

/** Files that are made to crash, fill or block a reader: each must end soon, and in words. */
class TestOfdHostile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldEndWell_data()
    {
        QTest::addColumn<QString>("end");
        QTest::addColumn<QString>("part");
        QTest::addColumn<double>("times");
        QFile list(QDir(QStringLiteral(OFD_HOSTILE)).filePath("expected.tsv"));
        QVERIFY(list.open(QIODevice::ReadOnly));
        while (!list.atEnd()) {
            const QStringList fields =
                QString::fromUtf8(list.readLine()).remove('\n').split(QChar('\t'));
            QTest::newRow(qPrintable(fields.value(0)))
                << fields.value(1) << fields.value(2) << fields.value(3).toDouble();
        }
    }

    void shouldEndWell()
    {
        QFETCH(QString, end);
        QFETCH(QString, part);
        QFETCH(double, times);
        const Outcome found = outcomeOf(
            QDir(QStringLiteral(OFD_HOSTILE)).filePath(QTest::currentDataTag() + QString(".ofd")));
        const QString shown = QStringLiteral("%1 after %2 s, %3 MB: %4")
                                  .arg(found.end)
                                  .arg(found.seconds)
                                  .arg(found.megabytes)
                                  .arg(found.sentence);
        QVERIFY2(found.end == "refused" || found.end == "painted", qPrintable(shown));
        QVERIFY2(found.end.contains(end) && found.sentence.contains(part), qPrintable(shown));
        QVERIFY2(found.end != "refused" || found.sentence.endsWith("。"), qPrintable(shown));
        QVERIFY2(found.seconds < mostSeconds * times && found.megabytes < mostMegabytes,
                 qPrintable(shown));
    }
};

QTEST_GUILESS_MAIN(TestOfdHostile)
#include "tst_ofdhostile.moc"
