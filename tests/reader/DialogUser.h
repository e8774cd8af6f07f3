// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
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
        Accept,
        Discard
    };

    /** @param text What is typed into a dialog; without it a file dialog is cancelled. */
    explicit DialogUser(Answer answer, const QString &text = {})
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, answer, text] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (auto *question = qobject_cast<QMessageBox *>(dialog)) {
                questions.append(question->text());
                give(answer, question);
            } else if (auto *chooser = qobject_cast<QFileDialog *>(dialog)) {
                proposals.append(chooser->selectedFiles().value(0));
                choose(text, chooser);
            } else if (auto *input = qobject_cast<QInputDialog *>(dialog)) {
                input->findChild<QPlainTextEdit *>()->setPlainText(text);
                input->accept();
            }
        });
        m_timer.start(50);
    }

    QStringList questions;
    QStringList proposals; ///< Of each file dialog.

private:
    static void give(Answer answer, QMessageBox *question)
    {
        QWidget *focus = question->focusWidget();
        QWidget *receiver = focus ? focus : question;
        if (answer == Enter)
            return QTest::keyClick(receiver, Qt::Key_Return);
        if (answer == Escape)
            return QTest::keyClick(receiver, Qt::Key_Escape);
        const auto role = answer == Accept ? QMessageBox::AcceptRole : QMessageBox::DestructiveRole;
        const QList<QAbstractButton *> buttons = question->buttons();
        for (QAbstractButton *button : buttons) {
            if (question->buttonRole(button) == role)
                return button->click();
        }
        question->reject();
    }

    static void choose(const QString &file, QFileDialog *chooser)
    {
        if (file.isEmpty())
            return chooser->reject();
        auto *field = chooser->findChild<QLineEdit *>();
        field->setText(file);
        QTest::keyClick(field, Qt::Key_Return);
    }

    QTimer m_timer;
};
