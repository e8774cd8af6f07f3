// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/Description.h"
#include "shell/ReaderWindow.h"

#include <QApplication>
#include <QDomDocument>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {

/** A window whose document has an unsaved mark. */
struct Reader
{
    Reader()
        : window(Description::read("release", "marodi", &error), QString())
    {
        window.openSample();
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QList<QWidget *> widgets = window.findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            if (widget->inherits("NewToolBar"))
                QMetaObject::invokeMethod(widget, "DoActive", Q_ARG(QString, "ti_stamp"));
        }
        QTRY_VERIFY(window.isWindowModified());
    }

    QString error;
    ReaderWindow window;
};

enum Answer
{
    Enter,
    Escape,
    Discard
};

void give(Answer answer, QMessageBox *question)
{
    if (answer == Discard) {
        const QList<QAbstractButton *> buttons = question->buttons();
        for (QAbstractButton *button : buttons) {
            if (question->buttonRole(button) == QMessageBox::DestructiveRole)
                return button->click();
        }
    }
    QWidget *focus = question->focusWidget();
    QTest::keyClick(focus ? focus : question, answer == Enter ? Qt::Key_Return : Qt::Key_Escape);
}

void choose(const QString &file, QFileDialog *chooser)
{
    if (file.isEmpty())
        return chooser->reject();
    auto *field = chooser->findChild<QLineEdit *>();
    field->setText(file);
    QTest::keyClick(field, Qt::Key_Return);
}

/** Answers dialogs by a timer, because their event loops block the test. */
class User
{
public:
    User(Answer answer, const QString &file)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, answer, file] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (auto *question = qobject_cast<QMessageBox *>(dialog)) {
                ++questions;
                give(answer, question);
            } else if (auto *chooser = qobject_cast<QFileDialog *>(dialog)) {
                ++choosers;
                choose(file, chooser);
            }
        });
        m_timer.start(50);
    }

    int questions = 0;
    int choosers = 0;

private:
    QTimer m_timer;
};

} // namespace

/** Closing a document with unsaved changes. */
class UnsavedTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        qputenv("XDG_CONFIG_HOME", "/nowhere"); // Not the user's own settings.
    }

    void shouldFollowTheAnswerToTheQuestion_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("isSaved");
        QTest::addColumn<bool>("isClosed");
        QTest::newRow("Enter, saved") << int(Enter) << "marks.pdf" << true << true;
        QTest::newRow("Enter, no file chosen") << int(Enter) << "" << false << false;
        QTest::newRow("Enter, missing folder") << int(Enter) << "none/marks.pdf" << false << false;
        QTest::newRow("Enter, format without marks") << int(Enter) << "marks.txt" << true << false;
        QTest::newRow("Escape") << int(Escape) << "" << false << false;
        QTest::newRow("discard") << int(Discard) << "" << false << true;
    }

    void shouldFollowTheAnswerToTheQuestion()
    {
        QFETCH(int, answer);
        QFETCH(QString, file);
        QFETCH(bool, isSaved);
        QFETCH(bool, isClosed);
        const QTemporaryDir folder;
        const QString path = folder.filePath(file);
        Reader reader;
        const User user(Answer(answer), file.isEmpty() ? file : path);
        QCOMPARE(reader.window.close(), isClosed);
        QCOMPARE(user.questions, 1);
        QCOMPARE(user.choosers, answer == Enter ? 1 : 0);
        QCOMPARE(reader.window.isVisible(), !isClosed);
        QCOMPARE(QFileInfo(path).isFile() && QFileInfo(path).size() > 0, isSaved);
        QTRY_COMPARE(reader.window.isWindowModified(), !isSaved || !isClosed);
    }
};

QTEST_MAIN(UnsavedTest)
#include "tst_unsaved.moc"
