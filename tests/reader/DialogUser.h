// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

/** Answers dialogs by a timer, because their event loops block the test. */
class DialogUser
{
public:
    enum Answer
    {
        Enter,
        Escape,
        Discard
    };

    /** @param file What is typed into a file dialog: "*" for what it proposes, empty for none. */
    explicit DialogUser(Answer answer, const QString &file = {})
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, answer, file] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (auto *question = qobject_cast<QMessageBox *>(dialog)) {
                ++questions;
                lastText = question->text();
                give(answer, question);
            } else if (auto *chooser = qobject_cast<QFileDialog *>(dialog)) {
                ++choosers;
                folder = chooser->directory().absolutePath();
                choose(file, chooser);
            }
        });
        m_timer.start(50);
    }

    int questions = 0;
    int choosers = 0;
    QString lastText; ///< Of the last question.
    QString folder;   ///< Where the last file dialog began.

private:
    static void give(Answer answer, QMessageBox *question)
    {
        const QList<QAbstractButton *> buttons = question->buttons();
        for (QAbstractButton *button : buttons) {
            if (answer == Discard && question->buttonRole(button) == QMessageBox::DestructiveRole)
                return button->click();
        }
        QWidget *focus = question->focusWidget();
        QTest::keyClick(focus ? focus : question,
                        answer == Enter ? Qt::Key_Return : Qt::Key_Escape);
    }

    static void choose(const QString &file, QFileDialog *chooser)
    {
        if (file.isEmpty())
            return chooser->reject();
        auto *field = chooser->findChild<QLineEdit *>();
        if (file != QLatin1String("*"))
            field->setText(file);
        QTest::keyClick(field, Qt::Key_Return);
    }

    QTimer m_timer;
};
