// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/fields/ChoiceText.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

void setChoiceText(QComboBox *box, int index, const QString &text)
{
    const QString former = box->itemText(index);
    if (former == text)
        return;

    QLineEdit *field = box->lineEdit();
    const QString typed = field ? field->text() : former;
    const int cursor = field ? field->cursorPosition() : 0;
    // The host is told of another choice, not of another text for one.
    const QSignalBlocker blocker(box);
    box->setItemText(index, text);
    // The field of a box shows its current entry again, whatever is typed there.
    if (field && typed != former && field->text() != typed) {
        field->setText(typed);
        field->setCursorPosition(cursor);
    }
}
